// A player that stops: its watchdog thread blanks the framebuffer, and all of the picture comes
// back when the player goes on.
#include "player_process.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 30000; // milliseconds
constexpr int kScreenBytes = 64 * 32 * 4;
constexpr int kTitleBytes = 12 * 64 * 4; // the rows at the top that no second changes

// A title, and below it the time.
const char *const kProgram =
    "<program width=\"64\" height=\"32\"><area x=\"0\" y=\"0\" width=\"64\" height=\"12\">"
    "<clock type=\"digital\"><title display=\"true\" value=\"HHH\" fontName=\"DejaVu Sans\" "
    "fontSize=\"8\" color=\"#ffffff\"/><date display=\"false\"/><week display=\"false\"/>"
    "<time display=\"false\"/></clock></area>"
    "<area x=\"0\" y=\"12\" width=\"64\" height=\"20\"><clock type=\"digital\">"
    "<date display=\"false\"/><week display=\"false\"/><time display=\"true\" "
    "fontName=\"DejaVu Sans\" fontSize=\"8\" color=\"#ffffff\"/></clock></area></program>";

} // namespace

class TestScreenGuard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void StoppedPlayerIsBlanked();

private:
    QString Path(const QString &name) const { return m_directory.filePath(name); }
    void Write(const QString &name, const QByteArray &contents) const;
    QByteArray Screen() const;
    bool IsBlank() const { return Screen() == QByteArray(kScreenBytes, '\0'); }

    QTemporaryDir m_directory;
    QProcess m_player;
};

void TestScreenGuard::Write(const QString &name, const QByteArray &contents) const
{
    QFile file(Path(name));
    QVERIFY(file.open(QFile::WriteOnly) && file.write(contents) == contents.size());
}

// Colours only: the fourth byte of a pixel is not shown.
QByteArray TestScreenGuard::Screen() const
{
    QFile file(Path("framebuffer"));
    if (!file.open(QFile::ReadOnly))
        return {};
    QByteArray bytes = file.readAll();
    for (int i = 3; i < bytes.size(); i += 4)
        bytes[i] = '\0';
    return bytes;
}

void TestScreenGuard::init()
{
    Write("program.xml", kProgram);
    Write("framebuffer", QByteArray(kScreenBytes, '\0'));
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("LD_PRELOAD", FILE_FRAMEBUFFER_LIBRARY);
    m_player.setProcessEnvironment(environment);
    m_player.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    StartProgram(m_player, QStringLiteral(PLAYER),
                 {"--kiosk", "-platform",
                  "linuxfb:fb=" + Path("framebuffer") + ":nographicsmodeswitch", "--files-dir",
                  Path("glyphs"), Path("program.xml")});
    QVERIFY(m_player.waitForStarted(kPatience));
}

void TestScreenGuard::cleanup()
{
    m_player.terminate();
    QVERIFY(m_player.waitForFinished(kPatience));
}

// Only the main thread stops, for nine seconds. The guard waits for five.
void TestScreenGuard::StoppedPlayerIsBlanked()
{
    QTRY_VERIFY_WITH_TIMEOUT(!IsBlank(), kPatience);
    const QByteArray first = Screen();
    QTRY_VERIFY_WITH_TIMEOUT(Screen() != first, kPatience); // its time goes on
    const QByteArray title = Screen().left(kTitleBytes);
    QVERIFY(title.count('\xff') > 20);

    const qint64 player = m_player.processId();
    QCOMPARE(::syscall(SYS_tgkill, player, player, SIGUSR2), 0L);
    QTRY_VERIFY_WITH_TIMEOUT(IsBlank(), 8000);
    QTRY_VERIFY_WITH_TIMEOUT(!IsBlank(), kPatience);
    QTRY_COMPARE_WITH_TIMEOUT(Screen().left(kTitleBytes), title, kPatience);
    QVERIFY(Screen().mid(kTitleBytes).count('\xff') > 20);
}

QTEST_GUILESS_MAIN(TestScreenGuard)
#include "test_screen_guard.moc"
