#include "program_watch.h"

#include <QFile>

#include <tuple>
#include <utility>

#include <sys/stat.h>

namespace ClockPlayer {

using namespace ClockProgram;

namespace {

qint64 Nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

bool FileSignature::operator==(const FileSignature &other) const
{
    const auto fields = [](const FileSignature &signature) {
        return std::tie(signature.device, signature.number, signature.size, signature.modified,
                        signature.changed);
    };
    return fields(*this) == fields(other);
}

FileSignature SignatureOf(const QString &path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0)
        return {};
    return {found.st_dev, found.st_ino, found.st_size, Nanoseconds(found.st_mtim),
            Nanoseconds(found.st_ctim)};
}

Result<Program> ReadRegularProgram(const QString &path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) == 0 && !S_ISREG(found.st_mode))
        return Failure {ExitCode::ProgramError,
                        QStringLiteral("%1: is not a regular file").arg(path)};
    return ReadProgram(path);
}

ProgramWatch::Step ProgramWatch::Check(const FileSignature &now)
{
    const bool hasFailed = std::exchange(m_hasFailed, false);
    if (std::exchange(m_seen, now) != now)
        return Step::Read;
    return hasFailed ? Step::ReadAndReport : Step::Wait;
}

} // namespace ClockPlayer
