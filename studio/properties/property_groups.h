// studio/properties: the attributes grouped as the panel shows them. Every attribute that a kind of
// clock uses is in exactly one of its groups, or is handled by the panel itself.
#pragma once

#include "clock_attributes.h"

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockStudio {

constexpr int kMaxOnLine = 3;
constexpr int kMaxLines = 7;

/// Attributes side by side.
struct PropertyLine
{
    const char *label = nullptr; ///< translated in the context ClockStudio::PropertyGroups
    int count = 0;
    Lw::HNodeClock::Attribute attributes[kMaxOnLine] = {};
};

struct PropertyGroup
{
    const char *title;
    Lw::HNodeClock::ClockKinds clocks;
    /// The flag that shows or hides what the group sets; Id if it is always shown.
    Lw::HNodeClock::Attribute shown;
    PropertyLine lines[kMaxLines]; ///< ends at the first line without attributes
};

/// In the order of the panel.
extern const PropertyGroup kPropertyGroups[];
extern const int kPropertyGroupCount;

/// Whether `clocks` includes a kind of clock (see ClockTypeCode).
bool IsUsedBy(Lw::HNodeClock::ClockKinds clocks, int kind);

/// Whether a clock uses an attribute of a group and shows what the group sets.
bool ShowsProperty(Lw::HNodeClock::HClockNode &clock, Lw::HNodeClock::Attribute attribute);

} // namespace ClockStudio
