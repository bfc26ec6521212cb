// tools/: clock_tool zone: finds the clock settings for a time zone and checks them.
#include "commands.h"
#include "output.h"
#include "suggestion.h"
#include "tool_arguments.h"
#include "zone_refresh.h"
#include "zone_words/nearest_zone.h"

#include "calendar/system_time.h"
#include "clock_attributes.h"
#include "command_support.h"
#include "system_zones.h"

#include <QDateTime>

namespace ClockTool {

namespace {

using namespace ClockZones;
using namespace Lw::HNodeClock;

constexpr char kDescription[] =
    "Writes the settings with which a clock shows a zone's civil time, ready to paste into the\n"
    "<clock> of a program, and the result of comparing them with every change of the\n"
    "zone in ten years. Zones have their IANA names, such as Europe/Berlin. If several\n"
    "settings are right for all of that time, those that stay right longest afterwards are\n"
    "written, with the date until which they are.\n"
    "\n"
    "The end of daylight saving is in the zone's standard time, as clocks expect it: an hour\n"
    "before the published one.\n"
    "\n"
    "If a zone's time cannot be expressed exactly, the settings that are wrong for the shortest\n"
    "time are written, and every wrong time is listed.\n"
    "\n"
    "With --refresh it writes a program instead: each clock with daylight-saving rules that its\n"
    "zone no longer uses gets the zone's current settings; nothing else changes, not even white\n"
    "space or comments. The rules identify the zone. Each change is reported on standard error;\n"
    "-o may name the program itself.\n"
    "\n"
    "Exit codes: 0 exact, 1 not exact, no zone data, or a clock could not be refreshed, 2 wrong\n"
    "command line, 3 no such zone, or not a program.";

constexpr int kFirstYear = 1970;

const QString kList = QStringLiteral("list");
const QString kRefresh = QStringLiteral("refresh");
const QString kYear = QStringLiteral("year");

QString TextOf(qint64 utc)
{
    return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC).toString(Qt::ISODate);
}

QString SettingLines(const ZoneSettings &settings)
{
    QString lines;
    for (const ZoneValue &row : ZoneValues(settings))
        lines += QStringLiteral("<attribute key=\"%1\" value=\"%2\"/>\n")
                     .arg(Key(row.attribute), row.value);
    return lines;
}

QString Comment(const QString &text)
{
    return QStringLiteral("<!-- %1 -->\n").arg(text);
}

QString ErrorText(int seconds)
{
    const int size = qAbs(seconds);
    return QStringLiteral("%1:%2:%3 %4")
        .arg(size / 3600)
        .arg(size / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(size % 60, 2, 10, QLatin1Char('0'))
        .arg(QLatin1String(seconds > 0 ? "fast" : "slow"));
}

int YearBefore(qint64 utc)
{
    return DateOf(utc).left(4).toInt() - 1;
}

/// Zone rules change, so every result says when to check again.
QString CheckAgain(qint64 until)
{
    return QStringLiteral("; check again after %1").arg(YearBefore(until));
}

/// How long exact settings stay right beyond the ten years.
QString Lasting(qint64 until, const CivilTime &after)
{
    if (until < after.end)
        return Comment(QStringLiteral("They stay right until %1").arg(TextOf(until))
                       + CheckAgain(until));
    return Comment(QStringLiteral("They stay right until %1, where the system's zone data end")
                       .arg(DateOf(until))
                   + CheckAgain(until));
}

QString Verdict(const QString &zone, const CivilTime &civil, const QVector<WrongTime> &wrong)
{
    const QString span =
        QStringLiteral("from %1 to %2").arg(DateOf(civil.begin), DateOf(civil.end));
    if (wrong.isEmpty())
        return Comment(QStringLiteral("%1: exact %2; changes of the offset in that time: %3")
                           .arg(zone, span)
                           .arg(civil.changes.size()));
    QString text = Comment(QStringLiteral("%1: not exact %2; a clock cannot be set to its time. "
                                          "With these settings it is wrong:")
                               .arg(zone, span));
    for (const WrongTime &time : wrong)
        text += Comment(QStringLiteral("from %1 to %2: %3")
                            .arg(TextOf(time.begin), TextOf(time.end), ErrorText(time.error)));
    return text
        + Comment(QStringLiteral("Times after %1 were not checked").arg(DateOf(civil.end))
                  + CheckAgain(civil.end));
}

Failure NoZoneData()
{
    return {ExitCode::RuntimeFailure,
            QStringLiteral("the system has no zone data; install the Debian package tzdata")};
}

Failure NoSuchZone(const QString &name)
{
    if (!HasZoneData(ZoneNames()))
        return NoZoneData();
    const QString nearest = NearestZone(name);
    return {ExitCode::ProgramError,
            QStringLiteral("the system has no zone %1%2")
                .arg(Quoted(name),
                     nearest.isEmpty() ? QStringLiteral("; use a name such as Europe/Berlin")
                                       : QStringLiteral("; did you mean %1?").arg(nearest))};
}

/// The first day to check; invalid if the text is not a year in the range.
QDate FirstDay(const ToolArguments &tool)
{
    if (!tool.IsSet(kYear))
        return Lw::HNodeClock::SystemDate();
    const int year = tool.Value(kYear).toInt();
    return year >= kFirstYear && year <= kLastListedYear ? QDate(year, 1, 1) : QDate();
}

CommandResult ListZones(const ToolArguments &tool)
{
    const QList<QByteArray> names = ZoneNames();
    if (!HasZoneData(names))
        return Report(NoZoneData());
    return Deliver(tool.Output(), names.join('\n') + '\n');
}

CommandResult WriteSettings(const ToolArguments &tool, const Span &span)
{
    const QString name = tool.Positional(0);
    const auto civil = CivilTimeOf(name.toUtf8(), span);
    const auto after = CivilTimeOf(name.toUtf8(), ListedAfter(span));
    if (!civil || !after)
        return Report(NoSuchZone(name));
    if (span.begin >= span.end)
        return Report({ExitCode::RuntimeFailure,
                       QStringLiteral("the system's zone data end with %1; see --year")
                           .arg(YearBefore(span.end))});
    const ZoneSettings settings = BestSettings(*civil, *after);
    const QVector<WrongTime> wrong = WrongTimes(settings, *civil);
    const QString text = SettingLines(settings) + Verdict(name, *civil, wrong)
        + (wrong.isEmpty() ? Lasting(RightUntil(settings, *after), *after) : QString());
    const CommandResult delivered = Deliver(tool.Output(), text.toUtf8());
    if (delivered != ExitCode::Success)
        return delivered;
    return wrong.isEmpty() ? ExitCode::Success : ExitCode::RuntimeFailure;
}

CommandResult Refresh(const ToolArguments &tool, const QDate &today)
{
    if (!HasZoneData(ZoneNames()))
        return Report(NoZoneData());
    return RefreshZones(tool.Positional(0), tool.Output(),
                        QDateTime(today, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch());
}

} // namespace

CommandResult RunZone(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("zone"), QString::fromLatin1(kDescription));
    tool.AddPositional(
        QStringLiteral("ZONE"),
        QStringLiteral("The zone, such as Europe/Berlin; with --refresh a program."));
    tool.AddOption({kYear},
                   QStringLiteral("The ten years begin with <year>, %1 to %2 (default: today).")
                       .arg(kFirstYear)
                       .arg(kLastListedYear),
                   kYear);
    tool.AddOutput();
    tool.AddFlag(kRefresh, QStringLiteral("Write a program with current daylight-saving rules."));
    tool.AddAlternative(kList, QStringLiteral("List the system's zones, one per line."));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    if (tool.IsSet(kList))
        return ListZones(tool);
    const QDate first = FirstDay(tool);
    if (!first.isValid())
        return Report(ClockProgram::UsageFailure(QStringLiteral("--year needs a year from %1 to %2")
                                                     .arg(kFirstYear)
                                                     .arg(kLastListedYear)));
    if (tool.IsSet(kRefresh))
        return Refresh(tool, first);
    return WriteSettings(tool, TenYearsFrom(first));
}

} // namespace ClockTool
