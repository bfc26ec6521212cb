// studio/editing: the text of a new clock, with sizes that suit its area.
#pragma once

#include <QRect>
#include <QString>

namespace ClockStudio {

/// The kinds of clock that the studio offers.
enum class ClockKind { Digital, Analog, Picture };

/// The smallest text size that the studio sets, in points: digits of smaller ones are hard to read.
constexpr int kSmallestTextSize = 6;

/// An area element for a new clock in the computer's zone, not indented, with "\n" line ends.
QString NewAreaText(ClockKind kind, const QRect &geometry);

/// The text of a wall without clocks.
QString NewProgramText(QSize size);

/// The largest font size in points at which one line of text fits the box (in pixels); at least
/// kSmallestTextSize.
int FittingSize(const QString &family, const QString &text, QSize box);

/// The font family of new clocks: DejaVu Sans if installed, else the default.
QString NewClockFamily();

} // namespace ClockStudio
