// Programs that show every format, style and shape of a kind of clock, in areas beside each other.
// Their clocks have identities, so that the names of their glyph files are known.
#pragma once

#include "clock_attributes.h"

#include <QByteArray>
#include <QList>

#include <cstddef>
#include <initializer_list>
#include <utility>

namespace ProgramSweeps {

namespace CodeNames = Lw::HNodeClock::CodeNames;

using Settings = std::initializer_list<std::pair<const char *, int>>;

constexpr int kSide = 160;
constexpr int kColumns = 5;

/// The codes of a table in turn.
template<std::size_t Count>
int CodeOf(const char *const (&)[Count], int i)
{
    return i % static_cast<int>(Count);
}

inline QByteArray Setting(const char *key, const QByteArray &value)
{
    return QByteArray("<attribute key=\"") + key + "\" value=\"" + value + "\"/>";
}

/// A clock of a type with these settings. It names fonts for everything that it shows.
inline QByteArray Clock(int type, const Settings &settings)
{
    QByteArray clock = "<clock timezone=\"+05:45\">";
    clock += Setting("ClockType", QByteArray::number(type));
    for (const char *kind : {"Analog", "Digital"}) {
        for (const char *font : {"TopTextFName", "DateFName", "TimeFName", "AMPMFName"})
            clock += Setting(QByteArray(kind).append(font).constData(), "DejaVu Sans");
        for (const char *font : {"WeekFName", "LunarFName"})
            clock += Setting(QByteArray(kind).append(font).constData(), "WenQuanYi Micro Hei");
    }
    clock += Setting("HourScaleFName", "DejaVu Sans");
    for (const auto &[key, value] : settings)
        clock += Setting(key, QByteArray::number(value));
    return clock + "</clock>";
}

inline QByteArray Program(const QList<QByteArray> &clocks)
{
    QByteArray areas;
    for (int i = 0; i < clocks.size(); ++i) {
        QByteArray clock = clocks.at(i);
        clock.replace("</clock>", Setting("Id", QByteArray::number(1000 + i)) + "</clock>");
        areas += "<area x=\"" + QByteArray::number(i % kColumns * kSide) + "\" y=\""
            + QByteArray::number(i / kColumns * kSide) + "\" width=\"" + QByteArray::number(kSide)
            + "\" height=\"" + QByteArray::number(kSide) + "\">" + clock + "</area>";
    }
    const int rows = (clocks.size() + kColumns - 1) / kColumns;
    return "<program width=\"" + QByteArray::number(kColumns * kSide) + "\" height=\""
        + QByteArray::number(rows * kSide) + "\">" + areas + "</program>";
}

/// Every date format, with the time formats, weekdays, hours and layouts in turn.
inline QByteArray Digital()
{
    QList<QByteArray> clocks;
    for (int i = 0; i < 20; ++i) {
        clocks += Clock(1,
                        {{"DigitalDateType", CodeOf(CodeNames::kDates, i)},
                         {"DigitalTimeType", CodeOf(CodeNames::kTimes, i)},
                         {"DigitalWeekType", CodeOf(CodeNames::kWeeks, i)},
                         {"DigitalMode", i % 2},
                         {"DigitalDisplayMode", i % 7 == 6},
                         {"Digital_Lunar_d", i % 3 == 0},
                         {"DigitalSwapArea", i % 2},
                         {"DigitalSpace", i % 4}});
    }
    return Program(clocks);
}

/// Every hour mark with every minute mark; shapes of hands, dates and weekdays in turn.
inline QByteArray Analog()
{
    QList<QByteArray> clocks;
    for (int i = 0; i < 15; ++i) {
        clocks += Clock(0,
                        {{"HourScaleType", i % 5},
                         {"MinuteScaleType", i / 5},
                         {"HourRectType", i % 2},
                         {"MinuteRectType", i / 2 % 2},
                         {"SecondRectType", i / 4 % 2},
                         {"AnalogDateType", CodeOf(CodeNames::kDates, i)},
                         {"AnalogWeekType", CodeOf(CodeNames::kWeeks, i)},
                         {"Analog_Lunar_d", i % 3 == 0}});
    }
    return Program(clocks);
}

/// Every style, and a number that is none.
inline QByteArray Picture()
{
    QList<QByteArray> clocks;
    for (int style = 0; style <= 10; ++style)
        clocks += Clock(2, {{"PictrueClockType", style}});
    return Program(clocks);
}

} // namespace ProgramSweeps
