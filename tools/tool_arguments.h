// tools/: the command line of one subcommand.
#pragma once

#include "commands.h"

#include <QCommandLineParser>

#include <optional>

namespace ClockTool {

/// The description, named arguments and options of a subcommand.
class ToolArguments
{
public:
    /// The name is the subcommand's.
    ToolArguments(const QString &name, const QString &description);

    /// A name that ends in "..." takes one or more arguments, in brackets any number, and must come
    /// last.
    void AddPositional(const QString &name, const QString &description);
    /// An option with a value.
    void AddOption(const QStringList &names, const QString &description, const QString &value,
                   const QString &defaultValue = {});
    /// An option without a value that replaces the positional arguments.
    void AddAlternative(const QString &name, const QString &description);
    void AddFlag(const QString &name, const QString &description); ///< an option without a value
    void AddOutput();                                              ///< -o FILE
    void AddLanguage();    ///< --language, for commands that make glyph images
    void AddYear();        ///< --at, for commands that check a year
    void AddLargeFrames(); ///< --large-frames, for commands that draw a program's clocks

    /// Parses the arguments, which start with "clock_tool NAME". Returns an exit code if nothing
    /// is left to do: after --help, --version and errors.
    std::optional<CommandResult> Parse(const QStringList &arguments);

    QStringList Positionals() const { return m_parser.positionalArguments(); }
    QString Positional(int index) const { return Positionals().value(index); }
    QString Value(const QString &option) const { return m_parser.value(option); }
    bool IsSet(const QString &option) const { return m_parser.isSet(option); }
    QString Output() const; ///< empty: standard output
    bool AllowsLargeFrames() const;
    /// The start of the year to check in UTC milliseconds; now without the option. Fails if the
    /// value is not an instant.
    Result<qint64> YearBegin() const;

    /// Installs the language's catalogue; a failure where there is none.
    MaybeFailure InstallLanguage() const;

private:
    MaybeFailure CheckGiven() const;

    QString m_name;
    QStringList m_positionals;
    QString m_alternative;
    bool m_writesOutput = false;
    QCommandLineParser m_parser;
};

} // namespace ClockTool
