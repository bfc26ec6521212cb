// The first and the worst instant of something that changes over a year.
#pragma once

#include <QtGlobal>

namespace ClockFit {

struct WorstCase
{
    int most = 0; ///< 0 while there was nothing
    qint64 firstUtc = 0;
    qint64 worstUtc = 0;

    /// Nothing for a value of 0 or less. Instants may come in any order.
    void Take(int value, qint64 utc) { Take(value, utc, utc); }
    /// A value that is reached at an instant, and when anything above 0 is first reached.
    void Take(int value, qint64 first, qint64 worst)
    {
        if (value <= 0)
            return;
        if (most == 0 || first < firstUtc)
            firstUtc = first;
        if (value > most || (value == most && worst < worstUtc))
            worstUtc = worst;
        most = qMax(most, value);
    }
    /// Whether no value up to this, from an instant on, changes anything.
    bool Covers(int value, qint64 utc) const { return most >= value && worstUtc < utc; }
};

} // namespace ClockFit
