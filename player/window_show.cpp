#include "window_show.h"

#include "led_screen.h"
#include "plugins.h"
#include "stage.h"

#include <QFileInfo>

#include <csignal>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

// The program is checked with each second that is shown, and this often while none is.
constexpr int kIdleInterval = 1500; // milliseconds

std::optional<LedScreen> Leds(const Options &options)
{
    return options.ledPitch ? std::optional(LedScreen(options.ledPitch)) : std::nullopt;
}

} // namespace

WindowShow::WindowShow(const Options &options, Playback::Travelling travelling, const Warn &warn)
    : m_options(options), m_warn(warn), m_reportSignal({SIGUSR1}, SignalPipe::Times::Always),
      m_window(QFileInfo(options.programPath).fileName(), Leds(options)),
      m_playback(m_window, travelling), m_watch(FileSignature())
{
    connect(&m_playback, &Playback::StatsWanted, this, &WindowShow::PrintStats);
    connect(&m_reportSignal, &SignalPipe::Received, this, &WindowShow::PrintStats);
    if (!options.watchesProgram)
        return;
    m_idle.setInterval(kIdleInterval);
    connect(&m_idle, &QTimer::timeout, this, &WindowShow::CheckProgram);
    connect(&m_playback, &Playback::Presented, this, &WindowShow::CheckProgram);
}

MaybeFailure WindowShow::Play(const Program &program, const FileSignature &signature)
{
    m_watch = ProgramWatch(signature);
    if (const MaybeFailure failure = Show(program))
        return failure;
    m_window.show();
    if (m_options.watchesProgram)
        m_idle.start();
    return std::nullopt;
}

void WindowShow::PrintStats()
{
    for (const QString &line : m_playback.Meter().Report())
        m_warn(line);
}

void WindowShow::CheckProgram()
{
    m_idle.start();
    const ProgramWatch::Step step = m_watch.Check(SignatureOf(m_options.programPath));
    if (step == ProgramWatch::Step::Wait)
        return;
    const MaybeFailure failure = Read();
    if (!failure)
        return;
    if (step == ProgramWatch::Step::Read)
        m_watch.Failed();
    else
        m_warn(failure->text);
}

MaybeFailure WindowShow::Read()
{
    const Result<Program> program = ReadProgram(m_options.programPath);
    if (const auto *failure = std::get_if<Failure>(&program))
        return *failure;
    return Show(std::get<Program>(program));
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
    m_playback.Play(std::move(stage));
    return std::nullopt;
}

} // namespace ClockPlayer
