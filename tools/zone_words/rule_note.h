// zone_words/: finds the zone that uses a clock's daylight-saving rules.
#pragma once

#include "zone_rule.h"

#include <QDate>

namespace ClockTool {

struct RuleNote
{
    QString text;
    QString rightEnd; ///< where the end was entered as published, the one to enter instead
};

/// A sentence that names a zone whose time these settings show during ten years from a day, or says
/// that none is known. Empty for rules that a zone left or will leave, without two valid rules, and
/// without zone data for that time.
RuleNote NoteOnRules(const ClockZones::ZoneSettings &settings, const QDate &today);

} // namespace ClockTool
