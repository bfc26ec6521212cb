// Whether a clock makes of a text what its writer meant.
#pragma once

#include "clock_attributes.h"

#include <QString>

namespace Lw::HNodeClock {
enum class Conversion;
}

namespace ClockTool {

/// "0 dots; 1 squares"; empty where no number has a name.
QString NamedCodes(const Lw::HNodeClock::ValueRange &range);

/// "0 to 1"; empty where any number means something.
QString RangeText(const Lw::HNodeClock::ValueRange &range);

// Each gives what is wrong and what would be accepted, to follow the text in a sentence, or an
// empty text when nothing is.

/// For a text of a clock element that is read by a conversion into an attribute.
QString ImportFault(Lw::HNodeClock::Attribute target, Lw::HNodeClock::Conversion conversion,
                    const QString &text);

/// For the value of an "attribute" child.
QString StoredFault(Lw::HNodeClock::Attribute attribute, const QString &text);

/// For two daylight-saving rules that are valid or empty.
QString RulePairFault(const QString &start, const QString &end);

} // namespace ClockTool
