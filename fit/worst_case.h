// fit/: records the first and the worst instant of a value that varies over a year.
#pragma once

#include <QtGlobal>

namespace ClockFit {

struct WorstCase
{
    int most = 0; ///< 0 until a value above 0 is taken
    qint64 firstUtc = 0;
    qint64 worstUtc = 0;

    /// Ignores values of 0 or less. Instants may come in any order.
    void Take(int value, qint64 utc) { Take(value, utc, utc); }
    /// Records a value reached at `worst`, and the instant `first` of the first value above 0.
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
    /// Whether no value up to `value` at `utc` or later can change the result.
    bool Covers(int value, qint64 utc) const { return most >= value && worstUtc < utc; }
};

} // namespace ClockFit
