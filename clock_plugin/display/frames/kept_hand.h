// display/frames/: a cache of one hand's shapes, one per position, painted lazily.
#pragma once

#include "display/frames/kept_shape.h"

#include <QVarLengthArray>

#include <vector>

namespace Lw::HNodeClock {

/// The most bytes that the shapes of one hand may take: those of the square it moves in, plus some
/// for very small clocks.
inline qint64 KeptLimit(const QSize &frame)
{
    const qint64 side = qMin(frame.width(), frame.height());
    return 4 * side * side + (32 << 10);
}

class KeptHand
{
public:
    /// Everything the shapes depend on except the position.
    using Look = QVarLengthArray<qint64, 32>;

    /// A hand that has one position for each look.
    KeptHand() = default;
    explicit KeptHand(int positions) : m_positions(positions) { }
    bool HasPositions() const { return m_positions > 1; }

    /// The shape at a position, from 0. If it is not cached yet it is created by paint(), which
    /// returns a KeptShape. Null if it could not be made, if the shapes cached so far take more
    /// bytes than the limit, and for other positions: the hand must then be painted. Valid until
    /// the next call.
    template<typename Paint>
    const KeptShape *At(const Look &look, int position, qint64 limit, Paint paint)
    {
        if (position < 0 || position >= m_positions)
            return nullptr;
        if (look != m_look || m_shapes.empty())
            Begin(look);
        KeptShape &shape = m_shapes[static_cast<std::size_t>(position)];
        if (!shape.IsMade() && m_bytes <= limit) {
            shape = paint();
            m_bytes += shape.Bytes();
        }
        return shape.IsMade() ? &shape : nullptr;
    }

private:
    void Begin(const Look &look)
    {
        m_look = look;
        m_bytes = 0;
        m_shapes.clear();
        m_shapes.resize(static_cast<std::size_t>(m_positions));
    }

    int m_positions = 1;
    Look m_look;
    qint64 m_bytes = 0;
    std::vector<KeptShape> m_shapes; // none before the first, for clocks of other kinds
};

} // namespace Lw::HNodeClock
