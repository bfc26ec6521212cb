#include "display/frames/text_rows.h"

#include "compose/piece_canvas.h"

#include <QVector>

namespace Lw::HNodeClock {

namespace {

QVector<QImage> CopiesOf(const QImage &picture, const QVector<QRect> &boxes)
{
    QVector<QImage> copies;
    for (const QRect &box : boxes)
        copies.append(picture.copy(box));
    return copies;
}

QVector<QRect> BoxesWithin(const QRect &bounds, const Placements &rows)
{
    QVector<QRect> boxes;
    for (const Placements::Placed &row : rows) {
        const QRect box = row.Rect() & bounds;
        if (!box.isEmpty())
            boxes.append(box);
    }
    return boxes;
}

void PaintAll(QImage &picture, const Placements &rows)
{
    PieceCanvas canvas(picture);
    for (const Placements::Placed &row : rows)
        canvas.Draw(*row.element, row.position, picture.rect());
}

} // namespace

QRegion TextRows::Paint(QImage &picture, const Placements &rows)
{
    if (picture.isNull() || (m_painted.Match(rows) && picture.cacheKey() == m_settledKey))
        return QRegion();

    const QVector<QRect> boxes = BoxesWithin(picture.rect(), rows);
    const QVector<QImage> before = CopiesOf(picture, boxes);
    if (!boxes.isEmpty())
        PaintAll(picture, rows);
    const QVector<QImage> after = CopiesOf(picture, boxes);

    QRegion changed;
    for (int i = 0; i < boxes.size(); ++i) {
        // If the copy failed for lack of memory, assume that the box changed.
        if (before[i].isNull() || before[i] != after[i])
            changed += boxes[i];
    }
    m_painted.Replace(rows);
    m_settledKey = changed.isEmpty() ? picture.cacheKey() : 0;
    return changed;
}

} // namespace Lw::HNodeClock
