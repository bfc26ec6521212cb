#include "work_directory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ClockPlayer {

using namespace ClockProgram;

namespace {

const char kPrefix[] = "clock_player-";
const char kPattern[] = "clock_player-??????"; // as mkdtemp fills it in

// Not QDir::tempPath(), which falls back to other places.
QDir TemporaryRoot()
{
    const QString chosen = qEnvironmentVariable("TMPDIR");
    return QDir(chosen.isEmpty() ? QStringLiteral("/tmp") : chosen);
}

// A directory and the lock on it, which the kernel releases when the process dies.
struct LockedDirectory
{
    QString path;
    int lock = -1;

    ~LockedDirectory() { Remove(); }

    void Remove()
    {
        if (lock < 0)
            return;
        QDir(path).removeRecursively();
        ::close(lock);
        lock = -1;
    }
};

LockedDirectory &Current()
{
    static LockedDirectory directory;
    return directory;
}

// -1 where the path is not a directory of this user's, or another process has the lock.
int LockDirectory(const QByteArray &path)
{
    const int file = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return -1;
    struct stat found = {};
    if (::fstat(file, &found) == 0 && found.st_uid == ::geteuid()
        && ::flock(file, LOCK_EX | LOCK_NB) == 0)
        return file;
    ::close(file);
    return -1;
}

void RemoveAbandoned()
{
    const QDir temporary = TemporaryRoot();
    const QStringList names = temporary.entryList({QLatin1String(kPattern)},
                                                  QDir::Dirs | QDir::NoSymLinks | QDir::Hidden);
    for (const QString &name : names) {
        LockedDirectory abandoned;
        abandoned.path = temporary.filePath(name);
        abandoned.lock = LockDirectory(QFile::encodeName(abandoned.path));
    }
}

Failure CannotMake(const QString &path)
{
    return {ExitCode::RuntimeFailure,
            QStringLiteral("%1: cannot create a temporary directory: %2")
                .arg(QFileInfo(path).path(), QString::fromLocal8Bit(std::strerror(errno)))};
}

} // namespace

Result<QString> MakeWorkDirectory()
{
    RemoveAbandoned();
    const QString form =
        TemporaryRoot().filePath(QLatin1String(kPrefix) + QStringLiteral("XXXXXX"));
    constexpr int kAttempts = 10;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        QByteArray path = QFile::encodeName(form);
        if (!::mkdtemp(path.data()))
            return CannotMake(form);
        // Until it is locked, another player may take it for an abandoned one.
        const int lock = LockDirectory(path);
        if (lock >= 0 && QFileInfo::exists(QFile::decodeName(path))) {
            Current().path = QFile::decodeName(path);
            Current().lock = lock;
            return Current().path;
        }
        if (lock >= 0)
            ::close(lock);
    }
    return CannotMake(form);
}

void RemoveWorkDirectory()
{
    Current().Remove();
}

} // namespace ClockPlayer
