// The screen as a wall of light-emitting diodes shows it from near: each pixel a round diode in a
// black mask.
#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace ClockStage {

/// Pixels from one diode to the next. Below three there is no room for a diode and its gap.
constexpr int kMinimumLedPitch = 3;
constexpr int kMaximumLedPitch = 64;

/// The lens of a diode that does not shine. What is darker than it cannot be told from it.
constexpr QRgb kDarkDiode = qRgb(18, 18, 20);

class LedScreen
{
public:
    /// A pitch outside the bounds is taken to the nearer one.
    explicit LedScreen(int pitch);

    int Pitch() const { return m_pitch; }
    /// The diodes of a part of a screen of 32-bit pixels, which becomes a picture of its own. The
    /// middle of a diode has its pixel's colour, or kDarkDiode; the corners of each square are
    /// black. Null when it would have more than kMaximumMagnifiedPixels.
    QImage Diodes(const QImage &screen, const QRect &region) const;
    QImage Diodes(const QImage &screen) const { return Diodes(screen, screen.rect()); }

    /// Where the diodes of a region lie, and the least region whose diodes cover an area.
    QRect Magnified(const QRect &region) const;
    QRect Reduced(const QRect &area) const;

private:
    int Coverage(int x, int y) const { return m_coverage[y * m_pitch + x]; }

    int m_pitch;
    QVector<int> m_coverage; ///< of the pixels of one square by its diode, 0 to 256, row by row
};

} // namespace ClockStage
