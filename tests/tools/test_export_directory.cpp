// What an export finds in its directory: earlier exports, whole, changed or interrupted, other
// people's files, links, and another export at work.
#include "exported_files.h"
#include "tool_process.h"

#include <QLockFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <vector>

namespace {

QByteArray TitledProgram(const QByteArray &title)
{
    return ProgramOf("<clock type='digital'><title value='" + title + "' display='true'/></clock>");
}

} // namespace

class TestExportDirectory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ForeignFilesStay_data();
    void ForeignFilesStay();
    void LinksAreRefused_data();
    void LinksAreRefused();
    void OtherEntriesAreRefused_data();
    void OtherEntriesAreRefused();
    void NextToAnExportFilesStay();
    void LeftoversGo();
    void KilledBetweenListAndProgram();
    void KilledAtAnyMoment();
    void SignalsTidyUp_data();
    void SignalsTidyUp();
    void IgnoredHangupIsIgnored();
    void AnotherAtWork();
    void ManyAtOnce();

private:
    QString Path(const QString &name) const { return m_directory->filePath(name); }
    bool Write(const QString &name, const QByteArray &text) const
    {
        return QDir().mkpath(QFileInfo(Path(name)).path()) && WriteText(Path(name), text);
    }
    QStringList Arguments(const QByteArray &title, const QString &out) const
    {
        const QString program = Path(QString::fromLatin1(title + ".xml"));
        WriteText(program, TitledProgram(title));
        return {"export", program, Path(out), "--language", "en"};
    }
    ProcessRun Export(const QByteArray &title, const QString &out = "out") const
    {
        return RunTool(Arguments(title, out));
    }
    /// The export refuses with a message that has the text, and changes nothing.
    void VerifyRefused(const QString &text);

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestExportDirectory::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void TestExportDirectory::VerifyRefused(const QString &text)
{
    const Entries before = EntriesIn(Path("out"));
    const ProcessRun run = Export("refused");
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(text), qPrintable(run.errors));
    QCOMPARE(EntriesIn(Path("out")), before);
}

void TestExportDirectory::ForeignFilesStay_data()
{
    QTest::addColumn<Entries>("files");
    const QByteArray program = TitledProgram("mine");
    const QByteArray size = QByteArray::number(program.size());
    QTest::newRow("a program") << Entries {{"program.xml", program}};
    QTest::newRow("another list") << Entries {{"files.tsv", "name\tsize\nx\t1\n"}};
    QTest::newRow("a list of another program")
        << Entries {{"files.tsv", kListHead + QByteArray("program.xml\t0123\t") + size + "\n"},
                    {"program.xml", program}};
    QTest::newRow("a list without a program")
        << Entries {{"files.tsv", kListHead}, {"program.xml", program}};
    QTest::newRow("files of other names") << Entries {{"files/notes.txt", "mine"}};
    QTest::newRow("a hidden file") << Entries {{".config", "mine"}};
    QTest::newRow("a file with the name of a work directory and another")
        << Entries {{".glyphs-abcdef", "mine"}, {"notes", "mine"}};
    QTest::newRow("an empty list") << Entries {{"files.tsv", ""}};
}

void TestExportDirectory::ForeignFilesStay()
{
    QFETCH(Entries, files);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        QVERIFY(Write("out/" + file.key(), file.value()));
    VerifyRefused("neither empty nor an earlier export");
}

void TestExportDirectory::LinksAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("program") << "program.xml";
    QTest::newRow("list") << "files.tsv";
    QTest::newRow("folder of images") << "files";
    QTest::newRow("an image") << "image";
}

// What the link leads to has the right contents: only the link is wrong.
void TestExportDirectory::LinksAreRefused()
{
    QFETCH(QString, name);
    QCOMPARE(Export("first").exitCode, 0);
    if (name == "image")
        name = "files/" + QDir(Path("out/files")).entryList(QDir::Files).value(0);
    QVERIFY(QDir().rename(Path("out/" + name), Path("elsewhere")));
    QVERIFY(QFile::link(Path("elsewhere"), Path("out/" + name)));
    const Entries others = EntriesIn(Path("elsewhere"));
    const QByteArray other = ReadText(Path("elsewhere"));
    VerifyRefused(Path("out/" + name) + ": is a symbolic link");
    QCOMPARE(EntriesIn(Path("elsewhere")), others);
    QCOMPARE(ReadText(Path("elsewhere")), other);
}

void TestExportDirectory::OtherEntriesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("replacement");
    QTest::newRow("a directory for the program") << "program.xml/x"
                                                 << "program.xml";
    QTest::newRow("a directory for the list") << "files.tsv/x"
                                              << "files.tsv";
    QTest::newRow("a file for the folder") << "files"
                                           << "files";
}

void TestExportDirectory::OtherEntriesAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, replacement);
    QVERIFY(Write("out/" + name, "mine"));
    VerifyRefused(Path("out/" + replacement) + ": exists but is not a ");
}

void TestExportDirectory::NextToAnExportFilesStay()
{
    QCOMPARE(Export("first").exitCode, 0);
    QVERIFY(Write("out/notes", "mine"));
    QCOMPARE(Export("second").exitCode, 0);
    QCOMPARE(ReadText(Path("out/notes")), QByteArray("mine"));
    QCOMPARE(FaultOf(Path("out")), QString());
    QVERIFY(ReadText(Path("out/program.xml")).contains("second"));
}

// Also what older versions left, and without any list.
void TestExportDirectory::LeftoversGo()
{
    QVERIFY(Write("out/.glyphs-aBcDeF/digital_1_space.png", "half"));
    QVERIFY(Write("out/files/0123456789abcdef0123456789abcdef.png.part", "half"));
    QVERIFY(Write("out/.clock_tool-export.lock",
                  "2147483646\nclock_tool\n" + QSysInfo::machineHostName().toUtf8() + "\n"));
    const ProcessRun run = Export("first");
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(QFile::remove(Path("out/files/0123456789abcdef0123456789abcdef.png.part")));
    QCOMPARE(FaultOf(Path("out")), QString());
}

void TestExportDirectory::KilledBetweenListAndProgram()
{
    QCOMPARE(Export("first").exitCode, 0);
    QCOMPARE(Export("second", "other").exitCode, 0);
    QVERIFY(Write("out/.glyphs-abcdef/program.xml", ReadText(Path("other/program.xml"))));
    QVERIFY(Write("out/files.tsv", ReadText(Path("other/files.tsv"))));
    QCOMPARE(Export("third").exitCode, 0);
    QCOMPARE(FaultOf(Path("out")), QString());
    QVERIFY(ReadText(Path("out/program.xml")).contains("third"));
}

// Whenever it comes, the next export succeeds and leaves nothing but an export.
void TestExportDirectory::KilledAtAnyMoment()
{
    constexpr int kLongest = 150; // milliseconds
    for (int delay = 5; delay <= kLongest; delay += 5) {
        QProcess tool;
        StartProgram(tool, TOOL, Arguments("killed", "out"));
        QVERIFY(tool.waitForStarted());
        QTest::qSleep(delay);
        tool.kill();
        QVERIFY(tool.waitForFinished());
        const ProcessRun next = Export("next");
        QVERIFY2(next.exitCode == 0, qPrintable(next.errors));
        QCOMPARE(FaultOf(Path("out")), QString());
    }
}

void TestExportDirectory::SignalsTidyUp_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("termination") << SIGTERM;
    QTest::newRow("hangup") << SIGHUP;
}

// Glyphs of 300 points take so long that the signal comes while they are made.
void TestExportDirectory::SignalsTidyUp()
{
    QFETCH(int, signal);
    QVERIFY(Write("large.xml",
                  ProgramOf("<clock type='digital'><attribute key='DigitalTimeFSize' value='300'/>"
                            "<attribute key='DigitalWeekFSize' value='300'/></clock>")));
    QProcess tool;
    StartProgram(tool, TOOL, {"export", Path("large.xml"), Path("out")});
    QVERIFY(tool.waitForStarted());
    const QDir out(Path("out"));
    QTRY_VERIFY(!out.entryList({".glyphs-*"}, QDir::Dirs | QDir::Hidden).isEmpty());
    kill(static_cast<pid_t>(tool.processId()), signal);
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitStatus(), QProcess::CrashExit); // as the signal ends any program
    QCOMPARE(tool.exitCode(), signal);
    QCOMPARE(out.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList {"files"});
    QCOMPARE(Export("next").exitCode, 0);
}

void TestExportDirectory::IgnoredHangupIsIgnored()
{
    const QString script = "trap '' HUP; \"$@\" & tool=$!; sleep 0.1; kill -HUP $tool; wait $tool";
    const ProcessRun run = RunInShell(script, TOOL, Arguments("first", "out"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(FaultOf(Path("out")), QString());
}

void TestExportDirectory::AnotherAtWork()
{
    QCOMPARE(Export("first").exitCode, 0);
    {
        QLockFile lock(Path("out/.clock_tool-export.lock"));
        QVERIFY(lock.tryLock());
        VerifyRefused("another export is writing to this directory (process "
                      + QString::number(QCoreApplication::applicationPid()));
    }
    QCOMPARE(Export("second").exitCode, 0);
}

// List and program are of one of them.
void TestExportDirectory::ManyAtOnce()
{
    constexpr int kTools = 6;
    std::vector<std::unique_ptr<QProcess>> tools;
    for (int i = 0; i < kTools; ++i) {
        tools.push_back(std::make_unique<QProcess>());
        StartProgram(*tools.back(), TOOL, Arguments("many" + QByteArray::number(i), "out"));
    }
    int done = 0;
    for (const auto &tool : tools) {
        QVERIFY(tool->waitForFinished());
        const QByteArray errors = tool->readAllStandardError();
        QVERIFY2(tool->exitCode() == 0 || errors.contains("another export is writing"),
                 errors.constData());
        done += tool->exitCode() == 0 ? 1 : 0;
    }
    QVERIFY(done > 0);
    QCOMPARE(FaultOf(Path("out")), QString());
}

QTEST_GUILESS_MAIN(TestExportDirectory)
#include "test_export_directory.moc"
