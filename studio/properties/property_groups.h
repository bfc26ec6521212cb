// studio/properties: what can be set of the chosen clocks.
// The attributes in the groups that people think in. Every attribute that means something to a kind
// of clock is in one group of it, or is the panel's own business.
#pragma once

#include "clock_attributes.h"

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
    /// The flag that shows what the group is about; Id where it is always shown.
    Lw::HNodeClock::Attribute shown;
    PropertyLine lines[kMaxLines]; ///< up to the first without attributes
};

/// In the order of the panel.
extern const PropertyGroup kPropertyGroups[];
extern const int kPropertyGroupCount;

/// Whether a kind of clock (see ClockTypeCode) uses something.
bool IsUsedBy(Lw::HNodeClock::ClockKinds clocks, int kind);

} // namespace ClockStudio
