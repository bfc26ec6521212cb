// program/: options, messages and help text shared by the command lines of player and tools.
#pragma once

#include "failure.h"

#include <QString>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

namespace ClockProgram {

// Names of options that more than one program has.
inline constexpr char kHelp[] = "help";
inline constexpr char kVersion[] = "version";
inline constexpr char kOutput[] = "output";
inline constexpr char kLanguage[] = "language";
inline constexpr char kLargeFrames[] = "large-frames"; ///< allows what CheckFrameBytes() refuses

/// The environment variables that every program reads, as printed by --help.
inline constexpr char kSharedEnvironment[] =
    "  LC_ALL, LC_MESSAGES, LANG  language of the clocks' wording without --language;\n"
    "                             the first that is set\n"
    "  QT_FONT_DPI                dots per inch, for sizes in points (default: 96)\n"
    "  TMPDIR                     parent of temporary directories\n";

/// --help and --version.
void AddInformationOptions(QCommandLineParser &parser);

/// --language, of the clocks' wording.
void AddLanguageOption(QCommandLineParser &parser);

/// A failure for a language that has no catalogue.
MaybeFailure CheckLanguage(const QString &language);

/// The text of --help. The usage follows "Usage: " and replaces Qt's own first line, which has the
/// path of the program and no subcommand.
QString HelpText(const QCommandLineParser &parser, const QString &usage);

/// A command-line error.
Failure UsageFailure(const QString &text);

/// Writes to standard output in the locale's encoding. A failure gives the system's reason.
MaybeFailure PrintText(const QString &text);

/// Prints a text's lines to standard error, each prefixed with the program's name.
void PrintErrorLines(const char *program, const QString &text);

/// Sets 96 dots per inch where QT_FONT_DPI is unset, so that sizes in points are the same number of
/// pixels on every machine. Call it before constructing the application.
void FixFontResolution();

} // namespace ClockProgram
