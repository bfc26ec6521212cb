// glyph/: moves a glyph image to a directory under its digest's name.
#pragma once

#include <QString>

namespace Lw::HNodeClock {

/// Moves the image at source to dest, whose file name is `digest`. The source is removed only once
/// dest has the same bytes; a dest whose content does not match its name is replaced. If source is
/// a symbolic link, the contents are copied and the link is removed; the file that it names is
/// kept. Does nothing without a digest: source is then missing or unreadable. Fails silently.
void MoveToDigestName(const QString &source, const QString &dest, const QString &digest);

} // namespace Lw::HNodeClock
