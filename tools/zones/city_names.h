// Large cities that have no zone named after them.
#pragma once

#include <QString>

namespace ClockTool {

/// The zone that a city is in, whatever its case, with "_" or blanks between words; empty for a
/// city that is not listed.
QString ZoneOfCity(const QString &city);

} // namespace ClockTool
