// clock_plugin/: CLOCK_EXPORT marks the symbols that the library exports; all others are hidden.
#pragma once

#include <QtGlobal>

#define CLOCK_EXPORT Q_DECL_EXPORT
