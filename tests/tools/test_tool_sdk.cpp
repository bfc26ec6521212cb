// Programs as SDK XML, there and back.
#include "tool_process.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QDomDocument Document(const QByteArray &text)
{
    QDomDocument document;
    document.setContent(text);
    return document;
}

/// The clocks of a document of the tool, which has them side by side.
QVector<QDomElement> ClocksOf(const QDomDocument &document)
{
    QVector<QDomElement> clocks;
    const QDomNodeList found = document.elementsByTagName("clock");
    for (int i = 0; i < found.count(); ++i)
        clocks.append(found.at(i).toElement());
    return clocks;
}

QString Of(const QDomElement &clock, const char *child, const char *attribute)
{
    return clock.firstChildElement(child).attribute(attribute, "absent");
}

} // namespace

class TestToolSdk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void SdkOfSixClocks();
    void ImportMakesAreas_data();
    void ImportMakesAreas();
    void ImportFindsClocksAnywhere();
    void FirstPassLosesWhatItMust();
    void ReachesFixedPoint();
    void ImportedProgramPlays();

private:
    QString Path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
    QByteArray m_sdk; // of the six clocks
};

void TestToolSdk::initTestCase()
{
    const ProcessRun run = RunTool({"sdk", InTree("examples/six_clocks.xml"), "-o", Path("1.xml")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString());
    m_sdk = ReadText(Path("1.xml"));
}

void TestToolSdk::SdkOfSixClocks()
{
    const QDomDocument document = Document(m_sdk);
    const QVector<QDomElement> clocks = ClocksOf(document);
    QCOMPARE(clocks.size(), 6);
    QCOMPARE(clocks[0].attribute("type"), QString("dial"));
    QCOMPARE(clocks[0].attribute("timezone"), QString("+01:00"));
    QCOMPARE(Of(clocks[0], "title", "value"), QString("Berlin"));
    QCOMPARE(Of(clocks[0], "title", "color"), QString("#ffffffff"));
    QCOMPARE(Of(clocks[0], "date", "display"), QString("false"));
    QCOMPARE(Of(clocks[0], "time", "display"), QString("absent"));
    QCOMPARE(clocks[1].attribute("adjust"), QString("+00:02:00"));
    QVERIFY(!clocks[2].hasAttribute("type"));
    QCOMPARE(clocks[2].attribute("timezone"), QString("+09:00"));
    QCOMPARE(clocks[3].attribute("type"), QString("digital"));
    QCOMPARE(Of(clocks[3], "title", "value"), QString::fromUtf8("北京"));
    QCOMPARE(Of(clocks[3], "lunarCalendar", "display"), QString("true"));
    QCOMPARE(Of(clocks[4], "date", "value"), QString("7"));
    QCOMPARE(Of(clocks[5], "time", "value"), QString("4"));
    QCOMPARE(clocks[5].attribute("timezone"), QString("-05:00"));
}

void TestToolSdk::ImportMakesAreas_data()
{
    QTest::addColumn<int>("clocks");
    QTest::addColumn<QString>("area");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QPoint>("last");
    QTest::newRow("one") << 1 << "64x32" << QSize(64, 32) << QPoint(0, 0);
    QTest::newRow("three, stacked") << 3 << "64x32" << QSize(64, 96) << QPoint(0, 64);
    QTest::newRow("default size") << 2 << "" << QSize(256, 256) << QPoint(0, 128);
    // Three areas of 10000 fit above each other within 32767.
    QTest::newRow("a second column") << 4 << "2x10000" << QSize(4, 30000) << QPoint(2, 0);
    QTest::newRow("full column") << 3 << "2x10000" << QSize(2, 30000) << QPoint(0, 20000);
}

void TestToolSdk::ImportMakesAreas()
{
    QFETCH(int, clocks);
    QFETCH(QString, area);
    QFETCH(QSize, screen);
    QFETCH(QPoint, last);
    QVERIFY(
        WriteText(Path("in.xml"), "<sdk>" + QByteArray("<clock/>").repeated(clocks) + "</sdk>"));
    QStringList arguments {"import", Path("in.xml")};
    if (!area.isEmpty())
        arguments << "--area" << area;
    const ProcessRun run = RunTool(arguments);
    QCOMPARE(run.exitCode, 0);
    const QDomDocument document = Document(run.output.toUtf8());
    const QDomElement program = document.documentElement();
    QCOMPARE(program.tagName(), QString("program"));
    QCOMPARE(program.attribute("width").toInt(), screen.width());
    QCOMPARE(program.attribute("height").toInt(), screen.height());
    QCOMPARE(program.elementsByTagName("area").count(), clocks);
    const QDomElement lastArea = program.lastChildElement("area");
    QCOMPARE(QPoint(lastArea.attribute("x").toInt(), lastArea.attribute("y").toInt()), last);
}

void TestToolSdk::ImportFindsClocksAnywhere()
{
    QVERIFY(WriteText(Path("deep.xml"),
                      "<sdk><in><program><area><resources><clock timezone='+01:00'><title "
                      "value='a &amp; b'/></clock></resources></area></program></in>"
                      "<clock timezone='+02:00'/><!-- <clock/> --></sdk>"));
    const ProcessRun run = RunTool({"import", Path("deep.xml")});
    QCOMPARE(run.exitCode, 0);
    const QDomDocument document = Document(run.output.toUtf8());
    const QVector<QDomElement> clocks = ClocksOf(document);
    QCOMPARE(clocks.size(), 2);
    QCOMPARE(clocks[0].attribute("timezone"), QString("+01:00"));
    QCOMPARE(Of(clocks[0], "title", "value"), QString("a & b"));
    QCOMPARE(clocks[1].attribute("timezone"), QString("+02:00"));
    for (const char *date : {"<date format='3'/>", "<date value='3' format='5'/>"}) {
        QVERIFY(
            WriteText(Path("root.xml"), "<clock type='digital'>" + QByteArray(date) + "</clock>"));
        const ProcessRun whole = RunTool({"import", Path("root.xml")});
        QCOMPARE(whole.exitCode, 0);
        QCOMPARE(whole.errors, QString()); // nothing is lost
    }
}

// Codes are written as "value" and read as "format"; a picture clock is written without its kind.
void TestToolSdk::FirstPassLosesWhatItMust()
{
    const ProcessRun import = RunTool({"import", Path("1.xml"), "-o", Path("p2.xml")});
    QCOMPARE(import.exitCode, 0);
    QVERIFY2(import.errors.contains("1.xml: note: clocks in the exported form: 5; the codes"),
             qPrintable(import.errors)); // not the picture clock
    QCOMPARE(import.errors.count('\n'), 1);
    QCOMPARE(RunTool({"lint", "--no-fit", Path("p2.xml")}).exitCode, 0);
    QCOMPARE(RunTool({"sdk", Path("p2.xml"), "-o", Path("2.xml")}).exitCode, 0);
    const QDomDocument first = Document(m_sdk);
    const QDomDocument second = Document(ReadText(Path("2.xml")));
    const QVector<QDomElement> before = ClocksOf(first);
    const QVector<QDomElement> after = ClocksOf(second);
    QCOMPARE(after.size(), before.size());
    for (const int clock : {0, 1, 3, 4, 5}) {
        for (const char *attribute : {"type", "timezone", "adjust"})
            QCOMPARE(after[clock].attribute(attribute), before[clock].attribute(attribute));
        QCOMPARE(Of(after[clock], "title", "value"), Of(before[clock], "title", "value"));
        for (const char *child : {"title", "date", "week", "time", "lunarCalendar"}) {
            QCOMPARE(Of(after[clock], child, "color"), Of(before[clock], child, "color"));
            QCOMPARE(Of(after[clock], child, "display"), Of(before[clock], child, "display"));
        }
        for (const char *child : {"date", "week"})
            QCOMPARE(Of(after[clock], child, "value"), QString("0"));
    }
    QCOMPARE(Of(before[4], "date", "value"), QString("7"));
    QVERIFY(!before[2].hasAttribute("type"));
    QCOMPARE(after[2].attribute("type"), QString("dial"));
}

void TestToolSdk::ReachesFixedPoint()
{
    QByteArray passes[2];
    QString last = Path("1.xml");
    for (QByteArray &pass : passes) {
        QCOMPARE(RunTool({"import", last, "-o", Path("p.xml")}).exitCode, 0);
        last = Path("again.xml");
        QCOMPARE(RunTool({"sdk", Path("p.xml"), "-o", last}).exitCode, 0);
        pass = ReadText(last);
    }
    QVERIFY(passes[0] != m_sdk);
    QCOMPARE(passes[1], passes[0]);
}

void TestToolSdk::ImportedProgramPlays()
{
    QCOMPARE(RunTool({"import", Path("1.xml"), "-o", Path("played.xml")}).exitCode, 0);
    const ProcessRun run = RunPlayer({Path("played.xml"), "--output", Path("frames"), "--frames",
                                      "1", "--at", "2024-03-05T13:07:58Z", "--language", "en"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(Frames(Path("frames")).value(0).size(), QSize(256, 6 * 128));
}

QTEST_GUILESS_MAIN(TestToolSdk)
#include "test_tool_sdk.moc"
