// glyph/: draws a glyph image, and encodes it as a PNG file in memory.
#pragma once

#include "glyph/glyph_cache.h"

#include "lw_types.h"

#include <QColor>
#include <QImage>

QT_BEGIN_NAMESPACE
class QFont;
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// What a digit strip shows.
inline constexpr char kDigits[] = "0123456789";

/// Converts a stored colour, 0x00BBGGRR, to an opaque one.
inline QColor ColourOf(int stored)
{
    const auto packed = static_cast<LWColor>(stored);
    return QColor(RedOf(packed), GreenOf(packed), BlueOf(packed));
}

/// A glyph image before it is encoded.
struct UnencodedPicture
{
    GlyphState state = GlyphState::TooLarge;
    QImage image;                   ///< null if it was not drawn
    QString charactersWithoutGlyph; ///< characters that no installed font has
};

/// A glyph image before it is encoded, and what it was drawn from.
struct UnencodedGlyph
{
    GlyphContent content;
    UnencodedPicture picture;
};

/// Draws one image, in the application's thread. The painter must not be active.
UnencodedPicture DrawGlyphPicture(QPainter &painter, const GlyphContent &content,
                                  const QFont &font);
/// Encodes what was drawn, in any thread. Takes several times as long as drawing it.
DrawnGlyph EncodeGlyphPicture(const UnencodedPicture &picture);

} // namespace Lw::HNodeClock
