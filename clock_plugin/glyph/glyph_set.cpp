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

GlyphFontAttributes AnalogFont(GlyphFont font)
{
    using A = Attribute;
    switch (font) {
    case GlyphFont::TopText:
        return {A::AnalogTopTextFName, A::AnalogTopTextFSize, A::AnalogTopTextColor};
    case GlyphFont::Week:
        return {A::AnalogWeekFName, A::AnalogWeekFSize, A::AnalogWeekColor};
    case GlyphFont::Lunar:
        return {A::AnalogLunarFName, A::AnalogLunarFSize, A::AnalogLunarColor};
    case GlyphFont::Date:
        return {A::AnalogDateFName, A::AnalogDateFSize, A::AnalogDateColor};
    case GlyphFont::HourScale:
        return {A::HourScaleFName, A::HourScaleFSize, A::HourScaleColor};
    case GlyphFont::AmPm:
        return {A::AnalogAMPMFName, A::AnalogAMPMFSize, A::AnalogAMPMColor};
    case GlyphFont::Time:
        break;
    }
    return {A::DigitalTimeFName, A::DigitalTimeFSize, A::DigitalTimeColor};
}

GlyphFontAttributes DigitalFont(GlyphFont font)
{
    using A = Attribute;
    switch (font) {
    case GlyphFont::TopText:
        return {A::DigitalTopTextFName, A::DigitalTopTextFSize, A::DigitalTopTextColor};
    case GlyphFont::Week:
        return {A::DigitalWeekFName, A::DigitalWeekFSize, A::DigitalWeekColor};
    case GlyphFont::Lunar:
        return {A::DigitalLunarFName, A::DigitalLunarFSize, A::DigitalLunarColor};
    case GlyphFont::Date:
        return {A::DigitalDateFName, A::DigitalDateFSize, A::DigitalDateColor};
    case GlyphFont::HourScale:
    case GlyphFont::AmPm:
    case GlyphFont::Time:
        break;
    }
    return AnalogFont(font);
}

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
    // Stable: rows that share a place take turns in the order of the table.
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
    return clockType == DigitalClock ? DigitalFont(font) : AnalogFont(font);
}

} // namespace Lw::HNodeClock
