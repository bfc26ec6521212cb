// studio/files: where programs come from and go to.
// Runs clock_tool and other programs while the window stays alive.
#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <optional>

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

/// The tree's own tool, beside this program.
QString ClockToolPath();

struct ToolResult
{
    bool isCancelled = false;
    bool isGood = false;
    QString errors; ///< what it wrote on standard error, or why it did not start
};

/// Runs a command behind a dialog that can be cancelled: it is asked to end, and cleans up itself.
ToolResult RunBehindDialog(const ToolCommand &command, const QString &what, QWidget *parent);

} // namespace ClockStudio
