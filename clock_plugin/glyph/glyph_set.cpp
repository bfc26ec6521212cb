#include "glyph/glyph_set.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <vector>

namespace Lw::HNodeClock {

namespace {

bool BelongsTo(const GlyphRow &row, int clockType)
{
    switch (row.clocks) {
    case GlyphClocks::Both:
        return true;
    case GlyphClocks::Analog:
        return clockType == AnalogClock;
    case GlyphClocks::Digital:
        return clockType == DigitalClock;
    }
    return false;
}

int PlaceOf(const GlyphRow &row, GlyphOrder order)
{
    return order == GlyphOrder::Generation ? row.generation : row.bookkeeping;
}

int FirstNumber(const GlyphRow &row)
{
    return row.count > 0 ? 1 : 0;
}

/// The keys of one row, by number.
std::vector<QString> KeysOf(const GlyphRow &row)
{
    const QString key = QString::fromLatin1(row.key);
    if (row.count == 0)
        return {key};
    std::vector<QString> keys {QString()};
    for (int number = 1; number <= row.count; ++number)
        keys.push_back(key + QString::number(number));
    return keys;
}

std::array<std::vector<QString>, kGlyphCount> KeysOfAllRows()
{
    std::array<std::vector<QString>, kGlyphCount> keys;
    std::transform(std::begin(kGlyphTable), std::end(kGlyphTable), keys.begin(), KeysOf);
    return keys;
}

struct FontRow
{
    GlyphFont font;
    GlyphFontAttributes analog;
    GlyphFontAttributes digital;
};

using A = Attribute;
constexpr GlyphFontAttributes kNumerals {A::HourScaleFName, A::HourScaleFSize, A::HourScaleColor};
constexpr GlyphFontAttributes kBadge {A::AnalogAMPMFName, A::AnalogAMPMFSize, A::AnalogAMPMColor};
constexpr GlyphFontAttributes kTime {A::DigitalTimeFName, A::DigitalTimeFSize, A::DigitalTimeColor};

// clang-format off
constexpr FontRow kFonts[] = {
    {GlyphFont::TopText, {A::AnalogTopTextFName, A::AnalogTopTextFSize, A::AnalogTopTextColor},
                         {A::DigitalTopTextFName, A::DigitalTopTextFSize, A::DigitalTopTextColor}},
    {GlyphFont::Week, {A::AnalogWeekFName, A::AnalogWeekFSize, A::AnalogWeekColor},
                      {A::DigitalWeekFName, A::DigitalWeekFSize, A::DigitalWeekColor}},
    {GlyphFont::Lunar, {A::AnalogLunarFName, A::AnalogLunarFSize, A::AnalogLunarColor},
                       {A::DigitalLunarFName, A::DigitalLunarFSize, A::DigitalLunarColor}},
    {GlyphFont::Date, {A::AnalogDateFName, A::AnalogDateFSize, A::AnalogDateColor},
                      {A::DigitalDateFName, A::DigitalDateFSize, A::DigitalDateColor}},
    {GlyphFont::HourScale, kNumerals, kNumerals},
    {GlyphFont::AmPm, kBadge, kBadge},
    {GlyphFont::Time, kTime, kTime},
};
// clang-format on

constexpr bool FontsFollowEnumeration()
{
    for (int i = 0; i < kGlyphFontCount; ++i) {
        if (kFonts[i].font != static_cast<GlyphFont>(i))
            return false;
    }
    return true;
}
static_assert(std::size(kFonts) == kGlyphFontCount && FontsFollowEnumeration(),
              "row i of the table must describe font i");

} // namespace

const QString &GlyphImage::Key() const
{
    return GlyphKey(row->glyph, number);
}

QVector<GlyphImage> GlyphImages(GlyphOrder order, int clockType)
{
    QVector<GlyphImage> images;
    for (const GlyphRow &row : kGlyphTable) {
        for (int number = FirstNumber(row); BelongsTo(row, clockType) && number <= row.count;
             ++number)
            images.append({&row, number});
    }
    // Stable: rows that share a place are interleaved in the order of the table.
    std::stable_sort(images.begin(), images.end(),
                     [order](const GlyphImage &a, const GlyphImage &b) {
                         return std::make_tuple(PlaceOf(*a.row, order), a.number)
                             < std::make_tuple(PlaceOf(*b.row, order), b.number);
                     });
    return images;
}

const QString &GlyphKey(Glyph glyph, int number)
{
    static const auto keys = KeysOfAllRows();
    static const QString none;
    const std::vector<QString> &series = keys[static_cast<std::size_t>(glyph)];
    const bool listed = number >= 0 && static_cast<std::size_t>(number) < series.size();
    return listed ? series[static_cast<std::size_t>(number)] : none;
}

GlyphFontAttributes FontAttributes(GlyphFont font, int clockType)
{
    const FontRow &row = kFonts[static_cast<int>(font)];
    return clockType == DigitalClock ? row.digital : row.analog;
}

} // namespace Lw::HNodeClock
