// The seconds that clock_player_seconds has its clocks show, one after the other however slow the
// machine is: none is left out.
#pragma once

#include <QtGlobal>

namespace bench::ToldSeconds {

constexpr int kFirstSeconds = 70; ///< after these, hands of a whole minute have been drawn

/// For SetTimeSource(): the second, and what has passed of it, so that all areas wait for the same
/// end of it. Milliseconds since 1970.
long long Tell();

/// How fast the seconds pass; 1 at first.
void SetSpeed(double speed);

/// The next second begins now.
void Advance();

qint64 Count();

} // namespace bench::ToldSeconds
