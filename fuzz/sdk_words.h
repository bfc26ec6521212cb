// fuzz/: the names in a clock's XML, from the tables that import and export it.
#pragma once

#include <QStringList>

namespace Fuzz {

/// Names of elements and attributes of a clock's element, each once.
const QStringList &SdkWords();

/// Keys of a clock's attributes.
const QStringList &AttributeKeys();

} // namespace Fuzz
