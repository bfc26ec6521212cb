// A display of its own for a test, with keys and pictures as a person has them.
#pragma once

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>

class TestDisplay
{
public:
    static bool IsInstalled()
    {
        return !QStandardPaths::findExecutable("Xvfb").isEmpty()
            && !QStandardPaths::findExecutable("xdotool").isEmpty();
    }

    /// Whether the display is there now. It goes with this object.
    bool Start()
    {
        // The server finds a free number itself, and names it once it can be reached. It must not
        // restart, out of reach meanwhile, when its last client has gone.
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-noreset", "-screen", "0", "1280x800x24", "-nolisten",
                        "tcp", "-fbdir", m_directory.path()});
        while (m_server.waitForReadyRead(30000) && !m_server.canReadLine()) { }
        m_name = ':' + QString::fromLatin1(m_server.readLine()).trimmed();
        return m_name.size() > 1;
    }

    /// As when the X server crashes.
    void Kill()
    {
        m_server.kill();
        m_server.waitForFinished();
    }

    ~TestDisplay()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

    QProcessEnvironment Environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("DISPLAY", m_name);
        return environment;
    }

    /// What xdotool prints; empty when it fails.
    QString Do(const QStringList &arguments) const
    {
        QProcess tool;
        tool.setProcessEnvironment(Environment());
        tool.start("xdotool", arguments);
        if (!tool.waitForFinished(30000) || tool.exitCode() != 0)
            return QString();
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }

    /// Everything on the display. The server keeps it in a file: a header of 32-bit numbers, the
    /// most significant byte first, colours of twelve bytes each, and the pixels.
    QImage Screenshot() const
    {
        QFile file(m_directory.filePath("Xvfb_screen0"));
        if (!file.open(QIODevice::ReadOnly))
            return QImage();
        const QByteArray dump = file.readAll();
        const auto header = [&dump](int index) {
            return qFromBigEndian<qint32>(dump.constData() + 4 * index);
        };
        if (dump.size() < 100 || header(11) != 32)
            return QImage();
        const auto *pixels =
            reinterpret_cast<const uchar *>(dump.constData()) + header(0) + 12 * header(19);
        return QImage(pixels, header(4), header(5), header(12), QImage::Format_RGB32).copy();
    }

private:
    QTemporaryDir m_directory;
    QProcess m_server;
    QString m_name;
};
