// stage/: parses ISO 8601 instants from the command line.
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace ClockStage {

/// Milliseconds since 1970-01-01 UTC of an ISO 8601 instant, or nothing for any other text:
///
///     instant = date [ "T" hh ":" mm [ ":" ss [ ( "." | "," ) 1*3digit ] ] [ offset ] ]
///     date    = yyyy "-" MM "-" dd
///     offset  = "Z" | ( "+" | "-" ) hh [ [ ":" ] mm ]
///
/// Without an offset the instant is UTC; without a time it is midnight.
std::optional<qint64> ParseInstant(const QString &text);

/// Rounds an instant down to the whole second, also before 1970.
qint64 WholeSecond(qint64 milliseconds);

} // namespace ClockStage
