#include "wall_check.h"

#include "year_ink.h"

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

bool IsHand(const PartInk &ink)
{
    return ink.part == Part::SecondHand; // YearInkOf stores all hands under this part
}

class WallCheck
{
public:
    WallCheck(ClockCheck &check, const QVector<WallClock> &clocks)
        : m_check(check), m_clocks(clocks), m_inks(static_cast<std::size_t>(clocks.size())),
          m_isKnown(static_cast<std::size_t>(clocks.size()))
    { }

    std::vector<ClockOverlap> Overlaps()
    {
        std::vector<ClockOverlap> overlaps;
        for (int upper = 0; upper < m_clocks.size(); ++upper) {
            for (int lower = 0; lower < upper; ++lower) {
                const ClockOverlap overlap = Look(lower, upper);
                if (overlap.pixels > 0)
                    overlaps.push_back(overlap);
            }
        }
        return overlaps;
    }

private:
    ClockOverlap Look(int lower, int upper)
    {
        ClockOverlap most;
        if (!m_clocks[lower].area.intersects(m_clocks[upper].area))
            return most;
        most.lower = lower;
        most.upper = upper;
        most.isOfHands = true;
        for (const PartInk &under : InkOf(lower)) {
            for (const PartInk &over : InkOf(upper))
                Take(most, under, over);
        }
        most.isPicture = IsPicture(lower) || IsPicture(upper);
        return most;
    }

    // An overlap without hands takes precedence over one with hands.
    void Take(ClockOverlap &most, const PartInk &under, const PartInk &over)
    {
        const CommonInk common = FirstCommon(under, over, m_check.CheckedYear().begin);
        const bool isOfHands = IsHand(under) || IsHand(over);
        const bool isMore =
            most.isOfHands == isOfHands ? common.pixels > most.pixels : most.isOfHands;
        if (common.pixels == 0 || !isMore)
            return;
        most.lowerPart = under.part;
        most.upperPart = over.part;
        most.pixels = common.pixels;
        most.firstDay = common.day;
        most.isOfHands = isOfHands;
    }

    bool IsPicture(int clock) const { return m_clocks[clock].node->ClockType() == PictureClock; }

    const std::vector<PartInk> &InkOf(int clock)
    {
        const auto index = static_cast<std::size_t>(clock);
        if (!m_isKnown[index]) {
            HClockNode &node = *m_clocks[clock].node;
            m_inks[index] = YearInkOf(node, m_check.Images().SourceFor(node, SizesOf(node)),
                                      m_check.CheckedYear(), m_clocks[clock].area.topLeft());
            m_isKnown[index] = true;
        }
        return m_inks[index];
    }

    ClockCheck &m_check;
    const QVector<WallClock> &m_clocks;
    std::vector<std::vector<PartInk>> m_inks;
    std::vector<bool> m_isKnown;
};

OffScreen OffScreenOf(int clock, const QRect &area, const QSize &screen)
{
    OffScreen off;
    off.clock = clock;
    off.isWholly = !area.intersects(QRect(QPoint(0, 0), screen));
    off.left = std::max(0, -area.left());
    off.top = std::max(0, -area.top());
    off.right = std::max(0, area.left() + area.width() - screen.width());
    off.bottom = std::max(0, area.top() + area.height() - screen.height());
    return off;
}

} // namespace

QRect VisibleOf(const QRect &area, const QSize &screen)
{
    return (area & QRect(QPoint(0, 0), screen)).translated(-area.topLeft());
}

WallFindings CheckWall(ClockCheck &check, const QVector<WallClock> &clocks, const QSize &screen)
{
    WallFindings findings;
    const QRect whole(QPoint(0, 0), screen);
    for (int clock = 0; clock < clocks.size(); ++clock) {
        if (!whole.contains(clocks[clock].area))
            findings.offScreen.append(OffScreenOf(clock, clocks[clock].area, screen));
    }
    findings.overlaps = WallCheck(check, clocks).Overlaps();
    return findings;
}

} // namespace ClockFit
