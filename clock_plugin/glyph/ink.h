// glyph/: the pixels of a glyph image of one colour without soft edges, one bit per pixel.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QVector>

#include <optional>

namespace Lw::HNodeClock {

/// Columns of ink per word, the first as the lowest bit.
inline constexpr int kInkColumns = 32;

/// Rows of a glyph image, from the top.
struct GlyphRows
{
    quint16 first = 0;
    quint16 count = 0;
};

/// Clamped to 65535.
GlyphRows RowsBetween(int first, int end);

struct Ink
{
    Ink() = default;
    explicit Ink(const QSize &inkSize); ///< transparent

    /// kInkColumns per word. A spare word follows the last row.
    const quint32 *Row(int y) const { return bits.constData() + y * wordsPerRow; }

    QSize size {0, 0};
    int wordsPerRow = 0;
    QRgb colour = 0; ///< opaque; 0 if all of it is transparent
    GlyphRows rows;  ///< all but the transparent ones at the top and bottom
    QVector<quint32> bits;
};

/// The colour of an image; 0 if all of it is transparent. Nullopt for an image without alpha, with
/// several colours or with soft edges. Allocates nothing.
std::optional<QRgb> InkColourOf(const QImage &image);

/// Nullopt where InkColourOf() is.
std::optional<Ink> InkFrom(const QImage &image);

/// The memory that ink of this size takes, in bytes.
qint64 InkBytes(const QSize &size);

} // namespace Lw::HNodeClock
