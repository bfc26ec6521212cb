#include "wall_view.h"

#include "qt_names.h"
#include "wall_painting.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QUrl>

namespace ClockStudio {

namespace {

constexpr int kMargin = 28;      // around the wall, pixels of the view
constexpr int kBigStep = 8;      // wall pixels an arrow key with Shift moves
constexpr int kFittingZoom = 12; // the largest zoom used by ZoomToFit

} // namespace

WallView::WallView(WallEditor &editor, QWidget *parent)
    : QAbstractScrollArea(parent), m_editor(editor), m_mouse(editor), m_leds(m_scale.zoom)
{
    setFrameShape(QFrame::NoFrame);
    setLayoutDirection(Qt::LeftToRight); // the origin of a wall is always on the left
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    setAccessibleName(tr("Wall"));
    setAccessibleDescription(
        tr("The clocks of the program as shown on the wall. Tab selects the next one."));
    connect(&m_editor.Wall(), &LiveWall::Painted, this, [this](const QRect &region) {
        if (m_shown != m_editor.Wall().Size())
            PlaceWall();
        viewport()->update(m_scale.ToView(region));
    });
    connect(&m_editor.Wall(), &LiveWall::ClocksMade, viewport(), QOverload<>::of(&QWidget::update));
    connect(&m_editor, &WallEditor::SelectionChanged, this, &WallView::AnnounceSelection);
    connect(&m_mouse, &WallMouse::Changed, viewport(), QOverload<>::of(&QWidget::update));
    connect(&m_mouse, &WallMouse::DrawingChanged, this, [this] {
        viewport()->setCursor(m_mouse.Drawing() ? Qt::CrossCursor : Qt::ArrowCursor);
        viewport()->update();
    });
}

/// Centres the wall if it fits, otherwise places it according to the scroll bars.
void WallView::PlaceWall()
{
    m_shown = m_editor.Wall().Size();
    const QSize room = viewport()->size() - QSize(kRulerWidth, kRulerWidth);
    if (m_fits) {
        const QSize inner = room - QSize(2 * kMargin, 2 * kMargin);
        const int fitting = qMin(inner.width() / qMax(1, m_shown.width()),
                                 inner.height() / qMax(1, m_shown.height()));
        const int zoom = qBound(kSmallestZoom, fitting, kFittingZoom);
        if (std::exchange(m_scale.zoom, zoom) != zoom)
            emit ZoomChanged(zoom);
    }
    m_leds = ClockStage::LedScreen(m_scale.zoom);
    const QSize whole = m_shown * m_scale.zoom + QSize(2 * kMargin, 2 * kMargin);
    const auto place = [](QScrollBar *bar, int all, int visible) {
        bar->setRange(0, qMax(0, all - visible));
        bar->setPageStep(visible);
        bar->setSingleStep(16);
        return all < visible ? (visible - all) / 2 + kMargin : kMargin - bar->value();
    };
    m_scale.origin = QPoint(kRulerWidth, kRulerWidth)
        + QPoint(place(horizontalScrollBar(), whole.width(), room.width()),
                 place(verticalScrollBar(), whole.height(), room.height()));
    viewport()->update();
}

void WallView::SetZoom(int zoom, std::optional<QPoint> around)
{
    m_fits = false;
    const QPoint point = around.value_or(viewport()->rect().center());
    const QPoint pixel = m_scale.ToWall(point);
    const int bounded = qBound(kSmallestZoom, zoom, kLargestZoom);
    if (std::exchange(m_scale.zoom, bounded) == bounded)
        return;
    PlaceWall();
    const QPoint away = m_scale.ToView({pixel, QSize(1, 1)}).center() - point;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + away.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + away.y());
    PlaceWall();
    emit ZoomChanged(bounded);
}

void WallView::ZoomToFit()
{
    m_fits = true;
    PlaceWall();
}

void WallView::SetShowsLeds(bool diodes)
{
    m_showsLeds = diodes;
    viewport()->update();
}

void WallView::SetModule(QSize module)
{
    m_module = module;
    viewport()->update();
}

void WallView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), kCanvas);
    PaintWall(painter, event->rect());
    PaintMarks(painter);
    QRect selected = Around(m_editor.SelectedRects());
    PaintRulers(painter, m_scale, viewport()->size(), selected);
}

void WallView::PaintWall(QPainter &painter, const QRect &exposed)
{
    const QImage &screen = m_editor.Wall().Screen();
    const QRect source = m_scale.ToWall(exposed) & screen.rect();
    if (!source.isEmpty()) {
        if (m_showsLeds && m_scale.zoom >= ClockStage::kMinimumLedPitch)
            painter.drawImage(m_scale.ToView(source).topLeft(), m_leds.Diodes(screen, source));
        else
            painter.drawImage(m_scale.ToView(source), screen, source);
    }
    painter.setPen(kWallEdge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_scale.ToView(screen.rect()).adjusted(-1, -1, 0, 0));
}

void WallView::PaintMarks(QPainter &painter)
{
    if (!m_module.isEmpty())
        PaintModules(painter, m_scale, m_editor.Wall().Size(), m_module);
    if (m_editor.Wall().AreaCount() == 0 && !m_mouse.Band())
        PaintHint(painter);
    const QVector<int> &selected = m_editor.Selected();
    for (int area = 0; area < m_editor.Wall().AreaCount(); ++area) {
        const bool isOutside =
            !QRect(QPoint(), m_editor.Wall().Size()).contains(m_editor.Wall().Geometry(area));
        if (!selected.contains(area) && (area == m_mouse.Hovered() || isOutside))
            PaintOutline(painter, m_scale, m_editor.Wall().Geometry(area), false);
    }
    for (const int area : selected) {
        if (area < m_editor.Wall().AreaCount())
            PaintOutline(painter, m_scale, m_editor.Wall().Geometry(area), true);
    }
    if (selected.size() == 1 && selected.first() < m_editor.Wall().AreaCount())
        PaintHandles(painter, m_scale, m_editor.Wall().Geometry(selected.first()));
    PaintGuides(painter, m_scale, m_mouse.Guides(), m_editor.Wall().Size());
    const QRect dragged = m_mouse.Band().value_or(Around(m_editor.SelectedRects()));
    if (m_mouse.Band())
        PaintBand(painter, m_scale, dragged);
    if (m_mouse.IsDragging() && !dragged.isEmpty())
        PaintTag(painter, m_scale, dragged,
                 QStringLiteral("%1, %2   %3 × %4")
                     .arg(dragged.x())
                     .arg(dragged.y())
                     .arg(dragged.width())
                     .arg(dragged.height()));
}

void WallView::PaintHint(QPainter &painter)
{
    painter.setPen(kHintInk);
    painter.drawText(m_scale.ToView({QPoint(), m_editor.Wall().Size()}),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Choose a type of clock above, then drag a rectangle here"));
}

void WallView::resizeEvent(QResizeEvent *)
{
    PlaceWall();
}

void WallView::scrollContentsBy(int, int)
{
    PlaceWall();
}

void WallView::mousePressEvent(QMouseEvent *event)
{
    // The right button opens a menu, for a clock that it selects first.
    const bool selects = event->button() == Qt::RightButton && !m_mouse.IsDragging()
        && !m_mouse.Drawing() && m_mouse.Hovered() >= 0
        && !m_editor.Selected().contains(m_mouse.Hovered());
    if (event->button() == Qt::LeftButton || selects)
        m_mouse.Press(m_scale, {PositionOf(*event), event->modifiers(), m_module});
    if (selects)
        m_mouse.Release({PositionOf(*event), event->modifiers(), m_module});
}

void WallView::mouseMoveEvent(QMouseEvent *event)
{
    m_mouse.Move(m_scale, {PositionOf(*event), event->modifiers(), m_module});
    viewport()->setCursor(m_mouse.Cursor(m_scale, PositionOf(*event)));
    emit PointedAt(m_scale.ToWall(PositionOf(*event)));
}

void WallView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_mouse.IsDragging())
        m_mouse.Release({PositionOf(*event), event->modifiers(), m_module});
}

void WallView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    SetZoom(m_scale.zoom + (event->angleDelta().y() > 0 ? 1 : -1), event->position().toPoint());
    event->accept();
}

bool WallView::MoveByKey(const QKeyEvent &event)
{
    QPoint step;
    switch (event.key()) {
    case Qt::Key_Left:
        step = {-1, 0};
        break;
    case Qt::Key_Right:
        step = {1, 0};
        break;
    case Qt::Key_Up:
        step = {0, -1};
        break;
    case Qt::Key_Down:
        step = {0, 1};
        break;
    default:
        return false;
    }
    if (event.modifiers() & Qt::ShiftModifier)
        step *= kBigStep;
    event.modifiers() & Qt::AltModifier ? m_editor.ResizeBy(step) : m_editor.MoveBy(step);
    return true;
}

void WallView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        if (!m_mouse.Cancel())
            m_editor.Select({});
    } else if (m_editor.Selected().isEmpty() || !MoveByKey(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

/// Tab moves from clock to clock, and after the last one to the next widget.
bool WallView::focusNextPrevChild(bool next)
{
    const int count = m_editor.Wall().AreaCount();
    const int now =
        m_editor.Selected().isEmpty() ? (next ? -1 : count) : m_editor.Selected().last();
    const int then = now + (next ? 1 : -1);
    if (!hasFocus() || then < 0 || then >= count)
        return QAbstractScrollArea::focusNextPrevChild(next);
    m_editor.Select({then});
    return true;
}

void WallView::AnnounceSelection()
{
    viewport()->update();
    const QVector<int> &selected = m_editor.Selected();
    setAccessibleDescription(
        selected.size() == 1
            ? tr("Clock %1 of %2").arg(selected.first() + 1).arg(m_editor.Wall().AreaCount())
            : tr("%n clock(s) selected", nullptr, selected.size()));
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void WallView::contextMenuEvent(QContextMenuEvent *event)
{
    emit MenuWanted(event->globalPos());
}

void WallView::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls() || event->mimeData()->hasText())
        event->acceptProposedAction();
}

void WallView::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile())
        emit FileDropped(urls.first().toLocalFile());
    else
        emit TextDropped(event->mimeData()->text());
}

} // namespace ClockStudio
