// player/: plays a stage in the window: executes key commands, updates title and overlay, and
// measures every frame.
#pragma once

#include "controls.h"
#include "deadline_meter.h"

#include "clock_status.h"
#include "time_travel.h"

#include <QElapsedTimer>
#include <QObject>

#include <memory>
#include <optional>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

class PlayerWindow;

/// The window must outlive it.
class Playback : public QObject
{
    Q_OBJECT

public:
    enum class TimeControl {
        Possible,
        Impossible
    }; ///< whether the plugins take their time from the player

    Playback(PlayerWindow &window, TimeControl timeControl);
    ~Playback() override;

    /// Plays a stage that was built. The previous one is shown until the first pictures of the
    /// new stage are drawn.
    void Play(std::unique_ptr<ClockStage::Stage> stage);
    /// Stops playing and deletes the stage; the window must already show something else.
    void Clear();
    const ClockStage::Stage *Playing() const { return m_stage.get(); } ///< null: nothing plays
    const DeadlineMeter &Meter() const { return m_meter; }

Q_SIGNALS:
    void StatsWanted();
    void Presented(); ///< the changes are on the display

private:
    void Execute(const Command &command);
    void Travel(const Command &command);
    void ShowTravelledTime();
    void FollowSteppedClock();
    void RecordDrawing();
    void RecordPresentation(double begun);
    void ShowStatus();
    void ShowTitle();
    void ShowOverlay();
    QString Status();
    void ReadClocks();

    std::unique_ptr<ClockStage::Stage> m_stage;
    PlayerWindow &m_window;
    const bool m_canTravel;
    const QString m_name; ///< the window's first title
    DeadlineMeter m_meter;
    std::optional<PresentedFrame> m_drawn; ///< on its way to the display
    ClockStage::ClockSteps m_clockSteps;
    ClockStage::ZoneMemory m_zoneMemory;
    QVector<Lw::HNodeClock::ZoneSettings> m_clocks; ///< as they were when the stage began to play
    QElapsedTimer m_sinceTitle;
    int m_clock = 0; ///< shown in the status, from 0; modulo the number of clocks
    bool m_showsStatus = false;
    bool m_showsHelp = false;
};

} // namespace ClockPlayer
