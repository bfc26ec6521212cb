// Files that programs write for people: complete, or not there.
#pragma once

#include "failure.h"

#include <QByteArray>

namespace ClockProgram {

enum class Links {
    Follow, ///< write what a link names; that need not exist yet
    Refuse, ///< fail: in a directory of results a link leads to somebody else's file
};

/// Writes a file. An ordinary file is replaced once the new one is complete on the disk, and stays
/// as it was after a failure. Anything else that exists, such as a device, a FIFO or standard
/// output by its name, is written to directly. The failure has the path and the system's reason.
MaybeFailure WriteFile(const QString &path, const QByteArray &contents, Links links);

/// Writes to standard output, so that nothing is left in a buffer.
MaybeFailure WriteStandardOutput(const QByteArray &contents);

} // namespace ClockProgram
