#include "frame_history.h"

namespace {

constexpr qint64 kHour = 3600000;
constexpr qint64 kDay = 24 * kHour;

} // namespace

void FrameHistory::Add(qint64 instant)
{
    if (m_kind != Soak::Analog) {
        m_frames = {instant};
        return;
    }
    if (instant >= m_knownUntil)
        AddToDial(instant);
    m_frames = m_written;
    if (m_before >= m_written.last() && m_before != m_frames.last())
        m_frames.append(m_before);
    if (instant != m_frames.last())
        m_frames.append(instant);
    m_before = instant;
}

void FrameHistory::AddToDial(qint64 instant)
{
    m_knownUntil = instant / kHour * kHour + kHour;
    const QDateTime civil = m_year.CivilTime(instant);
    const Dial dial {instant / kDay, civil.time().hour() < 12};
    const Rows rows {civil.date(), m_year.StandardDate(instant)};
    const bool newDial = dial.deviceDay != m_dial.deviceDay || dial.morning != m_dial.morning;
    const bool newRows = rows.date != m_rows.date || rows.lunarDate != m_rows.lunarDate;
    if (newDial)
        m_written.clear();
    if (newDial || newRows)
        m_written.append(instant);
    m_dial = dial;
    m_rows = rows;
}
