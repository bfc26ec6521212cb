// stage/: the time settings of a clock, and a line of text about its time and its next change.
#pragma once

#include "calendar/zone_time.h"

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Lw {
class HNode;
}
namespace Lw::HNodeClock {
enum class Attribute : int;
}

namespace ClockStage {

/// The key of an attribute, from the table itself: the plugin's sources are not linked here.
QString KeyOf(Lw::HNodeClock::Attribute attribute);

/// The time settings that a node has now; without daylight saving both rules are empty. Nothing for
/// a node that is not a clock.
std::optional<Lw::HNodeClock::ZoneSettings> SettingsOf(Lw::HNode *node);

/// Caches a clock's UTC offset and its next change: searching for the next change costs more than
/// drawing a frame.
class ZoneMemory
{
public:
    /// Seconds to add to UTC at an instant (UTC milliseconds).
    int OffsetAt(const Lw::HNodeClock::ZoneSettings &zone, qint64 instant);
    std::optional<Lw::HNodeClock::ZoneChange> NextChange(const Lw::HNodeClock::ZoneSettings &zone,
                                                         qint64 instant);
    /// The next change as text for the status.
    QString ChangeText(const Lw::HNodeClock::ZoneSettings &zone, qint64 instant);

private:
    void Learn(const Lw::HNodeClock::ZoneSettings &zone, qint64 instant);

    Lw::HNodeClock::ZoneSettings m_zone;
    qint64 m_from = 0;
    qint64 m_until = 0; ///< exclusive; equal to m_from if nothing is cached
    int m_offset = 0;
    std::optional<Lw::HNodeClock::ZoneChange> m_change;
    QString m_changeText;
};

struct Status
{
    qint64 instant = 0; ///< UTC milliseconds
    bool paused = false;
    double speed = 1;
    std::optional<Lw::HNodeClock::ZoneSettings> clock; ///< nothing: the program has no clock
    int clockNumber = 1;                               ///< from 1
    int clockCount = 1;
};

/// Such as "2024-03-31T00:59:58Z paused | clock 2 of 4: 2024-03-31 01:59:58 +01:00 | daylight
/// saving begins 2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00".
QString StatusText(const Status &status, ZoneMemory &memory);

} // namespace ClockStage
