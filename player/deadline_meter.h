// How long frames take to draw, and how long after its whole second each one is seen. Pure: all
// times are arguments, in milliseconds.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

#include <optional>

namespace ClockPlayer {

/// Least, middle, 99th percentile and greatest. Middle and percentile are the nearest ranks among
/// the newest 86400 numbers, a day of seconds; the others are of all.
class Spread
{
public:
    static constexpr int kKept = 86400;

    void Add(double number);
    bool IsEmpty() const { return m_kept.isEmpty(); }
    double Minimum() const { return m_minimum; }
    double Maximum() const { return m_maximum; }
    /// The smallest kept number that the given share of them does not exceed.
    double Percentile(int percent) const;
    double Median() const { return Percentile(50); }

private:
    QVector<double> m_kept;
    int m_oldest = 0;
    double m_minimum = 0;
    double m_maximum = 0;
};

/// A frame that was seen.
struct SeenFrame
{
    qint64 instant = 0; ///< UTC milliseconds that it was drawn for
    double begun = 0;   ///< when, by a clock that only ever runs,
    double seen = 0;    ///< and when it had reached the display
    double drawing = 0; ///< spent on drawing
    double speed = 1;   ///< shown seconds for each real one
};

class DeadlineMeter
{
public:
    /// A frame that nobody waited for: it was drawn, and was not late.
    void Drew(double milliseconds);
    /// The first frame after a jump, and one that shows no later second than the one before, have
    /// no whole second to be late for.
    void Saw(const SeenFrame &frame);
    /// Time was changed on purpose, or nobody could see: the next frame is a first one.
    void Jumped() { m_last.reset(); }

    /// Seconds between two frames that no frame showed.
    qint64 MissedSeconds() const { return m_missedSeconds; }
    /// Times that the system's clock was found stepped between two frames.
    int ClockSteps() const { return m_clockSteps; }
    /// Presentations of a second that was on the display already: an area came late.
    int SecondPresentations() const { return m_secondPresentations; }
    int Frames() const { return m_frames; }
    const Spread &Drawing() const { return m_drawing; }
    const Spread &Lateness() const { return m_lateness; } ///< in real milliseconds

    /// All of it in lines for people, and for programs that look for "missed seconds: 0".
    QStringList Report() const;

private:
    bool FollowsOn(const SeenFrame &frame) const;

    std::optional<SeenFrame> m_last;
    int m_frames = 0;
    qint64 m_missedSeconds = 0;
    int m_clockSteps = 0;
    int m_secondPresentations = 0;
    Spread m_drawing;
    Spread m_lateness;
};

} // namespace ClockPlayer
