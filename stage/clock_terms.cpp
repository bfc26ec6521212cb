#include "clock_terms.h"

#include "clock_status.h"

#include "calendar/clock_time.h"
#include "clock_attributes.h"
#include "hnode.h"

namespace ClockStage {

namespace {

using namespace Lw::HNodeClock;

/// The attributes of the dates that a kind of clock shows.
struct DateRow
{
    int clockType;
    Attribute date;
    Attribute dateType;
    Attribute lunar;
};

constexpr DateRow kDates[] = {
    {AnalogClock, Attribute::Analog_Date_d, Attribute::AnalogDateType, Attribute::Analog_Lunar_d},
    {DigitalClock, Attribute::Digital_Date_d, Attribute::DigitalDateType,
     Attribute::Digital_Lunar_d},
};

} // namespace

std::optional<ClockZones::ValidityTerms> TermsOf(Lw::HNode *node)
{
    const std::optional<ZoneSettings> zone = SettingsOf(node);
    if (!zone)
        return std::nullopt;
    const auto number = [node](Attribute attribute) {
        return node->GetAttributeToInt(KeyOf(attribute));
    };
    ClockZones::ValidityTerms terms {*zone, false, false};
    terms.zone.offset = ParseZoneOffset(node->GetAttribute(KeyOf(Attribute::TimeZone)));
    for (const DateRow &row : kDates) {
        if (row.clockType != number(Attribute::ClockType))
            continue;
        terms.showsLunarDate = number(row.lunar) == 1;
        terms.showsPersianDate = number(row.date) == 1 && number(row.dateType) == DatePersian;
    }
    return terms;
}

} // namespace ClockStage
