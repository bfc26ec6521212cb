// display/frames/: elements and their positions in a frame, and the rectangles in which two sets
// differ.
#pragma once

#include "compose/element.h"

#include <QPoint>
#include <QRect>
#include <QVarLengthArray>

#include <array>

namespace Lw::HNodeClock {

constexpr int kMaxElements = 5; ///< of a clock

/// In drawing order. The elements are not owned.
class Placements
{
public:
    struct Placed
    {
        const Element *element = nullptr;
        QPoint position;

        QRect Rect() const { return QRect(position, element->Size()); }
    };

    void Add(const Element &element, const QPoint &position)
    {
        m_placed[static_cast<std::size_t>(m_count++)] = {&element, position};
    }
    int Count() const { return m_count; }
    const Placed *begin() const { return m_placed.data(); }
    const Placed *end() const { return m_placed.data() + m_count; }

private:
    std::array<Placed, kMaxElements> m_placed;
    int m_count = 0;
};

/// Remembers placements after their elements and images are gone.
class ShownPlacements
{
public:
    using Rects = QVarLengthArray<QRect, 32>;

    bool Match(const Placements &placements) const;
    /// Replaces the remembered placements and returns the rectangles in which old and new differ.
    Rects Replace(const Placements &placements);
    /// The rectangles in which these placements differ from `before`.
    Rects ChangesSince(const ShownPlacements &before) const;

private:
    struct Shown
    {
        Element element; // a copy: its strips may be gone
        QPoint position;

        QRect Rect() const { return QRect(position, element.Size()); }
        bool Is(const Placements::Placed &placed) const
        {
            return position == placed.position && element == *placed.element;
        }
    };
    static void AddChanged(const Shown &before, const Placements::Placed &after, Rects &changed);

    int m_count = 0;
    std::array<Shown, kMaxElements> m_shown;
};

} // namespace Lw::HNodeClock
