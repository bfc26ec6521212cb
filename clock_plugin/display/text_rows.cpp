#include "display/text_rows.h"

#include <QPainter>

namespace Lw::HNodeClock {

namespace {

QVector<QImage> CopiesOf(const QImage &picture, const QVector<QRect> &boxes)
{
    QVector<QImage> copies;
    for (const QRect &box : boxes)
        copies.append(picture.copy(box));
    return copies;
}

QVector<QRect> BoxesWithin(const QRect &bounds, const QVector<TextRow> &rows)
{
    QVector<QRect> boxes;
    for (const TextRow &row : rows) {
        const QRect box = row.Box() & bounds;
        if (!box.isEmpty())
            boxes.append(box);
    }
    return boxes;
}

void PaintAll(QPainter &painter, QImage &picture, const QVector<TextRow> &rows, bool antialiasing)
{
    painter.begin(&picture);
    painter.setRenderHint(QPainter::Antialiasing, antialiasing);
    for (const TextRow &row : rows) {
        if (!row.pixmap.isNull())
            painter.drawPixmap(row.topLeft, row.pixmap);
    }
    painter.end();
}

} // namespace

QRegion TextRows::Paint(QPainter &painter, QImage &picture, const QVector<TextRow> &rows,
                        bool antialiasing)
{
    Painted painted;
    for (const TextRow &row : rows)
        painted.append({row.pixmap.cacheKey(), row.topLeft});
    if (painted == m_painted && picture.cacheKey() == m_settledKey)
        return QRegion();

    const QVector<QRect> boxes = BoxesWithin(picture.rect(), rows);
    const QVector<QImage> before = CopiesOf(picture, boxes);
    if (!boxes.isEmpty())
        PaintAll(painter, picture, rows, antialiasing);
    const QVector<QImage> after = CopiesOf(picture, boxes);

    QRegion changed;
    for (int i = 0; i < boxes.size(); ++i) {
        if (before[i] != after[i])
            changed += boxes[i];
    }
    m_painted = painted;
    m_settledKey = changed.isEmpty() ? picture.cacheKey() : 0;
    return changed;
}

} // namespace Lw::HNodeClock
