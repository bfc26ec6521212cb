// The options of the command line: their names, and what --help says of them.
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

namespace ClockPlayer {

const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");
const QString kOutput = QStringLiteral("output");
const QString kFrames = QStringLiteral("frames");
const QString kMagnify = QStringLiteral("magnify");
const QString kLed = QStringLiteral("led");
const QString kAt = QStringLiteral("at");
const QString kSpeed = QStringLiteral("speed");
const QString kStats = QStringLiteral("stats");
const QString kLanguage = QStringLiteral("language");
const QString kPluginDir = QStringLiteral("plugin-dir");
const QString kFilesDir = QStringLiteral("files-dir");
const QString kUseFiles = QStringLiteral("use-files");
const QString kPlatform = QStringLiteral("platform");
// For scripts that start the player: what to play, and where to write, when nothing was said.
const QString kDefaultProgram = QStringLiteral("default-program");
const QString kDefaultOutput = QStringLiteral("default-output");
const QString kCheckDisplay = QStringLiteral("check-display");

/// Adds the options, the description and the one argument.
void AddOptions(QCommandLineParser &parser);

/// The languages that can be chosen, for people.
QString LanguageList();

} // namespace ClockPlayer
