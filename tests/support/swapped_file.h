// A file and a pipe in turn under one name, while it is read. A reader that opened the pipe as it
// opens a file would wait for ever.
#pragma once

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>

#include <sys/stat.h>

class SwappedFile
{
public:
    SwappedFile(const QString &path, const QByteArray &content)
        : m_swapper([this, name = QFile::encodeName(path), content] {
              while (!m_ends)
                  Swap(name, content);
          })
    { }
    ~SwappedFile()
    {
        m_ends = true;
        m_swapper.join();
    }
    Q_DISABLE_COPY(SwappedFile)

    /// Reads until each was met so many times, for at most two minutes: a busy machine may run one
    /// of the threads for long. Returns whether both were met often.
    template<typename Read>
    static bool BothAreMet(int times, const Read &isFile)
    {
        constexpr int milliseconds = 120000;
        int files = 0;
        int pipes = 0;
        QElapsedTimer timer;
        timer.start();
        while (std::min(files, pipes) < times && !timer.hasExpired(milliseconds))
            ++(isFile() ? files : pipes);
        return files >= 200 && pipes >= 200;
    }

private:
    static void Swap(const QByteArray &name, const QByteArray &content)
    {
        const QByteArray next = name + ".next";
        if (mkfifo(next.constData(), 0600) == 0)
            std::rename(next.constData(), name.constData());
        QFile file(QFile::decodeName(next));
        if (file.open(QFile::WriteOnly) && file.write(content) == content.size())
            file.close();
        std::rename(next.constData(), name.constData());
    }

    std::atomic<bool> m_ends {false};
    std::thread m_swapper;
};
