// Sending to walls: releases in folders here and on hosts, what they say, and the dialog.
#include "sample_programs.h"

#include "files/tool_run.h"
#include "files/wall_status.h"
#include "files/wall_target.h"
#include "window/send_dialog.h"

#include "catalogues.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

Q_DECLARE_METATYPE(ClockStudio::WallTarget)

using namespace ClockStudio;

namespace {

const QByteArray kWall = "<program width=\"8\" height=\"8\"/>\n";
const QByteArray kOther = "<program width=\"16\" height=\"8\"/>\n";

bool Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

bool RunAll(const QVector<ToolCommand> &commands)
{
    return std::all_of(commands.cbegin(), commands.cend(), [](const ToolCommand &command) {
        QProcess process;
        process.start(command.program, command.arguments);
        return process.waitForFinished() && process.exitCode() == 0;
    });
}

QByteArray OutputOf(const ToolCommand &command)
{
    QProcess process;
    process.start(command.program, command.arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

QString Playing(const WallTarget &target)
{
    return QFileInfo(QFile::symLinkTarget(target.folder + "/current")).fileName();
}

/// A socket of this machine: bound to a free port, or connected to one. -1 where that fails.
int SocketAt(quint16 &port)
{
    sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof(address);
    const int made = socket(AF_INET, SOCK_STREAM, 0);
    const bool isGood = port == 0
        ? bind(made, plain, size) == 0 && getsockname(made, plain, &size) == 0
        : connect(made, plain, size) == 0;
    port = ntohs(address.sin_port);
    if (!isGood)
        close(made);
    return isGood ? made : -1;
}

const QString kClientKey = "the client's key"; // a file name that takes quoting

/// A server for ssh on this machine, with a key of its own that lets this user in.
class SshServer
{
public:
    SshServer()
    {
        const QString server = QStandardPaths::findExecutable("sshd", {"/usr/sbin"});
        if (server.isEmpty() || !MakeKey("host") || !MakeKey(kClientKey)
            || !QFile::copy(m_work.filePath(kClientKey) + ".pub", m_work.filePath("authorized")))
            return;
        close(SocketAt(m_port));
        m_server.start(server,
                       {"-D", "-f", "/dev/null", "-p", QString::number(m_port), "-o",
                        "ListenAddress=127.0.0.1", "-o", "HostKey=" + m_work.filePath("host"), "-o",
                        "AuthorizedKeysFile=" + m_work.filePath("authorized"), "-o",
                        "StrictModes=no", "-o", "PidFile=none"});
        m_isThere = m_server.waitForStarted() && Answers();
    }
    ~SshServer()
    {
        m_server.kill();
        m_server.waitForFinished();
    }

    bool IsThere() const { return m_isThere; }
    QString Key() const { return m_work.filePath(kClientKey); }
    QString Host() const
    {
        return qEnvironmentVariable("USER", "root") + QStringLiteral("@127.0.0.1:%1").arg(m_port);
    }

private:
    bool MakeKey(const QString &name) const
    {
        return QProcess::execute("ssh-keygen",
                                 {"-q", "-t", "ed25519", "-N", "", "-f", m_work.filePath(name)})
            == 0;
    }

    bool Answers()
    {
        for (int i = 0; i < 100 && m_server.state() == QProcess::Running; ++i) {
            const int made = SocketAt(m_port);
            if (made >= 0) {
                close(made);
                return true;
            }
            QTest::qWait(50);
        }
        return false;
    }

    QTemporaryDir m_work;
    QProcess m_server;
    quint16 m_port = 0;
    bool m_isThere = false;
};

} // namespace

class TestSending : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void SendsToAFolder();
    void SendsBySsh();
    void ListsReleases();
    void DiscardsWhatIsNotComplete();
    void UnknownReleaseDoesNotPlay();
    void TargetFaults_data();
    void TargetFaults();
    void Words_data();
    void Words();
    void DialogSendsAndGoesBack();
    void DialogCancels();
    void DialogSaysWhatIsWrong();

private:
    void Export(const QTemporaryDir &work, const QByteArray &program);
    void SendTwice(const QTemporaryDir &work, const WallTarget &target);
};

void TestSending::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("clock-studio-test-sending");
    QSettings().clear();
    QVERIFY(ClockCatalogues::Install("en"));
}

void TestSending::Export(const QTemporaryDir &work, const QByteArray &program)
{
    QVERIFY(QDir(work.path()).mkpath("export/files"));
    QVERIFY(Write(work.filePath("export/program.xml"), program));
    QVERIFY(Write(work.filePath("export/files/one"), "the same in each release"));
}

void TestSending::SendTwice(const QTemporaryDir &work, const WallTarget &target)
{
    QCOMPARE(TargetFault(target), QString());
    for (const char *release : {"1", "2"}) {
        Export(work, *release == '1' ? kWall : kOther);
        QVERIFY(RunAll(SendCommands(target, work.filePath("export"), QLatin1String(release))));
        QCOMPARE(Playing(target), QString(release));
    }
    QCOMPARE(ContentsOf(target.folder + "/releases/1/program.xml"), kWall);
    QCOMPARE(ContentsOf(target.folder + "/current/program.xml"), kOther);
    QCOMPARE(ContentsOf(target.folder + "/current/files/one"),
             QByteArray("the same in each release"));
    QVERIFY(RunAll({PlayCommand(target, "1")}));
    QCOMPARE(ContentsOf(target.folder + "/current/program.xml"), kWall);
    SaveTargets({target});
    QCOMPARE(KnownTargets().size(), 1);
    QCOMPARE(KnownTargets().first().folder, target.folder);
    QCOMPARE(KnownTargets().first().statusFile, target.statusFile);
}

void TestSending::SendsToAFolder()
{
    const QTemporaryDir work;
    SendTwice(work, {"hall", {}, work.filePath("it's a wall"), {}, "/run/status.json"});
}

void TestSending::SendsBySsh()
{
    const SshServer server;
    if (!server.IsThere())
        QSKIP("no ssh server can be started");
    const QTemporaryDir work;
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(work.path())); // no wish to remember hosts of tests
    SendTwice(work, {"hall", server.Host(), work.filePath("it's a wall"), server.Key(), {}});
    qputenv("HOME", home);
}

void TestSending::ListsReleases()
{
    const QTemporaryDir work;
    const WallTarget target {"hall", {}, work.filePath("wall"), {}, {}};
    SendTwice(work, target);
    const ReleaseList list = ReleasesIn(QString::fromUtf8(OutputOf(ListCommand(target))));
    QCOMPARE(list.releases, QStringList({"2", "1"}));
    QCOMPARE(list.current, QString("1"));
    QVERIFY(ReleasesIn({}).releases.isEmpty());
}

void TestSending::DiscardsWhatIsNotComplete()
{
    const QTemporaryDir work;
    const WallTarget target {"hall", {}, work.filePath("wall"), {}, {}};
    SendTwice(work, target);
    const QVector<ToolCommand> commands = SendCommands(target, work.filePath("export"), "3");
    QVERIFY(RunAll(commands.mid(0, 2)));
    QCOMPARE(Playing(target), QString("1"));
    const QDir releases(target.folder + "/releases");
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(releases.entryList(all).size(), 3);
    QCOMPARE(ReleasesIn(QString::fromUtf8(OutputOf(ListCommand(target)))).releases.size(), 2);
    QVERIFY(RunAll({DiscardCommand(target, "3")}));
    QCOMPARE(releases.entryList(all), QStringList({"1", "2"}));
}

void TestSending::UnknownReleaseDoesNotPlay()
{
    const QTemporaryDir work;
    const WallTarget target {"hall", {}, work.filePath("wall"), {}, {}};
    SendTwice(work, target);
    QVERIFY(!RunAll({PlayCommand(target, "no such")}));
    QCOMPARE(Playing(target), QString("1"));
}

void TestSending::TargetFaults_data()
{
    QTest::addColumn<WallTarget>("target");
    QTest::addColumn<bool>("isGood");
    const auto row = [](const char *name, const char *host, const char *folder, const char *status,
                        bool isGood) {
        QTest::newRow(name) << WallTarget {"name", host, folder, {}, status} << isGood;
    };
    row("host", "wall", "/srv", "", true);
    row("user and host", "op@wall.example", "/srv", "", true);
    row("port", "op@wall.example:2222", "/srv", "", true);
    row("status", "wall", "/srv", "/run/status.json", true);
    row("no port", "wall:", "/srv", "", false);
    row("port of letters", "wall:ssh", "/srv", "", false);
    row("an option", "-oProxyCommand=x", "/srv", "", false);
    row("two words", "wall; rm", "/srv", "", false);
    row("relative folder", "wall", "srv", "", false);
    row("no folder", "", "", "", false);
    row("relative status", "", "/srv", "status.json", false);
}

void TestSending::TargetFaults()
{
    QFETCH(WallTarget, target);
    QFETCH(bool, isGood);
    QCOMPARE(TargetFault(target).isEmpty(), isGood);
}

void TestSending::Words_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<int>("state");
    const auto row = [](const char *name, const char *status, WallStatus::State state) {
        QTest::newRow(name) << QByteArray(status) << int(state);
    };
    row("plays", R"({"format": 1, "written": "2026-01-01T12:00:00Z", "program_sha256": "DIGEST"})",
        WallStatus::State::Plays);
    row("plays another",
        R"({"format": 1, "written": "2026-01-01T12:00:00Z", "program_sha256": "0123"})",
        WallStatus::State::PlaysOther);
    row("played nothing yet",
        R"({"format": 1, "written": "2026-01-01T12:00:00Z", "program_sha256": null})",
        WallStatus::State::PlaysOther);
    row("notice",
        R"({"format": 1, "written": "2026-01-01T12:00:00Z", "program_sha256": "DIGEST",
            "notice": "P2"})",
        WallStatus::State::Notice);
    row("an hour old",
        R"({"format": 1, "written": "2026-01-01T11:00:00Z", "program_sha256": "DIGEST"})",
        WallStatus::State::Outdated);
    row("another format",
        R"({"format": 2, "written": "2026-01-01T12:00:00Z", "program_sha256": "DIGEST"})",
        WallStatus::State::Unknown);
    row("no time", R"({"format": 1, "program_sha256": "DIGEST"})", WallStatus::State::Unknown);
    row("half", R"({"format": 1, "writ)", WallStatus::State::Unknown);
    row("a list", "[]", WallStatus::State::Unknown);
    row("nothing", "", WallStatus::State::Unknown);
}

void TestSending::Words()
{
    QFETCH(QByteArray, status);
    QFETCH(int, state);
    const QTemporaryDir work;
    const WallTarget target {"hall", {}, work.path(), {}, work.filePath("status.json")};
    QVERIFY(QDir(work.path()).mkdir("current"));
    QVERIFY(Write(work.filePath("current/program.xml"), kWall));
    QProcess sum;
    sum.start("sha256sum", {target.folder + "/current/program.xml"});
    QVERIFY(sum.waitForFinished());
    const QByteArray digest = sum.readAllStandardOutput().left(64);
    QCOMPARE(digest.size(), 64);
    QVERIFY(Write(target.statusFile, status.replace("DIGEST", digest)));
    const auto now = QDateTime::fromString("2026-01-01T12:01:00Z", Qt::ISODate);
    const WallStatus word = ReadWallStatus(OutputOf(StatusCommand(target)), now);
    QCOMPARE(int(word.state), state);
    QVERIFY(!StatusText(word).isEmpty());
    QVERIFY(QFile::remove(target.statusFile));
    QCOMPARE(int(ReadWallStatus(OutputOf(StatusCommand(target)), now).state),
             int(WallStatus::State::Unknown));
}

namespace {

/// The dialog for a real program, filled in for a folder of this machine.
struct DialogUnderTest
{
    QTemporaryDir work;
    QString folder = work.filePath("wall");
    SendDialog dialog {QStringLiteral(EXAMPLES "/one_line.xml"), nullptr};

    DialogUnderTest()
    {
        dialog.findChild<QComboBox *>("wall")->setEditText("hall");
        for (const char *other : {"host", "key", "status"})
            Line(other).clear();
        Line("folder").setText(folder);
        dialog.show();
    }

    QLineEdit &Line(const char *name) { return *dialog.findChild<QLineEdit *>(name); }
    void Press(const char *name) { dialog.findChild<QPushButton *>(name)->click(); }
    QString Said()
    {
        QStringList said;
        for (const QLabel *const label : dialog.findChildren<QLabel *>())
            said.append(label->text());
        return said.join(' ');
    }
    QStringList Releases() const
    {
        return QDir(folder + "/releases")
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

} // namespace

void TestSending::DialogSendsAndGoesBack()
{
    DialogUnderTest test;
    test.Press("send");
    QCOMPARE(test.Releases().size(), 1);
    const QString first = test.Releases().first();
    QVERIFY2(test.Said().contains(first), qPrintable(test.Said()));
    QTRY_VERIFY(QDateTime::currentDateTimeUtc().toString("yyyyMMdd-HHmmss") > first);
    test.Press("send");
    QCOMPARE(test.Releases().size(), 2);
    test.Press("earlier");
    auto *const list = test.dialog.findChild<QListWidget *>("releases");
    QCOMPARE(list->count(), 2);
    list->setCurrentRow(1);
    test.Press("again");
    QCOMPARE(QFileInfo(QFile::symLinkTarget(test.folder + "/current")).fileName(), first);
    QVERIFY(list->item(1)->text().startsWith(first));
    QVERIFY(list->item(1)->text().size() > first.size()); // it says that it plays
}

// An rsync that never ends: the dialog of the progress is cancelled.
void TestSending::DialogCancels()
{
    DialogUnderTest test;
    QVERIFY(Write(test.work.filePath("rsync"), "#!/bin/sh\necho 42%\nexec sleep 600\n"));
    QFile::setPermissions(test.work.filePath("rsync"), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(test.work.path()) + ':' + path);
    QTimer watch;
    connect(&watch, &QTimer::timeout, [] {
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            auto *const progress = qobject_cast<QProgressDialog *>(window);
            if (progress && progress->isVisible() && progress->value() == 42)
                progress->findChild<QPushButton *>()->click();
        }
    });
    watch.start(20);
    test.Press("send");
    qputenv("PATH", path);
    QVERIFY2(test.Said().contains("Cancelled"), qPrintable(test.Said()));
    QCOMPARE(test.Releases(), QStringList());
    QVERIFY(!QFileInfo(test.folder + "/current").isSymLink());
}

void TestSending::DialogSaysWhatIsWrong()
{
    DialogUnderTest test;
    test.Line("folder").setText("relative");
    test.Press("send");
    QVERIFY(test.Said().contains("must be an absolute path"));
    test.Line("folder").setText("/proc/no/such");
    test.Press("send");
    QVERIFY2(test.Said().contains("/proc/no"), qPrintable(test.Said()));
    test.Press("earlier");
    QVERIFY(!test.dialog.findChild<QListWidget *>("releases")->isVisible());
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/no/such");
    test.Line("folder").setText(test.folder);
    test.Line("host").setText("localhost:1");
    test.Press("earlier");
    qputenv("PATH", path);
    QVERIFY2(test.Said().contains("ssh cannot be started"), qPrintable(test.Said()));
}

QTEST_MAIN(TestSending)
#include "test_sending.moc"
