// The real player in its window on a test's display, with keys, title and messages.
#pragma once

#include "test_display.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QRegularExpression>

#include <csignal>

/// From its first title on.
class Player
{
public:
    Player(const TestDisplay &display, const QStringList &arguments,
           QProcessEnvironment environment)
        : m_display(display)
    {
        environment.insert("QT_QPA_PLATFORM", "xcb");
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(PLAYER), arguments);
        m_process.waitForStarted();
        QElapsedTimer timer;
        timer.start();
        const QString pid = QString::number(m_process.processId());
        while (m_window.isEmpty() && timer.elapsed() < 30000 && !m_process.waitForFinished(20))
            m_window = m_display.Do({"search", "--onlyvisible", "--pid", pid});
        Focus();
    }

    ~Player()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString Title() const { return m_display.Do({"getwindowname", m_window}); }
    bool IsOpen() const { return !m_window.isEmpty(); }

    /// Key presses go to this window from now on.
    void Focus() const
    {
        QElapsedTimer timer;
        timer.start();
        // A window that is only just coming up cannot take the focus yet.
        while (IsOpen() && m_display.Do({"getwindowfocus", "-f"}) != m_window
               && timer.elapsed() < 30000)
            m_display.Do({"windowfocus", m_window});
    }

    void Press(const QString &key) const { m_display.Do({"key", key}); }
    void Signal(int number) const { ::kill(static_cast<pid_t>(m_process.processId()), number); }

    /// UTC; invalid when the title tells none.
    QDateTime Instant() const
    {
        const QString text = QRegularExpression("\\| (\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ)")
                                 .match(Title())
                                 .captured(1);
        return QDateTime::fromString(text, Qt::ISODate);
    }

    QPoint Position() const
    {
        const QRegularExpressionMatch match =
            QRegularExpression("Position: (\\d+),(\\d+)")
                .match(m_display.Do({"getwindowgeometry", m_window}));
        return {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    QString Errors()
    {
        while (m_process.waitForReadyRead(10)) { }
        m_errors += QString::fromLocal8Bit(m_process.readAllStandardError());
        return m_errors;
    }

    /// The exit code of a player that ends by itself, else -1.
    int Finish()
    {
        return m_process.waitForFinished(20000) && m_process.exitStatus() == QProcess::NormalExit
            ? m_process.exitCode()
            : -1;
    }

private:
    const TestDisplay &m_display;
    QProcess m_process;
    QString m_window;
    QString m_errors;
};
