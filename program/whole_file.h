// Files that programs write for people: complete, or not there.
#pragma once

#include "failure.h"

#include <QByteArray>

namespace ClockProgram {

enum class Targets {
    Any,           ///< what a link names, which need not exist yet; devices and FIFOs
    OrdinaryFiles, ///< a link, device or FIFO fails: among results it belongs to somebody else
};

/// Writes a file. An ordinary file is replaced once the new one is complete on the disk, and stays
/// as it was after a failure. Another target, such as a device, a FIFO or standard output by its
/// name, is written to directly. The failure has the path and the system's reason.
MaybeFailure WriteFile(const QString &path, const QByteArray &contents, Targets targets);

/// Writes to standard output, so that nothing is left in a buffer.
MaybeFailure WriteStandardOutput(const QByteArray &contents);

} // namespace ClockProgram
