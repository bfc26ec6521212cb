// What the person at the shell asked for.
#pragma once

#include "failure.h"

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <variant>

namespace ClockPlayer {

constexpr int kDefaultFrames = 10;
constexpr int kMaximumFrames = 1000000;
constexpr int kMaximumMagnification = 16;
constexpr double kMinimumSpeed = 0.01;
constexpr int kMaximumSpeed = 100000;

struct Options
{
    QString programPath;
    QString pluginDirectory; ///< empty: beside the program
    QString filesDirectory;  ///< for the glyph files; empty: a temporary one
    QString outputDirectory; ///< for the frames; empty: play on the display
    QString language;        ///< empty: the locale's
    QString platform;        ///< Qt platform plugin; empty: Qt's own choice
    int frames = kDefaultFrames;
    int magnification = 1; ///< pixels of the frames' files a pixel of the screen, each way
    int ledPitch = 0;      ///< pixels from diode to diode; 0: no preview of diodes
    double speed = 1;      ///< seconds of the clocks for each real one
    std::optional<qint64> startInstant; ///< UTC milliseconds; nothing: the system's time
    bool usesFiles = false;             ///< the glyph files that came with the program
    QPoint offset;                      ///< of the picture in its window, pixels
    int turn = 0;                       ///< of the picture, degrees clockwise: 0, 90, 180 or 270
    QString statusFile;                 ///< empty: none
    bool isKiosk = false;               ///< nobody attends the device
    bool requiresTime = false;          ///< shows no clock until the device's clock is set
    bool allowsLargeFrames = false;     ///< beyond ClockProgram::kUsualFrameBytes
    bool watchesProgram = false;        ///< plays the file again whenever it changes
    bool printsStats = false;           ///< of the deadline meter, at the end
    bool checkDisplay = false;          ///< only find out whether the display can be reached

    bool WritesFrames() const { return !outputDirectory.isEmpty(); }
};

/// Called with each sentence that the person at the shell should read.
using Warn = std::function<void(const QString &)>;

/// A text that was asked for instead of playing.
struct Information
{
    QString text;
};

using CommandLine = std::variant<Options, Information, ClockProgram::Failure>;

/// Reads the arguments, the program's own name first. Needs an application object.
CommandLine ParseCommandLine(const QStringList &arguments);

} // namespace ClockPlayer
