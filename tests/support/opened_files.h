// tests/support/: which files of a folder are opened.
#pragma once

#include <QFile>
#include <QStringList>

#include <cstddef>

#include <sys/inotify.h>
#include <unistd.h>

/// Records what any process opens in a folder.
class OpenedFiles
{
public:
    explicit OpenedFiles(const QString &folder)
        : m_queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
          // Equal events in succession are one, so that closing is watched too.
          m_isWatching(
              inotify_add_watch(m_queue, QFile::encodeName(folder).constData(), IN_OPEN | IN_CLOSE)
              >= 0)
    { }
    ~OpenedFiles() { close(m_queue); }
    Q_DISABLE_COPY(OpenedFiles)

    bool IsWatching() const { return m_isWatching; }

    /// The names of the files opened since the last call, sorted, each as often as it was opened.
    QStringList Take()
    {
        alignas(inotify_event) char events[16 << 10];
        QStringList names;
        const ssize_t bytes = read(m_queue, events, sizeof events);
        for (ssize_t at = 0; at < bytes;) {
            const auto *const event = reinterpret_cast<const inotify_event *>(events + at);
            if (event->len > 0 && (event->mask & IN_OPEN) != 0)
                names.append(QFile::decodeName(event->name));
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        names.sort();
        return names;
    }

private:
    int m_queue;
    bool m_isWatching;
};
