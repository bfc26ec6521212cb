// zones/: until when a clock is right: its daylight-saving rules and its calendars.
#pragma once

#include "rules_end.h"

#include <QString>

#include <optional>

namespace ClockZones {

/// The settings that decide until when a clock is right.
struct ValidityTerms
{
    ZoneSettings zone; ///< without an adjustment; no rules if they are not used
    bool showsLunarDate = false;
    bool showsPersianDate = false;
};

/// Why a clock is no longer right.
enum class ValidityEnd {
    Rules,       ///< the zone has other rules then
    ZoneData,    ///< the system's zone data end; the rules may be right for longer
    LunarDate,   ///< the lunar date differs from the calendar
    LunarTable,  ///< the table of lunar months ends
    PersianDate, ///< the Persian date differs from the calendar
};

struct Validity
{
    qint64 until = 0; ///< UTC milliseconds; in the past if the clock is wrong now
    ValidityEnd end = ValidityEnd::Rules;
    QByteArray zone; ///< whose time the rules give; empty for a calendar
};

/// The first end from `now` (UTC milliseconds) on, or one that has passed and still makes the clock
/// wrong. Nothing if no end is known.
std::optional<Validity> ValidityOf(const ValidityTerms &terms, qint64 now, RulesEnds &rules);

/// Whether it is time to tell the user: from 90 days before the end. Never for the end of the zone
/// data, at which nothing is wrong.
bool IsDue(const Validity &validity, qint64 now);

/// A stable word for the end, such as "daylight_saving_rules".
QString CodeOf(ValidityEnd end);

/// Such as "the lunar date is wrong from 2033-08-24T16:00:00Z on".
QString TextOf(const Validity &validity);

} // namespace ClockZones
