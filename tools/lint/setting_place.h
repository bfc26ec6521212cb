// lint/: finds where a program sets an attribute of a clock.
#pragma once

#include "finding.h"

#include "clock_attributes.h"

#include <QDomElement>
#include <QVector>

namespace ClockTool {

struct SettingPlace
{
    QDomElement element; ///< an "attribute" child, a child that is imported, or the clock itself
    QString attribute;   ///< the XML attribute with the value; empty where nothing sets it

    bool IsSet() const { return !attribute.isEmpty(); }
};

/// The child elements that an import reads, in its order: the first of each name. The kind is 0
/// analog or 1 digital.
QVector<QDomElement> ChildrenRead(const QDomElement &clock, int clockType);

/// The place that takes effect: the last "attribute" child with the key, else the last element read
/// that has an XML attribute for it. Where nothing sets it, the clock.
SettingPlace PlaceOf(const QDomElement &clock, int clockType, Lw::HNodeClock::Attribute attribute);

/// The same as a finding's place: an "attribute" child is named by its key.
Place FindingPlace(const SettingPlace &place);

} // namespace ClockTool
