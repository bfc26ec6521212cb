#include "glyph/glyph_plan.h"

#include "clock_node.h"
#include "glyph/glyph_cache.h"
#include "glyph/glyph_check.h"
#include "glyph/glyph_picture.h"
#include "image_bounds.h"

#include <QDataStream>
#include <QFontMetrics>

#include <algorithm>
#include <array>
#include <optional>

namespace Lw::HNodeClock {

namespace {

int WidthOf(GlyphShape shape, const QString &text, const QFontMetrics &metrics)
{
    return shape == GlyphShape::DigitStrip ? kDigitCells * WidestDigit(metrics)
                                           : GlyphTextWidth(metrics, text);
}

QByteArray IdentityOf(const GlyphContent &content)
{
    QByteArray identity;
    QDataStream stream(&identity, QIODevice::WriteOnly);
    stream << static_cast<int>(content.shape) << content.text << content.face << content.colour;
    return identity;
}

/// What the images of one font have in common.
struct PlannedFont
{
    int points;
    int colour;
    QByteArray face;
    QFontMetrics metrics;
};

PlannedFont FontOf(GlyphFont font, HClockNode &node)
{
    const GlyphFontAttributes attributes = FontAttributes(font, node.ClockType());
    const int points = node.GetAttributeToInt(Key(attributes.size));
    const QFont typeface = GlyphTypeface(node.GetAttribute(Key(attributes.family)),
                                         std::min(points, kLargestFontSize));
    return {points, node.GetAttributeToInt(Key(attributes.colour)), FontIdentity(typeface),
            QFontMetrics(typeface)};
}

PlannedImage PlanOf(const GlyphImage &image, const QString &text, const PlannedFont &font)
{
    return {IdentityOf({image.row->shape, text, font.face, font.colour}),
            {WidthOf(image.row->shape, text, font.metrics), font.metrics.height()}};
}

} // namespace

QHash<QString, PlannedImage> PlannedImages(HClockNode &node)
{
    QHash<QString, PlannedImage> images;
    const int type = node.ClockType();
    if (type != AnalogClock && type != DigitalClock)
        return images;
    std::array<std::optional<PlannedFont>, kGlyphFontCount> fonts;
    const QString topText = TopTextOf(node);
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, type)) {
        auto &font = fonts.at(static_cast<std::size_t>(image.row->font));
        if (!font)
            font = FontOf(image.row->font, node);
        const QString text = GlyphText(image, topText);
        if (text.isEmpty() || font->points > kLargestFontSize)
            continue;
        const PlannedImage plan = PlanOf(image, text, *font);
        if (WithinBounds(plan.size, kGlyphBytes))
            images.insert(image.Key(), plan);
    }
    return images;
}

} // namespace Lw::HNodeClock
