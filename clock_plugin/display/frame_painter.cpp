#include "display/frame_painter.h"

#include <QPainter>
#include <QVarLengthArray>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

using Rects = QVarLengthArray<QRect, 32>;

QRect PieceRect(const Placements::Placed &placed, const Piece &piece)
{
    const QRect rect(placed.position.x() + piece.x, placed.position.y(), piece.width,
                     placed.element.Height());
    return rect & placed.Rect();
}

// The pieces of one element that are not where they were; the element has not moved.
void AddChangedPieces(const Placements::Placed &before, const Placements::Placed &after,
                      Rects &changed)
{
    const int count = qMax(before.element.Count(), after.element.Count());
    for (int i = 0; i < count; ++i) {
        const bool was = i < before.element.Count();
        const bool is = i < after.element.Count();
        if (was && is && before.element.At(i) == after.element.At(i))
            continue;
        if (was)
            changed.append(PieceRect(before, before.element.At(i)));
        if (is && !(was && changed.last() == PieceRect(after, after.element.At(i))))
            changed.append(PieceRect(after, after.element.At(i)));
    }
}

Rects ChangedRects(const Placements &before, const Placements &after)
{
    Rects changed;
    const int count = qMax(before.Count(), after.Count());
    for (int i = 0; i < count; ++i) {
        const bool both = i < before.Count() && i < after.Count();
        if (both && before.At(i).Rect() == after.At(i).Rect()) {
            AddChangedPieces(before.At(i), after.At(i), changed);
            continue;
        }
        if (i < before.Count())
            changed.append(before.At(i).Rect());
        if (i < after.Count())
            changed.append(after.At(i).Rect());
    }
    return changed;
}

void DrawPieces(QPainter &painter, const Placements &placements, const QRect &clip)
{
    for (int i = 0; i < placements.Count(); ++i) {
        const Placements::Placed &placed = placements.At(i);
        if (!placed.Rect().intersects(clip))
            continue;
        for (int k = 0; k < placed.element.Count(); ++k) {
            const Piece &piece = placed.element.At(k);
            const QRect whole = PieceRect(placed, piece);
            const QRect visible =
                whole & clip & QRect(whole.topLeft(), QSize(whole.width(), piece.strip->height()));
            if (!visible.isEmpty()) {
                painter.drawPixmap(visible.topLeft(), *piece.strip,
                                   visible.translated(piece.sourceX - whole.x(), -whole.y()));
            }
        }
    }
}

} // namespace

bool Placements::operator==(const Placements &other) const
{
    const auto same = [](const Placed &one, const Placed &two) {
        return one.position == two.position && one.element == two.element;
    };
    return m_count == other.m_count
        && std::equal(m_placed.begin(), m_placed.begin() + m_count, other.m_placed.begin(), same);
}

bool FrameContents::Knows(const QImage &image) const
{
    return m_imageKey != 0 && image.cacheKey() == m_imageKey;
}

bool FrameContents::Describes(const QImage &image, const Placements &placements) const
{
    return Knows(image) && m_shown == placements;
}

void FrameContents::Draw(QImage &image, const Placements &placements, const QColor &background)
{
    const bool known = Knows(image);
    Rects rects;
    if (known) {
        rects = ChangedRects(m_shown, placements);
    } else {
        image.fill(background);
        rects.append(image.rect());
    }
    QPainter painter(&image);
    for (const QRect &rect : qAsConst(rects)) {
        const QRect clip = rect & image.rect();
        if (clip.isEmpty())
            continue;
        if (known)
            painter.fillRect(clip, background);
        DrawPieces(painter, placements, clip);
    }
    painter.end();
    m_imageKey = image.cacheKey();
    m_shown = placements;
}

} // namespace Lw::HNodeClock
