// fit/: checks the contrast of a clock's parts against their background, and whether a dial is
// large enough for its marks.
#include "clock_checks.h"
#include "clock_parts.h"

#include "display/analog_geometry.h"

#include "happconfig.h"
#include "key_colour.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr double kFaintContrast = 3; // parts with a lower one are reported

double Linear(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb colour)
{
    return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour))
        + 0.0722 * Linear(qBlue(colour));
}

QRgb PixelOf(int stored)
{
    return Lw::HAppConfig::IntToColor(stored).rgb();
}

QRgb ColourOf(HClockNode &node, Part part)
{
    return PixelOf(NumberOf(node, *ColourAttribute(part, node.ClockType())));
}

} // namespace

double ContrastOf(QRgb one, QRgb other)
{
    const double lighter = std::max(Luminance(one), Luminance(other));
    const double darker = std::min(Luminance(one), Luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

QVector<Faint> FaintParts(HClockNode &node, QRgb background)
{
    QVector<Faint> faint;
    for (const Part part : PartsShown(node)) {
        const QRgb ink = ColourOf(node, part);
        const bool isKey = ink == PixelOf(Lw::kKeyColour);
        const double contrast = isKey ? 1 : ContrastOf(ink, background);
        if (contrast < kFaintContrast)
            faint.append({part, ink, background, contrast, isKey});
    }
    return faint;
}

QVector<SameHands> SameHandsOf(HClockNode &node)
{
    QVector<Part> hands;
    for (const Part part : PartsShown(node)) {
        if (part == Part::HourHand || part == Part::MinuteHand || part == Part::SecondHand)
            hands.append(part);
    }
    QVector<SameHands> same;
    for (int i = 0; i < hands.size(); ++i) {
        for (int j = i + 1; j < hands.size(); ++j) {
            const QRgb colour = ColourOf(node, hands[i]);
            if (colour == ColourOf(node, hands[j]))
                same.append({hands[i], hands[j], colour});
        }
    }
    return same;
}

namespace {

constexpr double kLargestRadius = 200; // pixels; far above the radius at which all marks appear

bool HasMark(Part part, int scale, double radius)
{
    const Mark mark = part == Part::HourMarks ? HourMark(scale, radius) : MinuteMark(scale, radius);
    return mark.shape != Mark::None;
}

// Radii are multiples of half a pixel.
double RadiusWithMarks(Part part, int scale)
{
    double radius = 0.5;
    while (radius < kLargestRadius && !HasMark(part, scale, radius))
        radius += 0.5;
    return radius < kLargestRadius ? radius : 0;
}

} // namespace

QVector<LostMarks> LostMarksOf(HClockNode &node)
{
    if (node.ClockType() != AnalogClock)
        return {};
    const double radius = DialRadius(node.Size());
    QVector<LostMarks> lost;
    for (const auto &[part, attribute] :
         {std::make_pair(Part::HourMarks, Attribute::HourScaleType),
          std::make_pair(Part::MinuteMarks, Attribute::MinuteScaleType)}) {
        const int scale = NumberOf(node, attribute);
        const double minimumRadius = RadiusWithMarks(part, scale);
        if (minimumRadius > radius)
            lost.append({part, radius, minimumRadius});
    }
    return lost;
}

} // namespace ClockFit
