#include "image_slices.h"

#include "glyph/glyph_check.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

ImageSlices::ImageSlices(HClockNode &node)
    : m_node(node), m_id(QString::number(node.GetAttributeToInt(Key(Attribute::Id))))
{
    if (node.ClockType() == PictureClock || !HasLargeFonts(node))
        return;
    m_drawer.InitParameters(&node);
    m_images = GlyphImages(GlyphOrder::Generation, node.ClockType());
}

void ImageSlices::MakeNext(ImageEncoder &encoder)
{
    const GlyphImage &image = m_images[m_next];
    if (!m_isEncoded) {
        if (auto drawn = m_drawer.DrawUnencoded(image, m_id)) {
            m_isEncoded = true;
            return encoder.Encode(std::move(*drawn));
        }
    }
    m_drawer.DrawGlyph(&m_node, image, m_id);
    m_isEncoded = false;
    ++m_next;
}

} // namespace ClockStudio
