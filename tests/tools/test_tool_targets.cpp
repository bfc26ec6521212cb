// What -o may name besides a new file: devices, FIFOs, sockets, links and standard output stay what
// they are and get the result, or the command fails and says why.
#include "tool_process.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr mode_t kMode = 0600;

mode_t KindOf(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & S_IFMT : 0;
}

bool MakeSocket(const QString &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
    const int made = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound =
        bind(made, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    close(made);
    return bound;
}

} // namespace

class TestToolTargets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void FifoTakesTheOutput_data() { AddCommands(); }
    void FifoTakesTheOutput();
    void NullDevice_data() { AddCommands(); }
    void NullDevice();
    void LinkedFile_data() { AddCommands(); }
    void LinkedFile();
    void LinkToNowhere();
    void LinkToItself();
    void StandardOutput_data() { AddCommands(); }
    void StandardOutput();
    void StandardOutputKeepsWhatIsThere();
    void NotWritable_data();
    void NotWritable();
    void FullStandardOutput_data();
    void FullStandardOutput();
    void NoTemporaryDirectory();

private:
    void AddCommands();
    QString Path(const QString &name) const { return m_directory->filePath(name); }
    /// What the command writes where nothing is special.
    QByteArray Expected(const QStringList &command) const
    {
        return RunTool(command).output.toUtf8();
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestToolTargets::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void TestToolTargets::AddCommands()
{
    const QString program = InTree("examples/station.xml");
    QTest::addColumn<QStringList>("command");
    QTest::newRow("sdk") << QStringList {"sdk", program};
    QTest::newRow("import") << QStringList {"import", program};
    QTest::newRow("glyphs") << QStringList {"glyphs", program, "--language", "en"};
    QTest::newRow("attributes") << QStringList {"attributes"};
    QTest::newRow("zone") << QStringList {"zone", "Europe/Berlin", "--year", "2026"};
}

void TestToolTargets::FifoTakesTheOutput()
{
    QFETCH(QStringList, command);
    const QString fifo = Path("fifo");
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), kMode), 0);
    QProcess reader;
    reader.start("cat", {fifo});
    QVERIFY(reader.waitForStarted());
    RunTool(command + QStringList {"-o", fifo});
    QVERIFY(reader.waitForFinished(60000));
    QCOMPARE(KindOf(fifo), mode_t(S_IFIFO));
    QCOMPARE(reader.readAllStandardOutput(), Expected(command));
}

void TestToolTargets::NullDevice()
{
    QFETCH(QStringList, command);
    const QString null = Path("null");
    if (mknod(QFile::encodeName(null).constData(), S_IFCHR | kMode, makedev(1, 3)) != 0)
        QSKIP("needs the right to make a device");
    if (!QFile(null).open(QFile::WriteOnly))
        QSKIP("devices do not work in the temporary directory");
    const int expected = RunTool(command).exitCode;
    QCOMPARE(RunTool(command + QStringList {"-o", null}).exitCode, expected);
    QCOMPARE(KindOf(null), mode_t(S_IFCHR));
}

void TestToolTargets::LinkedFile()
{
    QFETCH(QStringList, command);
    QVERIFY(QDir(m_directory->path()).mkdir("there"));
    QVERIFY(WriteText(Path("there/file"), "old"));
    QVERIFY(QFile::link("there/file", Path("inner")));
    QVERIFY(QFile::link("inner", Path("link")));
    RunTool(command + QStringList {"-o", Path("link")});
    QCOMPARE(KindOf(Path("link")), mode_t(S_IFLNK));
    QCOMPARE(KindOf(Path("inner")), mode_t(S_IFLNK));
    QCOMPARE(ReadText(Path("there/file")), Expected(command));
}

void TestToolTargets::LinkToNowhere()
{
    QVERIFY(QFile::link("new", Path("link")));
    QCOMPARE(RunTool({"attributes", "-o", Path("link")}).exitCode, 0);
    QCOMPARE(KindOf(Path("link")), mode_t(S_IFLNK));
    QCOMPARE(KindOf(Path("new")), mode_t(S_IFREG));
    QCOMPARE(ReadText(Path("new")), Expected({"attributes"}));
}

void TestToolTargets::LinkToItself()
{
    QCOMPARE(symlink("link", QFile::encodeName(Path("link")).constData()), 0);
    const ProcessRun run = RunTool({"attributes", "-o", Path("link")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("/link: cannot be written: Too many levels"),
             qPrintable(run.errors));
    QCOMPARE(KindOf(Path("link")), mode_t(S_IFLNK));
}

void TestToolTargets::StandardOutput()
{
    QFETCH(QStringList, command);
    const ProcessRun expected = RunTool(command);
    const ProcessRun run = RunTool(command + QStringList {"-o", "/dev/stdout"});
    QCOMPARE(run.exitCode, expected.exitCode);
    QCOMPARE(run.errors, expected.errors);
    QCOMPARE(run.output, expected.output);
}

void TestToolTargets::StandardOutputKeepsWhatIsThere()
{
    const QString script = "{ echo head; \"$@\"; echo tail; } >'%1'";
    const ProcessRun run =
        RunInShell(script.arg(Path("file")), TOOL, {"attributes", "-o", "/dev/stdout"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(ReadText(Path("file")), "head\n" + Expected({"attributes"}) + "tail\n");
}

void TestToolTargets::NotWritable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full device") << "/dev/full"
                                 << ": cannot be written: No space left";
    QTest::newRow("directory") << "."
                               << "";
    QTest::newRow("socket") << "socket"
                            << ": cannot be written: No such device";
    QTest::newRow("missing directory") << "none/file"
                                       << ": cannot be written: No such file";
}

void TestToolTargets::NotWritable()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const QString path = name.startsWith('/') ? name : Path(name);
    if (name == "socket")
        QVERIFY(MakeSocket(path));
    const mode_t before = KindOf(path);
    const ProcessRun run = RunTool({"attributes", "-o", path});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(path + reason), qPrintable(run.errors));
    QCOMPARE(KindOf(path), before);
}

void TestToolTargets::FullStandardOutput_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("help") << "--help";
    QTest::newRow("version") << "--version";
    QTest::newRow("help of a command") << "sdk --help";
    QTest::newRow("version of a command") << "sdk --version";
    QTest::newRow("a result") << "attributes";
    QTest::newRow("self-test") << "self-test";
    QTest::newRow("findings") << "lint --format json PROGRAM";
}

void TestToolTargets::FullStandardOutput()
{
    QFETCH(QString, command);
    // A clock without a time zone is a finding, so there is a line to write.
    const QString program = Path("program.xml");
    QVERIFY(WriteText(program,
                      "<program width='64' height='32'><area x='0' y='0' width='64' height='32'>"
                      "<clock type='digital'/></area></program>"));
    command.replace("PROGRAM", program);
    const ProcessRun run = RunInShell("\"$@\" >/dev/full", TOOL, command.split(' '));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("cannot write to standard output"), qPrintable(run.errors));
}

void TestToolTargets::NoTemporaryDirectory()
{
    QProcessEnvironment environment = DisplaylessEnvironment();
    const QString file = Path("file");
    QVERIFY(WriteText(file, "no directory"));
    environment.insert("TMPDIR", file);
    const ProcessRun run =
        RunProcess(TOOL, {"glyphs", InTree("examples/station.xml")}, environment);
    QCOMPARE(run.exitCode, 1);
    const QString expected = file + ": cannot create a temporary directory here: Not a directory";
    QVERIFY2(run.errors.contains(expected), qPrintable(run.errors));
}

QTEST_GUILESS_MAIN(TestToolTargets)
#include "test_tool_targets.moc"
