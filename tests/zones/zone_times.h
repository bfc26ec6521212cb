// Instants and offsets for the tests of zones.
#pragma once

#include <QDateTime>

constexpr int kHour = 3600; // seconds

/// UTC milliseconds of a time such as "2024-03-31T01:00:00", in UTC.
inline qint64 At(const char *iso)
{
    QDateTime utc = QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODate);
    utc.setTimeSpec(Qt::UTC);
    return utc.toMSecsSinceEpoch();
}
