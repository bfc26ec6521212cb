// Whether the families of a clock have the characters that it shows.
#pragma once

#include "fit.h"

namespace ClockFit {

/// The family that Qt uses in place of one; the same where it is installed. An empty one is the
/// application's default font.
QString FamilyUsed(const QString &family);
bool IsInstalled(const QString &family);

/// What the family lacks of the characters; no part is named. Nothing where it has them all.
std::optional<MissingCharacters> MissingOf(const QString &family, int points,
                                           const QString &characters);

} // namespace ClockFit
