// glyph/: draws a glyph image and encodes it as a PNG file in memory.
#pragma once

#include "glyph/glyph_memory.h"

QT_BEGIN_NAMESPACE
class QFont;
class QFontMetrics;
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// What a digit strip shows.
inline constexpr char kDigits[] = "0123456789";

/// The distinct characters of a text that no installed font has; boxes are drawn for them.
QString LackingLetters(const QFontMetrics &metrics, const QString &text);

/// Draws and encodes one image. The painter must not be active.
DrawnGlyph DrawGlyphImage(QPainter &painter, const GlyphContent &content, const QFont &font);

} // namespace Lw::HNodeClock
