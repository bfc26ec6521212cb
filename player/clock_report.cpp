#include "clock_report.h"

#include "clock_status.h"
#include "clock_terms.h"

#include "hnode.h"
#include "node_keys.h"

#include <QDateTime>
#include <QJsonObject>

namespace ClockPlayer {

namespace {

using namespace ClockStage;
using namespace ClockZones;

const QString kId = QStringLiteral("id");

QString TimeText(qint64 instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC).toString(Qt::ISODate);
}

void AddOffset(QJsonObject &clock, const ZoneSettings &zone, qint64 instant)
{
    clock.insert(QStringLiteral("utc_offset_s"), OffsetAt(zone, instant));
    const auto change = NextChange(zone, instant);
    clock.insert(QStringLiteral("next_change"),
                 change ? QJsonValue(TimeText(change->instant)) : QJsonValue());
}

void AddValidity(QJsonObject &clock, const std::optional<Validity> &validity)
{
    clock.insert(QStringLiteral("valid_until"),
                 validity ? QJsonValue(TimeText(validity->until)) : QJsonValue());
    clock.insert(QStringLiteral("valid_until_reason"),
                 validity ? QJsonValue(CodeOf(validity->end)) : QJsonValue());
}

} // namespace

ClockReport ReportClocks(const QVector<Lw::HNode *> &nodes, qint64 instant, RulesEnds &rules)
{
    ClockReport report;
    for (Lw::HNode *const node : nodes) {
        const int id = node->GetAttributeToInt(ClockProgram::kIdKey);
        QJsonObject clock {{kId, id}};
        const std::optional<ZoneSettings> zone = SettingsOf(node);
        const std::optional<ValidityTerms> terms = TermsOf(node);
        if (zone && terms) {
            AddOffset(clock, *zone, instant);
            const std::optional<Validity> validity = ValidityOf(*terms, instant, rules);
            AddValidity(clock, validity);
            if (validity && IsDue(*validity, instant))
                report.warnings.append(
                    QJsonObject {{kId, id}, {QStringLiteral("text"), TextOf(*validity)}});
        }
        report.clocks.append(clock);
    }
    return report;
}

} // namespace ClockPlayer
