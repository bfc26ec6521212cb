// zone_words/: the zone that an unknown name probably means.
#pragma once

#include <QString>

namespace ClockTool {

/// The zone that an unknown name probably means: a city without its continent, one that
/// shares the zone of another city, or a typing error. Empty when there is none.
QString NearestZone(const QString &name);

} // namespace ClockTool
