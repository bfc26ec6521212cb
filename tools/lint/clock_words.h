// lint/: the element and attribute names that a clock reads, from its import tables.
#pragma once

#include "clock_sdk_tables.h"

#include <QStringList>
#include <QVector>

namespace ClockTool {

/// A setting that an XML attribute is read into, and how.
struct ImportedSetting
{
    Lw::HNodeClock::Attribute target;
    Lw::HNodeClock::Conversion conversion;
};

/// The child elements that a clock of a type (0 analog, 1 digital) reads settings from.
QStringList ElementsRead(int clockType);

/// The XML attributes read from such an element; for an empty name, from the clock element itself.
QStringList AttributesRead(int clockType, const QString &element);

/// The settings that an attribute is read into; empty if it is not read.
QVector<ImportedSetting> SettingsReadFrom(int clockType, const QString &element,
                                          const QString &attribute);

/// The attribute to write instead of one that an export writes and the import ignores:
/// "format" for the "value" of a "date". Empty for all others.
QString ReadInPlaceOf(int clockType, const QString &element, const QString &attribute);

/// The element that is read instead of this one where both are present; empty for most.
QString ShadowOf(int clockType, const QString &element);

} // namespace ClockTool
