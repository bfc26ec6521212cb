#include "fitting_sizes.h"

#include "property_groups.h"

#include "editing/new_clock.h"

#include "clock_node.h"
#include "fit.h"
#include "glyph/glyph_set.h"
#include "time_travel.h"

#include <algorithm>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// The sizes that differ from the clock's, of texts that it shows.
QVector<StoredValue> ChangedSizes(HClockNode &clock, const ClockFit::FontSizes &sizes)
{
    QVector<StoredValue> values;
    for (int font = 0; font < kGlyphFontCount; ++font) {
        const Attribute size = FontAttributes(static_cast<GlyphFont>(font), clock.ClockType()).size;
        const QString text = QString::number(sizes[static_cast<std::size_t>(font)]);
        if (ShowsProperty(clock, size) && clock.GetAttribute(Key(size)) != text)
            values.append({size, text});
    }
    return values;
}

bool IsTooSmall(const StoredValue &value)
{
    return value.text.toInt() < kSmallestTextSize;
}

} // namespace

QVector<StoredValue> FittingSizes(HClockNode &clock, const QRect &visible)
{
    ClockFit::ClockCheck check(ClockFit::YearFrom(ClockStage::StageTime::Shown()));
    if (const auto grown = ClockFit::GrownSizes(check, clock, visible); grown.factor > 0)
        return ChangedSizes(clock, grown.sizes);
    const auto shrunk = ClockFit::ShrunkSizes(check, clock, visible);
    const QVector<StoredValue> values =
        shrunk.factor > 0 ? ChangedSizes(clock, shrunk.sizes) : QVector<StoredValue>();
    const bool isLegible = std::none_of(values.cbegin(), values.cend(), IsTooSmall);
    return isLegible ? values : UncutSizes(clock, visible);
}

QVector<StoredValue> UncutSizes(HClockNode &clock, const QRect &visible)
{
    ClockFit::ClockCheck check(ClockFit::YearFrom(ClockStage::StageTime::Shown()));
    const auto sizes = ClockFit::SizesThatFit(check, clock, visible);
    return sizes ? ChangedSizes(clock, *sizes) : QVector<StoredValue>();
}

} // namespace ClockStudio
