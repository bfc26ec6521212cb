// display/frames/: a cache of one hand's shapes, one per position, painted lazily.
#pragma once

#include "display/frames/cached_shape.h"

#include <QVarLengthArray>

#include <vector>

namespace Lw::HNodeClock {

/// The most bytes that the shapes of one hand may take: those of the square it moves in, plus some
/// for very small clocks.
inline qint64 CacheLimit(const QSize &frame)
{
    const qint64 side = qMin(frame.width(), frame.height());
    return 4 * side * side + (32 << 10);
}

class HandCache
{
public:
    /// Everything the shapes depend on except the position.
    using CacheKey = QVarLengthArray<qint64, 32>;

    /// For a shape with a single position per key.
    HandCache() = default;
    explicit HandCache(int positions) : m_positions(positions) { }
    bool HasPositions() const { return m_positions > 1; }

    /// The shape at a position, from 0. If it is not cached yet it is created by paint(), which
    /// returns a CachedShape. Null for other positions, if it could not be created, or if it is
    /// not cached yet and the others already take more bytes than the limit: the hand must then be
    /// painted. Valid until the next call.
    template<typename Paint>
    const CachedShape *At(const CacheKey &key, int position, qint64 limit, Paint paint)
    {
        if (position < 0 || position >= m_positions)
            return nullptr;
        if (key != m_key || m_shapes.empty())
            Begin(key);
        CachedShape &shape = m_shapes[static_cast<std::size_t>(position)];
        if (!shape.IsMade() && m_bytes <= limit) {
            shape = paint();
            m_bytes += shape.Bytes();
        }
        return shape.IsMade() ? &shape : nullptr;
    }

private:
    void Begin(const CacheKey &key)
    {
        m_key = key;
        m_bytes = 0;
        m_shapes.clear();
        m_shapes.resize(static_cast<std::size_t>(m_positions));
    }

    int m_positions = 1;
    CacheKey m_key;
    qint64 m_bytes = 0;
    std::vector<CachedShape> m_shapes; // allocated with the first shape
};

} // namespace Lw::HNodeClock
