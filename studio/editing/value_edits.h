// studio/editing: finds where the text sets a clock's attribute, and makes the edits that change
// its value.
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

/// The clock node that the plugin creates for an area; null if it creates none.
std::unique_ptr<Lw::HNodeClock::HClockNode> ClockOf(const ParsedProgram &parsed, int area);

/// The edits after which the plugin reads these values for a clock, and all others unchanged. A
/// value is changed where the text sets it now; a new one is written in its usual element, or as an
/// "attribute" element where that would change other values too.
TextEdits ValueEdits(const ParsedProgram &parsed, int area, const QVector<StoredValue> &values);

/// The edits that reset an attribute to its default: its setting is removed, if that suffices.
TextEdits ResetEdits(const ParsedProgram &parsed, int area, Lw::HNodeClock::Attribute attribute);

/// The edits that change the clock's kind (see ClockTypeCode).
TextEdits KindEdits(const ParsedProgram &parsed, int area, int kind);

/// An attribute's default, as stored (text defaults are in the clocks' language).
QString DefaultValue(Lw::HNodeClock::Attribute attribute);

/// The range of the element that sets an attribute's value; the clock's start tag if none does.
TextRange PlaceOf(const ParsedProgram &parsed, int area, Lw::HNodeClock::Attribute attribute);

} // namespace ClockStudio
