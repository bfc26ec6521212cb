// tools/: the temporary directory of a command, removed also when a signal ends the process.
#pragma once

#include "commands.h"

#include <QTemporaryDir>

#include <mutex>
#include <thread>

namespace ClockTool {

/// A temporary directory that is removed with this object, and when SIGINT, SIGTERM or SIGHUP ends
/// the process. Only one may exist at a time.
class WorkDirectory
{
public:
    /// In TMPDIR, or within `parent` under a hidden name that IsName() recognises.
    explicit WorkDirectory(const QString &parent = QString());
    /// The same, and a signal removes this file as well.
    WorkDirectory(const QString &parent, const QString &file);
    ~WorkDirectory();
    WorkDirectory(const WorkDirectory &) = delete;
    WorkDirectory &operator=(const WorkDirectory &) = delete;

    MaybeFailure Fault() const; ///< why there is none, with the parent's path
    QString Path() const { return m_directory.path(); }
    QString FilePath(const QString &name) const { return m_directory.filePath(name); }

    /// Signals are deferred while the lock is held.
    std::unique_lock<std::mutex> HoldSignals() { return std::unique_lock(m_ending); }

    /// Whether an entry of a directory has the name of a work directory within it.
    static bool IsName(const QString &name);

private:
    void EndAtSignal();

    QString m_parent;
    QString m_file;
    QTemporaryDir m_directory;
    int m_ends[2] = {-1, -1}; // of the pipe that signals are written to
    std::mutex m_ending;
    std::thread m_watcher;
};

} // namespace ClockTool
