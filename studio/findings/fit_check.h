// studio/findings: what is wrong with a program, found as it arises.
// All checks of a program, those of a whole year among them, made while the window stays alive.
#pragma once

#include "lint/finding.h"

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace ClockStudio {

/// Runs clock_tool's lint: a check of every day of a year takes too long for the window's own
/// thread.
class FitCheck : public QObject
{
    Q_OBJECT

public:
    explicit FitCheck(QObject *parent = nullptr);
    ~FitCheck() override;

    /// Checks a program; what was being checked before is dropped.
    void Start(const QByteArray &program);
    /// Nothing is told of what is being checked.
    void Drop();
    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }

Q_SIGNALS:
    /// In the order of the text.
    void Found(const QVector<ClockTool::Finding> &findings);
    /// In place of Found: the tool cannot be run, or takes minutes, as it may for hundreds of
    /// clocks above each other.
    void Failed(const QString &reason);
    void Ended(); ///< after either, or without if the check was dropped

private:
    void Begin();
    void Take(int exitCode, QProcess::ExitStatus status);
    void Fail(const QString &reason);

    QTemporaryDir m_work;
    std::optional<QByteArray> m_next; ///< to be checked when what runs has ended
    bool m_isDropped = false;
    QProcess m_process;
    QTimer m_limit;
};

} // namespace ClockStudio
