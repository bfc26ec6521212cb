// Bringing the file of a glyph image to its place under its digest's name.
#pragma once

#include <QString>

namespace Lw::HNodeClock {

/// Moves the image at source to dest, which is named by the digest given. The image is removed only
/// once dest certainly has the same bytes; a dest that does not hold what its name says is
/// replaced. Of a source that is a symbolic link the contents move and the link goes; the file that
/// it names stays. Without a digest nothing is touched: source is missing or cannot be read.
/// Nothing is reported.
void MoveToDigestName(const QString &source, const QString &dest, const QString &digest);

} // namespace Lw::HNodeClock
