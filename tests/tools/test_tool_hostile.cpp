// Hostile files: every command ends in time, with a code of its own.
#include "tool_process.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include <sys/resource.h>

namespace {

constexpr double kMaxSeconds = 2; // of the processor, for one command
constexpr long kMaxKilobytes = 256 << 10;

#ifdef __SANITIZE_ADDRESS__
constexpr bool kMeasures = false;
#else
constexpr bool kMeasures = true;
#endif

/// What the test's processes that have ended took.
rusage TakenByChildren()
{
    rusage usage {};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage;
}

double SecondsOf(const rusage &usage)
{
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

constexpr int kMaxMilliseconds = 60000; // a hundred times what an idle machine needs

QByteArray ManyChildren(const QByteArray &child, int count)
{
    return ProgramOf("<clock type='digital'>\n" + (child + '\n').repeated(count) + "</clock>");
}

QByteArray EntityBomb()
{
    QByteArray entities("<!ENTITY e0 'lol'>");
    for (int i = 1; i < 12; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    return "<!DOCTYPE program [" + entities + "]>"
        + ProgramOf("<clock><title value='&e11;'/></clock>");
}

QByteArray Deep(int depth)
{
    return QByteArray("<clock>").repeated(depth) + QByteArray("</clock>").repeated(depth);
}

/// Whether a program that cannot be played is refused within the bounds of time and memory.
bool ReadsWithinBounds(const std::function<ProcessRun()> &command)
{
    const double before = SecondsOf(TakenByChildren());
    const ProcessRun run = command();
    const rusage after = TakenByChildren();
    const double seconds = SecondsOf(after) - before;
    if (!run.crashed && run.exitCode != 0
        && (!kMeasures || IsEmulated()
            || (seconds < kMaxSeconds && after.ru_maxrss < kMaxKilobytes)))
        return true;
    qWarning("ended with %d after %f s and %ld kB", run.exitCode, seconds, after.ru_maxrss);
    return false;
}

/// What a command is called with that reads a program.
QStringList CommandLine(const QByteArray &command, const QString &path, const QString &directory)
{
    QStringList arguments {QString::fromLatin1(command), path};
    if (command == "export")
        arguments.append(directory + "/out");
    return arguments;
}

const char *const kReaders[] = {"lint", "fit", "sdk", "import", "glyphs", "export"};

} // namespace

class TestToolHostile : public QObject
{
    Q_OBJECT

private slots:
    void EveryCommandEnds_data();
    void EveryCommandEnds();
    void BoundsAreKept_data();
    void BoundsAreKept();
    void DocumentTypesAreRefused_data();
    void DocumentTypesAreRefused();
    void ExportWritesNothingBeyondTheBounds();
    void LargeFramesNeedTheOption();
    void OddTextsSurviveExport();
};

void TestToolHostile::EveryCommandEnds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("a hundred thousand unknown children") << ManyChildren("<foo/>", 100000);
    QTest::newRow("a hundred thousand settings")
        << ManyChildren("<attribute key='Idd' value='1'/>", 100000);
    QTest::newRow("twenty thousand clocks") << "<program width='9' height='9'>"
            + QByteArray("<area x='0' y='0' width='1' height='1'><clock/></area>").repeated(20000)
            + "</program>";
    QTest::newRow("entity bomb") << EntityBomb();
    QTest::newRow("external entity")
        << "<!DOCTYPE program [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>"
            + ProgramOf("<clock><title>&x;</title></clock>");
    QTest::newRow("megabytes in an attribute")
        << ProgramOf("<clock><title value='" + QByteArray(7 << 20, 'x') + "'/></clock>");
    QTest::newRow("a megabyte of key") << ProgramOf(
        "<clock><attribute key='" + QByteArray(1 << 20, 'x') + "' value='1'/></clock>");
    QTest::newRow("deep") << ProgramOf(Deep(60));
    QTest::newRow("too deep") << ProgramOf(Deep(100000));
    QTest::newRow("larger than a program") << QByteArray(17 << 20, ' ');
    QTest::newRow("bytes of no character") << ProgramOf("<clock><title value='\xff\xfe'/></clock>");
    QTest::newRow("a zero byte") << ProgramOf(QByteArray("<clo\0ck/>", 9));
    QTest::newRow("enormous font")
        << ProgramOf("<clock type='digital'><time fontSize='2000000000'/></clock>");
}

void TestToolHostile::EveryCommandEnds()
{
    QFETCH(QByteArray, text);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, text));
    for (const char *command : kReaders) {
        QElapsedTimer timer;
        timer.start();
        const ProcessRun run = RunTool(CommandLine(command, path, directory.path()));
        QVERIFY2(!run.crashed, command);
        QVERIFY2(run.exitCode == 0 || run.exitCode == 1 || run.exitCode == 3, command);
        QVERIFY2(timer.elapsed() < kMaxMilliseconds, command);
        QVERIFY2(run.errors.size() < (1 << 20), command);
        // Nothing of another file came in.
        QVERIFY2(!run.output.contains("file:///"), command);
        if (run.exitCode == 3)
            QVERIFY2(run.errors.contains("in.xml"), qPrintable(run.errors));
    }
}

// One program at each bound; its clock cannot be read, so that the player makes nothing of it.
void TestToolHostile::BoundsAreKept_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto program = [](const QByteArray &content) {
        return ProgramOf("<clock type='round'>" + content + "</clock>");
    };
    QByteArray attributes;
    for (int i = 0; i < 256; ++i)
        attributes += " a" + QByteArray::number(i) + "='1'";
    const QByteArray setting("<attribute key='DigitalDateType' value='1'/>\n");
    const QByteArray full =
        "<area x='0' y='0' width='1' height='1'><clock type='round'>" + setting.repeated(62);
    QTest::newRow("text") << program("<title value='" + QByteArray((4 << 20) - 300, 'x') + "'/>");
    QTest::newRow("elements") << program(QByteArray("<weak/>\n").repeated(65533));
    QTest::newRow("attributes") << program(("<a" + attributes + "/>").repeated(511));
    QTest::newRow("depth") << program(QByteArray("<a>").repeated(61)
                                      + QByteArray("</a>").repeated(61));
    QTest::newRow("settings of every area") << "<program width='64' height='32'>"
            + (full + "</clock></area>").repeated(1023) + "</program>";
}

void TestToolHostile::BoundsAreKept()
{
    QFETCH(QByteArray, text);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, text));
    QVERIFY(ReadsWithinBounds([&] {
        return RunPlayer({path, "--output", directory.filePath("frames")});
    }));
    for (const char *command : kReaders)
        QVERIFY2(ReadsWithinBounds(
                     [&] { return RunTool(CommandLine(command, path, directory.path())); }),
                 command);
}

void TestToolHostile::DocumentTypesAreRefused_data()
{
    QTest::addColumn<QByteArray>("definition");
    QTest::newRow("name only") << QByteArray("<!DOCTYPE program>");
    QTest::newRow("file elsewhere") << QByteArray("<!DOCTYPE program SYSTEM 'x.dtd'>");
    QTest::newRow("many entities")
        << "<!DOCTYPE program [" + QByteArray("<!ENTITY e 'x'>").repeated(130000) + "]>";
    QTest::newRow("many attribute lists")
        << "<!DOCTYPE program [" + QByteArray("<!ATTLIST a b CDATA 'x'>").repeated(12000) + "]>";
}

void TestToolHostile::DocumentTypesAreRefused()
{
    QFETCH(QByteArray, definition);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, "<?xml version='1.0'?>\n" + definition + "\n" + ProgramOf("<clock/>")));
    for (const char *command : kReaders) {
        const ProcessRun run = RunTool(CommandLine(command, path, directory.path()));
        QCOMPARE(run.exitCode, 3);
        QVERIFY2(run.errors.contains("in.xml:2: document type definitions"),
                 qPrintable(run.errors));
    }
    QCOMPARE(RunPlayer({path, "--output", directory.filePath("frames")}).exitCode, 3);
}

// Exported, a clock has an element for each of its own settings too.
void TestToolHostile::ExportWritesNothingBeyondTheBounds()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QByteArray settings;
    for (int i = 0; i < 65500; ++i)
        settings += "<attribute key='k" + QByteArray::number(i) + "' value=''/>";
    QVERIFY(WriteText(path, ProgramOf("<clock type='digital'>" + settings + "</clock>")));
    const ProcessRun run = RunTool(CommandLine("export", path, directory.path()));
    QCOMPARE(run.exitCode, 3);
    const QString refusal =
        path + ": the exported program would be too large to read: program.xml:";
    QVERIFY2(run.errors.contains(refusal), qPrintable(run.errors));
    QVERIFY2(run.errors.endsWith("more than 131072 attributes\n"), qPrintable(run.errors));
    QVERIFY(!QFile::exists(directory.filePath("out/program.xml")));
    QVERIFY(!QFile::exists(directory.filePath("out/files.tsv")));
}

// A dial of 5792 x 5792 pixels of four bytes: one screen of two and one area of three frames.
void TestToolHostile::LargeFramesNeedTheOption()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path,
                      "<program width='5792' height='5792'><area x='0' y='0' width='5792' "
                      "height='5792'><clock type='dial' timezone='+00:00'/></area></program>"));
    const QString refusal = path
        + ":1: the frames of the screen and the areas take 640 MiB, more than 256 (allowed by "
          "--large-frames)\n";
    const ProcessRun fit = RunTool({"fit", path});
    QCOMPARE(fit.exitCode, 3);
    QCOMPARE(fit.errors, "clock_tool: " + refusal);
    QCOMPARE(RunTool({"fit", "--large-frames", path}).exitCode, 0);
    const QString warning = path + ":1: warning: " + refusal.section(":1: ", 1);
    QCOMPARE(RunTool({"lint", path}).errors, warning);
    const QString all = RunTool({"lint", "--large-frames", path}).errors;
    QVERIFY2(all.contains(warning) && all.contains("contrast"), qPrintable(all));
}

// White space, quotation marks, right-to-left marks and characters beyond the first plane.
void TestToolHostile::OddTextsSurviveExport()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path,
                      ProgramOf("<clock type='digital'><attribute key='DigitalTopText' "
                                "value='&#9;a&#10;b&#13;&quot;&lt;&amp;&#x202e;\xf0\x9f\x95\x92'/>"
                                "<attribute key='odd key &lt;' value=' '/></clock>")));
    const QString out = directory.filePath("out");
    QCOMPARE(RunTool({"export", path, out}).exitCode, 0);
    const QString again = directory.filePath("again");
    QCOMPARE(RunTool({"export", out + "/program.xml", again}).exitCode, 0);
    const QByteArray program = ReadText(out + "/program.xml");
    QVERIFY(program.contains("&#9;a&#10;b&#13;&quot;&lt;&amp;\xe2\x80\xae\xf0\x9f\x95\x92"));
    QVERIFY(program.contains("key=\"odd key &lt;\" value=\" \""));
    QCOMPARE(ReadText(again + "/program.xml"), program);
}

QTEST_GUILESS_MAIN(TestToolHostile)
#include "test_tool_hostile.moc"
