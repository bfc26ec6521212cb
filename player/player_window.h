// Shows the screen of a stage in a window, or on a framebuffer through Qt's platform plugins.
#pragma once

#include "controls.h"
#include "notice.h"
#include "wall_view.h"

#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>

#include <optional>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// As large as the stage's screen, pixel for pixel or diode for pixel; or the whole display. What
/// changed is composed straight into the picture that the platform brings to the display.
class PlayerWindow : public QWindow
{
    Q_OBJECT

public:
    explicit PlayerWindow(const QString &title, const Placing &placing = {});

    /// Shows this stage from now on. It must live until it is replaced or the window is deleted.
    void SetStage(const ClockStage::Stage &stage);
    /// Shows a notice until the next stage, and forgets the one before.
    void ShowNotice(Notice notice);
    /// The whole display, without a cursor, and keys do nothing.
    void ShowAlone();
    /// Paints all of the window again, soon.
    void Renew() { Renew(QRect(QPoint(), size())); }
    /// What the stage covers of the window.
    QRect Picture() const { return m_view.Whole(); }

    /// Text over the lower part of the picture; empty for none.
    void SetOverlay(const QString &text);

Q_SIGNALS:
    void Commanded(const ClockPlayer::Command &command);
    void AboutToPaint();
    /// What changed is on the display now. Milliseconds of StageTime::Steady().
    void Painted(double begun);

protected:
    bool event(QEvent *event) override;
    void exposeEvent(QExposeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Change(const QRegion &region);
    void Renew(const QRegion &region);
    void SetContentSize(QSize size);
    void Present();
    void Paint(QPaintDevice &device, const QRegion &region);
    void PaintScreen(QPaintDevice &device, const QRegion &region);
    void PaintThroughScreen(QPaintDevice &device, const QRegion &region);

    QBackingStore m_store {this};
    QRegion m_changed; ///< of the window, not painted yet
    const ClockStage::Stage *m_stage = nullptr;
    std::optional<Notice> m_notice;
    WallView m_view;
    bool m_isAlone = false;
    QImage m_screen; ///< composed apart where its pixels are not the window's; else null
    QString m_overlay;
};

} // namespace ClockPlayer
