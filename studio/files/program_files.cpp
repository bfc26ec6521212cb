#include "program_files.h"

#include "saved_file.h"

#include "xml_document.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSettings>

namespace ClockStudio {

namespace {

constexpr int kStoreInterval = 4000; // milliseconds
// Other programs replace a file in several steps; it is checked after this delay, in milliseconds.
constexpr int kDiskCheckDelay = 200;
constexpr int kMaxRecent = 10;
const QString kRecentKey = QStringLiteral("recentFiles");

QByteArray DigestOf(const QByteArray &contents)
{
    return QCryptographicHash::hash(contents, QCryptographicHash::Sha1);
}

} // namespace

ProgramFiles::ProgramFiles(StudioDocument &document, const QString &recoveryDirectory,
                           QObject *parent)
    : QObject(parent), m_document(document), m_store(recoveryDirectory)
{
    m_diskCheckDelay.setSingleShot(true);
    m_diskCheckDelay.setInterval(kDiskCheckDelay);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_diskCheckDelay,
            QOverload<>::of(&QTimer::start));
    connect(&m_diskCheckDelay, &QTimer::timeout, this, &ProgramFiles::CheckDisk);
    connect(&m_storeTimer, &QTimer::timeout, this, &ProgramFiles::StoreUnsavedWork);
    connect(&document.History(), &QUndoStack::cleanChanged, this, &ProgramFiles::NameChanged);
    m_storeTimer.start(kStoreInterval);
}

QString ProgramFiles::Name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
}

bool ProgramFiles::IsSaved() const
{
    return m_document.History().isClean() && !m_isRecovered;
}

std::optional<QString> ProgramFiles::Open(const QString &path)
{
    const auto contents = ClockProgram::ReadContents(path);
    if (!contents)
        return contents.Error().text;
    if (!m_document.Load(*contents))
        return tr("%1 is damaged or not a text file.").arg(path);
    m_isRecovered = false;
    SetPath(QFileInfo(path).absoluteFilePath(), *contents);
    m_store.Forget();
    return std::nullopt;
}

std::optional<QString> ProgramFiles::Save(const QString &path)
{
    const std::optional<QByteArray> bytes = m_document.Bytes();
    if (!bytes)
        return tr("The text has a character that the file's encoding cannot represent.");
    if (const auto problem = SaveFile(path, *bytes))
        return problem;
    m_isRecovered = false;
    m_document.EndMerging();
    m_document.History().setClean();
    SetPath(QFileInfo(path).absoluteFilePath(), *bytes);
    m_store.Forget();
    return std::nullopt;
}

void ProgramFiles::Begin(const QByteArray &bytes)
{
    m_document.Load(bytes);
    m_isRecovered = false;
    m_store.Forget();
    SetPath({}, {});
}

void ProgramFiles::Recover(const UnsavedWork &work)
{
    m_document.Load(work.bytes);
    m_isRecovered = true;
    const auto contents = ClockProgram::ReadContents(work.path);
    SetPath(work.path, contents ? *contents : QByteArray());
    if (m_store.Keep(work.path, work.bytes))
        RecoveryStore::Remove(work);
}

void ProgramFiles::StoreUnsavedWork()
{
    // Consecutive typing is a single undo step, so the texts themselves are compared.
    if (IsSaved() || m_keptText == m_document.Text())
        return;
    if (const auto bytes = m_document.Bytes()) {
        if (m_store.Keep(m_path, *bytes))
            m_keptText = m_document.Text();
    }
}

void ProgramFiles::GiveUp()
{
    m_store.Forget();
    m_keptText.clear(); // it is stored again if it stays open, as when another file cannot be read
}

void ProgramFiles::SetPath(const QString &path, const QByteArray &contents)
{
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_path = path;
    m_digest = DigestOf(contents);
    m_keptText.clear();
    if (!path.isEmpty()) {
        m_watcher.addPath(path);
        AddRecent(path);
    }
    emit NameChanged();
}

void ProgramFiles::CheckDisk()
{
    if (m_path.isEmpty())
        return;
    if (!QFileInfo::exists(m_path)) {
        emit LostOnDisk();
        return;
    }
    if (!m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path); // the watcher drops a file that was replaced
    const auto contents = ClockProgram::ReadContents(m_path);
    if (!contents || DigestOf(*contents) == m_digest)
        return;
    m_digest = DigestOf(*contents);
    emit ChangedOnDisk();
}

void ProgramFiles::AddRecent(const QString &path)
{
    QSettings settings;
    QStringList paths = settings.value(kRecentKey).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue(kRecentKey, QStringList(paths.mid(0, kMaxRecent)));
}

QStringList ProgramFiles::Recent()
{
    QStringList there;
    for (const QString &path : QSettings().value(kRecentKey).toStringList()) {
        if (QFileInfo(path).isFile())
            there.append(path);
    }
    return there;
}

} // namespace ClockStudio
