#include "rule_note.h"

#include "zones/system_zones.h"

#include "calendar/clock_time.h"

#include <QHash>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

/// The rule an hour earlier on its day; empty where that is another day.
QString HourEarlier(const QString &text)
{
    const auto rule = ParseDaylightRule(text);
    if (!rule || rule->time.hour() == 0)
        return {};
    const QString time = PlainText(rule->time.addSecs(-3600), "hh:mm:ss");
    return text.section(QLatin1Char('.'), 0, 2) + QLatin1Char('.') + time;
}

QString NoteFor(const ZoneSettings &settings, const Span &span)
{
    const QByteArray zone = ZoneWith(settings, span);
    if (!zone.isEmpty())
        return QStringLiteral("this rule gives the time of %1 until %2")
            .arg(QString::fromLatin1(zone), DateOf(span.end).left(4));
    ZoneSettings earlier = settings;
    earlier.end = HourEarlier(settings.end);
    const QByteArray meant = earlier.end.isEmpty() ? QByteArray() : ZoneWith(earlier, span);
    if (meant.isEmpty())
        return QStringLiteral("no zone known has this rule");
    return QStringLiteral("no zone known has this rule; with the end %1 it gives the time of %2, "
                          "for the end is in the zone's standard time too")
        .arg(earlier.end, QString::fromLatin1(meant));
}

} // namespace

QString RuleNote(const ZoneSettings &settings, const QDate &today)
{
    const Span span = TenYearsFrom(today);
    if (!ParseDaylightRule(settings.start) || !ParseDaylightRule(settings.end)
        || span.begin >= span.end || ZoneNames().isEmpty())
        return {};
    // The clocks of a program have few different rules.
    static QHash<QString, QString> notes;
    const QStringList parts {settings.ZoneText(), settings.start, settings.end, DateOf(span.begin)};
    QString &note = notes[parts.join(QLatin1Char('\n'))];
    if (note.isEmpty())
        note = NoteFor(settings, span);
    return note;
}

} // namespace ClockTool
