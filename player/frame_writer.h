// player/: writes the frames of a stage to PNG files, one per second of clock time.
#pragma once

#include "failure.h"

#include <functional>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

class DeadlineMeter;

struct FrameRun
{
    QString directory; ///< exists; files of the frames' names are replaced
    int count = 0;
    int magnification = 1;          ///< each pixel becomes a square with sides of this many pixels,
    int ledPitch = 0;               ///< or, unless 0, an LED with this pitch in pixels
    double speed = 1;               ///< seconds of the clocks from frame to frame
    qint64 start = 0;               ///< UTC milliseconds; the first frame shows its whole second
    DeadlineMeter *meter = nullptr; ///< records how long the frames took to draw; may be null
    std::function<void()> onFirstFrame; ///< called before the first frame is written
    std::function<bool()> shouldStop;   ///< asked after each frame; true ends the run early
};

/// Starts the stage and writes its frames. The plugins must take their time from StageTime, and
/// the timers of the host's player must be off (time scale 0).
ClockProgram::MaybeFailure WriteFrames(ClockStage::Stage &stage, const FrameRun &run);

/// The file name of a frame, counted from 1. Names of one run sort in the order of the frames.
QString FrameName(int number, int count);

} // namespace ClockPlayer
