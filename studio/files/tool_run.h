// studio/files: runs clock_tool and other programs behind a progress dialog, keeping the window
// responsive.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace ClockStudio {

/// A command and its arguments.
struct ToolCommand
{
    QString program;
    QStringList arguments;
};

/// The path of clock_tool, beside this program.
QString ClockToolPath();
/// The clock_tool command that exports a program to a folder, in the clocks' current language.
ToolCommand ExportCommand(const QString &program, const QString &folder);
/// Its checks of a program, likewise; each finding is a line of JSON.
ToolCommand LintCommand(const QString &program);

struct ToolResult
{
    bool isCancelled = false;
    bool isGood = false;
    QByteArray output; ///< standard output of all commands, as far as it is kept
    QString errors;    ///< what the last one wrote on standard error, or why it did not start
};

/// Runs commands, each when the one before it went well, behind a dialog that can be cancelled: the
/// command is asked to end, and cleans up itself. Percentages in the output move the dialog's bar.
ToolResult RunBehindDialog(const QVector<ToolCommand> &commands, const QString &what,
                           QWidget *parent);

} // namespace ClockStudio
