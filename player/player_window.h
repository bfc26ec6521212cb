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

/// As large as the stage's screen, pixel for pixel or diode for pixel.
class PlayerWindow : public QRasterWindow
{
    Q_OBJECT

public:
    explicit PlayerWindow(const QString &title,
                          const std::optional<ClockStage::LedScreen> &leds = std::nullopt);

    /// Shows this stage from now on. It must live until it is replaced or the window is deleted.
    void SetStage(const ClockStage::Stage &stage);

    /// Text over the lower part of the picture; empty for none.
    void SetOverlay(const QString &text);

Q_SIGNALS:
    void Commanded(const ClockPlayer::Command &command);
    void AboutToPaint();
    /// What changed is on the display now. Milliseconds of StageTime::Steady().
    void Painted(double begun);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void Change(const QRegion &region);
    void PaintScreen(QPainter &painter, const QRegion &region);

    const ClockStage::Stage *m_stage = nullptr;
    const std::optional<ClockStage::LedScreen> m_leds;
    QImage m_screen;
    QString m_overlay;
};

} // namespace ClockPlayer
