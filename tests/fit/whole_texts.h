// What the texts of a clock have of ink where nothing limits it: each piece of a text drawn alone.
#pragma once

#include "calendar/clock_time.h"
#include "fit.h"

#include <QMap>

class WholeTexts
{
public:
    explicit WholeTexts(Lw::HNodeClock::HClockNode &node) : m_node(node) { }

    /// The parts that are told of: date, weekday, time and title.
    static bool Tells(ClockFit::Part part);
    /// Pixels of ink of a part that is shown at an instant.
    int Ink(ClockFit::Part part, qint64 utc);

private:
    QStringList Pieces(ClockFit::Part part) const;
    QStringList Date() const;
    QStringList Time() const;
    int Number(Lw::HNodeClock::Attribute digital, Lw::HNodeClock::Attribute analog) const;

    Lw::HNodeClock::HClockNode &m_node;
    Lw::HNodeClock::DisplayedFields m_shown;
    QMap<QString, int> m_known; ///< by font and text
};
