// compose/: the time and date that one clock shows: the device's time plus the clock's zone,
// adjustment and daylight saving, as a Persian date where the clock shows one.
#pragma once

#include "calendar/clock_time.h"
#include "calendar/persian_calendar.h"
#include "calendar/zone_time.h"
#include "clock_node.h"

#include <QDate>
#include <QDateTime>

namespace Lw::HNodeClock {

class ClockReading
{
public:
    /// Reads zone and adjustment from the node; they are kept until the next SetUp().
    void SetUp(HClockNode &node);
    /// Reads the time and the attributes that may change while playing. Without a node there is no
    /// daylight saving and no Persian date.
    void Update(HClockNode *node);

    /// Offset and rules as of the last Update(); without daylight saving the rules are empty.
    const ZoneSettings &Zone() const { return m_zone; }

    /// What the clock shows. Year, month and day are Persian for a clock that shows the Persian
    /// date; the weekday is always Gregorian.
    const DisplayedFields &Fields() const { return m_shown; }
    const DisplayedFields &GregorianFields() const { return m_gregorian; }
    QDateTime DateTime() const; ///< Gregorian, tagged UTC

    /// The Gregorian fields in the clock's zone without daylight saving, now.
    DisplayedFields StandardFields() const;

private:
    void ReadDaylightRules(HClockNode *node);
    void TakePersianDate();

    ZoneSettings m_zone;
    qint64 m_milliseconds = 0; ///< the reading as milliseconds since 1970-01-01 00:00
    DaylightSaving m_daylightSaving;
    DisplayedFields m_gregorian;
    DisplayedFields m_shown;
    QDate m_persianDay; ///< the Gregorian date of m_persianDate
    PersianDate m_persianDate;
};

} // namespace Lw::HNodeClock
