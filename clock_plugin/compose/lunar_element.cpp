// compose/: composes lunar dates in Chinese numerals.
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

namespace Lw::HNodeClock {

namespace {

// Cells of the lunar strip. Numeral n is cell n - 1, for n from one to ten.
constexpr int kLeadWord = 10; ///< "lunar calendar", two cells
constexpr int kMonthWord = 13;
constexpr int kEarlyDay = 15; ///< before days 1 to 10
constexpr int kFirstMonth = 16;

constexpr int Numeral(int number)
{
    return number - 1;
}

} // namespace

Element LunarElement(const GlyphStrip &strip, int month, int day)
{
    if (month < 1 || month > 12 || day < 1 || day > 30)
        return Element();
    const int cell = strip.Width() / kLunarCells;
    const int monthCells = month > 10 ? 5 : 4;
    const int dayCells = day > 20 && day < 30 ? 3 : 2;
    Element element(static_cast<long long>(cell) * (monthCells + dayCells), strip.Height());
    const auto add = [&](int index) { element.AddCell(strip, cell, index); };

    element.Add(strip, kLeadWord * cell, 2 * cell);
    if (month > 10)
        add(Numeral(10));
    add(month == 1 ? kFirstMonth : Numeral(month > 10 ? month % 10 : month));
    add(kMonthWord);

    if (day > 20) {
        add(Numeral(day / 10));
        add(Numeral(10));
        if (day != 30)
            add(Numeral(day % 10));
    } else if (day == 20) {
        add(Numeral(2));
        add(Numeral(10));
    } else {
        add(day > 10 ? Numeral(10) : kEarlyDay);
        add(Numeral(day > 10 ? day % 10 : day));
    }
    return element;
}

} // namespace Lw::HNodeClock
