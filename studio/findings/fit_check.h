// studio/findings: runs all checks of a program, those of a whole year included, in a clock_tool
// process, so that the window stays responsive.
#pragma once

#include "lint/finding.h"

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace ClockStudio {

/// Runs clock_tool lint: checking every day of a year takes too long for the window's thread.
class FitCheck : public QObject
{
    Q_OBJECT

public:
    explicit FitCheck(QObject *parent = nullptr);
    ~FitCheck() override;

    /// Checks a program; a check that still runs is abandoned. Its glyph files are beside the path;
    /// empty if it was never saved.
    void Start(const QByteArray &program, const QString &path);
    /// Abandons the running check; Found is not emitted for it.
    void Drop();
    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }

Q_SIGNALS:
    /// In the order of the text.
    void Found(const QVector<ClockTool::Finding> &findings);
    /// In place of Found: the tool cannot be run or takes minutes, as it may for hundreds of
    /// overlapping clocks.
    void Failed(const QString &reason);
    void Ended(); ///< after either, or without if the check was dropped

private:
    QString Catalogue() const;
    void Begin();
    void Take(int exitCode, QProcess::ExitStatus status);
    void Fail(const QString &reason);

    QTemporaryDir m_work;
    std::optional<QByteArray> m_next; ///< to be checked when the running check has ended
    QString m_path;
    bool m_isDropped = false;
    QProcess m_process;
    QTimer m_limit;
};

} // namespace ClockStudio
