#include "image_slices.h"

#include "glyph/glyph_check.h"

#include <algorithm>
#include <iterator>

namespace ClockStudio {

using namespace Lw::HNodeClock;

namespace {

constexpr int kLargePoints = 48; // all images of smaller fonts take a few milliseconds

bool HasLargeFonts(HClockNode &node)
{
    return std::any_of(std::begin(kAttributeTable), std::end(kAttributeTable),
                       [&node](const AttributeRow &row) {
                           return row.role == ValueRole::Size
                               && node.GetAttributeToInt(Key(row.attribute)) > kLargePoints;
                       });
}

} // namespace

ImageSlices::ImageSlices(HClockNode &node) : m_node(node), m_topText(TopTextOf(node))
{
    if (node.ClockType() == PictureClock || !HasLargeFonts(node))
        return;
    m_drawer.InitParameters(&node);
    m_images = GlyphImages(GlyphOrder::Generation, node.ClockType());
}

void ImageSlices::MakeNext()
{
    const GlyphImage &image = m_images[m_next++];
    const GlyphFontAttributes font = FontAttributes(image.row->font, m_node.ClockType());
    const QString id = QString::number(m_node.GetAttributeToInt(Key(Attribute::Id)));
    const QString family = m_node.GetAttribute(Key(font.family));
    const int size = m_node.GetAttributeToInt(Key(font.size));
    const int colour = m_node.GetAttributeToInt(Key(font.colour));
    const QString suffix = image.Key() + QLatin1String(kGlyphSuffix);
    if (image.row->shape == GlyphShape::DigitStrip)
        m_drawer.DrawNumberImage(&m_node, image.Key(), id, family, size, colour, suffix);
    else
        m_drawer.DrawImage(&m_node, image.Key(), GlyphText(image, m_topText), id, family, size,
                           colour, suffix);
}

} // namespace ClockStudio
