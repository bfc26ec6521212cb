#include "work_directory.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace ClockTool {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> g_signalEnd {-1};

// Async-signal-safe.
void NoteSignal(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    if (write(g_signalEnd, &byte, 1) < 0)
        errno = error;
}

/// Signals that are ignored, as under nohup, stay ignored.
void CatchSignals(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : kSignals) {
        struct sigaction before = {};
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

QString Template(const QString &parent)
{
    return parent.isEmpty() ? QDir::tempPath() + QStringLiteral("/clock_tool-XXXXXX")
                            : parent + QStringLiteral("/.glyphs-XXXXXX");
}

} // namespace

WorkDirectory::WorkDirectory(const QString &parent) : WorkDirectory(parent, QString()) { }

WorkDirectory::WorkDirectory(const QString &parent, const QString &file)
    : m_parent(parent.isEmpty() ? QDir::tempPath() : parent), m_file(file),
      m_directory(Template(parent))
{
    if (!m_directory.isValid() || pipe2(m_ends, O_CLOEXEC) != 0)
        return;
    g_signalEnd = m_ends[1];
    m_watcher = std::thread(&WorkDirectory::EndAtSignal, this);
    CatchSignals(NoteSignal);
}

WorkDirectory::~WorkDirectory()
{
    if (!m_watcher.joinable())
        return;
    CatchSignals(SIG_DFL);
    g_signalEnd = -1;
    close(m_ends[1]);
    m_watcher.join();
    close(m_ends[0]);
}

MaybeFailure WorkDirectory::Fault() const
{
    if (m_directory.isValid())
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: cannot create a temporary directory here: %2")
                        .arg(m_parent, m_directory.errorString())};
}

bool WorkDirectory::IsName(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^\\.glyphs-[A-Za-z]{6}$"));
    return form.match(name).hasMatch();
}

// Not in the handler: removing a directory allocates. The main thread keeps writing until
// the directory is gone.
void WorkDirectory::EndAtSignal()
{
    unsigned char number = 0;
    if (read(m_ends[0], &number, 1) != 1)
        return;
    [[maybe_unused]] const auto held = HoldSignals(); // until the process ends
    constexpr int kTries = 100;
    for (int tries = 0; tries < kTries && QDir(Path()).exists(); ++tries)
        QDir(Path()).removeRecursively();
    QFile::remove(m_file);
    std::signal(number, SIG_DFL);
    raise(number);
    _exit(static_cast<int>(ExitCode::RuntimeFailure));
}

} // namespace ClockTool
