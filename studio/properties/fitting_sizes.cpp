#include "fitting_sizes.h"

#include "property_groups.h"

#include "clock_node.h"
#include "fit.h"
#include "glyph/glyph_set.h"
#include "time_travel.h"

#include <algorithm>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// Whether the clock uses and shows the property group that contains the attribute.
bool IsShown(HClockNode &clock, Attribute attribute)
{
    for (int i = 0; i < kPropertyGroupCount; ++i) {
        const PropertyGroup &group = kPropertyGroups[i];
        for (const PropertyLine &line : group.lines) {
            const Attribute *const end = line.attributes + line.count;
            if (std::find(line.attributes, end, attribute) != end)
                return IsUsedBy(group.clocks, clock.ClockType())
                    && (group.shown == Attribute::Id
                        || clock.GetAttributeToInt(Key(group.shown)) != 0);
        }
    }
    return false;
}

} // namespace

QVector<StoredValue> FittingSizes(HClockNode &clock, const QRect &visible)
{
    ClockFit::ClockCheck check(ClockFit::YearFrom(ClockStage::StageTime::Shown()));
    ClockFit::CommonSizes found = ClockFit::GrownSizes(check, clock, visible);
    if (found.factor <= 0)
        found = ClockFit::ShrunkSizes(check, clock, visible);
    QVector<StoredValue> values;
    for (int font = 0; found.factor > 0 && font < kGlyphFontCount; ++font) {
        const Attribute size = FontAttributes(static_cast<GlyphFont>(font), clock.ClockType()).size;
        const QString text = QString::number(found.sizes[static_cast<std::size_t>(font)]);
        if (IsShown(clock, size) && clock.GetAttribute(Key(size)) != text)
            values.append({size, text});
    }
    return values;
}

} // namespace ClockStudio
