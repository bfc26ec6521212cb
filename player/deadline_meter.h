// player/: measures how long frames take to draw, and how long after its whole second each one
// appears. Pure: all times are arguments, in milliseconds.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

#include <optional>

namespace ClockPlayer {

/// Minimum, median, 99th percentile and maximum. Median and percentile are nearest ranks among
/// the newest 86400 numbers, one day; minimum and maximum are over all.
class Spread
{
public:
    static constexpr int kKept = 86400;

    void Add(double number);
    bool IsEmpty() const { return m_kept.isEmpty(); }
    double Minimum() const { return m_minimum; }
    double Maximum() const { return m_maximum; }
    /// The nearest-rank percentile: the smallest kept number that at least `percent` % of them do
    /// not exceed; 0 if there are none.
    double Percentile(int percent) const;
    double Median() const { return Percentile(50); }

private:
    QVector<double> m_kept;
    int m_oldest = 0;
    double m_minimum = 0;
    double m_maximum = 0;
};

/// A frame that was presented on the display.
struct PresentedFrame
{
    qint64 instant = 0;   ///< UTC milliseconds that it was drawn for
    double begun = 0;     ///< when drawing began, in milliseconds of the monotonic clock
    double presented = 0; ///< when it had reached the display, by the same clock
    double drawing = 0;   ///< spent on drawing
    double speed = 1;     ///< shown seconds for each real one
};

class DeadlineMeter
{
public:
    /// A frame without a deadline: only its drawing time counts.
    void AddDrawn(double milliseconds);
    /// Counts a frame shown on the display. The first one after a jump, and one that shows the same
    /// second again, have no lateness.
    void AddPresented(const PresentedFrame &frame);
    /// The time was changed on purpose, or the window was hidden: the next frame counts as the
    /// first.
    void Jumped() { m_last.reset(); }

    /// Seconds skipped between two frames.
    qint64 MissedSeconds() const { return m_missedSeconds; }
    /// How often the system clock was stepped between two frames.
    int ClockSteps() const { return m_clockSteps; }
    /// Repeated presentations of the same second, when an area was late.
    int RepeatedPresentations() const { return m_repeatedPresentations; }
    int Frames() const { return m_frames; }
    const Spread &Drawing() const { return m_drawing; }
    const Spread &Lateness() const { return m_lateness; } ///< in real milliseconds

    /// The statistics as lines of text; scripts search for "missed seconds: 0".
    QStringList Report() const;

private:
    bool FollowsOn(const PresentedFrame &frame) const;

    std::optional<PresentedFrame> m_last;
    int m_frames = 0;
    qint64 m_missedSeconds = 0;
    int m_clockSteps = 0;
    int m_repeatedPresentations = 0;
    Spread m_drawing;
    Spread m_lateness;
};

} // namespace ClockPlayer
