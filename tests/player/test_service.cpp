// The real player with the real clock as a service: what it tells the service manager, and programs
// that are spoiled while they play.
#include "file_size_limit.h"
#include "player_process.h"
#include "stepping_clock.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 30000; // milliseconds

QByteArray ClockProgramText(const QByteArray &title)
{
    return "<program width=\"64\" height=\"32\"><area x=\"0\" y=\"0\" width=\"64\" height=\"32\">"
           "<clock type=\"digital\"><title display=\"true\" value=\""
        + title + "\" fontName=\"DejaVu Sans\" fontSize=\"8\"/></clock></area></program>";
}

/// The socket on which a service manager listens. A player blocks if nothing reads from it.
class ServiceManager
{
public:
    explicit ServiceManager(const QString &path)
        : m_socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)),
          m_notifier(m_socket, QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { Receive(); });
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
        m_isBound =
            ::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    }
    ~ServiceManager() { ::close(m_socket); }
    Q_DISABLE_COPY(ServiceManager)

    bool IsBound() const { return m_isBound; }

    /// All messages since it began, in their order.
    const QList<QByteArray> &Messages() const { return m_messages; }

private:
    void Receive()
    {
        char bytes[4096];
        for (ssize_t size = 0; (size = ::recv(m_socket, bytes, sizeof bytes, 0)) > 0;)
            m_messages.append(QByteArray(bytes, static_cast<int>(size)));
    }

    int m_socket;
    QSocketNotifier m_notifier;
    bool m_isBound = false;
    QList<QByteArray> m_messages;
};

} // namespace

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void ManagerIsTold();
    void SpoiledProgram_data();
    void SpoiledProgram();
    void MissingGlyphs();
    void ReadSignalWhileTimeIsNotSet();

private:
    QString Path(const QString &name) const { return m_directory->filePath(name); }
    void Write(const QString &name, const QByteArray &contents) const;
    void Spoil(const QString &how) const;
    void Start(const QStringList &options = {});
    QJsonObject Status() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<ServiceManager> m_manager;
    QProcess m_process;
};

void TestService::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_manager = std::make_unique<ServiceManager>(Path("notify"));
    QVERIFY(m_manager->IsBound());
    Write("program.xml", ClockProgramText("first"));
}

void TestService::cleanup()
{
    m_process.terminate();
    QVERIFY(m_process.waitForFinished(kPatience));
    QCOMPARE(m_process.exitCode(), 0);
}

void TestService::Write(const QString &name, const QByteArray &contents) const
{
    QFile file(Path(name));
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(contents), qint64(contents.size()));
}

// The system's clock is off by the milliseconds in the file "shift", if there is one.
void TestService::Start(const QStringList &options)
{
    QProcessEnvironment environment = DisplaylessEnvironment();
    if (QFile::exists(Path("shift")))
        environment = WithSteppingClock(environment, Path("shift"));
    environment.insert("NOTIFY_SOCKET", Path("notify"));
    m_process.setProcessEnvironment(environment);
    StartProgram(m_process, QStringLiteral(PLAYER),
                 QStringList {"--kiosk", "--watch", "-platform", "offscreen", "--files-dir",
                              Path("glyphs"), "--status-file", Path("status.json"),
                              Path("program.xml")}
                     + options);
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->Messages().contains("READY=1"), kPatience);
}

QJsonObject TestService::Status() const
{
    QFile file(Path("status.json"));
    if (!file.open(QFile::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

// Before it is ready, too: to make glyph images may take longer than a start is given.
void TestService::ManagerIsTold()
{
    Start();
    const QList<QByteArray> told = m_manager->Messages();
    const QByteArray &first = told.first();
    QVERIFY2(first.contains("EXTEND_TIMEOUT_USEC=") && first.contains("WATCHDOG=1"),
             first.constData());
    const int before = told.count("WATCHDOG=1");
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->Messages().count("WATCHDOG=1") >= before + 3, kPatience);
}

void TestService::SpoiledProgram_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"removed", "directory", "fifo", "half a file", "200 MB"})
        QTest::newRow(how) << QString(how);
}

void TestService::Spoil(const QString &how) const
{
    const QString path = Path("program.xml");
    const QByteArray name = QFile::encodeName(path);
    QVERIFY(QFile::remove(path));
    if (how == QLatin1String("directory"))
        QCOMPARE(::mkdir(name.constData(), 0700), 0);
    else if (how == QLatin1String("fifo"))
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    else if (how == QLatin1String("half a file"))
        Write("program.xml", ClockProgramText("first").left(120));
    else if (how == QLatin1String("200 MB"))
        QVERIFY(QFile(path).open(QFile::WriteOnly) && QFile::resize(path, 200000000));
}

// What plays goes on, and a good program is taken as soon as there is one.
void TestService::SpoiledProgram()
{
    QFETCH(QString, how);
    Start();
    QTRY_VERIFY_WITH_TIMEOUT(!Status().isEmpty(), kPatience);
    const QJsonValue played = Status()["program_sha256"];
    Spoil(how);
    QTRY_COMPARE_WITH_TIMEOUT(Status()["fault_count"].toInt(), 1, kPatience);
    QCOMPARE(Status()["program_sha256"], played);
    QVERIFY(Status()["notice"].isNull());
    const int before = m_manager->Messages().count("WATCHDOG=1");
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->Messages().count("WATCHDOG=1") >= before + 2, kPatience);
    Write("new.xml", ClockProgramText("second"));
    QVERIFY(QDir(Path("program.xml")).exists() ? QDir().rmdir(Path("program.xml")) : true);
    QCOMPARE(::rename(QFile::encodeName(Path("new.xml")).constData(),
                      QFile::encodeName(Path("program.xml")).constData()),
             0);
    QTRY_VERIFY_WITH_TIMEOUT(Status()["program_sha256"] != played, kPatience);
    QVERIFY(Status()["notice"].isNull());
}

// A clock without its texts is not a clock: until there is room for them the notice is shown.
void TestService::MissingGlyphs()
{
    constexpr int kRoom = 4096; // for the status, not for digits of this size
    Write("program.xml",
          ClockProgramText("first").replace(
              "fontSize=\"8\"/>",
              "fontSize=\"8\"/>"
              "<time display=\"true\" fontName=\"DejaVu Sans\" fontSize=\"400\"/>"));
    rlimit unlimited {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &unlimited), 0);
    {
        const FileSizeLimit limit(kRoom);
        Start();
    }
    QTRY_COMPARE_WITH_TIMEOUT(Status()["notice"].toString(), QString("G1"), kPatience);
    const auto pid = static_cast<pid_t>(m_process.processId());
    QCOMPARE(::prlimit(pid, RLIMIT_FSIZE, &unlimited, nullptr), 0);
    QCOMPARE(::kill(pid, SIGHUP), 0);
    QTRY_VERIFY_WITH_TIMEOUT(Status()["notice"].isNull(), kPatience);
    QVERIFY(QFile::exists(Path("glyphs/digital_1000_timeNumber.png")));
}

// The notice stays, instead of clocks until the next second.
void TestService::ReadSignalWhileTimeIsNotSet()
{
    const qint64 shift = -50LL * 365 * 86400 * 1000;
    Write("shift", QByteArray(reinterpret_cast<const char *>(&shift), sizeof shift));
    Start({"--require-time"});
    QTRY_COMPARE_WITH_TIMEOUT(Status()["notice"].toString(), QString("T1"), kPatience);
    QTest::qWait(1000); // "written" has whole seconds
    const QString written = Status()["written"].toString();
    QCOMPARE(::kill(static_cast<pid_t>(m_process.processId()), SIGHUP), 0);
    QElapsedTimer sinceSignal;
    sinceSignal.start();
    while (sinceSignal.elapsed() < 1500 || Status()["written"].toString() == written) {
        QCOMPARE(Status()["notice"].toString(), QString("T1"));
        QVERIFY(sinceSignal.elapsed() < kPatience);
        QTest::qWait(5);
    }
}

QTEST_GUILESS_MAIN(TestService)
#include "test_service.moc"
