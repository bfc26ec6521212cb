#include "playback.h"

#include "player_window.h"
#include "stage.h"
#include "time_travel.h"

#include "pictureplayer.h"

namespace ClockPlayer {

using namespace ClockStage;

namespace {

constexpr int kTitleInterval = 20; // milliseconds; the title changes at most this often

} // namespace

Playback::Playback(PlayerWindow &window, TimeControl timeControl)
    : m_window(window), m_canTravel(timeControl == TimeControl::Possible), m_name(window.title())
{
    m_sinceTitle.start();
    connect(&window, &PlayerWindow::Commanded, this, &Playback::Execute);
    connect(&window, &PlayerWindow::AboutToPaint, this, &Playback::ShowOverlay);
    connect(&window, &PlayerWindow::Painted, this, &Playback::RecordPresentation);
    connect(&m_clockSteps, &ClockSteps::Stepped, this, &Playback::FollowSteppedClock);
}

Playback::~Playback() = default;

void Playback::Play(std::unique_ptr<Stage> stage)
{
    const TimeTravel &travel = StageTime::Travel();
    Lw::pictureplayer::SetTimeScale(travel.IsPaused() ? 0 : travel.Speed());
    connect(stage.get(), &Stage::Changed, this, &Playback::RecordDrawing);
    stage->Start();
    m_window.SetStage(*stage);
    m_stage = std::move(stage); // deletes the previous stage last, as the window was showing it
    ReadClocks();
    ShowStatus();
}

void Playback::Clear()
{
    m_meter.Jumped();
    m_drawn.reset();
    m_stage.reset();
    m_clocks.clear();
}

void Playback::Execute(const Command &command)
{
    switch (command.control) {
    case Control::Pause:
    case Control::Step:
    case Control::Now:
        if (m_canTravel)
            Travel(command);
        break;
    case Control::NextClock:
        ++m_clock;
        break;
    case Control::Stats:
        emit StatsWanted();
        break;
    case Control::Status:
        m_showsStatus = !m_showsStatus;
        break;
    case Control::Help:
        m_showsHelp = !m_showsHelp;
        break;
    case Control::Quit:
        m_window.close();
        return;
    }
    ShowStatus();
}

void Playback::Travel(const Command &command)
{
    TimeTravel &travel = StageTime::Travel();
    const RealTime real = StageTime::Real();
    if (command.control == Control::Pause)
        travel.SetPaused(!travel.IsPaused(), real);
    else if (command.control == Control::Step)
        travel.Step(command.step, real);
    else
        travel.ReturnToPresent();
    ShowTravelledTime();
}

// Each area redraws now, which restarts its timer for the new speed, or stops it when
// paused.
void Playback::ShowTravelledTime()
{
    const TimeTravel &travel = StageTime::Travel();
    m_meter.Jumped();
    m_drawn.reset();
    Lw::pictureplayer::SetTimeScale(travel.IsPaused() ? 0 : travel.Speed());
    if (m_stage)
        m_stage->PlayNext();
}

// Redraws at once; otherwise the old time would stay until the pending timers fire.
void Playback::FollowSteppedClock()
{
    if (m_stage && StageTime::Travel().IsPresent())
        m_stage->PlayNext();
}

// A plugin that does not take its time from the player is not measured.
void Playback::RecordDrawing()
{
    const std::optional<StageTime::PluginTime> told = StageTime::TakePluginTime();
    if (!m_window.isExposed()) {
        m_meter.Jumped();
        m_drawn.reset();
        return;
    }
    if (!told)
        return;
    if (!m_drawn) {
        m_drawn = PresentedFrame();
        m_drawn->instant = told->instant;
        m_drawn->begun = told->steady;
        m_drawn->speed = StageTime::Travel().Speed();
    }
    m_drawn->drawing += StageTime::Steady() - told->steady;
}

void Playback::RecordPresentation(double begun)
{
    if (m_drawn) {
        m_drawn->presented = StageTime::Steady();
        m_drawn->drawing += m_drawn->presented - begun;
        m_meter.AddPresented(*m_drawn);
        m_drawn.reset();
    }
    if (m_stage && m_sinceTitle.hasExpired(kTitleInterval))
        ShowTitle();
    emit Presented();
}

void Playback::ShowStatus()
{
    ShowTitle();
    ShowOverlay();
}

void Playback::ShowTitle()
{
    m_sinceTitle.start();
    const QString title = m_name + QStringLiteral(" | ") + Status();
    if (title != m_window.title())
        m_window.setTitle(title);
}

void Playback::ShowOverlay()
{
    QStringList overlay;
    if (m_showsHelp)
        overlay.append(KeysText());
    if (m_showsStatus)
        overlay.append(Status());
    m_window.SetOverlay(overlay.join(QStringLiteral("\n\n")));
}

QString Playback::Status()
{
    const TimeTravel &travel = StageTime::Travel();
    ClockStage::Status status;
    status.instant = StageTime::Shown();
    status.paused = travel.IsPaused();
    status.speed = travel.Speed();
    if (!m_clocks.isEmpty()) {
        status.clockCount = m_clocks.size();
        status.clockNumber = m_clock % m_clocks.size() + 1;
        status.clock = m_clocks[status.clockNumber - 1];
    }
    return StatusText(status, m_zoneMemory);
}

void Playback::ReadClocks()
{
    m_clocks.clear();
    for (Lw::HNode *const node : m_stage->Nodes()) {
        if (const std::optional<Lw::HNodeClock::ZoneSettings> settings = SettingsOf(node))
            m_clocks.append(*settings);
    }
}

} // namespace ClockPlayer
