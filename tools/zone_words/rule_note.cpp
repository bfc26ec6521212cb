#include "rule_note.h"

#include "rules_end.h"
#include "system_zones.h"

#include "calendar/clock_time.h"

#include <QCoreApplication>
#include <QHash>

namespace ClockTool {

namespace {

using namespace ClockZones;
using namespace Lw::HNodeClock;

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockTool::RuleNote", text);
}

/// The rule one hour earlier on the same day; empty if that falls on the day before.
QString HourEarlier(const QString &text)
{
    const auto rule = ParseDaylightRule(text);
    if (!rule || rule->time.hour() == 0)
        return {};
    const QString time = FormatAscii(rule->time.addSecs(-3600), "hh:mm:ss");
    return text.section(QLatin1Char('.'), 0, 2) + QLatin1Char('.') + time;
}

RuleNote NoteFor(const ZoneSettings &settings, const Span &span)
{
    const QByteArray zone = ZoneWith(settings, span);
    if (!zone.isEmpty())
        return {Translated(QT_TRANSLATE_NOOP("ClockTool::RuleNote",
                                             "these rules give the time of %1 until %2"))
                    .arg(QString::fromLatin1(zone), DateOf(span.end).left(4)),
                {}};
    ZoneSettings earlier = settings;
    earlier.end = HourEarlier(settings.end);
    const QByteArray meant = earlier.end.isEmpty() ? QByteArray() : ZoneWith(earlier, span);
    if (meant.isEmpty()) // rules with a known end have a finding of their own
        return {RulesEnds().Of(settings, span.begin)
                    ? QString()
                    : Translated(
                        QT_TRANSLATE_NOOP("ClockTool::RuleNote", "no known zone uses these rules")),
                {}};
    return {
        Translated(QT_TRANSLATE_NOOP(
                       "ClockTool::RuleNote",
                       "daylight saving ends an hour late for %2: the end is in standard time, an "
                       "hour before the published one; accepted: %1"))
            .arg(earlier.end, QString::fromLatin1(meant)),
        earlier.end};
}

} // namespace

RuleNote NoteOnRules(const ZoneSettings &settings, const QDate &today)
{
    const Span span = TenYearsFrom(today);
    if (!ParseDaylightRule(settings.start) || !ParseDaylightRule(settings.end)
        || span.begin >= span.end || !HasZoneData(ZoneNames()))
        return {};
    // The clocks of a program have few different rules.
    static QHash<QString, RuleNote> notes;
    const QStringList parts {settings.ZoneText(), settings.start, settings.end, DateOf(span.begin)};
    RuleNote &note = notes[parts.join(QLatin1Char('\n'))];
    if (note.text.isEmpty())
        note = NoteFor(settings, span);
    return note;
}

} // namespace ClockTool
