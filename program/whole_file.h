// program/: writes whole files: either complete or not at all.
#pragma once

#include "failure.h"

#include <QByteArray>

namespace ClockProgram {

enum class Targets {
    Any,          ///< follows links, even dangling ones; also devices and FIFOs
    RegularFiles, ///< fails for a link, device or FIFO: in an output directory it may lead
                  ///< elsewhere
};

/// Writes a file. A regular file is replaced once the new one is complete on disk, and is
/// unchanged after a failure. Another target, such as a device, a FIFO or standard output under its
/// name, is written to directly. The failure has the path and the system's reason.
MaybeFailure WriteFile(const QString &path, const QByteArray &contents, Targets targets);

/// Replaces a regular file, or that at the end of its links, once the new one is complete on disk;
/// it is unchanged after a failure. Returns the reason for a failure, nothing on success.
std::optional<QString> ReplaceFile(const QString &path, const QByteArray &contents);

/// Writes to standard output and flushes it.
MaybeFailure WriteStandardOutput(const QByteArray &contents);

} // namespace ClockProgram
