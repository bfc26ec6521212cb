// glyph/: draws glyph images in memory: one text, or the ten digits in equal cells, on a
// transparent background.
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPixmap>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// The size of glyph texts whose own size is 0 or less, in points.
inline constexpr int kDefaultPoints = 12;

/// The font of glyph images, without antialiasing, so that every pixel is either background or
/// stroke. An empty family is the application's default font, a size of 0 or less kDefaultPoints.
QFont GlyphTypeface(const QString &family, int points);

/// The advance width of a text in pixels. A text far too wide for an image gives a width that is
/// also too wide, but may be less than the real one.
int GlyphTextWidth(const QFontMetrics &metrics, const QString &text);
/// The widest advance among "0" to "9", in pixels.
int WidestDigit(const QFontMetrics &metrics);

/// A transparent picture of that width, as high as a line of the font; null for one that is empty
/// or beyond the bounds of glyph images.
QPixmap EmptyPicture(const QFont &font, int width);

// Each begins the painter on a picture from EmptyPicture(), which must not be null, and draws. The
// painter is still active on return; the caller ends it.
void BeginText(QPainter &painter, QPixmap &picture, const QFont &font, const QColor &colour,
               const QString &text);
void BeginDigits(QPainter &painter, QPixmap &picture, const QFont &font, const QColor &colour);

} // namespace Lw::HNodeClock
