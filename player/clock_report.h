// player/: what the status file says about the clocks: their offsets, and until when they are
// right.
#pragma once

#include "rules_end.h"

#include <QJsonArray>
#include <QVector>

namespace Lw {
class HNode;
}

namespace ClockPlayer {

struct ClockReport
{
    QJsonArray clocks;   ///< one object per clock
    QJsonArray warnings; ///< one object per clock that is wrong, or will be within 90 days
};

/// The report for `instant`, in UTC milliseconds. `rules` caches when zones' rules end.
ClockReport ReportClocks(const QVector<Lw::HNode *> &nodes, qint64 instant,
                         ClockZones::RulesEnds &rules);

} // namespace ClockPlayer
