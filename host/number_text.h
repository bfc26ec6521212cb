// host/: numbers in the texts of attributes and of SDK XML.
#pragma once

#include <QString>

namespace Lw {

/// The decimal integer that a text has, perhaps with a sign and between white space; 0 for any
/// other text and for numbers that do not fit an int. The same with every Qt: version 6 by itself
/// knows less white space and ends a text at a character 0.
inline int NumberIn(const QString &text)
{
    return text.contains(QChar(QChar::Null)) ? 0 : text.trimmed().toInt();
}

} // namespace Lw
