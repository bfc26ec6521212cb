// The directory of an export: what is in it, who may write to it, and what an earlier run left.
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

/// The files to send, by their path relative to the directory.
using SentFiles = QMap<QString, SentFile>;

/// The text of files.tsv.
QByteArray ListText(const SentFiles &files);

/// A directory while one export writes to it.
class ExportDirectory
{
public:
    explicit ExportDirectory(const QString &path);

    /// Makes the directory where it is missing, and locks it; removes what an interrupted export
    /// left. Fails, and changes nothing, where it holds anything but an export, where a link or
    /// another kind of entry has the name of a file to write, and where another export runs.
    MaybeFailure Take();

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
