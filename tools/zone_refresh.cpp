#include "zone_refresh.h"

#include "clock_nodes.h"
#include "output.h"
#include "setting_edits.h"

#include "calendar/clock_time.h"
#include "clock_terms.h"
#include "command_support.h"
#include "system_zones.h"
#include "xml_document.h"

#include <QDateTime>

namespace ClockTool {

namespace {

using namespace ClockZones;
using namespace Lw::HNodeClock;

bool AreSame(const ZoneSettings &one, const ZoneSettings &other)
{
    return one.offset == other.offset && one.start == other.start && one.end == other.end;
}

/// The settings that all of these zones have now; nothing if they differ.
std::optional<ZoneSettings> CommonSettings(const QList<QByteArray> &zones, const QDate &today)
{
    const Span span = TenYearsFrom(today);
    std::optional<ZoneSettings> common;
    for (const QByteArray &zone : zones) {
        const auto civil = CivilTimeOf(zone, span);
        const auto after = CivilTimeOf(zone, ListedAfter(span));
        if (!civil || !after)
            return std::nullopt;
        const ZoneSettings settings = BestSettings(*civil, *after);
        if (common && !AreSame(*common, settings))
            return std::nullopt;
        common = settings;
    }
    return common;
}

class Refresh
{
public:
    Refresh(const ProgramClocks &clocks, qint64 now)
        : m_clocks(clocks), m_now(now), m_today(QDateTime::fromMSecsSinceEpoch(now, Qt::UTC).date())
    { }

    QVector<SettingChange> Changes()
    {
        QVector<SettingChange> changes;
        for (int area = 0; area < m_clocks.Count(); ++area) {
            const auto terms = ClockStage::TermsOf(&m_clocks.Clock(area));
            const auto end = terms ? m_rules.Of(terms->zone, m_now) : std::nullopt;
            if (end && end->isListed && end->until <= m_now)
                changes += ChangesOf(area, terms->zone, *end);
        }
        return changes;
    }

    bool IsComplete() const { return m_isComplete; }

private:
    QVector<SettingChange> ChangesOf(int area, const ZoneSettings &own, const RulesEnd &end)
    {
        const std::optional<ZoneSettings> settings = CommonSettings(end.all, m_today);
        if (!settings || AreSame(*settings, own)) {
            m_isComplete = false;
            Tell(area, Unchanged(end, settings.has_value()));
            return {};
        }
        QVector<SettingChange> changes;
        for (const ZoneValue &row : ZoneValues(*settings)) {
            const QString before = m_clocks.Clock(area).GetAttribute(Key(row.attribute));
            const bool isSameZone =
                row.attribute == Attribute::TimeZone && ParseZoneOffset(before) == settings->offset;
            if (before == row.value || isSameZone)
                continue;
            changes.append({area, row.attribute, row.value});
            Tell(area,
                 QStringLiteral("%1 changed from \"%2\" to \"%3\" (%4)")
                     .arg(Key(row.attribute), before, row.value, QString::fromLatin1(end.zone)));
        }
        return changes;
    }

    static QString Unchanged(const RulesEnd &end, bool isAlike)
    {
        if (isAlike)
            return QStringLiteral("%1 left these rules on %2, but no others are better")
                .arg(QString::fromLatin1(end.zone), DateOf(end.until));
        return QStringLiteral("zones that left these rules on %1 differ now: %2; choose with "
                              "\"clock_tool zone\"")
            .arg(DateOf(end.until), QString::fromLatin1(end.all.join(", ")));
    }

    void Tell(int area, const QString &text) const
    {
        const ClockProgram::Program &program = m_clocks.program;
        Say(ClockProgram::AtElement(program.path, program.areas[area].element, text));
    }

    const ProgramClocks &m_clocks;
    const qint64 m_now;
    const QDate m_today;
    RulesEnds m_rules;
    bool m_isComplete = true;
};

} // namespace

QVector<ZoneValue> ZoneValues(const ZoneSettings &settings)
{
    return {
        {Attribute::TimeZone, settings.ZoneText()},
        {Attribute::UseDaylightSavingTime, QString::number(settings.HasDaylightSaving() ? 1 : 0)},
        {Attribute::DaylightSavingTimeStart, settings.start},
        {Attribute::DaylightSavingTimeEnd, settings.end}};
}

CommandResult RefreshZones(const QString &path, const QString &output, qint64 now)
{
    const Result<QByteArray> contents = ClockProgram::ReadContents(path);
    if (!contents)
        return Report(contents.Error());
    const Result<ProgramClocks> clocks = ParseClocks(*contents, path);
    if (!clocks)
        return Report(clocks.Error());
    Refresh refresh(*clocks, now);
    const QVector<SettingChange> changes = refresh.Changes();
    const Result<QByteArray> refreshed =
        changes.isEmpty() ? contents : WithSettings(*contents, path, changes);
    if (!refreshed)
        return Report(refreshed.Error());
    const CommandResult delivered = Deliver(output, *refreshed);
    return delivered == ExitCode::Success && !refresh.IsComplete() ? ExitCode::RuntimeFailure
                                                                   : delivered;
}

} // namespace ClockTool
