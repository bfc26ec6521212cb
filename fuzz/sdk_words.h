// The words that clocks are written with, from the tables that read and write them.
#pragma once

#include <QStringList>

namespace Fuzz {

/// Names of elements and attributes of a clock's element, each once.
const QStringList &SdkWords();

/// Keys of a clock's attributes.
const QStringList &AttributeKeys();

} // namespace Fuzz
