#include "calendar/system_time.h"

#include <QDateTime>

#include <ctime>

namespace Lw::HNodeClock {

qint64 SystemMilliseconds()
{
    std::timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

QDate SystemDate()
{
    return QDateTime::fromMSecsSinceEpoch(SystemMilliseconds(), Qt::UTC).date();
}

} // namespace Lw::HNodeClock
