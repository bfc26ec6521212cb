// tools/: clock_tool zone --refresh: gives clocks the current rules of their zones.
#pragma once

#include "commands.h"
#include "zone_rule.h"

#include "clock_attributes.h"

#include <QVector>

namespace ClockTool {

struct ZoneValue
{
    Lw::HNodeClock::Attribute attribute;
    QString value; ///< in the stored form
};

/// The attributes that hold a zone's settings in a program, in the order in which they are written.
QVector<ZoneValue> ZoneValues(const ClockZones::ZoneSettings &settings);

/// Writes the program with current rules for each clock whose rules are out of date at `now` (UTC
/// milliseconds), and reports each change. A clock is left as it is, with an exit code of 1, if the
/// zones that had its rules have different ones now, or if no better rules are known.
CommandResult RefreshZones(const QString &path, const QString &output, qint64 now);

} // namespace ClockTool
