#include "program_file.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace ClockProgram;

namespace {

const QByteArray kArea("<area x='0' y='0' width='8' height='8'><panel/></area>");

QByteArray Screen(const QByteArray &content)
{
    return "<program width='64' height='32'>" + content + "</program>";
}

QByteArray AreaWith(const QByteArray &content)
{
    return Screen("<area x='0' y='0' width='8' height='8'>" + content + "</area>");
}

QByteArray Nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

} // namespace

class TestProgramFile : public QObject
{
    Q_OBJECT

private slots:
    void Parse();
    void Accepted_data();
    void Accepted();
    void Refused_data();
    void Refused();
    void PathsAreNamedAsTheyAre();
    void Unreadable_data();
    void Unreadable();
};

void TestProgramFile::Parse()
{
    const QByteArray contents(R"(<?xml version="1.0"?>
<program width="256" height="64">
  <!-- comments are no elements -->
  <area x="-3" y="5" width="100" height="20">
    <panel type="digital">
      <attribute key="Id" value="1500"/>
      <other><attribute key="deeper" value="not the player's"/></other>
      <attribute key="Text" value=" kept as it is "/>
      <attribute key="Empty" value=""/>
    </panel>
  </area>
  <area x="0" y="0" width="1" height="2"><panel/></area>
</program>)");
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    QVERIFY(std::holds_alternative<Program>(result));
    const Program &program = std::get<Program>(result);
    QCOMPARE(program.path, QStringLiteral("p.xml"));
    QCOMPARE(program.size, QSize(256, 64));
    QCOMPARE(program.areas.size(), 2);
    const ProgramArea &area = program.areas.first();
    QCOMPARE(area.geometry, QRect(-3, 5, 100, 20));
    QCOMPARE(area.element.tagName(), QStringLiteral("panel"));
    QCOMPARE(area.element.attribute(QStringLiteral("type")), QStringLiteral("digital"));
    QCOMPARE(area.element.lineNumber(), 5);
    QCOMPARE(area.attributes.size(), 3);
    QCOMPARE(area.attributes[0].key, QStringLiteral("Id"));
    QCOMPARE(area.attributes[0].value, QStringLiteral("1500"));
    QCOMPARE(area.attributes[1].value, QStringLiteral(" kept as it is "));
    QCOMPARE(area.attributes[2].key, QStringLiteral("Empty"));
    QVERIFY(area.attributes[2].value.isEmpty());
    QVERIFY(program.areas[1].attributes.isEmpty());
}

void TestProgramFile::Accepted_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("smallest") << QByteArray("<program width='1' height='1'>") + kArea
            + "</program>";
    QTest::newRow("longest side") << QByteArray("<program width='32767' height='1'>") + kArea
            + "</program>";
    QTest::newRow("8K screen") << QByteArray("<program width='7680' height='4320'>") + kArea
            + "</program>";
    QTest::newRow("area outside the screen")
        << Screen("<area x='32767' y='-32767' width='8' height='8'><panel/></area>");
    QTest::newRow("unknown element, a plugin's business") << AreaWith("<unknown/>");
    QTest::newRow("deep enough") << AreaWith(Nested(kMaximumDepth - 2));
    QTest::newRow("text between elements") << AreaWith("text <panel/> text");
    QTest::newRow("most areas") << Screen(kArea.repeated(kMaximumAreas));
}

void TestProgramFile::Accepted()
{
    QFETCH(QByteArray, contents);
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    if (const auto *failure = std::get_if<Failure>(&result))
        QFAIL(qPrintable(failure->text));
}

void TestProgramFile::Refused_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("message"); // what it begins with
    const auto row = [](const char *name, const QByteArray &contents, const char *message) {
        QTest::newRow(name) << contents << QString::fromLatin1(message);
    };
    row("empty", "", "p.xml:1:");
    row("no XML", "hello", "p.xml:1:");
    row("binary", QByteArray(100, '\0'), "p.xml:1:");
    row("cut off", "<program width='1' height='1'>\n<area", "p.xml:2:");
    row("wrong end tag", "<program>\n\n</prog>", "p.xml:3:");
    row("one attribute twice", "<program width='1' width='1'/>", "p.xml:1:");
    row("second root", Screen(kArea) + "\n<program/>", "p.xml:2:");
    row("nested too deep", Screen(Nested(100000)), "p.xml:1:");
    row("nested too deep and cut off", QByteArray("<a>").repeated(1000000), "p.xml:1:");
    row("entities that multiply",
        "<!DOCTYPE p [<!ENTITY a "
        "'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'>"
        "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
        "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
        "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
        "]>\n<program>&d;</program>",
        "p.xml:");
    row("other root", "<!-- -->\n<clock/>", "p.xml:2: the root element is <clock>");
    row("no size", "<program>" + kArea + "</program>", "p.xml:1: <program> needs width");
    row("width zero", "<program width='0' height='1'/>", "p.xml:1: <program> needs width");
    row("height negative", "<program width='1' height='-1'/>", "p.xml:1: <program> needs height");
    row("height a fraction", "<program width='1' height='1.5'/>",
        "p.xml:1: <program> needs height");
    row("side too long", "<program width='32768' height='1'/>", "p.xml:1: <program> needs width");
    row("side beyond 32 bits", "<program width='4294967297' height='1'/>",
        "p.xml:1: <program> needs width");
    row("too many pixels", "<program width='32767' height='32767'/>",
        "p.xml:1: the screen has more than");
    row("no area", Screen(""), "p.xml:1: the program has no <area>");
    row("other element", Screen("\n<clock/>"), "p.xml:2: unexpected element <clock>");
    row("area without x", Screen("\n<area y='0' width='8' height='8'><panel/></area>"),
        "p.xml:2: <area> needs x");
    row("area with y too small",
        Screen("\n<area x='0' y='-32768' width='8' height='8'><panel/></area>"),
        "p.xml:2: <area> needs y");
    row("area of no width", Screen("\n<area x='0' y='0' width='0' height='8'><panel/></area>"),
        "p.xml:2: <area> needs width");
    row("area with nothing in it", AreaWith("\n"), "p.xml:1: an <area> holds exactly one element");
    row("area with two elements", AreaWith("<panel/><panel/>"),
        "p.xml:1: an <area> holds exactly one element");
    row("attribute without key", AreaWith("<panel>\n<attribute value='1'/></panel>"),
        "p.xml:2: an <attribute> needs");
    row("attribute with empty key", AreaWith("<panel>\n<attribute key='' value='1'/></panel>"),
        "p.xml:2: an <attribute> needs");
    row("attribute without value", AreaWith("<panel>\n<attribute key='Id'/></panel>"),
        "p.xml:2: an <attribute> needs");
    row("one area too many", Screen(kArea.repeated(kMaximumAreas) + "\n" + kArea),
        "p.xml:2: too many areas");
    row("areas of too many pixels together",
        Screen(QByteArray("<area x='0' y='0' width='32767' height='1000'><panel/></area>\n")
                   .repeated(2)),
        "p.xml:2: too many areas");
}

void TestProgramFile::Refused()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, message);
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    QVERIFY(std::holds_alternative<Failure>(result));
    const Failure &failure = std::get<Failure>(result);
    QCOMPARE(int(failure.code), 3);
    QVERIFY2(failure.text.startsWith(message), qPrintable(failure.text));
}

void TestProgramFile::PathsAreNamedAsTheyAre()
{
    const QString path = QStringLiteral("%3 at 100%2.xml");
    for (const QByteArray &contents : {QByteArray("<clock/>"), QByteArray("<clock>")}) {
        const Result<Program> result = ParseProgram(contents, path);
        QVERIFY(std::holds_alternative<Failure>(result));
        const QString text = std::get<Failure>(result).text;
        QVERIFY2(text.startsWith(path + QStringLiteral(":1:")), qPrintable(text));
    }
}

void TestProgramFile::Unreadable_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing.xml"
                             << "missing.xml: No such file or directory";
    QTest::newRow("directory") << "/"
                               << "/: is a directory, not a file";
    QTest::newRow("empty name") << ""
                                << ": ";
    QTest::newRow("endless") << "/dev/zero"
                             << "/dev/zero: larger than 16777216 bytes";
}

void TestProgramFile::Unreadable()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const QTemporaryDir emptyDirectory;
    QVERIFY(QDir::setCurrent(emptyDirectory.path()));
    const Result<Program> result = ReadProgram(path);
    QVERIFY(std::holds_alternative<Failure>(result));
    const QString text = std::get<Failure>(result).text;
    QVERIFY2(text.startsWith(reason), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestProgramFile)
#include "test_program_file.moc"
