#include "compose/piece_canvas.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

// Up to a word of columns of a row of ink.
quint32 Columns(const quint32 *row, int from, int count)
{
    const quint32 *const word = row + from / kInkColumns;
    const quint64 two = word[0] | static_cast<quint64>(word[1]) << kInkColumns;
    const auto bits = static_cast<quint32>(two >> from % kInkColumns);
    return count < kInkColumns ? bits & ((1u << count) - 1) : bits;
}

} // namespace

void PieceCanvas::Fill(const QRect &rect, QRgb colour)
{
    QRgb *const first = At(rect.x(), rect.y());
    std::fill_n(first, rect.width(), colour);
    const auto bytes = static_cast<std::size_t>(rect.width()) * sizeof(QRgb);
    for (int y = rect.y() + 1; y <= rect.bottom(); ++y)
        std::memcpy(At(rect.x(), y), first, bytes);
}

void PieceCanvas::Draw(const Element &element, const QPoint &topLeft, const QRect &clip)
{
    const int top = std::max(clip.top(), topLeft.y());
    const int bottom = std::min(clip.bottom(), topLeft.y() + element.Height() - 1);
    const int right = std::min(clip.right(), topLeft.x() + element.Width() - 1);
    if (top > bottom)
        return;
    for (int i = 0; i < element.Count(); ++i) {
        const Piece &piece = element.At(i);
        const int x = topLeft.x() + piece.x;
        const int left = std::max(clip.left(), x);
        const int width = std::min(right, x + piece.width - 1) - left + 1;
        const int height = std::min(bottom, topLeft.y() + piece.strip->Height() - 1) - top + 1;
        if (width > 0 && height > 0)
            Draw(*piece.strip, QRect(piece.sourceX + left - x, top - topLeft.y(), width, height),
                 QPoint(left, top));
    }
}

void PieceCanvas::Draw(const GlyphStrip &strip, const QRect &source, const QPoint &target)
{
    if (strip.IsInk())
        return DrawInk(strip.Pixels(), source, target);
    if (!m_painter)
        m_painter.emplace(&m_image);
    m_painter->drawPixmap(target, strip.Pixmap(), source);
}

void PieceCanvas::DrawInk(const GlyphPixels &ink, const QRect &source, const QPoint &target)
{
    const QRgb colour = ink.InkColour();
    for (int y = 0; y < source.height(); ++y) {
        const quint32 *const row = ink.InkRow(source.y() + y);
        QRgb *const pixels = At(target.x(), target.y() + y);
        for (int x = 0; x < source.width(); x += kInkColumns) {
            QRgb *pixel = pixels + x;
            quint32 bits = Columns(row, source.x() + x, source.width() - x);
            while (bits != 0) {
                const quint32 clear = qCountTrailingZeroBits(bits);
                bits >>= clear;
                pixel += clear;
                for (; bits & 1; bits >>= 1)
                    *pixel++ = colour;
            }
        }
    }
}

} // namespace Lw::HNodeClock
