// studio/files: where programs come from and go to.
// The file of the open program: reading, saving, noticing that others change it.
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
    /// Unsaved work is kept in the directory.
    ProgramFiles(StudioDocument &document, const QString &recoveryDirectory,
                 QObject *parent = nullptr);

    /// Empty for a program that was never saved.
    const QString &Path() const { return m_path; }
    QString Name() const; ///< for a title
    bool IsSaved() const;

    // Each gives what went wrong, as a sentence; nothing where it went well.

    /// The document stays as it is where the file cannot be read.
    std::optional<QString> Open(const QString &path);
    /// Whole or not at all: on a failure the file has what it had before.
    std::optional<QString> Save(const QString &path);

    /// A program that has no file yet.
    void Begin(const QByteArray &bytes);
    void Recover(const LeftWork &work);
    QVector<LeftWork> LeftWorks() const { return m_store.Left(); }
    /// Unsaved work is given up.
    void GiveUp() { m_store.Forget(); }
    /// Keeps unsaved work now; done every few seconds.
    void KeepWork();

    static QStringList Recent(); ///< paths of files that exist, the last one first

Q_SIGNALS:
    void NameChanged();
    void ChangedOnDisk(); ///< somebody else wrote the file
    void LostOnDisk();    ///< the file is there no longer; the work is

private:
    void SetPath(const QString &path, const QByteArray &contents);
    void LookAtDisk();
    static void NoteRecent(const QString &path);

    StudioDocument &m_document;
    RecoveryStore m_store;
    QString m_path;
    QByteArray m_digest;        ///< of the file as it was read or written here
    bool m_isRecovered = false; ///< the text was never saved, though the history is clean
    QString m_keptText;         ///< as it was kept last
    QFileSystemWatcher m_watcher;
    QTimer m_looking;
    QTimer m_keeping;
};

} // namespace ClockStudio
