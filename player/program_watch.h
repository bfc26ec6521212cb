// player/: detects that a program file was changed, replaced, or its symbolic link redirected, and
// reads it.
#pragma once

#include "program_file.h"

#include <QString>
#include <QtGlobal>

namespace ClockPlayer {

/// Identifies a file and its version. All fields are 0 if there is no file.
struct FileSignature
{
    quint64 device = 0;
    quint64 number = 0; ///< inode number
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds
    qint64 changed = 0;  ///< ctime, nanoseconds

    bool operator==(const FileSignature &other) const;
    bool operator!=(const FileSignature &other) const { return !(*this == other); }
};

/// Symbolic links are followed.
FileSignature SignatureOf(const QString &path);

/// Reads a program while another one plays or a notice is shown. Fails for anything but a regular
/// file, as opening a pipe would wait for its writer.
ClockProgram::Result<ClockProgram::Program> ReadRegularProgram(const QString &path);

/// Decides when a watched file has to be reloaded. Pure.
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
