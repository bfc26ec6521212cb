// Which frames a picture of a clock depends on: that frame, and for an analog clock those before it
// that left their text rows on the dial. A new renderer that plays these alone must come to the
// same picture as one that has played all.
#pragma once

#include "soak_clock.h"
#include "soak_year.h"

#include <QVector>

class FrameHistory
{
public:
    FrameHistory(const SoakYear &year, Soak::Kind kind) : m_year(year), m_kind(kind) { }

    void Add(qint64 instant); ///< the frames in the order in which they are played
    const QVector<qint64> &Frames() const { return m_frames; } ///< ends with the last one added

private:
    /// The dial is redrawn when one of these changes.
    struct Dial
    {
        qint64 deviceDay; ///< the device's own zone is UTC
        bool morning;
    };
    /// What the rows show.
    struct Rows
    {
        QDate date;
        QDate lunarDate;
    };
    void AddToDial(qint64 instant);

    const SoakYear &m_year;
    Soak::Kind m_kind;
    QVector<qint64> m_frames;
    QVector<qint64> m_written; ///< the frames since the dial was drawn that brought new rows
    qint64 m_before = -1;
    qint64 m_knownUntil = 0; ///< nothing changes before: the next whole hour
    Dial m_dial {-1, false};
    Rows m_rows;
};
