// host/: numbers in the texts of attributes and of SDK XML.
#pragma once

#include <QString>

namespace Lw {

/// A text for QString's conversions to numbers, which then accept the same with every version of
/// Qt: any white space around the number, the minus sign of typography, no character 0.
inline QString NumberText(const QString &text)
{
    return text.contains(QChar(QChar::Null))
        ? QString()
        : text.trimmed().replace(QChar(0x2212), QLatin1Char('-'));
}

/// The decimal integer in a text, with an optional sign and surrounding white space; 0 otherwise,
/// or if it does not fit an int.
inline int NumberIn(const QString &text, bool *isNumber = nullptr)
{
    return NumberText(text).toInt(isNumber);
}

} // namespace Lw
