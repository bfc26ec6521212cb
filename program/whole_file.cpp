#include "whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ClockProgram {

namespace {

constexpr int kMaxLinks = 40; // as many as the system follows

Failure WriteFailure(const QString &path, const QString &reason)
{
    return {ExitCode::RuntimeFailure,
            QStringLiteral("%1: cannot be written: %2").arg(path, reason)};
}

QString LastError()
{
    return qt_error_string(errno);
}

bool WriteAll(int file, const QByteArray &contents)
{
    for (int at = 0; at < contents.size();) {
        const auto rest = static_cast<std::size_t>(contents.size() - at);
        const ssize_t written = write(file, contents.constData() + at, rest);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            errno = written == 0 ? ENOSPC : errno;
            return false;
        }
        at += static_cast<int>(written);
    }
    return true;
}

/// File systems without fsync() fail with EINVAL, ENOTSUP or EROFS, which is accepted.
bool IsOnDisk(int file)
{
    return fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}

/// What a chain of links names, whether or not it exists; null where the chain does not end.
QString EndOfLinks(QString path)
{
    for (int followed = 0; followed < kMaxLinks; ++followed) {
        const QFileInfo entry(path);
        if (!entry.isSymLink())
            return path;
        path = entry.symLinkTarget();
    }
    return QString();
}

MaybeFailure Replace(const QString &path, const QByteArray &contents)
{
    const std::optional<QString> reason = ReplaceFile(path, contents);
    return reason ? MaybeFailure(WriteFailure(path, *reason)) : std::nullopt;
}

MaybeFailure WriteDirectly(const QString &path, const QByteArray &contents)
{
    const int file =
        open(QFile::encodeName(path).constData(), O_WRONLY | O_TRUNC | O_NOCTTY | O_CLOEXEC);
    if (file < 0)
        return WriteFailure(path, LastError());
    const bool isWritten = WriteAll(file, contents) && IsOnDisk(file);
    const QString reason = LastError();
    const bool isClosed = close(file) == 0;
    if (!isWritten)
        return WriteFailure(path, reason);
    return isClosed ? std::nullopt : MaybeFailure(WriteFailure(path, LastError()));
}

/// For example /dev/stdout. Opening it by name fails for a socket, and truncates
/// a file.
bool IsStandardOutput(const struct stat &status)
{
    struct stat output = {};
    return fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == status.st_dev
        && output.st_ino == status.st_ino;
}

} // namespace

MaybeFailure WriteFile(const QString &path, const QByteArray &contents, Targets targets)
{
    struct stat status = {};
    if (targets == Targets::RegularFiles && lstat(QFile::encodeName(path).constData(), &status) == 0
        && !S_ISREG(status.st_mode))
        return WriteFailure(path,
                            S_ISLNK(status.st_mode) ? QStringLiteral("is a symbolic link")
                                                    : QStringLiteral("is not a regular file"));
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return Replace(path, contents);
    if (IsStandardOutput(status))
        return WriteStandardOutput(contents);
    // A deleted file that is still open is reachable only through /dev/fd.
    const bool hasName = QFileInfo::exists(EndOfLinks(path));
    return S_ISREG(status.st_mode) && hasName ? Replace(path, contents)
                                              : WriteDirectly(path, contents);
}

std::optional<QString> ReplaceFile(const QString &path, const QByteArray &contents)
{
    const QString target = EndOfLinks(path);
    if (target.isNull())
        return qt_error_string(ELOOP);
    QSaveFile file(target);
    // commit() ignores what flushing and synchronising report.
    if (!file.open(QFile::WriteOnly) || file.write(contents) != contents.size() || !file.flush())
        return file.errorString();
    if (!IsOnDisk(file.handle()))
        return LastError();
    return file.commit() ? std::nullopt : std::optional<QString>(file.errorString());
}

MaybeFailure WriteStandardOutput(const QByteArray &contents)
{
    if (std::fflush(stdout) == 0 && WriteAll(STDOUT_FILENO, contents))
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("cannot write to standard output: ") + LastError()};
}

} // namespace ClockProgram
