#include "display/frames/placements.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

QRect PieceRect(const Element &element, const QPoint &position, const Piece &piece)
{
    const QRect rect(position.x() + piece.x, position.y() + piece.rows.first, piece.width,
                     piece.rows.count);
    return rect & QRect(position, element.Size());
}

} // namespace

bool ShownPlacements::Match(const Placements &placements) const
{
    return m_count == placements.Count()
        && std::equal(placements.begin(), placements.end(), m_shown.begin(),
                      [](const auto &placed, const Shown &shown) { return shown.Is(placed); });
}

// A moved or resized element changes as a whole; otherwise only those of its pieces that differ.
void ShownPlacements::AddChanged(const Shown &before, const Placements::Placed &after,
                                 Rects &changed)
{
    const QPoint position = after.position;
    if (before.Rect() != after.Rect()) {
        changed.append(before.Rect());
        changed.append(after.Rect());
        return;
    }
    const int count = qMax(before.element.Count(), after.element->Count());
    for (int i = 0; i < count; ++i) {
        const bool was = i < before.element.Count();
        const bool is = i < after.element->Count();
        if (was && is && before.element.At(i) == after.element->At(i))
            continue;
        if (was)
            changed.append(PieceRect(before.element, position, before.element.At(i)));
        if (is)
            changed.append(PieceRect(*after.element, position, after.element->At(i)));
        if (was && is && changed.last() == changed.at(changed.size() - 2))
            changed.removeLast();
    }
}

ShownPlacements::Rects ShownPlacements::Replace(const Placements &placements)
{
    Rects changed;
    Shown *shown = m_shown.data();
    Shown *const end = shown + m_count;
    for (const Placements::Placed &placed : placements) {
        if (shown >= end)
            *shown = Shown();
        if (!shown->Is(placed)) {
            AddChanged(*shown, placed, changed);
            *shown = {*placed.element, placed.position};
        }
        ++shown;
    }
    for (; shown < end; ++shown)
        changed.append(shown->Rect());
    m_count = placements.Count();
    return changed;
}

ShownPlacements::Rects ShownPlacements::ChangesSince(const ShownPlacements &before) const
{
    Placements placements;
    for (int i = 0; i < m_count; ++i) {
        const Shown &shown = m_shown[static_cast<std::size_t>(i)];
        placements.Add(shown.element, shown.position);
    }
    return ShownPlacements(before).Replace(placements);
}

} // namespace Lw::HNodeClock
