#include "glyph/glyph_picture.h"

#include "glyph/glyph_set.h"
#include "image_bounds.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// Qt's text widths overflow at 2^25 pixels; this many characters stay below that at every size.
constexpr int kMeasuredAtOnce = 256;

int AdvanceWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

void Begin(QPainter &painter, QPixmap &picture, const QFont &font, const QColor &colour)
{
    painter.begin(&picture);
    painter.setFont(font);
    painter.setPen(colour);
}

} // namespace

QFont GlyphTypeface(const QString &family, int points)
{
    QFont font = QGuiApplication::font();
    if (!family.isEmpty())
        font = QFont(family);
    font.setPointSize(points > 0 ? points : kDefaultPoints);
    font.setWeight(QFont::Normal);
    font.setItalic(false);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

int GlyphTextWidth(const QFontMetrics &metrics, const QString &text)
{
    if (text.size() > kMeasuredAtOnce) {
        qint64 estimate = 0;
        for (int at = 0; at < text.size() && estimate <= 2 * kImageSide; at += kMeasuredAtOnce)
            estimate += AdvanceWidth(metrics, text.mid(at, kMeasuredAtOnce));
        if (estimate > 2 * kImageSide)
            return kImageSide + 1;
    }
    return AdvanceWidth(metrics, text);
}

int WidestDigit(const QFontMetrics &metrics)
{
    int widest = 0;
    for (int digit = 0; digit < kDigitCells; ++digit)
        widest = std::max(widest, AdvanceWidth(metrics, QString::number(digit)));
    return widest;
}

QPixmap EmptyPicture(const QFont &font, int width)
{
    const QSize size(width, QFontMetrics(font).height());
    if (!WithinBounds(size, kGlyphBytes))
        return QPixmap();
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    return picture;
}

void BeginText(QPainter &painter, QPixmap &picture, const QFont &font, const QColor &colour,
               const QString &text)
{
    Begin(painter, picture, font, colour);
    painter.drawText(picture.rect(), Qt::AlignCenter, text);
}

void BeginDigits(QPainter &painter, QPixmap &picture, const QFont &font, const QColor &colour)
{
    Begin(painter, picture, font, colour);
    const int cell = picture.width() / kDigitCells;
    for (int digit = 0; digit < kDigitCells; ++digit)
        painter.drawText(QRect(digit * cell, 0, cell, picture.height()), Qt::AlignCenter,
                         QString::number(digit));
}

} // namespace Lw::HNodeClock
