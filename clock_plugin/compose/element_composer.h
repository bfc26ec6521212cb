// Puts the elements of one clock together and keeps each until what it shows changes.
#pragma once

#include "compose/clock_glyphs.h"
#include "compose/clock_reading.h"
#include "compose/element.h"

#include <QPixmap>
#include <QPointer>

#include <array>
#include <optional>

namespace Lw::HNodeClock {

/// The elements are views on the loaded images: valid until the next set-up. Each is brought up to
/// date when it is asked for; within one ReadingScope the time is read once for all.
class ElementComposer
{
public:
    /// With the files recorded on the node, which are read now. The node's settings count.
    void SetUp(HClockNode &node);
    /// With other images than the node's files: those that the source gives now.
    void SetUp(HClockNode &node, const GlyphSource &source);

    const ClockReading &UpdateReading();
    const ClockReading &Reading() const { return m_reading; }
    /// The hour as the last time element showed it: lowered in twelve-hour mode until the next
    /// update of the reading.
    int ShownHour() const { return m_shownHour; }
    void UpdateLunarDate();

    const Element &Date();
    const Element &Time();
    const Element &Week();
    const Element &Lunar();
    const Element &TopText();

    // The same as pixmaps; null where the element is empty. An unchanged element gives the same
    // pixmap again.
    QPixmap DatePixmap() { return m_datePixmap.Of(Date()); }
    QPixmap TimePixmap() { return m_timePixmap.Of(Time()); }
    QPixmap WeekPixmap();
    QPixmap LunarPixmap() { return m_lunarPixmap.Of(Lunar()); }
    QPixmap TopTextPixmap() { return m_glyphs.topText.Pixmap(); }

    /// While one lives, the elements show one reading: the time, and the settings it depends on,
    /// are read only once.
    class ReadingScope
    {
    public:
        explicit ReadingScope(ElementComposer &composer);
        ~ReadingScope();
        Q_DISABLE_COPY(ReadingScope)

    private:
        ElementComposer &m_composer;
    };

private:
    // An element drawn, as long as it stays the same.
    class DrawnElement
    {
    public:
        QPixmap Of(const Element &element);

    private:
        Element m_element;
        QPixmap m_pixmap;
    };

    // What an element was made for.
    struct Shown
    {
        int format = 0;
        int first = 0;
        int second = 0;
        int third = 0;
        qint64 image = 0;
        bool made = false;

        bool Becomes(const Shown &wanted);
    };

    int Number(Attribute attribute) const;
    void SetUp(HClockNode &node, int clockType, const GlyphSource &source);
    const GlyphStrip &AmPmMark(bool twelveHours);

    QPointer<HClockNode> m_node;
    ClockGlyphs m_glyphs;
    ClockReading m_reading;
    LiveGlyph m_morningMark;
    LiveGlyph m_afternoonMark;
    std::optional<std::array<GlyphStrip, 2>> m_givenMarks; ///< AM, PM; in place of the live ones
    int m_dateType = 0;
    int m_shownHour = 0;
    int m_timeHour = 0; ///< of the time element
    int m_lunarMonth = 0;
    int m_lunarDay = 0;
    bool m_lunarKnown = false; ///< whether the day of the last lunar update is in the calendar

    bool m_topTextMade = false;
    Element m_topText;
    Element m_date;
    Element m_time;
    Element m_week;
    Element m_lunar;
    Shown m_dateShown;
    Shown m_timeShown;
    Shown m_weekShown;
    Shown m_lunarShown;
    DrawnElement m_datePixmap;
    DrawnElement m_timePixmap;
    DrawnElement m_lunarPixmap;

    // What was brought up to date within the scope that lives.
    struct Done
    {
        bool reading = false;
        bool time = false;
        bool lunar = false;
    };
    int m_scopes = 0;
    Done m_done;
};

} // namespace Lw::HNodeClock
