// compose/: composes the elements of one clock and caches each until its content changes.
#pragma once

#include "compose/clock_glyphs.h"
#include "compose/clock_reading.h"
#include "compose/element.h"

#include <QDate>
#include <QPixmap>
#include <QPointer>

#include <array>
#include <optional>

namespace Lw::HNodeClock {

/// Elements refer to the loaded images and are valid until the next SetUp(). Each is updated on
/// demand; within one FrameScope the time is read only once.
class ElementComposer
{
public:
    /// Reads the node's settings, and its glyph images from the files recorded on it.
    void SetUp(HClockNode &node);
    /// The same with images from `source` instead of the node's files.
    void SetUp(HClockNode &node, const GlyphSource &source);

    /// Updates and returns the reading.
    const ClockReading &UpdateReading();
    /// The hour as the last time element showed it: reduced in 12-hour mode until the next update
    /// of the reading.
    int ShownHour() const { return m_shownHour; }
    /// Calls LunarCalendarSetup() for the standard-time date. Frames do so once per day.
    void UpdateLunarDate();

    const Element &Date();
    const Element &Time();
    const Element &Week();
    const Element &Lunar();
    const Element &TopText();

    // The same as pixmaps; null where the element is empty. The pixmap of an unchanged element is
    // kept.
    QPixmap DatePixmap() { return m_datePixmap.Of(Date()); }
    QPixmap TimePixmap() { return m_timePixmap.Of(Time()); }
    QPixmap WeekPixmap();
    QPixmap LunarPixmap(); ///< calls LunarCalendarSetup() each time
    QPixmap TopTextPixmap() { return m_glyphs.topText.Pixmap(); }

    /// While one exists, the elements show one instant: the time and the settings that it depends
    /// on are read only once.
    class FrameScope
    {
    public:
        explicit FrameScope(ElementComposer &composer);
        ~FrameScope();
        Q_DISABLE_COPY(FrameScope)

    private:
        ElementComposer &m_composer;
    };

private:
    // Keeps the pixmap of an element until the element changes.
    class DrawnElement
    {
    public:
        QPixmap Of(const Element &element);

    private:
        Element m_element;
        QPixmap m_pixmap;
    };

    // What an element was composed for: its format, numbers and images; nullopt until then.
    using Shown = std::optional<std::array<qint64, 5>>;
    static bool Replace(Shown &shown, const Shown &wanted); ///< returns whether they differed

    int Number(Attribute attribute) const;
    void SetUp(HClockNode &node, int clockType, const GlyphSource &source);
    QDate StandardDate() const;
    const GlyphStrip &AmPmMark(bool twelveHours);

    QPointer<HClockNode> m_node;
    ClockGlyphs m_glyphs;
    ClockReading m_reading;
    std::optional<std::array<GlyphStrip, 2>> m_fixedMarks; ///< AM, PM; in place of the live ones
    int m_dateType = 0;
    int m_shownHour = 0;
    int m_timeHour = 0;        ///< of the time element
    QDate m_lunarAsked;        ///< the Gregorian day of the last lunar update
    bool m_lunarKnown = false; ///< whether that day is in the calendar
    int m_lunarMonth = 0;
    int m_lunarDay = 0;

    std::optional<Element> m_topText;
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

    // What was updated within the current frame scope.
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
