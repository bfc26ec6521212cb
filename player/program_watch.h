// player/: notices that a program file was changed, replaced, or put behind another link, and reads
// it.
#pragma once

#include "program_file.h"

#include <QString>
#include <QtGlobal>

namespace ClockPlayer {

/// What distinguishes a file from another one, and from itself before it was written to. All 0
/// where there is no file.
struct FileSignature
{
    quint64 device = 0;
    quint64 number = 0; ///< of the file on the device
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds
    qint64 changed = 0;  ///< nanoseconds: also when modes and links change

    bool operator==(const FileSignature &other) const;
    bool operator!=(const FileSignature &other) const { return !(*this == other); }
};

/// Links are followed.
FileSignature SignatureOf(const QString &path);

/// Reads a program beside one that plays, or where a notice can be shown: what is not an ordinary
/// file is refused, for to open a pipe would wait for its writer.
ClockProgram::Result<ClockProgram::Program> ReadOrdinaryProgram(const QString &path);

/// Decides when a watched file is to be read again. Pure.
class ProgramWatch
{
public:
    enum class Step {
        Wait,
        Read,          ///< it has changed
        ReadAndReport, ///< it could not be used and has not changed since: say why
    };

    /// With the signature of the file that was read already.
    explicit ProgramWatch(const FileSignature &read) : m_seen(read) { }

    Step Check(const FileSignature &now);
    /// The file could not be used when Check() last answered Read. It may have been read while it
    /// was being written, so nothing is reported before it has stayed the same until the next
    /// check.
    void Failed() { m_hasFailed = true; }

private:
    FileSignature m_seen;
    bool m_hasFailed = false;
};

} // namespace ClockPlayer
