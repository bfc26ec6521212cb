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
// Marks directories that are locked while in use; older versions of the player took no lock.
const char kMark[] = "/.locked_while_in_use";

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

// -1 if the path is not a directory owned by this user, or another process holds the lock.
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

bool Mark(const QByteArray &path)
{
    const int mark =
        ::open((path + kMark).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return mark >= 0 && ::close(mark) == 0;
}

bool IsMarked(const QByteArray &path)
{
    struct stat mark = {};
    return ::lstat((path + kMark).constData(), &mark) == 0 && S_ISREG(mark.st_mode);
}

void RemoveAbandoned()
{
    const QDir temporary = TemporaryRoot();
    const QStringList names = temporary.entryList({QLatin1String(kPattern)},
                                                  QDir::Dirs | QDir::NoSymLinks | QDir::Hidden);
    for (const QString &name : names) {
        const QByteArray path = QFile::encodeName(temporary.filePath(name));
        LockedDirectory abandoned;
        abandoned.path = QFile::decodeName(path);
        abandoned.lock = IsMarked(path) ? LockDirectory(path) : -1;
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
    QByteArray path = QFile::encodeName(form);
    if (!::mkdtemp(path.data()))
        return CannotMake(form);
    LockedDirectory &current = Current();
    current.path = QFile::decodeName(path);
    current.lock = LockDirectory(path);
    // Marked last: an unmarked directory is never treated as abandoned.
    if (current.lock >= 0 && Mark(path))
        return current.path;
    const Failure failure = CannotMake(form);
    ::rmdir(path.constData());
    return failure;
}

void RemoveWorkDirectory()
{
    Current().Remove();
}

} // namespace ClockPlayer
