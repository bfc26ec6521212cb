#include "whole_text.h"

#include "glyph/glyph_set.h"
#include "image_bounds.h"
#include "ink_mask.h"

#include <QPainter>
#include <QTextLayout>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kLinesAround = 1; // room around the image, in image heights

// The bounds of what is drawn, in the image's pixels, including ink just outside the image.
template<typename Draw>
QRect InkOf(const QFont &font, const QSize &image, Draw draw)
{
    const int room = image.height() * kLinesAround;
    const QSize canvas = image + 2 * QSize(room, room);
    if (!WithinBounds(canvas, kFrameBytes))
        return QRect(QPoint(0, 0), image);
    QImage picture(canvas, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(room, room);
    painter.setFont(font);
    painter.setPen(Qt::white);
    draw(painter);
    painter.end();
    return InkMask::OfPicture(picture, QPoint(-room, -room)).Bounds();
}

QRect InkOfCentredText(const QFont &font, const QSize &image, const QString &text)
{
    return InkOf(font, image, [&](QPainter &painter) {
        painter.drawText(QRect(QPoint(0, 0), image), Qt::AlignCenter | Qt::TextDontClip, text);
    });
}

// Where Qt puts the characters of a text that is centred in an image.
class CentredLine
{
public:
    CentredLine(const QFont &font, const QSize &image, const QString &text) : m_layout(text, font)
    {
        m_layout.beginLayout();
        m_line = m_layout.createLine();
        m_layout.endLayout();
        m_origin = QPointF((image.width() - m_line.horizontalAdvance()) / 2,
                           (image.height() - m_line.height()) / 2 + m_line.ascent());
    }

    QPointF PlaceOf(int character) const
    {
        return m_origin + QPointF(m_line.cursorToX(character), 0);
    }

private:
    QTextLayout m_layout;
    QTextLine m_line;
    QPointF m_origin;
};

QVector<QRect> InkOfDigits(const QFont &font, const QSize &image, const QString &digits)
{
    const QSize cell(image.width() / kDigitCells, image.height());
    QVector<QRect> inks;
    for (int digit = 0; digit < kDigitCells; ++digit)
        inks.append(
            InkOfCentredText(font, cell, digits.mid(digit, 1)).translated(digit * cell.width(), 0));
    return inks;
}

} // namespace

QVector<QRect> InkOfCells(const QFont &font, const QSize &image, const QString &text, int cells)
{
    if (cells == 1)
        return {InkOfCentredText(font, image, text)};
    if (cells == kDigitCells)
        return InkOfDigits(font, image, text);
    const CentredLine line(font, image, text);
    QVector<QRect> inks;
    for (int i = 0; i < text.size(); ++i)
        inks.append(InkOf(font, image, [&](QPainter &painter) {
            painter.drawText(line.PlaceOf(i), text.mid(i, 1));
        }));
    return inks;
}

} // namespace ClockFit
