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
/// The clock_tool command that checks a copy of a program, in the same language; prints a line of
/// JSON per finding. The glyph files are beside the original, which may be empty, and so may the
/// catalogue that translates the findings.
ToolCommand LintCommand(const QString &copy, const QString &original, const QString &catalogue);

struct ToolResult
{
    bool isCancelled = false;
    bool isGood = false;
    QByteArray output; ///< standard output of all commands, up to a limit
    QString errors;    ///< what the last one wrote on standard error, or why it did not start
};

/// Runs commands behind a dialog, each if the one before it succeeded. If the user cancels, the
/// running command gets SIGTERM and cleans up. Percentages in the output move the progress bar.
ToolResult RunBehindDialog(const QVector<ToolCommand> &commands, const QString &what,
                           QWidget *parent);

} // namespace ClockStudio
