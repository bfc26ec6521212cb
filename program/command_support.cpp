#include "command_support.h"

#include "catalogues.h"
#include "whole_file.h"

#include <QCommandLineParser>

#include <cerrno>
#include <cstdio>

namespace ClockProgram {

namespace {

QString LanguageList()
{
    return ClockCatalogues::Languages().join(QStringLiteral(", "));
}

} // namespace

void AddInformationOptions(QCommandLineParser &parser)
{
    parser.addOption(
        {{QStringLiteral("h"), QLatin1String(kHelp)}, QStringLiteral("Show this text.")});
    parser.addOption(
        {{QStringLiteral("v"), QLatin1String(kVersion)}, QStringLiteral("Show the version.")});
}

void AddLanguageOption(QCommandLineParser &parser)
{
    parser.addOption({QLatin1String(kLanguage),
                      QStringLiteral("Language of the clocks' wording: %1 (default: the locale's).")
                          .arg(LanguageList()),
                      QStringLiteral("language")});
}

MaybeFailure CheckLanguage(const QString &language)
{
    if (ClockCatalogues::Languages().contains(language))
        return std::nullopt;
    return UsageFailure(
        QStringLiteral("unknown language \"%1\"; accepted: %2").arg(language, LanguageList()));
}

QString HelpText(const QCommandLineParser &parser, const QString &usage)
{
    const QString text = parser.helpText();
    return QStringLiteral("Usage: ") + usage + text.mid(text.indexOf(QLatin1Char('\n')));
}

Failure UsageFailure(const QString &text)
{
    return {ExitCode::UsageError, text + QStringLiteral(" (see --help)")};
}

MaybeFailure PrintText(const QString &text)
{
    return WriteStandardOutput(text.toLocal8Bit());
}

void PrintErrorLines(const char *program, const QString &text)
{
    for (const QString &line : text.split(QLatin1Char('\n')))
        std::fprintf(stderr, "%s: %s\n", program, qPrintable(line));
}

void FixFontResolution()
{
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
}

} // namespace ClockProgram
