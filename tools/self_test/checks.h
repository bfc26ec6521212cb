// self_test/: the checks of clock_tool self-test.
#pragma once

#include <QString>
#include <QVector>

namespace ClockTool {

enum class Outcome { Ok, Failed, NotChecked };

struct CheckResult
{
    QString what;
    Outcome outcome = Outcome::Failed;
    QString why; ///< empty if the check passed
};

/// The lunar calendar on every day that it has, the Persian one on every day up to 19 March
/// 2061, and its leap years.
QVector<CheckResult> CheckCalendars();

/// Daylight saving a second before and at changes that have happened.
QVector<CheckResult> CheckDaylightSaving();

/// A frame of each kind of clock. The glyph images are made here and not from fonts, and nothing
/// is smoothed, so that the frames are the same on every machine. They are written to the
/// directory and read by the clocks from there; without a directory the frames fail.
QVector<CheckResult> CheckFrames(const QString &directory);

} // namespace ClockTool
