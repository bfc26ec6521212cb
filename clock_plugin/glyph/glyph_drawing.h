// glyph/: draws a glyph image and encodes it as a PNG file in memory.
#pragma once

#include "glyph/glyph_cache.h"

#include "lw_types.h"

#include <QColor>

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

/// Draws and encodes one image. The painter must not be active.
DrawnGlyph DrawGlyphImage(QPainter &painter, const GlyphContent &content, const QFont &font);

} // namespace Lw::HNodeClock
