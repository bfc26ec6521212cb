#include "window_show.h"

#include "clock_report.h"
#include "glyph_report.h"
#include "plugins.h"
#include "stage.h"

#include "hnode.h"
#include "node_keys.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <csignal>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

// Per-second work runs with each presented second, and at this interval while none is presented.
constexpr int kIdleInterval = 1500;    // milliseconds
constexpr int kStatusInterval = 60000; // milliseconds
constexpr int kBlankAfter = 5000;      // milliseconds
constexpr int kKeptFaults = 20;

Placing PlacingOf(const Options &options)
{
    return {options.turn, options.ledPitch, options.offset};
}

QString TimeText(const QDateTime &time)
{
    return time.toString(Qt::ISODate);
}

bool LacksFiles(const Stage &stage)
{
    const QVector<Lw::HNode *> nodes = stage.Nodes();
    return !std::all_of(nodes.begin(), nodes.end(),
                        [](Lw::HNode *node) { return node->AllFileExists(); });
}

QJsonObject SpreadObject(const Spread &spread)
{
    return {{QStringLiteral("minimum"), spread.Minimum()},
            {QStringLiteral("median"), spread.Median()},
            {QStringLiteral("p99"), spread.Percentile(99)},
            {QStringLiteral("maximum"), spread.Maximum()}};
}

Notice NoticeOf(const FileSignature &program)
{
    return program == FileSignature() ? Notice::NoProgram : Notice::BadProgram;
}

} // namespace

WindowShow::WindowShow(const Options &options, Playback::TimeControl timeControl, const Warn &warn)
    : m_options(options), m_warn(warn), m_reportSignal({SIGUSR1}, SignalPipe::Times::Always),
      m_window(QFileInfo(options.programPath).fileName(), PlacingOf(options)),
      m_playback(m_window, timeControl), m_watch(FileSignature())
{
    connect(&m_playback, &Playback::StatsWanted, this, &WindowShow::PrintStats);
    connect(&m_reportSignal, &SignalPipe::Received, this, &WindowShow::Report);
    connect(&m_playback, &Playback::Presented, this, &WindowShow::OnSecondPresented);
    m_idle.setInterval(kIdleInterval);
    connect(&m_idle, &QTimer::timeout, this, &WindowShow::OnIdle);
    m_sinceStatus.start();
}

MaybeFailure WindowShow::Play(const Result<Program> &program, const FileSignature &signature)
{
    m_watch = ProgramWatch(signature);
    if (m_options.isKiosk)
        BeginKiosk();
    const MaybeFailure failure = program ? Show(*program) : program.Error();
    if (failure && !m_options.isKiosk)
        return failure;
    if (failure) {
        ReportFault(failure->text);
        ShowNotice(!program && signature == FileSignature() ? Notice::NoProgram
                                                            : Notice::BadProgram);
    } else if (const MaybeFailure faulty = CheckGlyphs()) {
        if (!m_options.isKiosk)
            return faulty;
        ReportFault(faulty->text); // a kiosk plays with the images that it has
    }
    ShowNoticeIfGlyphsMissing();
    if (!m_options.isKiosk)
        m_window.show();
    CheckRequiredTime();
    m_idle.start();
    NotifyService("READY=1");
    WriteStatusFile();
    return std::nullopt;
}

void WindowShow::BeginKiosk()
{
    m_console = std::make_unique<QuietConsole>();
    m_reloadSignal.reset(new SignalPipe({SIGHUP}, SignalPipe::Times::Always));
    connect(m_reloadSignal.get(), &SignalPipe::Received, this, &WindowShow::ReloadOnSignal);
    const QString framebuffer = FramebufferOf(qEnvironmentVariable("QT_QPA_PLATFORM"));
    if (!framebuffer.isEmpty())
        m_guard = std::make_unique<ScreenGuard>([framebuffer] { BlankFramebuffer(framebuffer); },
                                                kBlankAfter);
    m_window.ShowKiosk();
}

void WindowShow::OnSecondPresented()
{
    m_idle.start();
    if (m_guard) {
        m_guard->Feed();
        if (m_guard->TakeBlanked())
            m_window.ScheduleRepaint();
    }
    NotifyService("WATCHDOG=1");
    CheckRequiredTime();
    if (m_options.watchesProgram || m_notice)
        CheckProgram();
    if (!m_sinceStatus.hasExpired(kStatusInterval))
        return;
    if (m_notice == Notice::NoGlyphs) // there may be room on the disk by now
        Reload();
    else
        WriteStatusFile();
}

// A static notice is fine; stopped clocks are not, so the watchdog is not fed for them here.
void WindowShow::OnIdle()
{
    if (m_notice) {
        OnSecondPresented();
        return;
    }
    if (m_options.watchesProgram)
        CheckProgram();
}

void WindowShow::CheckRequiredTime()
{
    if (!m_options.requiresTime)
        return;
    const bool isSet = IsTimeSet();
    if (!isSet && m_notice != Notice::TimeNotSet)
        ShowNotice(Notice::TimeNotSet);
    else if (isSet && m_notice == Notice::TimeNotSet)
        Reload();
}

void WindowShow::CheckProgram()
{
    const FileSignature signature = SignatureOf(m_options.programPath);
    const ProgramWatch::Step step = m_watch.Check(signature);
    if (step == ProgramWatch::Step::Wait || m_notice == Notice::TimeNotSet)
        return;
    const MaybeFailure failure = Read();
    if (!failure) {
        WriteStatusFile();
        return;
    }
    if (step == ProgramWatch::Step::Read)
        m_watch.Failed();
    else
        ReportFault(failure->text);
    if (m_notice)
        ShowNotice(NoticeOf(signature));
}

// While the clock is not set, no frame may be shown; the program is read once it is set.
void WindowShow::ReloadOnSignal()
{
    if (m_notice == Notice::TimeNotSet)
        WriteStatusFile();
    else
        Reload();
}

void WindowShow::Reload()
{
    const FileSignature signature = SignatureOf(m_options.programPath);
    m_watch = ProgramWatch(signature);
    if (const MaybeFailure failure = Read()) {
        ReportFault(failure->text);
        if (m_notice)
            ShowNotice(NoticeOf(signature));
    }
    WriteStatusFile();
}

MaybeFailure WindowShow::Read()
{
    const Result<Program> program = ReadRegularProgram(m_options.programPath);
    if (!program)
        return program.Error();
    if (const MaybeFailure failure = Show(*program))
        return failure;
    if (const MaybeFailure faulty = CheckGlyphs())
        ReportFault(faulty->text);
    ShowNoticeIfGlyphsMissing();
    return std::nullopt;
}

void WindowShow::ShowNoticeIfGlyphsMissing()
{
    if (m_options.isKiosk && m_playback.Playing() && LacksFiles(*m_playback.Playing()))
        ShowNotice(Notice::NoGlyphs);
}

MaybeFailure WindowShow::CheckGlyphs() const
{
    return ClockPlayer::CheckGlyphs(m_playback.Playing()->Nodes(), m_options.programPath, m_warn);
}

void WindowShow::CheckRestarted(Lw::HNode *node)
{
    if (const MaybeFailure faulty = ClockPlayer::CheckGlyphs({node}, m_options.programPath, m_warn))
        ReportFault(faulty->text);
}

MaybeFailure WindowShow::Show(const Program &program)
{
    const int scale = qMax(1, m_options.ledPitch);
    if (qMax(program.size.width(), program.size.height()) * scale > kMaximumSide)
        return Failure {ExitCode::RuntimeFailure,
                        QStringLiteral("%1: the screen is too large to be magnified %2 times")
                            .arg(program.path)
                            .arg(scale)};
    auto stage = std::make_unique<Stage>();
    if (const MaybeFailure failure = BuildStage(*stage, program, m_options, m_warn))
        return failure;
    m_notice.reset();
    connect(stage.get(), &Stage::Restarted, this, &WindowShow::CheckRestarted);
    m_playback.Play(std::move(stage));
    m_digest = QString::fromLatin1(program.digest.toHex());
    const QSize display = QGuiApplication::primaryScreen()->size();
    const QRect picture = m_window.Picture();
    if (m_options.isKiosk && !QRect(QPoint(), display).contains(picture))
        ReportFault(QStringLiteral(
                        "%1: the picture extends to %2,%3, but the display has only %4x%5 pixels")
                        .arg(program.path)
                        .arg(picture.right() + 1)
                        .arg(picture.bottom() + 1)
                        .arg(display.width())
                        .arg(display.height()));
    return std::nullopt;
}

void WindowShow::ShowNotice(Notice notice)
{
    if (m_notice == notice)
        return;
    m_notice = notice;
    m_window.ShowNotice(notice);
    m_playback.Clear();
    WriteStatusFile();
}

void WindowShow::PrintStats()
{
    for (const QString &line : m_playback.Meter().Report())
        m_warn(line);
}

void WindowShow::Report()
{
    PrintStats();
    WriteStatusFile();
}

void WindowShow::ReportFault(const QString &text)
{
    m_warn(text);
    ++m_faultCount;
    m_faults.append(
        QJsonObject {{QStringLiteral("time"), TimeText(QDateTime::currentDateTimeUtc())},
                     {QStringLiteral("text"), text}});
    while (m_faults.size() > kKeptFaults)
        m_faults.removeFirst();
    WriteStatusFile();
}

void WindowShow::WriteStatusFile()
{
    m_sinceStatus.start();
    if (m_options.statusFile.isEmpty())
        return;
    if (const MaybeFailure failure = WriteStatus(m_options.statusFile, Status()))
        m_warn(failure->text);
}

QJsonObject WindowShow::Status()
{
    const DeadlineMeter &meter = m_playback.Meter();
    const std::optional<bool> synchronised = IsTimeSynchronised();
    const ClockReport report =
        ReportClocks(m_playback.Playing() ? m_playback.Playing()->Nodes() : QVector<Lw::HNode *>(),
                     StageTime::Shown(), m_rulesEnds);
    return {
        {QStringLiteral("format"), 1},
        {QStringLiteral("written"), TimeText(QDateTime::currentDateTimeUtc())},
        {QStringLiteral("started"), TimeText(m_started)},
        {QStringLiteral("program"), m_options.programPath},
        {QStringLiteral("program_sha256"), m_digest.isEmpty() ? QJsonValue() : m_digest},
        {QStringLiteral("notice"), m_notice ? QJsonValue(NoticeCode(*m_notice)) : QJsonValue()},
        {QStringLiteral("frames"), meter.Frames()},
        {QStringLiteral("missed_seconds"), meter.MissedSeconds()},
        {QStringLiteral("clock_steps"), meter.ClockSteps()},
        {QStringLiteral("second_presentations"), meter.RepeatedPresentations()},
        {QStringLiteral("lateness_ms"), SpreadObject(meter.Lateness())},
        {QStringLiteral("time_set"), IsTimeSet()},
        {QStringLiteral("time_synchronised"),
         synchronised ? QJsonValue(*synchronised) : QJsonValue()},
        {QStringLiteral("clocks"), report.clocks},
        {QStringLiteral("warnings"), report.warnings},
        {QStringLiteral("fault_count"), m_faultCount},
        {QStringLiteral("faults"), m_faults},
    };
}

} // namespace ClockPlayer
