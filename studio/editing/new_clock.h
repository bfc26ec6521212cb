// studio/editing: what people do to a wall, as changes of its text.
// The text of a new clock, with sizes that suit its area.
#pragma once

#include <QRect>
#include <QString>

namespace ClockStudio {

/// What a new clock can be, as people call it.
enum class ClockKind { Digital, Analog, Picture };

/// An area element at the margin, with line feeds. The zone is the computer's.
QString NewAreaText(ClockKind kind, const QRect &geometry);

/// The text of a wall without clocks.
QString NewProgramText(QSize size);

/// The largest size in points at which a line of text fits a box; 6 at least.
int FittingSize(const QString &family, const QString &text, QSize box);

/// The family that new clocks use: one with clear digits where it is installed, else the default.
QString NewClockFamily();

} // namespace ClockStudio
