// lint/: the messages for the findings of the fit check.
#pragma once

#include "fit.h"
#include "wall_check.h"

#include <QString>

namespace ClockTool {

/// All cuts of one part, and what would fit: the largest size of the part, 0 where none was found,
/// and the common factor of all sizes, likewise.
QString CutWords(const QVector<ClockFit::Cut> &cuts, int points, double factor);
/// Points are of a size at which nothing is lost; 0 for none.
QString ClippedWords(const ClockFit::Clipped &clipped, int points);
QString OverlapWords(const ClockFit::Overlap &overlap);
QString FaintWords(const ClockFit::Faint &faint);
QString SameHandsWords(const ClockFit::SameHands &hands);
QString LostMarksWords(const ClockFit::LostMarks &marks);
QString MissingWords(const ClockFit::MissingCharacters &missing);
QString TooLargeWords(const ClockFit::TooLarge &tooLarge);
QString OffScreenWords(const ClockFit::OffScreen &off);
/// `line` is the line of the lower clock.
QString ClockOverlapWords(const ClockFit::ClockOverlap &overlap, int line);

} // namespace ClockTool
