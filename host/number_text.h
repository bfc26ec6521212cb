// host/: numbers in the texts of attributes and of SDK XML.
#pragma once

#include <QString>

namespace Lw {

/// A text as QString's conversions to numbers are given it: with every version of Qt the same white
/// space around a number is accepted, and a character 0 nowhere. Empty if it has one.
inline QString NumberText(const QString &text)
{
    return text.contains(QChar(QChar::Null)) ? QString() : text.trimmed();
}

/// The decimal integer in a text, with an optional sign and surrounding white space; 0 otherwise,
/// or if it does not fit an int.
inline int NumberIn(const QString &text, bool *isNumber = nullptr)
{
    return NumberText(text).toInt(isNumber);
}

} // namespace Lw
