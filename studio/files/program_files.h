// studio/files: loads and saves the open program's file, and watches it for changes by others.
#pragma once

#include "recovery_store.h"
#include "text/studio_document.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <optional>

namespace ClockStudio {

class ProgramFiles : public QObject
{
    Q_OBJECT

public:
    /// Unsaved work is stored in recoveryDirectory.
    ProgramFiles(StudioDocument &document, const QString &recoveryDirectory,
                 QObject *parent = nullptr);

    /// Empty for a program that was never saved.
    const QString &Path() const { return m_path; }
    QString Name() const; ///< for a title
    bool IsSaved() const;

    // Each returns an error message, or nullopt on success.

    /// The document is unchanged if the file cannot be read.
    std::optional<QString> Open(const QString &path);
    /// Atomic: on a failure the old file is unchanged.
    std::optional<QString> Save(const QString &path);

    /// Starts with a program that has no file yet.
    void Begin(const QByteArray &bytes);
    void Recover(const UnsavedWork &work);
    QVector<UnsavedWork> Recoverable() const { return m_store.Recoverable(); }
    /// Discards unsaved work.
    void GiveUp();
    /// Stores unsaved work now; also runs every four seconds.
    void StoreUnsavedWork();

    static QStringList Recent(); ///< paths of files that still exist, most recent first

Q_SIGNALS:
    void NameChanged();
    void ChangedOnDisk(); ///< another program wrote the file
    void LostOnDisk();    ///< the file has been deleted

private:
    void SetPath(const QString &path, const QByteArray &contents);
    void CheckDisk();
    static void AddRecent(const QString &path);

    StudioDocument &m_document;
    RecoveryStore m_store;
    QString m_path;
    QByteArray m_digest;        ///< of the file as it was read or written here
    bool m_isRecovered = false; ///< the text was never saved, though the history is clean
    QString m_keptText;         ///< the text that was stored last
    QFileSystemWatcher m_watcher;
    QTimer m_diskCheckDelay;
    QTimer m_storeTimer;
};

} // namespace ClockStudio
