// studio/wall: mouse handling on the wall: selecting, moving, resizing, drawing. Independent of the
// widget.
#pragma once

#include "editing/wall_editor.h"
#include "wall_scale.h"

#include <optional>

namespace ClockStudio {

class WallMouse : public QObject
{
    Q_OBJECT

public:
    explicit WallMouse(WallEditor &editor) : m_editor(editor) { }

    /// The kind of clock that the next drag draws; nullopt: drags select and move.
    std::optional<ClockKind> Drawing() const { return m_drawing; }
    void SetDrawing(std::optional<ClockKind> kind);

    struct Pointer
    {
        QPoint point; ///< in the view
        Qt::KeyboardModifiers keys;
        QSize module; ///< cell size of the panel grid; empty if there is none
    };

    void Press(const WallScale &scale, const Pointer &pointer);
    void Move(const WallScale &scale, const Pointer &pointer);
    void Release(const Pointer &pointer);
    /// Reverts a drag, or else leaves drawing mode. False if there was neither.
    bool Cancel();

    bool IsDragging() const { return m_drag != Drag::None; }
    /// The rubber band while one is dragged.
    std::optional<QRect> Band() const;
    const SnapLines &Guides() const { return m_guides; }
    /// The area under the pointer; -1 for none.
    int Hovered() const { return m_hovered; }
    Qt::CursorShape Cursor(const WallScale &scale, QPoint point) const;

Q_SIGNALS:
    void Changed(); ///< the band, guides or hovered area changed
    void DrawingChanged();

private:
    enum class Drag { None, Move, Resize, Select, Draw };

    int AreaAt(QPoint pixel) const;
    Handle HandleUnder(const WallScale &scale, QPoint point) const;
    SnapLines Lines(const Pointer &pointer) const;
    void DragSelected(const WallScale &scale, const Pointer &pointer);
    void DragBand(const WallScale &scale, const Pointer &pointer);
    void SelectWithin(const QRect &band, bool keeps);
    void FinishDrawing();

    WallEditor &m_editor;
    std::optional<ClockKind> m_drawing;
    Drag m_drag = Drag::None;
    Handle m_handle = NoHandle;
    QPoint m_from;          ///< the pixel corner of the wall where the drag began
    QPoint m_pressed;       ///< where the button was pressed, in the view
    QVector<QRect> m_rects; ///< the selected areas' rectangles when the drag began
    QRect m_band;
    SnapLines m_guides;
    int m_history = 0; ///< undo index when the drag began
    int m_hovered = -1;
    bool m_passedThreshold = false; ///< the pointer has moved beyond the drag threshold
};

} // namespace ClockStudio
