// The digital clock drawn the plain way: every glyph file loaded each time, every element composed
// on a canvas of its own, every frame filled and drawn whole. Slow and simple; what the plugin
// draws is compared with it.
#pragma once

#include "clock_node.h"

#include <QDateTime>
#include <QImage>
#include <QPixmap>

class PlainDigitalClock
{
public:
    /// The numbers to be shown; year, month and day in the calendar of the date format.
    struct Shown
    {
        int year = 0;
        int month = 0;
        int day = 0;
        int hour = 0; ///< 0 to 23
        int minute = 0;
        int second = 0;
        int dayOfWeek = 0; ///< 1 Monday
        int lunarMonth = 0;
        int lunarDay = 0;
    };

    explicit PlainDigitalClock(Lw::HNodeClock::HClockNode &node) : m_node(node) { }

    static Shown Gregorian(const QDateTime &reading);

    QPixmap Date(const Shown &shown);
    QPixmap Time(const Shown &shown);
    QPixmap Week(const Shown &shown);
    QPixmap Lunar(const Shown &shown);
    QPixmap TopText();
    QImage Frame(const Shown &shown);

private:
    struct DateDigits
    {
        QPixmap year;
        QPixmap month;
        QPixmap day;
    };

    DateDigits DigitsOf(const Shown &shown);
    QPixmap DateWithMonthName(const Shown &shown);
    QPixmap DateWithLabels(const Shown &shown);
    QPixmap DateWithSeparators(const Shown &shown);
    QPixmap TimeOfDay(int hour, int minute, int second);
    QPixmap File(const char *key);
    int Number(const char *key);

    Lw::HNodeClock::HClockNode &m_node;
};
