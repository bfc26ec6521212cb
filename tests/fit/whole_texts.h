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
    /// By how many pixels that may differ from one drawing to the next: how FreeType fits the
    /// outlines of WenQuanYi Micro Hei to pixels depends on what it drew before, other sizes
    /// included. Other families are steady; characters that they lack are taken from that one.
    int Unsteadiness(ClockFit::Part part, qint64 utc);

private:
    void ReadAt(qint64 utc);
    QStringList Pieces(ClockFit::Part part) const;
    QStringList Date() const;
    QStringList Time() const;
    int Number(Lw::HNodeClock::Attribute digital, Lw::HNodeClock::Attribute analog) const;

    Lw::HNodeClock::HClockNode &m_node;
    Lw::HNodeClock::DisplayedFields m_shown;
    QMap<QString, int> m_known; ///< by font and text
};
