// studio/editing: what people do to a wall, as changes of its text.
// Where the text says a clock's attribute, and the edit that makes it say something else.
#pragma once

#include "text/program_edits.h"

#include "clock_attributes.h"

#include <memory>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockStudio {

/// A value as the clock stores it: numbers in decimal, colours as the host's number.
struct StoredValue
{
    Lw::HNodeClock::Attribute attribute;
    QString text;
};

/// The clock that the plugin makes of an area; null where it makes none.
std::unique_ptr<Lw::HNodeClock::HClockNode> ClockOf(const ProgramReading &reading, int area);

/// The edits with which the plugin reads these values of a clock, and nothing else differently. A
/// value is changed where the text says it now; a new one is written as people write it, or as an
/// "attribute" element where that would change other values too.
TextEdits ValueEdits(const ProgramReading &reading, int area, const QVector<StoredValue> &values);

/// The edits that give an attribute the value of a new clock: what says it is removed, where that
/// is enough.
TextEdits ResetEdits(const ProgramReading &reading, int area, Lw::HNodeClock::Attribute attribute);

/// The edits that make it another kind of clock (see ClockTypeCode).
TextEdits KindEdits(const ProgramReading &reading, int area, int kind);

/// A new clock's value, in the language of the clocks; the host's number for a colour.
QString DefaultValue(Lw::HNodeClock::Attribute attribute);

/// The place of what says an attribute's value in the text; the clock's first tag where nothing
/// does.
TextRange PlaceOf(const ProgramReading &reading, int area, Lw::HNodeClock::Attribute attribute);

} // namespace ClockStudio
