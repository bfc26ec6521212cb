// clock_tool fit: which sizes it writes, and that it changes nothing else.
#include "tool_process.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

// A wall of one area.
QByteArray Wall(const QByteArray &clock, const QByteArray &size = "width=\"200\" height=\"60\"")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!-- 北京 -->\r\n<program " + size
        + " >\r\n\t<area x='0'  y=\"0\" " + size + ">\r\n" + clock
        + "\r\n\t</area>\r\n</program>\r\n<!-- end -->";
}

const QByteArray kHidden = "<title display=\"false\"/><date display=\"false\"/>"
                           "<week display=\"false\"/>";

QByteArray Digital(const QByteArray &content)
{
    return "<clock type=\"digital\" timezone=\"+00:00\">" + content + "</clock>";
}

QByteArray Time(const QByteArray &attributes)
{
    return "<time display=\"true\" format=\"1\" fontName=\"DejaVu Sans Mono\"" + attributes + "/>";
}

// The points behind the mark; 0 where it is not there once.
int PointsBehind(const QByteArray &text, const QByteArray &mark)
{
    if (text.count(mark) != 1)
        return 0;
    const int begin = text.indexOf(mark) + mark.size();
    return text.mid(begin, text.indexOf('"', begin) - begin).toInt();
}

} // namespace

class TestToolFit : public QObject
{
    Q_OBJECT

private slots:
    void ChangesOnlyTheSize_data();
    void ChangesOnlyTheSize();
    void EachWarningIsPrintedOnce();
    void SizeThatIsNotSetIsAdded();
    void SeveralPartsShrinkTogether();
    void OneSizeForAllBecomesSettings();
    void WhatFitsStaysAsItIs_data();
    void WhatFitsStaysAsItIs();
    void GrowsWhatFits();
    void TellsWhatFitsAtNoSize();
    void KeepsTheEncoding();

private:
    QByteArray Fit(const QByteArray &program, const QStringList &options = {}, int code = 0)
    {
        if (!WriteText(Path("in.xml"), program))
            qFatal("cannot write a program");
        m_run = RunTool(QStringList {"fit", "--at", "2026-08-20"} + options
                        << Path("in.xml") << "-o" << Path("out.xml"));
        if (m_run.exitCode != code)
            qFatal("exit code %d: %s", m_run.exitCode, qPrintable(m_run.errors));
        return ReadText(Path("out.xml"));
    }
    QString FitWarnings(const QByteArray &program)
    {
        if (!WriteText(Path("fitted.xml"), program))
            qFatal("cannot write a program");
        const ProcessRun run = RunTool({"lint", "--at", "2026-08-20", Path("fitted.xml")});
        return run.errors.contains(" cut: ") ? run.errors : QString();
    }
    QString Path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
    ProcessRun m_run;
};

void TestToolFit::ChangesOnlyTheSize_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("mark");
    const auto row = [](const char *name, const QByteArray &content, const QByteArray &mark) {
        QTest::newRow(name) << Wall(Digital(kHidden + content)) << mark;
    };
    row("element", Time(" fontSize=\"60\""), "fontSize=\"");
    row("comment between", "<!-- a -->\n" + Time("\n fontSize=\"60\"  color=\"#fff\" "),
        "fontSize=\"");
    row("setting", Time("") + "<attribute key=\"DigitalTimeFSize\" value=\"60\"/>", "value=\"");
    row("setting that wins",
        Time(" fontSize='9'") + "<attribute value=\"60\" key=\"DigitalTimeFSize\"/>", "value=\"");
    row("first element of its name", Time(" fontSize=\"60\"") + "<time fontSize='9'/>",
        "fontSize=\"");
}

void TestToolFit::ChangesOnlyTheSize()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, mark);
    const QByteArray after = Fit(before);
    const int points = PointsBehind(after, mark);
    QVERIFY(points > 20 && points < 60);
    QByteArray expected = before;
    expected.replace(mark + "60", mark + QByteArray::number(points));
    QCOMPARE(after, expected);
    QCOMPARE(FitWarnings(after), QString());
    QVERIFY(m_run.errors.contains("DigitalTimeFSize changed from 60 to " + QString::number(points)
                                  + " points"));
}

// The program is read more than once.
void TestToolFit::EachWarningIsPrintedOnce()
{
    const QByteArray clock =
        Digital(kHidden + Time(" fontSize='60'") + "<attribute key=\"Id\" value=\"7\"/>");
    Fit(Wall(clock + "</area><area x='0' y='0' width='99' height='60'>" + clock));
    QCOMPARE(m_run.errors.count("the Id 7 is used by another clock"), 1);
}

// A new clock's sizes are 12 points.
void TestToolFit::SizeThatIsNotSetIsAdded()
{
    const QByteArray size = "width=\"200\" height=\"8\"";
    const QByteArray before = Wall(Digital(kHidden + Time("")), size);
    const QByteArray after = Fit(before);
    const int points = PointsBehind(after, "fontSize=\"");
    QVERIFY(points > 0 && points < 12);
    QByteArray expected = before;
    expected.replace("Sans Mono\"", "Sans Mono\" fontSize=\"" + QByteArray::number(points) + "\"");
    QCOMPARE(after, expected);
    const QByteArray unread = Fit(Wall(Digital("<title/><fixedText/>"), size));
    QVERIFY(unread.contains("<title/>") && unread.contains("<fixedText fontSize=\""));
    const QByteArray bare = Fit(Wall("<clock type=\"digital\"/>"));
    QVERIFY(bare.contains("<attribute key=\"DigitalTopTextFSize\" value=\""));
    QCOMPARE(FitWarnings(bare), QString());
}

void TestToolFit::SeveralPartsShrinkTogether()
{
    const QByteArray after =
        Fit(Wall(Digital("<title display=\"false\"/><week display=\"false\"/><date "
                         "display=\"true\" fontSize=\"40\"/>"
                         + Time(" fontSize=\"80\""))));
    const int date = PointsBehind(after, "<date display=\"true\" fontSize=\"");
    const int time = PointsBehind(after, "Sans Mono\" fontSize=\"");
    QVERIFY(date > 0 && time > 0);
    QCOMPARE(date, time / 2);
    QCOMPARE(FitWarnings(after), QString());
}

// One attribute of the older form sets every size of a dial.
void TestToolFit::OneSizeForAllBecomesSettings()
{
    const QByteArray before =
        Wall("<clock type=\"dial\"><font name=\"DejaVu Sans\" size=\"30\"/></clock>",
             "width=\"100\" height=\"100\"");
    const QByteArray after = Fit(before);
    QVERIFY(after.contains("size=\"30\"/><attribute key=\"Analog"));
    QCOMPARE(FitWarnings(after), QString());
}

void TestToolFit::WhatFitsStaysAsItIs_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("digital") << Wall(Digital(kHidden + Time(" fontSize=\"20\"")));
    QTest::newRow("picture") << Wall("<clock type=\"picture\"/>");
    for (const char *sample : {"station", "wall", "analog", "zones", "chinese"})
        QTest::newRow(sample) << ReadText(InTree(QStringLiteral("examples/%1.xml").arg(sample)));
}

void TestToolFit::WhatFitsStaysAsItIs()
{
    QFETCH(QByteArray, program);
    QCOMPARE(Fit(program), program);
}

void TestToolFit::GrowsWhatFits()
{
    const QByteArray after = Fit(Wall(Digital(kHidden + Time(" fontSize=\"20\""))), {"--grow"});
    const int points = PointsBehind(after, "fontSize=\"");
    QVERIFY(points > 20);
    QCOMPARE(FitWarnings(after), QString());
    QByteArray larger = after;
    larger.replace(QByteArray::number(points), QByteArray::number(points + 1));
    QVERIFY(!FitWarnings(larger).isEmpty());
}

void TestToolFit::TellsWhatFitsAtNoSize()
{
    const QByteArray before =
        Wall(Digital(kHidden + Time(" fontSize=\"20\"")), "width=\"4\" height=\"4\"");
    QCOMPARE(Fit(before, {}, 1), before);
    QVERIFY(m_run.errors.contains("no sizes fit this clock"));
}

void TestToolFit::KeepsTheEncoding()
{
    const QString text = QString::fromUtf8(Wall(Digital(kHidden + Time(" fontSize=\"60\""))))
                             .replace("UTF-8", "ISO-8859-1")
                             .replace(QString::fromUtf8("北京"), QString::fromUtf8("Zürich"));
    const QByteArray after = Fit(text.toLatin1());
    QVERIFY(after.contains(QString::fromUtf8("Zürich").toLatin1()));
    QVERIFY(PointsBehind(after, "fontSize=\"") > 20);
}

QTEST_MAIN(TestToolFit)

#include "test_tool_fit.moc"
