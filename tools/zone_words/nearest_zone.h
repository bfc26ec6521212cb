// zone_words/: the zone that an unknown name probably means.
#pragma once

#include <QString>

namespace ClockTool {

/// Recognises a city without its continent, one that shares the zone of another city, or a typing
/// error. Empty if there is none.
QString NearestZone(const QString &name);

} // namespace ClockTool
