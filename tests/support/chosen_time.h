// The plugin's time, chosen by a test.
#pragma once

#include "calendar/device_clock.h"

#include <QDateTime>

namespace ChosenTime {

inline long long &Milliseconds()
{
    static long long milliseconds = 0;
    return milliseconds;
}

/// The plugin reads this instant from now on.
inline void Set(const QDateTime &instant)
{
    Milliseconds() = instant.toMSecsSinceEpoch();
    clock_set_time_source([] { return Milliseconds(); });
}

/// "2024-03-05T13:07:42", in UTC.
inline void Set(const QString &instant)
{
    QDateTime utc = QDateTime::fromString(instant, Qt::ISODateWithMs);
    utc.setTimeSpec(Qt::UTC);
    Q_ASSERT(utc.isValid());
    Set(utc);
}

inline void Set(const char *instant)
{
    Set(QString::fromLatin1(instant));
}

inline void Advance(int milliseconds)
{
    Milliseconds() += milliseconds;
}

} // namespace ChosenTime
