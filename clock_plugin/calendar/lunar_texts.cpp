// The texts of the lunar calendar: cycle characters, animals, month and day names.
#include "calendar/lunar_calendar.h"
#include "calendar/time_units.h"

#include <cstring>

// clang-format off
// Written as bytes: in another encoding the characters would not fit their slots.
constexpr char Gan[10][3] = {
    "\xBC\xD7", "\xD2\xD2", "\xB1\xFB", "\xB6\xA1", "\xCE\xEC", "\xBC\xBA",
    "\xB8\xFD", "\xD0\xC1", "\xC8\xC9", "\xB9\xEF",
};
constexpr char Zhi[12][3] = {
    "\xD7\xD3", "\xB3\xF3", "\xD2\xFA", "\xC3\xAE", "\xB3\xBD", "\xCB\xC8",
    "\xCE\xE7", "\xCE\xB4", "\xC9\xEA", "\xD3\xCF", "\xD0\xE7", "\xBA\xA5",
};
constexpr char Animals[12][3] = {
    "\xCA\xF3", "\xC5\xA3", "\xBB\xA2", "\xCD\xC3", "\xC1\xFA", "\xC9\xDF",
    "\xC2\xED", "\xD1\xF2", "\xBA\xEF", "\xBC\xA6", "\xB9\xB7", "\xD6\xED",
};
constexpr char chinese_month[12][5] = {
    "\xD5\xFD", "\xB6\xFE", "\xC8\xFD", "\xCB\xC4", "\xCE\xE5", "\xC1\xF9",
    "\xC6\xDF", "\xB0\xCB", "\xBE\xC5", "\xCA\xAE", "\xB6\xAC", "\xC0\xB0",
};
constexpr char chinese_day[30][5] = {
    "01", "02", "03", "04", "05", "06", "07", "08", "09", "10",
    "11", "12", "13", "14", "15", "16", "17", "18", "19", "20",
    "21", "22", "23", "24", "25", "26", "27", "28", "29", "30",
};
// clang-format on

void get_chinese_era(int cycle, char *out)
{
    using Lw::HNodeClock::FloorModulo;
    std::memcpy(out, Gan[FloorModulo(cycle, 10)], 2);
    std::memcpy(out + 2, Zhi[FloorModulo(cycle, 12)], sizeof Zhi[0]);
}

void out_chinese(Lunar_info *info, char *out)
{
    const bool known = info->day >= 1 && info->day <= 30;
    std::strcpy(out, known ? chinese_day[info->day - 1] : "");
}
