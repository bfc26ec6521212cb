// lint/: checks whether a clock reads a value as its author meant it.
#pragma once

#include "clock_attributes.h"

#include <QString>

namespace Lw::HNodeClock {
enum class Conversion;
}

namespace ClockTool {

/// "0 dots; 1 squares"; empty where no number has a name.
QString NamedCodes(const Lw::HNodeClock::ValueRange &range);

/// "0 to 1"; empty if any number is valid.
QString RangeText(const Lw::HNodeClock::ValueRange &range);

// Each returns what is wrong and what would be accepted, as the rest of a sentence, or an
// empty text when nothing is.

/// For a text of a clock element that is read by a conversion into an attribute.
QString ImportFault(Lw::HNodeClock::Attribute target, Lw::HNodeClock::Conversion conversion,
                    const QString &text);

/// For the value of an "attribute" child.
QString StoredFault(Lw::HNodeClock::Attribute attribute, const QString &text);

/// For two daylight-saving rules that are valid or empty.
QString RulePairFault(const QString &start, const QString &end);

} // namespace ClockTool
