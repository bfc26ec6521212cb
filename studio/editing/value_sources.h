// studio/editing: where a clock's values are set in the text, or would be.
#pragma once

#include "text/parsed_program.h"

#include "clock_attributes.h"
#include "clock_sdk_tables.h"

#include <optional>

namespace ClockStudio {

// The XML attributes of an "attribute" child.
inline const QString kKeyName = QStringLiteral("key");
inline const QString kValueName = QLatin1String(Lw::HNodeClock::Sdk::kValue);

/// Where a value is set: an XML attribute of an element; the name is empty if it is not set.
struct ValueSource
{
    int element = -1;
    QString attribute;
    Lw::HNodeClock::Conversion conversion = Lw::HNodeClock::Conversion::Text;
    bool isStored = false; ///< an <attribute> child, whose value is in the stored form

    bool IsNothing() const { return attribute.isEmpty(); }
};

/// Where a value that is not set yet would be set.
struct NewValueSource
{
    QString element; ///< element to create; empty if it exists
    ValueSource source;
};

// The clock is the index of its element.

/// The last "attribute" child with the key.
ValueSource StoredSource(const ParsedProgram &parsed, int clock,
                         Lw::HNodeClock::Attribute attribute);

/// Where the value is set: the last "attribute" child with the key, else the last imported source.
ValueSource SourceOf(const ParsedProgram &parsed, int clock, int kind,
                     Lw::HNodeClock::Attribute attribute);

/// The usual place for a new value: the specific element, under the documented name. Elements that
/// set several attributes at once (font, clockCom) are not used. Nothing if only an "attribute"
/// child can set it.
std::optional<NewValueSource> NewSourceOf(const ParsedProgram &parsed, int clock, int kind,
                                          Lw::HNodeClock::Attribute attribute);

} // namespace ClockStudio
