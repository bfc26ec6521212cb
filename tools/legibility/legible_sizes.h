// At which sizes the digits of a font can be read: small ones lose strokes and holes, since glyph
// images have one bit per pixel. A QGuiApplication must exist.
#pragma once

#include <QString>
#include <QVector>

namespace ClockTool {

/// Sizes above this are right in every font that can be read at all; they are not looked at.
constexpr int kLargestLookedAt = 60; // points

/// What is wrong with the digits of a family at a size, to follow "at 8 points" in a sentence;
/// empty when nothing is. The separators are characters that a strip has besides, such as ":".
QString LegibilityFault(const QString &family, int points, const QString &separators);

/// The nearest size up to kLargestLookedAt at which nothing is wrong, the larger of two; 0 where
/// there is none.
int NearestLegibleSize(const QString &family, int points, const QString &separators);

/// All sizes from 1 to kLargestLookedAt at which nothing is wrong.
QVector<int> LegibleSizes(const QString &family, const QString &separators);

} // namespace ClockTool
