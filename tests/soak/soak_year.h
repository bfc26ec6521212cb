// The instants of a simulated year, 2026 in Berlin: every second of the days around each change of
// daylight saving, month end and new year, every 61st second of the others.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QTimeZone>

class SoakYear
{
public:
    SoakYear();

    /// Milliseconds since 1970 of the frame after this one; -1 after the last.
    qint64 Next(qint64 instant);
    qint64 First() const { return m_first; }

    QDateTime CivilTime(qint64 instant) const; ///< by the system's zone data
    QDate StandardDate(qint64 instant) const;  ///< without daylight saving

private:
    bool IsEventful(const QDate &day) const;

    QTimeZone m_zone;
    qint64 m_first;
    qint64 m_end;
    qint64 m_dayEnd = 0; ///< of the day whose step is known
    qint64 m_step = 0;
};
