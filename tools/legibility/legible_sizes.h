// legibility/: the sizes at which the digits of a font are legible: small ones lose strokes and
// holes, because glyph images have one bit per pixel. A QGuiApplication must exist.
#pragma once

#include <QString>
#include <QVector>

namespace ClockTool {

/// Larger sizes are legible in every usable font and are not checked.
constexpr int kLargestChecked = 60; // points

/// What is wrong with the digits of a family at a size, to follow "at 8 points" in a sentence;
/// empty if nothing is. `separators` are the other characters of the strip, such as ":".
QString LegibilityFault(const QString &family, int points, const QString &separators);

/// The nearest size up to kLargestChecked at which nothing is wrong, the larger of two; 0 where
/// there is none.
int NearestLegibleSize(const QString &family, int points, const QString &separators);

/// All sizes from 1 to kLargestChecked at which nothing is wrong.
QVector<int> LegibleSizes(const QString &family, const QString &separators);

} // namespace ClockTool
