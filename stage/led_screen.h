// stage/: draws the screen as an LED wall seen from nearby: each pixel is a round LED in a black
// mask.
#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace ClockStage {

/// Pitch: pixels from one LED to the next. Below three there is no room for an LED and its gap.
constexpr int kMinimumLedPitch = 3;
constexpr int kMaximumLedPitch = 64;

/// The colour of an unlit LED, and of pixels that are no brighter.
constexpr QRgb kUnlitLed = qRgb(18, 18, 20);

class LedScreen
{
public:
    /// The pitch is clamped to the bounds.
    explicit LedScreen(int pitch);

    int Pitch() const { return m_pitch; }
    /// A picture of the LEDs of a region of the screen, which has 32-bit pixels. The middle of an
    /// LED has its pixel's colour, or kUnlitLed; the corners of each square are black. Null when it
    /// would have more than kMaximumMagnifiedPixels.
    QImage Diodes(const QImage &screen, const QRect &region) const;
    QImage Diodes(const QImage &screen) const { return Diodes(screen, screen.rect()); }

    /// Converts a screen region to pixels of that picture; and those to the smallest screen region
    /// that covers them.
    QRect Magnified(const QRect &region) const;
    QRect Reduced(const QRect &area) const;

private:
    int Coverage(int x, int y) const { return m_coverage[y * m_pitch + x]; }

    int m_pitch;
    QVector<int> m_coverage; ///< of each pixel of a square by its LED, 0 to 256, row by row
};

} // namespace ClockStage
