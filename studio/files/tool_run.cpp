#include "tool_run.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QProgressDialog>

namespace ClockStudio {

QString ClockToolPath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("clock_tool"));
}

ToolResult RunBehindDialog(const ToolCommand &command, const QString &what, QWidget *parent)
{
    QProgressDialog dialog(what, QCoreApplication::translate("ClockStudio::ToolRun", "Cancel"), 0,
                           0, parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setMinimumDuration(300);
    QProcess process;
    QEventLoop loop;
    ToolResult result;
    QObject::connect(&dialog, &QProgressDialog::canceled, &process, [&] {
        result.isCancelled = true;
        process.terminate();
    });
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    process.start(command.program, command.arguments);
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    process.waitForFinished();
    result.isGood = !result.isCancelled && process.error() == QProcess::UnknownError
        && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    result.errors = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    if (result.errors.isEmpty() && !result.isGood)
        result.errors = process.errorString();
    return result;
}

} // namespace ClockStudio
