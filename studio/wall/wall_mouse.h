// studio/wall: the wall as it is seen and handled.
// What the mouse does on the wall: choosing, moving, resizing, drawing. It knows no widget.
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

    /// What the next drag draws; nothing: it chooses and moves.
    std::optional<ClockKind> Drawing() const { return m_drawing; }
    void SetDrawing(std::optional<ClockKind> kind);

    struct Grip
    {
        QPoint point; ///< of the view
        Qt::KeyboardModifiers keys;
        QSize module; ///< of the grid that is snapped to; may be empty
    };

    void Press(const WallScale &scale, const Grip &grip);
    void Move(const WallScale &scale, const Grip &grip);
    void Release(const WallScale &scale, const Grip &grip);
    /// Ends a drag as if it had not begun. False where there is none.
    bool Cancel();

    bool IsDragging() const { return m_drag != Drag::None; }
    /// A rectangle to be shown while it is dragged.
    std::optional<QRect> Band() const;
    const SnapLines &Guides() const { return m_guides; }
    /// The area under the pointer; -1 for none.
    int Hovered() const { return m_hovered; }
    Qt::CursorShape Cursor(const WallScale &scale, QPoint point) const;

Q_SIGNALS:
    void Changed(); ///< what is shown of a drag
    void DrawingChanged();

private:
    enum class Drag { None, Move, Resize, Choose, Draw };

    int AreaAt(QPoint pixel) const;
    Handle HandleUnder(const WallScale &scale, QPoint point) const;
    SnapLines Lines(const Grip &grip) const;
    void DragChosen(const WallScale &scale, const Grip &grip);
    void DragBand(const WallScale &scale, const Grip &grip);
    void ChooseWithin(const QRect &band, bool keeps);
    void FinishDrawing();

    WallEditor &m_editor;
    std::optional<ClockKind> m_drawing;
    Drag m_drag = Drag::None;
    Handle m_handle = NoHandle;
    QPoint m_from;          ///< a corner of a pixel of the wall
    QPoint m_pressed;       ///< of the view
    QVector<QRect> m_rects; ///< of the chosen areas at the beginning
    QRect m_band;
    SnapLines m_guides;
    int m_history = 0; ///< index of the history at the beginning
    int m_hovered = -1;
    bool m_isFar = false; ///< the pointer has left the place where it was pressed
};

} // namespace ClockStudio
