#include "clock_settings.h"

#include "calendar/clock_time.h"
#include "clock_attributes.h"
#include "hnode.h"

namespace ClockPlayer {

namespace {

using Lw::HNodeClock::Attribute;

// From the table itself: what stands in the plugin's sources is not linked here.
QString KeyOf(Attribute attribute)
{
    return QString::fromLatin1(Lw::HNodeClock::RowOf(attribute).key);
}

} // namespace

std::optional<ClockSettings> SettingsOf(Lw::HNode *node)
{
    if (!node || !node->HaveAttribute(KeyOf(Attribute::TimeZone)))
        return std::nullopt;
    ClockSettings settings;
    settings.offsetSeconds =
        Lw::HNodeClock::ClockOffset(node->GetAttribute(KeyOf(Attribute::TimeZone)),
                                    node->GetAttribute(KeyOf(Attribute::TimeAdjust)),
                                    node->GetAttributeToInt(KeyOf(Attribute::AdjustType)));
    settings.savesDaylight = node->GetAttributeToInt(KeyOf(Attribute::UseDaylightSavingTime)) == 1;
    settings.start = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeStart));
    settings.end = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeEnd));
    return settings;
}

} // namespace ClockPlayer
