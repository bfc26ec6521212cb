#include "fit_check.h"

#include "files/saved_file.h"
#include "files/tool_run.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace ClockStudio {

namespace {

using ClockTool::Finding;

constexpr int kLimit = 2 * 60 * 1000; // milliseconds
constexpr int kMaxFindings = 1000;    // listed

Finding FindingOf(const QJsonObject &object)
{
    const auto text = [&object](const char *key) {
        return object.value(QLatin1String(key)).toString();
    };
    Finding finding;
    finding.place = {object.value(QStringLiteral("line")).toInt(), text("element"),
                     text("attribute"), object.value(QStringLiteral("clock")).toInt()};
    finding.severity = text("severity") == QLatin1String("note") ? ClockTool::Severity::Note
                                                                 : ClockTool::Severity::Warning;
    finding.text = text("text");
    finding.suggestion = text("suggestion");
    return finding;
}

} // namespace

FitCheck::FitCheck(QObject *parent) : QObject(parent)
{
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_limit.setSingleShot(true);
    m_limit.setInterval(kLimit);
    connect(&m_limit, &QTimer::timeout, &m_process, &QProcess::kill);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &FitCheck::Take);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        m_limit.stop();
        m_next.reset(); // it would fail, too
        Fail(tr("%1 is missing or cannot be started.").arg(m_process.program()));
    });
}

FitCheck::~FitCheck()
{
    const QSignalBlocker quiet(m_process);
    m_process.kill();
    m_process.waitForFinished();
}

void FitCheck::Start(const QByteArray &program, const QString &path)
{
    Drop();
    m_path = path;
    m_next = program;
    if (!IsRunning())
        Begin();
}

/// Does not wait for the process to end, which would block typing.
void FitCheck::Drop()
{
    m_next.reset();
    m_isDropped = IsRunning();
    m_process.kill();
}

/// The catalogue of the window's language as a file; empty if it cannot be written, or there is
/// none: the findings are then in English.
QString FitCheck::Catalogue() const
{
    const QString name =
        QStringLiteral("studio_%1.qm").arg(QLocale().name().section(QLatin1Char('_'), 0, 0));
    const QString path = m_work.filePath(name);
    const bool isThere =
        QFile::exists(path) || QFile::copy(QStringLiteral(":/translations/") + name, path);
    return isThere ? path : QString();
}

void FitCheck::Begin()
{
    m_isDropped = false;
    const QString path = m_work.filePath(QStringLiteral("program.xml"));
    const std::optional<QString> problem = SaveFile(path, *m_next);
    m_next.reset();
    if (problem)
        return Fail(*problem);
    const ToolCommand command = LintCommand(path, m_path, Catalogue());
    m_process.start(command.program, command.arguments, QIODevice::ReadOnly);
    m_limit.start();
}

void FitCheck::Take(int exitCode, QProcess::ExitStatus status)
{
    const bool isLate = !m_limit.isActive();
    m_limit.stop();
    const QByteArray output = m_process.readAllStandardOutput();
    if (m_next)
        return Begin();
    QVector<Finding> findings;
    for (const QByteArray &line : output.split('\n')) {
        const QJsonDocument document = QJsonDocument::fromJson(line);
        if (document.isObject() && findings.size() < kMaxFindings)
            findings.append(FindingOf(document.object()));
    }
    if (m_isDropped) {
        emit Ended();
        return;
    }
    if (isLate)
        return Fail(tr("it takes longer than two minutes."));
    // The tool exits with 1 if it warned, with a larger code if it could not check.
    if (status != QProcess::NormalExit || exitCode > 1)
        return Fail(tr("%1 ended with code %2.").arg(m_process.program()).arg(exitCode));
    emit Found(findings);
    emit Ended();
}

void FitCheck::Fail(const QString &reason)
{
    emit Failed(reason);
    emit Ended();
}

} // namespace ClockStudio
