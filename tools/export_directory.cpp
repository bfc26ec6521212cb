#include "export_directory.h"

#include "work_directory.h"

#include "glyph/hmd5.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>

namespace ClockTool {

namespace {

constexpr char kLockName[] = ".clock_tool-export.lock";
constexpr char kListHead[] = "path\tmd5\tsize\n";
constexpr qint64 kMaxListBytes = 16 << 20;

constexpr QDir::Filters kEverything =
    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

Failure Refusal(const QString &path, const QString &reason)
{
    return {ExitCode::RuntimeFailure, QStringLiteral("%1: %2").arg(path, reason)};
}

/// Images are named by their digest; a partly written one has an additional suffix.
bool IsImageName(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^[0-9a-f]{32}\\.png(\\..*)?$"));
    return form.match(name).hasMatch();
}

/// The program's line in files.tsv; nullopt if the file is not an export's list.
std::optional<SentFile> ProgramIn(const QString &listPath)
{
    QFile list(listPath);
    const QFileInfo info(listPath);
    if (info.isSymLink() || !info.isFile() || info.size() > kMaxListBytes
        || !list.open(QFile::ReadOnly) || list.readLine() != kListHead)
        return std::nullopt;
    for (QByteArray line = list.readLine(); !line.isEmpty(); line = list.readLine()) {
        const QList<QByteArray> fields = line.trimmed().split('\t');
        if (fields.size() == 3 && fields[0] == kExportedProgram)
            return SentFile {QString::fromLatin1(fields[1]), fields[2].toLongLong()};
    }
    return std::nullopt;
}

bool IsFile(const QString &path, const SentFile &expected)
{
    return QFileInfo(path).size() == expected.size && HMD5::FileDigest(path) == expected.digest;
}

} // namespace

QByteArray ListText(const SentFiles &files)
{
    QString list = QString::fromLatin1(kListHead);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        list += QStringLiteral("%1\t%2\t%3\n").arg(file.key(), file->digest).arg(file->size);
    return list.toUtf8();
}

ExportDirectory::ExportDirectory(const QString &path) : m_directory(path), m_lock(LockPath())
{
    m_lock.setStaleLockTime(0); // a lock never becomes stale by age
}

MaybeFailure ExportDirectory::Prepare()
{
    if (!m_directory.mkpath(QStringLiteral(".")))
        return Refusal(m_directory.path(), QStringLiteral("cannot create this directory"));
    if (const MaybeFailure failure = CheckEntries())
        return failure;
    if (const MaybeFailure failure = Lock())
        return failure;
    // Another export may have finished between the check and the lock.
    if (const MaybeFailure failure = CheckEntries())
        return failure;
    for (const QString &name : Leftovers()) {
        if (!QDir(m_directory.filePath(name)).removeRecursively())
            return Refusal(m_directory.filePath(name),
                           QStringLiteral("left by an interrupted export, and cannot be "
                                          "removed"));
    }
    return std::nullopt;
}

QString ExportDirectory::LockPath() const
{
    return m_directory.filePath(QLatin1String(kLockName));
}

MaybeFailure ExportDirectory::CheckEntries() const
{
    if (const MaybeFailure failure = CheckKinds())
        return failure;
    if (!IsFree() && !IsExport())
        return Refusal(m_directory.path(),
                       QStringLiteral("the directory is neither empty nor an earlier export "
                                      "whose %1 and %2 are unchanged")
                           .arg(QLatin1String(kExportedProgram), QLatin1String(kExportedList)));
    return std::nullopt;
}

MaybeFailure ExportDirectory::CheckKinds() const
{
    QStringList names {kExportedProgram, kExportedList, kExportedFiles};
    const QDir files(m_directory.filePath(kExportedFiles));
    for (const QString &image : files.entryList(kEverything))
        names.append(QLatin1String(kExportedFiles) + QLatin1Char('/') + image);
    for (const QString &name : qAsConst(names)) {
        const QFileInfo entry(m_directory.filePath(name));
        if (entry.isSymLink())
            return Refusal(entry.filePath(),
                           QStringLiteral("is a symbolic link, which an export does not follow"));
        const bool isFolder = name == QLatin1String(kExportedFiles);
        if (entry.exists() && (isFolder ? !entry.isDir() : !entry.isFile()))
            return Refusal(
                entry.filePath(),
                QStringLiteral("exists but is not a %1, which the export needs here")
                    .arg(isFolder ? QStringLiteral("directory") : QStringLiteral("file")));
    }
    return std::nullopt;
}

MaybeFailure ExportDirectory::Lock()
{
    if (m_lock.tryLock())
        return std::nullopt;
    // An export killed before it wrote its lock file leaves it empty, with no process to check.
    if (m_lock.error() == QLockFile::LockFailedError && LockHolder().isEmpty()) {
        QThread::msleep(200);
        if (LockHolder().isEmpty() && m_lock.removeStaleLockFile() && m_lock.tryLock())
            return std::nullopt;
    }
    if (m_lock.error() == QLockFile::LockFailedError)
        return Refusal(m_directory.path(),
                       QStringLiteral("another export is writing to this directory")
                           + LockHolder());
    return Refusal(
        m_directory.path(),
        QStringLiteral("cannot write to this directory: permission denied or no space left"));
}

/// Empty if the other export has not yet written its process id, or has just ended.
QString ExportDirectory::LockHolder() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_lock.getLockInfo(&process, &host, &program))
        return {};
    return QStringLiteral(" (process %1 on %2)").arg(process).arg(host);
}

/// The directory is empty, or has only the leftovers of a failed or interrupted first export.
bool ExportDirectory::IsFree() const
{
    const QStringList entries = m_directory.entryList(kEverything);
    const QStringList images = QDir(m_directory.filePath(kExportedFiles)).entryList(kEverything);
    return std::all_of(entries.cbegin(), entries.cend(),
                       [](const QString &name) {
                           return name == QLatin1String(kExportedFiles)
                               || name.startsWith(QLatin1String(kLockName))
                               || WorkDirectory::IsName(name);
                       })
        && std::all_of(images.cbegin(), images.cend(), IsImageName);
}

/// The list is published just before the program, which may therefore still be in the work
/// directory of an export that was killed.
bool ExportDirectory::IsExport() const
{
    const std::optional<SentFile> listed = ProgramIn(m_directory.filePath(kExportedList));
    if (!listed)
        return false;
    QStringList folders = Leftovers();
    folders.append(QStringLiteral("."));
    const bool isThere = QFileInfo::exists(m_directory.filePath(kExportedProgram));
    return !isThere || std::any_of(folders.cbegin(), folders.cend(), [&](const QString &folder) {
        return IsFile(m_directory.filePath(folder + QLatin1Char('/') + kExportedProgram), *listed);
    });
}

/// Directories only: any other entry with such a name is not from an export.
QStringList ExportDirectory::Leftovers() const
{
    QStringList names;
    for (const QFileInfo &entry : m_directory.entryInfoList(kEverything)) {
        if (WorkDirectory::IsName(entry.fileName()) && entry.isDir() && !entry.isSymLink())
            names.append(entry.fileName());
    }
    return names;
}

} // namespace ClockTool
