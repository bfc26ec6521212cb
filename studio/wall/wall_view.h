// studio/wall: the widget that shows the wall and handles mouse and keyboard.
#pragma once

#include "wall_mouse.h"
#include "wall_scale.h"

#include "led_screen.h"

#include <QAbstractScrollArea>

#include <optional>

namespace ClockStudio {

class WallView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit WallView(WallEditor &editor, QWidget *parent = nullptr);

    int Zoom() const { return m_scale.zoom; }
    /// Sets the zoom (view pixels per wall pixel), keeping the wall pixel at `around` in place; by
    /// default that at the centre.
    void SetZoom(int zoom, std::optional<QPoint> around = {});
    void ZoomToFit();
    void SetShowsLeds(bool diodes);
    QSize Module() const { return m_module; }
    void SetModule(QSize module); ///< empty shows no grid
    const WallScale &Scale() const { return m_scale; }
    WallMouse &Mouse() { return m_mouse; }

    QSize sizeHint() const override { return {760, 460}; }

Q_SIGNALS:
    void ZoomChanged(int zoom);
    void PointedAt(const QPoint &pixel); ///< of the wall
    void TextDropped(const QString &text);
    void FileDropped(const QString &path);
    void MenuWanted(const QPoint &place); ///< in global screen coordinates

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int across, int down) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void PlaceWall();
    void PaintWall(QPainter &painter, const QRect &exposed);
    void PaintMarks(QPainter &painter);
    void PaintHint(QPainter &painter);
    void AnnounceSelection();
    bool MoveByKey(const QKeyEvent &event);

    WallEditor &m_editor;
    WallMouse m_mouse;
    WallScale m_scale;
    ClockStage::LedScreen m_leds;
    bool m_showsLeds = false;
    bool m_fits = true; ///< the zoom follows the size of the view
    QSize m_module {64, 32};
    QSize m_shown; ///< the wall's size when it was placed
};

} // namespace ClockStudio
