#include "calendar/calendar_deviations.h"

namespace Lw::HNodeClock {

QVector<DeviatingDays> LunarDeviations()
{
    return {
        {QDate(1933, 7, 22), QDate(1933, 8, 20)}, // a day ahead, like the two below
        {QDate(1996, 7, 15), QDate(1996, 8, 13)},
        {QDate(1996, 9, 12), QDate(1996, 10, 11)},
        {QDate(2033, 8, 25), QDate(2033, 12, 21)}, // the month is one too low
        {QDate(2051, 2, 11), QDate()},             // beyond the table
    };
}

QVector<DeviatingDays> PersianDeviations()
{
    return {
        {QDate(2025, 3, 20), QDate(2026, 3, 20)},
        {QDate(2058, 3, 20), QDate(2059, 3, 20)},
    };
}

} // namespace Lw::HNodeClock
