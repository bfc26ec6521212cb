#include "tool_run.h"

#include "catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QTimer>

#include <optional>

namespace ClockStudio {

namespace {

constexpr int kMaxOutput = 4 << 20; // kept bytes of standard output
constexpr int kKillDelay = 5000;    // milliseconds between SIGTERM and SIGKILL

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::ToolRun", text);
}

/// The last "12%" of a text.
std::optional<int> LastPercentage(const QByteArray &text)
{
    const int end = text.lastIndexOf('%');
    int begin = end;
    while (begin > 0 && text[begin - 1] >= '0' && text[begin - 1] <= '9')
        --begin;
    if (end < 0 || begin == end)
        return std::nullopt;
    return qMin(text.mid(begin, end - begin).toInt(), 100);
}

class DialogRun
{
public:
    DialogRun(const QString &what, QWidget *parent)
        : m_dialog(what, Translated(QT_TRANSLATE_NOOP("ClockStudio::ToolRun", "Cancel")), 0, 0,
                   parent)
    {
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setWindowTitle(QStringLiteral("Clock Studio"));
        m_dialog.setAutoReset(false);
        m_dialog.setAutoClose(false);
        m_dialog.show(); // shown at once, so that the window is blocked from the start
    }

    /// Whether the command succeeded.
    bool Run(const ToolCommand &command)
    {
        QProcess process;
        QEventLoop loop;
        m_dialog.setRange(0, 0);
        const auto cancelled = QObject::connect(&m_dialog, &QProgressDialog::canceled, &process,
                                                [&] { End(process); });
        QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                         [&] { TakeOutput(process.readAllStandardOutput()); });
        QObject::connect(&process, &QProcess::stateChanged, &loop, [&](QProcess::ProcessState now) {
            if (now == QProcess::NotRunning)
                loop.quit();
        });
        process.start(command.program, command.arguments, QIODevice::ReadOnly);
        if (process.state() != QProcess::NotRunning)
            loop.exec();
        QObject::disconnect(cancelled);
        TakeEnd(process);
        return m_result.isGood;
    }

    const ToolResult &Result() const { return m_result; }

private:
    void End(QProcess &process)
    {
        m_result.isCancelled = true;
        process.terminate();
        QTimer::singleShot(kKillDelay, &process, &QProcess::kill);
    }

    void TakeOutput(const QByteArray &output)
    {
        m_result.output += output.left(kMaxOutput - m_result.output.size());
        if (const auto percentage = LastPercentage(output)) {
            m_dialog.setRange(0, 100);
            m_dialog.setValue(*percentage);
        }
    }

    void TakeEnd(QProcess &process)
    {
        TakeOutput(process.readAllStandardOutput());
        m_result.isGood = !m_result.isCancelled && process.error() == QProcess::UnknownError
            && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        m_result.errors = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
        if (process.error() == QProcess::FailedToStart)
            m_result.errors =
                Translated(QT_TRANSLATE_NOOP("ClockStudio::ToolRun",
                                             "%1 cannot be started. Is it installed?"))
                    .arg(process.program());
        else if (m_result.errors.isEmpty() && !m_result.isGood)
            m_result.errors =
                Translated(QT_TRANSLATE_NOOP("ClockStudio::ToolRun", "%1 exited with code %2."))
                    .arg(process.program())
                    .arg(process.exitCode());
    }

    QProgressDialog m_dialog;
    ToolResult m_result;
};

} // namespace

QString ClockToolPath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("clock_tool"));
}

ToolCommand ExportCommand(const QString &program, const QString &folder)
{
    return {ClockToolPath(),
            {QStringLiteral("export"), QStringLiteral("--progress"), QStringLiteral("--language"),
             ClockCatalogues::Installed(), program, folder}};
}

ToolCommand LintCommand(const QString &copy, const QString &original, const QString &catalogue)
{
    QStringList arguments {QStringLiteral("lint"), QStringLiteral("--format"),
                           QStringLiteral("json"), QStringLiteral("--language"),
                           ClockCatalogues::Installed()};
    if (!original.isEmpty())
        arguments += {QStringLiteral("--base"), QFileInfo(original).absolutePath()};
    if (!catalogue.isEmpty())
        arguments += {QStringLiteral("--catalogue"), catalogue};
    return {ClockToolPath(), arguments + QStringList(copy)};
}

ToolResult RunBehindDialog(const QVector<ToolCommand> &commands, const QString &what,
                           QWidget *parent)
{
    DialogRun run(what, parent);
    for (const ToolCommand &command : commands) {
        if (!run.Run(command))
            break;
    }
    return run.Result();
}

} // namespace ClockStudio
