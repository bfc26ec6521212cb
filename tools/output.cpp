#include "output.h"

#include <QSaveFile>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace ClockTool {

MaybeFailure WriteFile(const QString &path, const QByteArray &contents)
{
    QSaveFile file(path);
    // The flush is asked for by hand: commit() does not look at the bytes that closing the file
    // still has to write.
    if (file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush()
        && file.commit())
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: %2").arg(path, file.errorString())};
}

CommandResult Deliver(const QString &path, const QByteArray &contents)
{
    if (!path.isEmpty()) {
        const MaybeFailure failure = WriteFile(path, contents);
        return failure ? Report(*failure) : ExitCode::Success;
    }
    const auto size = static_cast<std::size_t>(contents.size());
    if (std::fwrite(contents.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return ExitCode::Success;
    return Report({ExitCode::RuntimeFailure, QStringLiteral("cannot write to standard output")});
}

QuietOutput::QuietOutput()
{
    std::fflush(stdout);
    m_kept = dup(STDOUT_FILENO);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (m_kept >= 0 && nowhere >= 0)
        dup2(nowhere, STDOUT_FILENO);
    if (nowhere >= 0)
        close(nowhere);
}

QuietOutput::~QuietOutput()
{
    std::fflush(stdout);
    if (m_kept < 0)
        return;
    dup2(m_kept, STDOUT_FILENO);
    close(m_kept);
}

} // namespace ClockTool
