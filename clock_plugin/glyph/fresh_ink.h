// glyph/: the ink of glyph images that were just drawn, so that a clock that loads their files next
// need not decode them.
#pragma once

#include "glyph/ink.h"

#include <QByteArray>
#include <QCache>

namespace Lw::HNodeClock {

/// Keyed by the whole content of the file: a file that was replaced is not found. Takes at most
/// 64 KiB per thread (LRU).
class FreshInk
{
public:
    /// The one of the calling thread.
    static FreshInk &OfThread();

    /// Keeps the ink of an image whose file has this content, unless it is too large or no ink.
    void Keep(const QByteArray &png, const QImage &image);
    /// The ink of a file with this content, which is then no longer kept; nullopt if there is none.
    std::optional<Ink> Take(const QByteArray &png);
    void Clear() { m_ink.clear(); }

private:
    FreshInk();

    QCache<QByteArray, Ink> m_ink;
};

} // namespace Lw::HNodeClock
