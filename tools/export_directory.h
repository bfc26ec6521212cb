// tools/: the target directory of an export: its layout, its lock, and the leftovers of earlier
// runs.
#pragma once

#include "commands.h"

#include <QDir>
#include <QLockFile>
#include <QMap>

namespace ClockTool {

// What is in the directory.
inline constexpr char kExportedProgram[] = "program.xml";
inline constexpr char kExportedList[] = "files.tsv";
inline constexpr char kExportedFiles[] = "files";

/// A file to send.
struct SentFile
{
    QString digest;  // MD5, in hexadecimal digits
    qint64 size = 0; // bytes
};

/// The files to send, keyed by their path relative to the directory.
using SentFiles = QMap<QString, SentFile>;

/// The text of files.tsv.
QByteArray ListText(const SentFiles &files);

/// An export's target directory, locked against other exports.
class ExportDirectory
{
public:
    explicit ExportDirectory(const QString &path);

    /// Creates the directory if needed and locks it; removes leftovers of an interrupted
    /// export. Fails without changing anything if it contains anything but an export, if a link or
    /// another kind of entry has the name of a file to write, or if another export is running.
    MaybeFailure Prepare();

    QString LockPath() const;

private:
    MaybeFailure CheckEntries() const;
    MaybeFailure CheckKinds() const;
    MaybeFailure Lock();
    QString LockHolder() const;
    bool IsFree() const;
    bool IsExport() const;
    QStringList Leftovers() const;

    QDir m_directory;
    QLockFile m_lock;
};

} // namespace ClockTool
