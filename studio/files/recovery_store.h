// studio/files: autosave: keeps unsaved work in the user's data directory, so that a crash loses
// only some seconds.
#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace ClockStudio {

/// Unsaved work of a studio that no longer runs.
struct UnsavedWork
{
    QString file;     ///< in the store
    QString path;     ///< of the program; empty for one that was never saved
    QByteArray bytes; ///< of the program
};

/// Each running studio has its own file, which it keeps locked.
class RecoveryStore
{
public:
    /// Creates the directory if needed.
    explicit RecoveryStore(const QString &directory);
    ~RecoveryStore();

    /// False if it could not be written; the previous copy is kept.
    bool Keep(const QString &path, const QByteArray &bytes);
    /// Call when the work has been saved or discarded.
    void Forget();

    /// The work of studios that no longer run; unreadable files are skipped.
    QVector<UnsavedWork> Recoverable() const;
    static void Remove(const UnsavedWork &work);

private:
    QString m_directory;
    QString m_file;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace ClockStudio
