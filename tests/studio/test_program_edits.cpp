// Edits of programs: the smallest, in the text's own style.
#include "sample_programs.h"

#include "text/area_texts.h"
#include "text/program_edits.h"

using namespace ClockStudio;

namespace {

const char kProgram[] = "<program width=\"64\" height=\"32\">\n"
                        "  <area x=\"1\" y='2' width=\"3\" height=\"4\">\n"
                        "    <clock type=\"dial\">\n"
                        "      <date display=\"false\"/>\n"
                        "    </clock>\n"
                        "  </area>\n"
                        "</program>\n";

QString Edited(QString text, const TextEdits &edits)
{
    ApplyEdits(text, InSequence(edits));
    return text;
}

int ElementNamed(const ParsedProgram &parsed, const QString &name)
{
    for (int i = 0; i < parsed.elements.size(); ++i) {
        if (parsed.elements[i].name == name)
            return i;
    }
    return -1;
}

} // namespace

class TestProgramEdits : public QObject
{
    Q_OBJECT

private slots:
    void AttributeIsReplaced();
    void AttributeIsAdded();
    void AttributeIsRemoved();
    void Geometry();
    void Child_data();
    void Child();
    void ElementIsRemoved();
    void LineEndsStay();
    void EditsAreSmallest_data();
    void EditsAreSmallest();
    void AreasOfTexts();
    void IdentityIsRenewed();
    void EmptyWall();
    void PositionsMove();
};

void TestProgramEdits::AttributeIsReplaced()
{
    const ParsedProgram parsed = MustRead(kProgram);
    const TextEdit edit = SetAttributeEdit(parsed, parsed.ClockElement(0), "type", "digital");
    QCOMPARE(edit.removed, QString());
    QCOMPARE(edit.inserted, QString("git"));
    QCOMPARE(Edited(parsed.text, {edit}), QString(kProgram).replace("dial", "digital"));
}

void TestProgramEdits::AttributeIsAdded()
{
    const ParsedProgram parsed = MustRead(kProgram);
    const int date = ElementNamed(parsed, "date");
    QCOMPARE(Edited(parsed.text, {SetAttributeEdit(parsed, date, "color", "a\"b")}),
             QString(kProgram).replace("\"false\"", "\"false\" color=\"a&quot;b\""));
}

void TestProgramEdits::AttributeIsRemoved()
{
    const ParsedProgram parsed = MustRead(kProgram);
    const int date = ElementNamed(parsed, "date");
    QCOMPARE(Edited(parsed.text, {RemoveAttributeEdit(parsed, date, "display")}),
             QString(kProgram).replace(" display=\"false\"", ""));
    QCOMPARE(Edited(parsed.text, {RemoveAttributeEdit(parsed, date, "color")}), QString(kProgram));
}

void TestProgramEdits::Geometry()
{
    const ParsedProgram parsed = MustRead(kProgram);
    QCOMPARE(GeometryEdits(parsed, 0, QRect(1, 2, 3, 4)).size(), 0);
    QCOMPARE(Edited(parsed.text, GeometryEdits(parsed, 0, QRect(1, 20, 30, 4))),
             QString(kProgram).replace("y='2' width=\"3\"", "y='20' width=\"30\""));
    QCOMPARE(Edited(parsed.text, ScreenSizeEdits(parsed, QSize(128, 32))),
             QString(kProgram).replace("\"64\"", "\"128\""));
}

void TestProgramEdits::Child_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const QString frame = "<program width=\"1\" height=\"1\"><area x=\"0\" y=\"0\" width=\"1\" "
                          "height=\"1\">%1</area></program>";
    const auto row = [&frame](const char *name, const QString &before, const QString &after) {
        QTest::newRow(name) << frame.arg(before) << frame.arg(after);
    };
    row("one line", "<clock/>", "<clock><n>\n  <m/>\n</n></clock>");
    row("one line, with a child", "<clock><o/></clock>", "<clock><o/><n>\n  <m/>\n</n></clock>");
    row("closed on its own line", "\n<clock/>\n", "\n<clock>\n  <n>\n    <m/>\n  </n>\n</clock>\n");
    row("empty", "\n <clock></clock>", "\n <clock>\n   <n>\n     <m/>\n   </n>\n </clock>");
    row("with a child", "\n <clock>\n\t<o/>\n </clock>",
        "\n <clock>\n\t<o/>\n\t<n>\n\t  <m/>\n\t</n>\n </clock>");
}

void TestProgramEdits::Child()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const ParsedProgram parsed = MustRead(before);
    const TextEdit edit = AppendChildEdit(parsed, parsed.ClockElement(0), "<n>\n  <m/>\n</n>");
    QCOMPARE(Edited(before, {edit}), after);
}

void TestProgramEdits::ElementIsRemoved()
{
    const ParsedProgram parsed = MustRead(kProgram);
    QCOMPARE(Edited(kProgram, {RemoveElementEdit(parsed, ElementNamed(parsed, "date"))}),
             QString(kProgram).replace("      <date display=\"false\"/>\n", ""));
    const QString beside = QString(kProgram).replace("<date", "<week/><date");
    const ParsedProgram other = MustRead(beside);
    QCOMPARE(Edited(beside, {RemoveElementEdit(other, ElementNamed(other, "week"))}),
             QString(kProgram));
}

void TestProgramEdits::LineEndsStay()
{
    for (const QString &lineEnd : {QString("\r\n"), QString("\r")}) {
        const QString text = QString(kProgram).replace("\n", lineEnd);
        const ParsedProgram parsed = MustRead(text);
        const QString added =
            Edited(text, {AppendChildEdit(parsed, parsed.ClockElement(0), "<n>\n</n>")});
        QCOMPARE(added.count(lineEnd), text.count(lineEnd) + 2);
        if (lineEnd.size() == 2)
            QCOMPARE(added.count("\n"), added.count("\r\n"));
        const int date = ElementNamed(parsed, "date");
        QCOMPARE(Edited(text, {RemoveElementEdit(parsed, date)}),
                 text.left(text.indexOf("      <date")) + text.mid(text.indexOf("    </clock>")));
    }
}

void TestProgramEdits::EditsAreSmallest_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("inserted");
    QTest::newRow("same") << "abc"
                          << "abc" << 3 << ""
                          << "";
    QTest::newRow("middle") << "abc"
                            << "axc" << 1 << "b"
                            << "x";
    QTest::newRow("repeated letter") << "aa"
                                     << "aaa" << 2 << ""
                                     << "a";
    QTest::newRow("line ends stay whole") << "a\rb"
                                          << "a\r\nb" << 1 << "\r"
                                          << "\r\n";
    const QString grin = QString::fromUtf8("\xf0\x9f\x98\x80");
    const QString smile = QString::fromUtf8("\xf0\x9f\x98\x83");
    QTest::newRow("surrogates stay whole") << grin << smile << 0 << grin << smile;
}

void TestProgramEdits::EditsAreSmallest()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const TextEdit edit = Smallest({0, before, after});
    QTEST(edit.position, "position");
    QTEST(edit.removed, "removed");
    QTEST(edit.inserted, "inserted");
}

void TestProgramEdits::AreasOfTexts()
{
    const ParsedProgram parsed = MustRead(kProgram);
    const QString area = PortableAreaText(parsed, 0);
    QVERIFY(area.startsWith("<area x=\"1\"") && area.endsWith("\n</area>"));
    QCOMPARE(AreasInText(area), QStringList {area});
    QCOMPARE(AreasInText(area + area), QStringList({area, area}));
    QCOMPARE(AreasInText(kProgram), QStringList {area});
    for (const char *text : {"", "hello", "<a/>", "<area/>", "<!DOCTYPE a><a/>"})
        QCOMPARE(AreasInText(text), QStringList());
}

void TestProgramEdits::IdentityIsRenewed()
{
    const QString area = "<area x=\"1\" y=\"2\" width=\"3\" height=\"4\"><clock>"
                         "<attribute key=\"Id\" value=\"1000\"/></clock></area>";
    QSet<int> taken {1000, 1001};
    QCOMPARE(AreaForProgram(area, QPoint(8, 8), taken),
             QString(area).replace("x=\"1\" y=\"2\"", "x=\"9\" y=\"10\"").replace("1000", "1002"));
    QVERIFY(taken.contains(1002));
    const QString without = "<area x=\"1\" y=\"2\" width=\"3\" height=\"4\"><clock/></area>";
    QCOMPARE(AreaForProgram(without, QPoint(), taken), without);
}

void TestProgramEdits::EmptyWall()
{
    QCOMPARE(MustRead("<program width=\"8\" height=\"9\"/>").program.size, QSize(8, 9));
    QCOMPARE(MustRead("<program width=\"8\" height=\"9\">\n</program>").AreaCount(), 0);
    for (const char *text : {"<program width=\"0\" height=\"9\"/>", "<program/>", "<area/>"}) {
        const auto read = ReadProgramText(text, TextForm());
        QVERIFY(std::holds_alternative<TextFault>(read));
    }
    const auto fault = ReadProgramText("<program width=\"8\" height=\"9\">\n<ar", TextForm());
    QCOMPARE(std::get<TextFault>(fault).line, 2);
}

void TestProgramEdits::PositionsMove()
{
    const TextEdits edits {{5, "abc", "x"}};
    QCOMPARE(MovedPosition(4, edits), 4);
    QCOMPARE(MovedPosition(5, edits), 5);
    QCOMPARE(MovedPosition(6, edits), 6);
    QCOMPARE(MovedPosition(8, edits), 6);
    QCOMPARE(MovedPosition(20, edits), 18);
}

QTEST_GUILESS_MAIN(TestProgramEdits)
#include "test_program_edits.moc"
