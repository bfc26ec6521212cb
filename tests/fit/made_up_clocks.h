// Clocks of all kinds, formats, languages and sizes, made up from a seed.
#pragma once

#include "clock_node.h"

#include <QString>
#include <QTemporaryDir>

#include <random>

/// A node with glyph images in a directory of its own. Every part has another colour.
class MadeUpClock
{
public:
    MadeUpClock(quint32 seed, quint32 number);

    Lw::HNodeClock::HClockNode node;
    QString language; ///< of the wording, which is installed
    qint64 begin = 0; ///< of the year to be looked at, UTC milliseconds

    /// What the clock is like, for a message.
    QString Description();

private:
    int Draw(int least, int most);
    template<typename Value>
    void Set(Lw::HNodeClock::Attribute attribute, const Value &value);
    void SetTime();
    void SetFonts();
    void SetDigital();
    void SetAnalog();

    std::mt19937 m_random;
    QTemporaryDir m_directory;
};
