// calendar/: the system clock, for device_clock and for programs. In a file of its own, so that
// programs that load the plugin do not link a second replaceable time source.
#pragma once

#include <QDate>

namespace Lw::HNodeClock {

/// Milliseconds since 1970-01-01 UTC by the system clock. Read from the kernel in 64 bits: Qt 5
/// asks for a time_t, which ends in January 2038 on 32-bit machines.
qint64 SystemMilliseconds();

/// The date by the system clock, in UTC.
QDate SystemDate();

} // namespace Lw::HNodeClock
