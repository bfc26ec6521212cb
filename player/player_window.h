// player/: the window, or framebuffer, that shows a stage.
#pragma once

#include "controls.h"
#include "notice.h"
#include "screen_mapping.h"

#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>

#include <optional>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// As large as the stage's screen, magnified by the LED pitch if any; or the whole display.
/// Changed regions are composed directly into the window's backing store.
class PlayerWindow : public QWindow
{
    Q_OBJECT

public:
    explicit PlayerWindow(const QString &title, const Placing &placing = {});

    /// Shows this stage from now on. It must live until it is replaced or the window is deleted.
    void SetStage(const ClockStage::Stage &stage);
    /// Shows a notice until the next SetStage(); the current stage is no longer used.
    void ShowNotice(Notice notice);
    /// Shows the window full screen without a cursor; keys are ignored.
    void ShowKiosk();
    /// Schedules a repaint of the whole window.
    void ScheduleRepaint() { ScheduleRepaint(QRect(QPoint(), size())); }
    /// The rectangle of the window that the stage covers, in pixels.
    QRect Picture() const { return m_mapping.Whole(); }

    /// Text over the lower part of the picture; empty for none.
    void SetOverlay(const QString &text);

Q_SIGNALS:
    void Commanded(const ClockPlayer::Command &command);
    void AboutToPaint();
    /// Changes are on the display now. `begun` is when painting began, in milliseconds of
    /// StageTime::Steady().
    void Painted(double begun);

protected:
    bool event(QEvent *event) override;
    void exposeEvent(QExposeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Change(const QRegion &region);
    void ScheduleRepaint(const QRegion &region);
    void SetContentSize(QSize size);
    void Present();
    void Paint(QPaintDevice &device, const QRegion &region);
    void PaintScreen(QPaintDevice &device, const QRegion &region);
    void PaintThroughScreen(QPaintDevice &device, const QRegion &region);

    QBackingStore m_store {this};
    QRegion m_changed; ///< of the window, not painted yet
    const ClockStage::Stage *m_stage = nullptr;
    std::optional<Notice> m_notice;
    ScreenMapping m_mapping;
    bool m_isKiosk = false;
    QImage m_screen; ///< null if it can be composed into the window directly
    QString m_overlay;
};

} // namespace ClockPlayer
