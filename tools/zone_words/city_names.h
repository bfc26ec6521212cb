// zone_words/: large cities that have no zone named after them.
#pragma once

#include <QString>

namespace ClockTool {

/// The zone of a city (case-insensitive, "_" or spaces between words); empty for a
/// city that is not listed.
QString ZoneOfCity(const QString &city);

} // namespace ClockTool
