// Draws placed elements into a frame, and into a frame drawn before only what differs.
#pragma once

#include "compose/element.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>

#include <array>

namespace Lw::HNodeClock {

/// Elements where they stand in a frame, in the order of drawing.
class Placements
{
public:
    struct Placed
    {
        Element element;
        QPoint position;

        QRect Rect() const { return QRect(position, element.Size()); }
    };

    void Add(const Element &element, const QPoint &position)
    {
        m_placed[static_cast<std::size_t>(m_count++)] = {element, position};
    }
    int Count() const { return m_count; }
    const Placed &At(int index) const { return m_placed[static_cast<std::size_t>(index)]; }
    bool operator==(const Placements &other) const;

private:
    std::array<Placed, 5> m_placed; ///< a clock has five elements at the most
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
    bool Knows(const QImage &image) const;

    qint64 m_imageKey = 0;
    Placements m_shown;
};

} // namespace Lw::HNodeClock
