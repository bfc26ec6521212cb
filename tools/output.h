// tools/: writes a command's result: as XML, to a file or standard output.
#pragma once

#include "commands.h"

#include <QByteArray>
#include <QDomElement>

namespace ClockTool {

/// A document with this element and its content, without comments: indented, with sorted
/// attributes, so that the same content is always the same text.
QByteArray WriteXml(const QDomElement &root);

/// Writes a result to a file, or to standard output if the path is empty; reports failures.
/// Links are followed.
CommandResult Deliver(const QString &path, const QByteArray &contents);

/// While it exists, what the clocks print about their files is discarded, so that standard output
/// holds results only.
class QuietOutput
{
public:
    QuietOutput();
    ~QuietOutput();
    QuietOutput(const QuietOutput &) = delete;
    QuietOutput &operator=(const QuietOutput &) = delete;

private:
    int m_kept;
};

} // namespace ClockTool
