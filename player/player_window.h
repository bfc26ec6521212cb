// Shows the screen of a stage in a window, or on a framebuffer through Qt's platform plugins.
#pragma once

#include "controls.h"
#include "led_screen.h"

#include <QImage>
#include <QRasterWindow>

#include <optional>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// As large as the program's screen, pixel for pixel or diode for pixel. The stage must outlive the
/// window.
class PlayerWindow : public QRasterWindow
{
    Q_OBJECT

public:
    PlayerWindow(const ClockStage::Stage &stage, const QString &title,
                 const std::optional<ClockStage::LedScreen> &leds = std::nullopt);

    /// Text over the lower part of the picture; empty for none.
    void SetOverlay(const QString &text);

Q_SIGNALS:
    void Commanded(const ClockPlayer::Command &command);
    /// What changed is on the display now. Milliseconds of StageTime::Steady().
    void Painted(double begun);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void PaintScreen(QPainter &painter, const QRect &region);

    const ClockStage::Stage &m_stage;
    const std::optional<ClockStage::LedScreen> m_leds;
    QImage m_screen;
    QString m_overlay;
};

} // namespace ClockPlayer
