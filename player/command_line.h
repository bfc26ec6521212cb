// player/: parses the command line into Options.
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
    QString pluginDirectory; ///< empty: ../plugins, relative to the executable's directory
    QString filesDirectory;  ///< for the glyph files; empty: a temporary one
    QString outputDirectory; ///< for the frames; empty: play on the display
    QString language;        ///< empty: the locale's
    QString platform;        ///< Qt platform plugin; empty: Qt's own choice
    int frames = kDefaultFrames;
    int magnification = 1; ///< pixels in the PNG file per screen pixel, in each direction
    int ledPitch = 0;      ///< LED pitch in pixels; 0: no LED preview
    double speed = 1;      ///< clock seconds per real second
    std::optional<qint64> startInstant; ///< UTC milliseconds; nothing: the system's time
    bool usesFiles = false;             ///< uses the program's own glyph files and generates none
    QPoint offset;                      ///< of the picture in its window, pixels
    int turn = 0;                       ///< of the picture, degrees clockwise: 0, 90, 180 or 270
    QString statusFile;                 ///< empty: none
    bool isKiosk = false;               ///< the device is unattended
    bool requiresTime = false;          ///< shows no clocks until the system clock is set
    bool allowsLargeFrames = false;     ///< beyond ClockProgram::kUsualFrameBytes
    bool watchesProgram = false;        ///< reloads the program file when it changes
    bool printsStats = false;           ///< prints the deadline statistics at the end
    bool checksDisplay = false;         ///< only checks whether the display can be opened

    bool WritesFrames() const { return !outputDirectory.isEmpty(); }
};

/// Called with each message for the user.
using Warn = std::function<void(const QString &)>;

/// The text of --help or --version, to be printed instead of playing.
struct Information
{
    QString text;
};

using CommandLine = std::variant<Options, Information, ClockProgram::Failure>;

/// Parses the arguments, including the program name. Needs an application object.
CommandLine ParseCommandLine(const QStringList &arguments);

} // namespace ClockPlayer
