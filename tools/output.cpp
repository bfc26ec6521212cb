#include "output.h"

#include "whole_file.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace ClockTool {

CommandResult Deliver(const QString &path, const QByteArray &contents)
{
    using namespace ClockProgram;
    const MaybeFailure failure =
        path.isEmpty() ? WriteStandardOutput(contents) : WriteFile(path, contents, Targets::Any);
    return failure ? Report(*failure) : ExitCode::Success;
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
