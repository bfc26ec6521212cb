// What happens in the window while a program plays: keys travel in time, the title tells where,
// and every frame is measured.
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
    enum class Travelling { Possible, Impossible }; ///< the plugins take the time from the player

    Playback(PlayerWindow &window, Travelling travelling);
    ~Playback() override;

    /// Plays a stage that was built. What played before is shown until the first pictures of the
    /// new stage are drawn.
    void Play(std::unique_ptr<ClockStage::Stage> stage);
    /// Ends what plays; the window shows something else.
    void Clear();
    const ClockStage::Stage *Playing() const { return m_stage.get(); } ///< null: nothing plays
    const DeadlineMeter &Meter() const { return m_meter; }

Q_SIGNALS:
    void StatsWanted();
    void Presented(); ///< what changed is on the display

private:
    void Obey(const Command &command);
    void Travel(const Command &command);
    void ShowTravelledTime();
    void FollowSteppedClock();
    void NotePicture();
    void NotePaint(double begun);
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
    std::optional<SeenFrame> m_drawn; ///< on its way to the display
    ClockStage::ClockSteps m_clockSteps;
    ClockStage::ZoneMemory m_zoneMemory;
    QVector<Lw::HNodeClock::ZoneSettings> m_clocks; ///< of the stage; they stay as it began
    QElapsedTimer m_sinceTitle;
    int m_clock = 0; ///< that the status tells of
    bool m_showsStatus = false;
    bool m_showsHelp = false;
};

} // namespace ClockPlayer
