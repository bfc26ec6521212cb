// A disk that is as small as a test wants it, where a process may mount one.
#pragma once

#include <QFile>
#include <QString>

#include <sched.h>
#include <sys/mount.h>

/// A file system of its own on a directory, with room for so many pages and inodes. Only this
/// process and its children see it, and it goes with this object.
class SmallDisk
{
public:
    static constexpr int kPage = 4096; ///< bytes
    static constexpr int kEnoughInodes = 10000;

    SmallDisk(const QString &directory, int pages, int inodes = kEnoughInodes)
        : m_directory(QFile::encodeName(directory))
    {
        static const bool ownMounts = unshare(CLONE_NEWNS) == 0
            && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        m_mounted = ownMounts
            && mount("none", m_directory.constData(), "tmpfs", 0, Options(pages, inodes)) == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount2(m_directory.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY(SmallDisk)

    bool IsThere() const { return m_mounted; }
    bool MakeReadOnly() const
    {
        return mount("none", m_directory.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr)
            == 0;
    }
    /// Gives it another size while it is used.
    bool Resize(int pages, int inodes = kEnoughInodes) const
    {
        return mount("none", m_directory.constData(), nullptr, MS_REMOUNT, Options(pages, inodes))
            == 0;
    }

private:
    /// A size of 0 would be no limit: less than a page is none.
    static QByteArray Options(int pages, int inodes)
    {
        const int bytes = pages > 0 ? pages * kPage : 1;
        return "mode=0777,size=" + QByteArray::number(bytes)
            + ",nr_inodes=" + QByteArray::number(inodes);
    }

    QByteArray m_directory;
    bool m_mounted;
};
