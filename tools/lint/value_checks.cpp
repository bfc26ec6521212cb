#include "value_checks.h"

#include "finding.h"
#include "suggestion.h"

#include "calendar/clock_time.h"
#include "calendar/zone_time.h"
#include "clock_sdk_tables.h"
#include "font_check.h"
#include "happconfig.h"
#include "number_text.h"

#include <QColor>
#include <QRegularExpression>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

QString NumberFault(Attribute attribute, const QString &text)
{
    bool isNumber = false;
    const int number = Lw::NumberIn(text, &isNumber);
    if (!isNumber)
        return QStringLiteral("is not a whole number and is read as 0; accepted: a decimal such as "
                              "12");
    const ValueRange &range = RowOf(attribute).range;
    if (range.Contains(number))
        return {};
    const QString codes = NamedCodes(range);
    return QStringLiteral("is out of range; accepted: %1%2")
        .arg(RangeText(range), codes.isEmpty() ? codes : QStringLiteral(" (%1)").arg(codes));
}

QString ColourFault(const QString &text)
{
    static const QRegularExpression eight(QStringLiteral("^#([0-9a-fA-F]{2})([0-9a-fA-F]{6})$"));
    const QRegularExpressionMatch match = eight.match(text);
    if (match.hasMatch() && match.captured(1).toLower() != QLatin1String("ff"))
        return QStringLiteral("is read as #aarrggbb, which is the colour #%1; if it was meant as "
                              "#rrggbbaa: #%2; accepted: \"#rrggbb\"")
            .arg(match.captured(2), text.mid(1, 6));
    if (QColor::isValidColor(text))
        return {};
    const QString nearest = Nearest(text, QColor::colorNames());
    return QStringLiteral("is not a colour and counts as black; accepted: \"#rrggbb\" or a name%1")
        .arg(nearest.isEmpty() ? QStringLiteral(" such as \"red\"")
                               : QStringLiteral(": did you mean \"%1\"?").arg(nearest));
}

/// A stored colour must be a number; a colour name is a common mistake.
QString StoredColourFault(const QString &text)
{
    bool isNumber = false;
    const int number = Lw::NumberIn(text, &isNumber);
    if (isNumber && number >= 0 && number <= 0xffffff)
        return {};
    const QString form = QStringLiteral("red + 256 * green + 65536 * blue");
    if (!isNumber && QColor::isValidColor(text))
        return QStringLiteral("is not a number and counts as black; accepted: %1, in this case %2")
            .arg(form)
            .arg(Lw::HAppConfig::NameToIntColor(text));
    return QStringLiteral("is not a stored colour; accepted: %1, from 0 to 16777215").arg(form);
}

QString ZoneFault(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[+-]([01]?[0-9]|2[0-3]):[0-5][0-9]$"));
    if (form.match(text).hasMatch())
        return {};
    return QStringLiteral("is read as the offset %1; accepted: a sign and \"hh:mm\", such as "
                          "\"+01:00\"")
        .arg(ZoneSettings {ParseZoneOffset(text), QString(), QString()}.ZoneText());
}

QString RuleFault(const QString &text)
{
    if (text.isEmpty())
        return {};
    const std::optional<DaylightRule> rule = ParseDaylightRule(text);
    if (!rule)
        return QStringLiteral("is not a rule, so daylight saving is never in force; accepted: "
                              "month.occurrence.weekday.hh:mm:ss, such as \"3.Last.7.02:00:00\" "
                              "for the last Sunday of March");
    if (rule->occurrence == 5)
        return QStringLiteral("names a fifth weekday, and in years without it daylight saving is "
                              "not in force; accepted: \"Last\" for the last one");
    return {};
}

QString AdjustmentFault(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([01][0-9]|2[0-3])A[0-5][0-9]B[0-5][0-9]$"));
    if (form.match(text).hasMatch())
        return {};
    return QStringLiteral("is read as %1 seconds; accepted: \"hhAmmBss\", such as \"01A30B00\"")
        .arg(ParseAdjustment(text));
}

QString FamilyFault(const QString &text)
{
    if (text.isEmpty() || ClockFit::IsInstalled(text) || !ClockFit::HasFonts())
        return {};
    const QString meant = DidYouMean(text, ClockFit::InstalledFamilies());
    return FindingWords::tr("is not an installed font; \"%1\" is used instead%2")
        .arg(ClockFit::FamilyUsed(text),
             meant.isEmpty()
                 ? FindingWords::tr("; accepted: a family that \"fc-list : family\" lists")
                 : meant);
}

QString TextFault(Attribute attribute, const QString &text)
{
    switch (RowOf(attribute).role) {
    case ValueRole::Zone:
        return ZoneFault(text);
    case ValueRole::Adjustment:
        return AdjustmentFault(text);
    case ValueRole::Rule:
        return RuleFault(text);
    case ValueRole::Family:
        return FamilyFault(text);
    default:
        return {};
    }
}

QString SignedTimeFault(const QString &text)
{
    const bool hasSign = text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'));
    if (hasSign && ParseTimeOfDay(text.mid(1)).isValid())
        return {};
    return QStringLiteral("is not an adjustment and is ignored; accepted: a sign and "
                          "\"hh:mm:ss\", such as \"-00:05:00\"");
}

QString AdjustSecondsFault(const QString &text)
{
    constexpr int day = 86400;
    bool isNumber = false;
    const int seconds = Lw::NumberIn(text, &isNumber);
    if (isNumber && qAbs(qint64(seconds)) < day)
        return {};
    return QStringLiteral("is not an adjustment within a day; accepted: seconds from -86399 to "
                          "86399");
}

} // namespace

QString NamedCodes(const ValueRange &range)
{
    QStringList codes;
    for (int code = range.first; range.names && code <= range.last; ++code)
        codes.append(QStringLiteral("%1 %2").arg(code).arg(QLatin1String(range.NameOf(code))));
    return codes.join(QStringLiteral("; "));
}

QString RangeText(const ValueRange &range)
{
    return range.TakesAll() ? QString()
                            : QStringLiteral("%1 to %2").arg(range.first).arg(range.last);
}

QString ImportFault(Attribute target, Conversion conversion, const QString &text)
{
    switch (conversion) {
    case Conversion::Text:
        return TextFault(target, text);
    case Conversion::Number:
    case Conversion::InvertedNumber:
        return NumberFault(target, text);
    case Conversion::Flag:
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            return {};
        return QStringLiteral("counts as \"false\"; accepted: \"true\", \"false\"");
    case Conversion::Colour:
    case Conversion::ParsedColour:
        return ColourFault(text);
    case Conversion::AdjustSeconds:
        return AdjustSecondsFault(text);
    case Conversion::AdjustTime:
        return SignedTimeFault(text);
    }
    return {};
}

QString StoredFault(Attribute attribute, const QString &text)
{
    switch (RowOf(attribute).kind) {
    case ValueKind::Integer:
    case ValueKind::Flag:
        return NumberFault(attribute, text);
    case ValueKind::Colour:
        return StoredColourFault(text);
    case ValueKind::Text:
        return TextFault(attribute, text);
    }
    return {};
}

QString RulePairFault(const QString &start, const QString &end)
{
    if (start.isEmpty() || end.isEmpty())
        return QStringLiteral("daylight saving is on without a rule for its start and its "
                              "end, so it is never in force; accepted: "
                              "month.occurrence.weekday.hh:mm:ss for both");
    if (start == end)
        return QStringLiteral("daylight saving starts and ends at the same time, so it is never "
                              "in force");
    return {};
}

} // namespace ClockTool
