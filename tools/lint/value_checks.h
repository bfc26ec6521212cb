// Whether a clock makes of a text what its writer meant.
#pragma once

#include "clock_attributes.h"

#include <QString>

#include <optional>

namespace Lw::HNodeClock {
enum class Conversion;
}

namespace ClockTool {

/// The numbers that mean something to an attribute; where a switch takes any number, the two that
/// are documented.
struct CodeRange
{
    int first;
    int last;
};

/// Nothing where any number does, and for attributes that are no numbers.
std::optional<CodeRange> CodesOf(Lw::HNodeClock::Attribute attribute);

// Each gives what is wrong and what would be accepted, to follow the text in a sentence, or an
// empty text when nothing is.

/// For a text of a clock element that is read by a conversion into an attribute.
QString ImportFault(Lw::HNodeClock::Attribute target, Lw::HNodeClock::Conversion conversion,
                    const QString &text);

/// For the value of an "attribute" child.
QString StoredFault(Lw::HNodeClock::Attribute attribute, const QString &text);

/// For two daylight-saving rules, each of which is sound.
QString RulePairFault(const QString &start, const QString &end);

} // namespace ClockTool
