#include "glyph/ink.h"

#include <algorithm>
#include <limits>

namespace Lw::HNodeClock {

namespace {

int WordsFor(int width)
{
    return (width + kInkColumns - 1) / kInkColumns;
}

// Only in these formats, to which transparent PNGs decode, does a pixel of alpha 0 or 255 stay the
// same in a pixmap.
bool HasInkFormat(const QImage &image)
{
    return image.format() == QImage::Format_ARGB32
        || image.format() == QImage::Format_ARGB32_Premultiplied;
}

enum class RowOfInk { None, Some, OtherColours };

// A row's opaque pixels must have this colour; 0 becomes that of the first. Sets their bits, unless
// null.
RowOfInk AddInk(const QImage &image, int y, QRgb &colour, quint32 *bits)
{
    const auto *const pixels = reinterpret_cast<const QRgb *>(image.constScanLine(y));
    const int width = image.width();
    RowOfInk found = RowOfInk::None;
    for (int x = 0; x < width; ++x) {
        const QRgb pixel = pixels[x];
        if (qAlpha(pixel) == 0)
            continue;
        if (colour == 0)
            colour = pixel;
        if (pixel != colour || qAlpha(pixel) != 255)
            return RowOfInk::OtherColours;
        if (bits)
            bits[x / kInkColumns] |= 1u << x % kInkColumns;
        found = RowOfInk::Some;
    }
    return found;
}

} // namespace

GlyphRows RowsBetween(int first, int end)
{
    constexpr int kMax = std::numeric_limits<quint16>::max();
    return {static_cast<quint16>(std::min(first, kMax)),
            static_cast<quint16>(std::min(end - first, kMax))};
}

// One spare word for two-word loads.
Ink::Ink(const QSize &inkSize)
    : size(inkSize), wordsPerRow(WordsFor(inkSize.width())),
      bits(wordsPerRow * inkSize.height() + 1)
{ }

std::optional<QRgb> InkColourOf(const QImage &image)
{
    if (!HasInkFormat(image))
        return std::nullopt;
    QRgb colour = 0;
    for (int y = 0; y < image.height(); ++y) {
        if (AddInk(image, y, colour, nullptr) == RowOfInk::OtherColours)
            return std::nullopt;
    }
    return colour;
}

std::optional<Ink> InkFrom(const QImage &image)
{
    if (!HasInkFormat(image))
        return std::nullopt;
    Ink ink(image.size());
    quint32 *row = ink.bits.data();
    int first = ink.size.height();
    int end = 0;
    for (int y = 0; y < ink.size.height(); ++y, row += ink.wordsPerRow) {
        const RowOfInk found = AddInk(image, y, ink.colour, row);
        if (found == RowOfInk::OtherColours)
            return std::nullopt;
        if (found == RowOfInk::None)
            continue;
        first = std::min(first, y);
        end = y + 1;
    }
    ink.rows = RowsBetween(std::min(first, end), end);
    return ink;
}

qint64 InkBytes(const QSize &size)
{
    return static_cast<qint64>(sizeof(quint32)) * WordsFor(size.width()) * size.height();
}

} // namespace Lw::HNodeClock
