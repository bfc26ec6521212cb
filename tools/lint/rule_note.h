// Which zone a clock's daylight-saving rules are those of.
#pragma once

#include "zones/zone_rule.h"

#include <QDate>

namespace ClockTool {

/// A sentence that names a zone whose time these settings give in the ten years from a day, or
/// says that there is none, and what to change if it is the end that was taken over as published.
/// Empty without two sound rules, and where the system has no zone data for the time.
QString RuleNote(const ZoneSettings &settings, const QDate &today);

} // namespace ClockTool
