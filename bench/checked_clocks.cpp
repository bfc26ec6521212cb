#include "checked_clocks.h"

#include "bench_support.h"

#include <cmath>

namespace bench {

using namespace ClockFit;
using namespace Lw::HNodeClock;

namespace {

constexpr QSize kArea(512, 256);
constexpr qint64 kBegin = Q_INT64_C(1709632800000); // 2024-03-05 10:00:00 UTC
using A = Attribute;

void ShowEverything(HClockNode &node, int points)
{
    for (const A shown :
         {A::Analog_TopTexy_d, A::Analog_Date_d, A::Analog_Week_d, A::Analog_Lunar_d,
          A::Analog_AMPM_d, A::Digital_TopTexy_d, A::Digital_Date_d, A::Digital_Week_d,
          A::Digital_Time_d, A::Digital_Lunar_d, A::DigitalMode, A::UseDaylightSavingTime})
        node.SetAttribute(Key(shown), 1, false);
    node.SetAttribute(Key(A::HourScaleType), 3, false); // twelve numerals
    for (const A size : {A::AnalogLunarFSize, A::DigitalLunarFSize})
        node.SetAttribute(Key(size), points, false);
    for (const A date : {A::AnalogDateType, A::DigitalDateType})
        node.SetAttribute(Key(date), 3, false); // months by name
    node.SetAttribute(Key(A::DaylightSavingTimeStart), QStringLiteral("3.Last.7.02:00:00"), false);
    node.SetAttribute(Key(A::DaylightSavingTimeEnd), QStringLiteral("10.Last.7.02:00:00"), false);
}

} // namespace

CheckedClocks::CheckedClocks(int clockType, int count, int points)
{
    const int columns = static_cast<int>(std::ceil(std::sqrt(count)));
    for (int clock = 0; clock < count; ++clock) {
        const int own = points - clock % (points * 2 / 3);
        m_nodes.push_back(NewNode(clockType, kArea, own));
        ShowEverything(*m_nodes.back(), own);
        const QPoint place(clock % columns * kArea.width(), clock / columns * kArea.height());
        m_wall.append({m_nodes.back().get(), QRect(place, kArea)});
    }
    m_screen = kArea * columns;
}

int CheckedClocks::Check() const
{
    ClockCheck check(YearFrom(kBegin));
    int found = 0;
    for (const WallClock &clock : m_wall) {
        const ClockFindings findings = check.Check(*clock.node);
        found += findings.cuts.size() + findings.overlaps.size();
    }
    return found + static_cast<int>(CheckWall(check, m_wall, m_screen).overlaps.size());
}

} // namespace bench
