// The shapes of one hand at its positions, each painted when the hand is there for the first time.
#pragma once

#include "display/frames/kept_shape.h"

#include <QVarLengthArray>

#include <vector>

namespace Lw::HNodeClock {

/// The bytes that the shapes of one hand may have: those of the square that it moves in, and some
/// for the smallest clocks.
inline qint64 KeptLimit(const QSize &frame)
{
    const qint64 side = qMin(frame.width(), frame.height());
    return 4 * side * side + (32 << 10);
}

class KeptHand
{
public:
    /// All that the shapes depend on, but for the position.
    using Look = QVarLengthArray<qint64, 32>;

    /// A hand that has one position for each look.
    KeptHand() = default;
    explicit KeptHand(int positions) : m_positions(positions) { }
    bool HasPositions() const { return m_positions > 1; }

    /// The shape at a position, from 0. Where it is not kept yet it is made by paint(), which
    /// returns a KeptShape. Null where that is not made, where the shapes kept so far have more
    /// bytes than the limit, and for other positions: then the hand is to be painted. Valid until
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
