// lint/: finds where a program sets an attribute of a clock.
#pragma once

#include "finding.h"

#include "clock_attributes.h"

#include <QDomElement>

namespace ClockTool {

struct SettingPlace
{
    QDomElement element; ///< an "attribute" child, a child that is imported, or the clock itself
    QString attribute;   ///< the XML attribute with the value; empty where nothing sets it

    bool IsSet() const { return !attribute.isEmpty(); }
};

/// The place that takes effect: the last "attribute" child with the key, else the last element
/// whose XML attribute is read into it; an import takes the first of each name. The kind is 0
/// analog or 1 digital. Where nothing sets it, the clock.
SettingPlace PlaceOf(const QDomElement &clock, int clockType, Lw::HNodeClock::Attribute attribute);

/// The same as a finding's place: an "attribute" child is named by its key.
Place FindingPlace(const SettingPlace &place);

} // namespace ClockTool
