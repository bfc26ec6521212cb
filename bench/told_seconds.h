// bench/: the time source of clock_player_seconds: one second after the other, however slow the
// machine is; none is skipped.
#pragma once

#include <QtGlobal>

namespace bench::ToldSeconds {

constexpr int kFirstSeconds = 70; ///< enough to draw the hands of a whole minute

/// For SetTimeSource(): the second and the part of it that has passed, so that all areas wait for
/// the same end of it. Milliseconds since 1970.
long long Tell();

/// How fast the seconds pass; 1 at first.
void SetSpeed(double speed);

/// Begins the next second.
void Advance();

qint64 Count(); ///< calls of Advance() so far

} // namespace bench::ToldSeconds
