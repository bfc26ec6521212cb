// Glyph images as the files that they become, and what is known of them.
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

/// Those letters of a text that no installed font has, each once; boxes are drawn for them.
QString LackingLetters(const QFontMetrics &metrics, const QString &text);

/// The painter must not be at work.
DrawnGlyph DrawGlyphImage(QPainter &painter, const GlyphContent &content, const QFont &font);

} // namespace Lw::HNodeClock
