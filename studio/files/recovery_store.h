// studio/files: where programs come from and go to.
// Work that is not saved yet, kept beside the user's data so that a crash costs some seconds.
#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace ClockStudio {

/// Work that a studio left which is no longer there.
struct LeftWork
{
    QString file;     ///< in the store
    QString path;     ///< of the program; empty for one that was never saved
    QByteArray bytes; ///< of the program
};

/// Each studio that runs has a file of its own, and a lock that others cannot get while it runs.
class RecoveryStore
{
public:
    /// The directory is made where it is missing.
    explicit RecoveryStore(const QString &directory);
    ~RecoveryStore();

    /// False where it could not be written; what was kept before stays.
    bool Keep(const QString &path, const QByteArray &bytes);
    /// The work is saved, or given up.
    void Forget();

    /// Files that cannot be read are left out.
    QVector<LeftWork> Left() const;
    static void Remove(const LeftWork &work);

private:
    QString m_directory;
    QString m_file;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace ClockStudio
