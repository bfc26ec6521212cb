#include "led_screen.h"

#include "screen_composer.h"

#include <algorithm>

namespace ClockStage {

namespace {

constexpr int kFullCoverage = 256;
constexpr int kSamples = 16;       // of each pixel, each way
constexpr double kLedRadius = 0.4; // of the pitch
constexpr int kUnlitLevel = 20;    // the brightest channel of kUnlitLed

// The coverage of a pixel by the disc in the middle of the square. The corners belong to the mask
// at any pitch.
int CoverageOf(int x, int y, int pitch)
{
    const auto isEdge = [pitch](int place) { return place == 0 || place == pitch - 1; };
    if (isEdge(x) && isEdge(y))
        return 0;
    const double radius = kLedRadius * pitch;
    const double middle = pitch / 2.0;
    int inside = 0;
    for (int sample = 0; sample < kSamples * kSamples; ++sample) {
        const double across = x + (sample % kSamples + 0.5) / kSamples - middle;
        const double down = y + (sample / kSamples + 0.5) / kSamples - middle;
        if (across * across + down * down <= radius * radius)
            ++inside;
    }
    return inside * kFullCoverage / (kSamples * kSamples);
}

QRgb ColourOfLed(QRgb pixel)
{
    const bool shines = std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) > kUnlitLevel;
    return shines ? pixel | 0xff000000U : kUnlitLed;
}

QRgb Dimmed(QRgb colour, int coverage)
{
    return qRgb(qRed(colour) * coverage / kFullCoverage, qGreen(colour) * coverage / kFullCoverage,
                qBlue(colour) * coverage / kFullCoverage);
}

} // namespace

LedScreen::LedScreen(int pitch) : m_pitch(qBound(kMinimumLedPitch, pitch, kMaximumLedPitch))
{
    for (int y = 0; y < m_pitch; ++y) {
        for (int x = 0; x < m_pitch; ++x)
            m_coverage.append(CoverageOf(x, y, m_pitch));
    }
}

QImage LedScreen::Diodes(const QImage &screen, const QRect &region) const
{
    const QRect shown = region & screen.rect();
    if (qint64(shown.width()) * shown.height() * m_pitch * m_pitch > kMaximumMagnifiedPixels)
        return QImage();
    QImage picture(shown.size() * m_pitch, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const auto *from =
            reinterpret_cast<const QRgb *>(screen.constScanLine(shown.y() + y / m_pitch))
            + shown.x();
        auto *to = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int column = 0; column < shown.width(); ++column) {
            const QRgb colour = ColourOfLed(from[column]);
            for (int x = 0; x < m_pitch; ++x)
                *to++ = Dimmed(colour, Coverage(x, y % m_pitch));
        }
    }
    return picture;
}

QRect LedScreen::Magnified(const QRect &region) const
{
    return {region.topLeft() * m_pitch, region.size() * m_pitch};
}

QRect LedScreen::Reduced(const QRect &area) const
{
    const QPoint first(area.left() / m_pitch, area.top() / m_pitch);
    const QPoint last(area.right() / m_pitch, area.bottom() / m_pitch);
    return {first, last};
}

} // namespace ClockStage
