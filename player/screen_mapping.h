// player/: maps the program's screen to the window: rotation, LED preview and offset. Pure.
#pragma once

#include "led_screen.h"

#include <QImage>
#include <QPoint>
#include <QRect>

#include <optional>

namespace ClockPlayer {

struct Placing
{
    int turn = 0;     ///< degrees clockwise: 0, 90, 180 or 270
    int ledPitch = 0; ///< pixels from LED to LED; 0: no LED preview
    QPoint offset;    ///< of the turned picture's top left, pixels of the window
};

class ScreenMapping
{
public:
    explicit ScreenMapping(const Placing &placing);

    /// Size of the program's screen in pixels; call first.
    void SetScreenSize(QSize size) { m_screen = size; }

    /// Whether pixels are only translated, so that Picture() is not needed.
    bool IsPlain() const { return !m_leds && m_placing.turn == 0; }
    /// What the whole screen covers of the window.
    QRect Whole() const { return WindowRectOf({QPoint(), m_screen}); }
    /// What a region of the screen covers of the window.
    QRect WindowRectOf(const QRect &region) const;
    /// The smallest screen rectangle that covers this part of the window.
    QRect ScreenRectOf(const QRect &part) const;
    /// What is painted at WindowRectOf(region). The screen has 32-bit pixels.
    QImage Picture(const QImage &screen, const QRect &region) const;

private:
    QRect Turned(const QRect &region) const;
    QRect TurnedBack(const QRect &region) const;

    const Placing m_placing;
    const std::optional<ClockStage::LedScreen> m_leds;
    QSize m_screen;
};

} // namespace ClockPlayer
