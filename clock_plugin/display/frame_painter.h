// Draws placed elements into a frame, and into a frame drawn before only what differs.
#pragma once

#include "compose/element.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QVarLengthArray>

#include <array>

namespace Lw::HNodeClock {

constexpr int kMostElements = 5; ///< of a clock

/// Elements where they stand in a frame, in the order of drawing. They belong to someone else.
class Placements
{
public:
    struct Placed
    {
        const Element *element = nullptr;
        QPoint position;
    };

    void Add(const Element &element, const QPoint &position)
    {
        m_placed[static_cast<std::size_t>(m_count++)] = {&element, position};
    }
    int Count() const { return m_count; }
    const Placed *begin() const { return m_placed.data(); }
    const Placed *end() const { return m_placed.data() + m_count; }

private:
    std::array<Placed, kMostElements> m_placed;
    int m_count = 0;
};

/// Remembers what an image holds. Images are told apart by their cache key, which changes with
/// every write: an image that anybody else drew into is simply not known.
class FrameContents
{
public:
    bool Describes(const QImage &image, const Placements &placements) const;
    /// Makes the image show the placements on the background and nothing else. It must be detached.
    /// What it shows already, as this knows it, is left alone.
    void Draw(QImage &image, const Placements &placements, const QColor &background);

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
    using Rects = QVarLengthArray<QRect, 32>;

    bool Knows(const QImage &image) const;
    Rects Take(const Placements &placements);
    static void AddChanged(const Shown &before, const Placements::Placed &after, Rects &changed);

    qint64 m_imageKey = 0;
    int m_count = 0;
    std::array<Shown, kMostElements> m_shown;
};

} // namespace Lw::HNodeClock
