#include "wall_mouse.h"

#include "wall_painting.h"

#include <utility>

namespace ClockStudio {

namespace {

constexpr int kDragThreshold = 3; // view pixels that the pointer may move during a click
constexpr int kReach = 6;         // pixels of the view within which sides snap

// The size of a clock placed by a click instead of a drag.
constexpr QSize kNewSize(64, 32);
constexpr QSize kNewDial(64, 64);

QRect BandBetween(QPoint one, QPoint other)
{
    return QRect(qMin(one.x(), other.x()), qMin(one.y(), other.y()), qAbs(one.x() - other.x()),
                 qAbs(one.y() - other.y()));
}

} // namespace

void WallMouse::SetDrawing(std::optional<ClockKind> kind)
{
    m_drawing = kind;
    emit DrawingChanged();
}

int WallMouse::AreaAt(QPoint pixel) const
{
    for (int area = m_editor.Wall().AreaCount() - 1; area >= 0; --area) {
        if (m_editor.Wall().Geometry(area).contains(pixel))
            return area;
    }
    return -1;
}

Handle WallMouse::HandleUnder(const WallScale &scale, QPoint point) const
{
    if (m_editor.Selected().size() != 1 || m_drawing)
        return NoHandle;
    return HandleAt(scale, m_editor.SelectedRects().first(), point);
}

void WallMouse::Press(const WallScale &scale, const Pointer &pointer)
{
    m_pressed = pointer.point;
    m_from = scale.NearestCorner(pointer.point);
    m_passedThreshold = false;
    m_band = QRect(m_from, QSize());
    m_history = m_editor.Document().History().index();
    m_editor.Document().EndMerging();
    m_handle = HandleUnder(scale, pointer.point);
    const int area = AreaAt(scale.ToWall(pointer.point));
    const bool adds = pointer.keys & (Qt::ShiftModifier | Qt::ControlModifier);
    if (m_drawing) {
        m_drag = Drag::Draw;
    } else if (m_handle != NoHandle) {
        m_drag = Drag::Resize;
    } else if (area >= 0) {
        if (adds)
            m_editor.Toggle(area);
        else if (!m_editor.Selected().contains(area))
            m_editor.Select({area});
        m_drag = m_editor.Selected().contains(area) ? Drag::Move : Drag::None;
    } else {
        if (!adds)
            m_editor.Select({});
        m_drag = Drag::Select;
    }
    m_rects = m_editor.SelectedRects();
}

SnapLines WallMouse::Lines(const Pointer &pointer) const
{
    if (pointer.keys & Qt::AltModifier)
        return {};
    QVector<QRect> others;
    for (int area = 0; area < m_editor.Wall().AreaCount(); ++area) {
        const bool moves = m_drag != Drag::Draw && m_editor.Selected().contains(area);
        if (!moves)
            others.append(m_editor.Wall().Geometry(area));
    }
    return SnapLinesOf(m_editor.Wall().Size(), others, pointer.module);
}

void WallMouse::Move(const WallScale &scale, const Pointer &pointer)
{
    if (m_drag == Drag::None) {
        const int area = AreaAt(scale.ToWall(pointer.point));
        if (std::exchange(m_hovered, area) != area)
            emit Changed();
        return;
    }
    m_passedThreshold =
        m_passedThreshold || (pointer.point - m_pressed).manhattanLength() > kDragThreshold;
    if (!m_passedThreshold)
        return;
    if (m_drag == Drag::Move || m_drag == Drag::Resize)
        DragSelected(scale, pointer);
    else
        DragBand(scale, pointer);
    emit Changed();
}

void WallMouse::DragSelected(const WallScale &scale, const Pointer &pointer)
{
    const QPoint wanted = scale.NearestCorner(pointer.point) - m_from;
    const int reach = qMax(1, kReach / scale.zoom);
    const QRect around = Around(m_rects);
    const Snap snap = m_drag == Drag::Move
        ? SnapMove(around, wanted, Lines(pointer), reach)
        : SnapResize(around, m_handle, wanted, Lines(pointer), reach);
    m_guides = snap.met;
    QVector<QRect> rects = m_rects;
    for (QRect &rect : rects)
        rect = m_drag == Drag::Move ? rect.translated(snap.distance)
                                    : Resized(rect, m_handle, snap.distance);
    m_editor.Place(rects, m_drag == Drag::Move ? tr("Move") : tr("Resize"), QStringLiteral("drag"));
}

void WallMouse::DragBand(const WallScale &scale, const Pointer &pointer)
{
    QPoint corner = scale.NearestCorner(pointer.point);
    if (m_drag == Drag::Draw) {
        const int reach = qMax(1, kReach / scale.zoom);
        const Snap snap = SnapResize({m_from, QSize(0, 0)}, RightSide | BottomSide, corner - m_from,
                                     Lines(pointer), reach);
        m_guides = snap.met;
        corner = m_from + snap.distance;
    }
    m_band = BandBetween(m_from, corner);
}

void WallMouse::Release(const Pointer &pointer)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    m_guides = {};
    if (drag == Drag::Draw)
        FinishDrawing();
    else if (drag == Drag::Select && m_passedThreshold)
        SelectWithin(m_band, pointer.keys & (Qt::ShiftModifier | Qt::ControlModifier));
    m_editor.Document().EndMerging();
    emit Changed();
}

void WallMouse::SelectWithin(const QRect &band, bool keeps)
{
    QVector<int> areas = keeps ? m_editor.Selected() : QVector<int>();
    for (int area = 0; area < m_editor.Wall().AreaCount(); ++area) {
        if (m_editor.Wall().Geometry(area).intersects(band))
            areas.append(area);
    }
    m_editor.Select(areas);
}

void WallMouse::FinishDrawing()
{
    const ClockKind kind = *m_drawing;
    SetDrawing({});
    const bool isDrawn = m_band.width() >= kSmallestSide && m_band.height() >= kSmallestSide;
    const QSize size = kind == ClockKind::Digital ? kNewSize : kNewDial;
    m_editor.Add(kind, isDrawn ? m_band : QRect(m_from, size.boundedTo(m_editor.Wall().Size())));
}

bool WallMouse::Cancel()
{
    if (m_drag == Drag::None) {
        const bool drew = m_drawing.has_value();
        if (drew)
            SetDrawing({});
        return drew;
    }
    m_drag = Drag::None;
    m_guides = {};
    QUndoStack &history = m_editor.Document().History();
    while (history.index() > m_history)
        history.undo();
    emit Changed();
    return true;
}

std::optional<QRect> WallMouse::Band() const
{
    const bool isShown = m_passedThreshold && (m_drag == Drag::Draw || m_drag == Drag::Select);
    return isShown ? std::optional<QRect>(m_band) : std::nullopt;
}

Qt::CursorShape WallMouse::Cursor(const WallScale &scale, QPoint point) const
{
    if (m_drawing)
        return Qt::CrossCursor;
    switch (m_drag == Drag::Resize ? m_handle : HandleUnder(scale, point)) {
    case LeftSide:
    case RightSide:
        return Qt::SizeHorCursor;
    case TopSide:
    case BottomSide:
        return Qt::SizeVerCursor;
    case LeftSide | TopSide:
    case RightSide | BottomSide:
        return Qt::SizeFDiagCursor;
    case RightSide | TopSide:
    case LeftSide | BottomSide:
        return Qt::SizeBDiagCursor;
    default:
        return AreaAt(scale.ToWall(point)) >= 0 ? Qt::SizeAllCursor : Qt::ArrowCursor;
    }
}

} // namespace ClockStudio
