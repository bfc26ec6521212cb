// What the library shows to programs that load it or link against it. Everything else is hidden.
#pragma once

#include <QtGlobal>

#define CLOCK_EXPORT Q_DECL_EXPORT
