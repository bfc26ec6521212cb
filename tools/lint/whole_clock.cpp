// lint/: checks the settings of a clock in combination.
#include "clock_lint.h"
#include "legibility/legible_sizes.h"
#include "setting_place.h"
#include "suggestion.h"
#include "value_checks.h"
#include "zone_words/rule_note.h"

#include "calendar/clock_time.h"
#include "clock_node.h"
#include "clock_sdk_tables.h"
#include "compose/element_layout.h"
#include "display/analog_geometry.h"
#include "font_check.h"
#include "glyph/glyph_picture.h"
#include "glyph/glyph_set.h"
#include "glyph_messages.h"
#include "program_file.h"

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

class WholeClock
{
public:
    WholeClock(const QDomElement &clock, HClockNode &node, qint64 instant, Findings &findings)
        : m_clock(clock), m_node(node), m_instant(instant), m_findings(findings)
    { }

    void Run()
    {
        CheckZone();
        CheckRules();
        CheckRows();
        CheckDate();
        CheckFonts();
    }

private:
    int Number(Attribute attribute) { return m_node.GetAttributeToInt(Key(attribute)); }
    QString Text(Attribute attribute) { return m_node.GetAttribute(Key(attribute)); }

    bool HasSetting(Attribute attribute) const
    {
        for (QDomElement setting = m_clock.firstChildElement(ClockProgram::kAttributeTag);
             !setting.isNull(); setting = setting.nextSiblingElement(ClockProgram::kAttributeTag)) {
            if (setting.attribute(QStringLiteral("key")) == Key(attribute))
                return true;
        }
        return false;
    }

    void CheckZone()
    {
        const QDomElement older = m_clock.firstChildElement(QLatin1String(Sdk::kClockCom));
        const QString zone = QLatin1String(Sdk::kTimezone);
        if (!m_clock.hasAttribute(zone) && !older.hasAttribute(QStringLiteral("timeZone"))
            && !HasSetting(Attribute::TimeZone))
            m_findings.Note(
                At(m_clock, zone),
                FindingWords::tr("the clock has no time zone and shows the player's, "
                                 "which is UTC; accepted: for example timezone=\"+01:00\""));
    }

    void CheckRules()
    {
        const ZoneSettings settings {ParseZoneOffset(Text(Attribute::TimeZone)),
                                     Text(Attribute::DaylightSavingTimeStart),
                                     Text(Attribute::DaylightSavingTimeEnd)};
        const int flag = Number(Attribute::UseDaylightSavingTime);
        if (flag == 1)
            return CheckRulesInUse(settings);
        if (!settings.start.isEmpty() && !settings.end.isEmpty())
            m_findings.Warn(
                At(m_clock, Key(Attribute::UseDaylightSavingTime)),
                FindingWords::tr("the clock has rules for daylight saving that are not "
                                 "used: UseDaylightSavingTime is %1; accepted: 1, or no "
                                 "rules")
                    .arg(flag),
                QStringLiteral("1"));
    }

    void CheckRulesInUse(const ZoneSettings &settings)
    {
        const QString fault = RulePairFault(settings.start, settings.end);
        if (!fault.isEmpty())
            return m_findings.Warn(At(m_clock), fault);
        const RuleNote note =
            NoteOnRules(settings, QDateTime::fromMSecsSinceEpoch(m_instant, Qt::UTC).date());
        if (!note.rightEnd.isEmpty())
            m_findings.Warn(At(m_clock, Key(Attribute::DaylightSavingTimeEnd)), note.text,
                            note.rightEnd);
        else if (!note.text.isEmpty())
            m_findings.Note(At(m_clock), note.text);
    }

    /// Only digital clocks: an analog one always shows its dial.
    void CheckRows()
    {
        if (m_node.ClockType() != DigitalClock)
            return;
        const bool hasTopText =
            Number(Attribute::Digital_TopTexy_d) != 0 && !Text(Attribute::DigitalTopText).isEmpty();
        bool hasRow = hasTopText;
        for (const Attribute row : {Attribute::Digital_Date_d, Attribute::Digital_Week_d,
                                    Attribute::Digital_Time_d, Attribute::Digital_Lunar_d})
            hasRow = hasRow || Number(row) != 0;
        if (!hasRow)
            m_findings.Warn(At(m_clock),
                            FindingWords::tr("all rows of this clock are hidden; accepted: "
                                             "display=\"true\" for one of them"));
    }

    void CheckDate()
    {
        const bool isDigital = m_node.ClockType() == DigitalClock;
        const Attribute date = isDigital ? Attribute::DigitalDateType : Attribute::AnalogDateType;
        if (m_node.ClockType() != PictureClock && Number(date) == DateWithMinus)
            m_findings.Note(At(m_clock),
                            FindingWords::tr("the minus of date type 8 is missing from an "
                                             "exported program"));
    }

    /// Warns if no font is installed, else checks the digits; a picture clock has no texts.
    void CheckFonts()
    {
        if (m_node.ClockType() == PictureClock)
            return;
        if (ClockFit::HasFonts())
            CheckDigits();
        else
            m_findings.Warn(At(m_clock), ClockProgram::NoFontText());
    }

    /// Text rows and numerals that show digits, with the characters between them.
    void CheckDigits()
    {
        const int type = m_node.ClockType();
        if (type == DigitalClock && Number(Attribute::Digital_Time_d) != 0)
            CheckStrip(Attribute::DigitalTimeFName, Attribute::DigitalTimeFSize,
                       HasColons(Number(Attribute::DigitalTimeType)) ? ":" : "");
        if (type == DigitalClock && Number(Attribute::Digital_Date_d) != 0)
            CheckStrip(Attribute::DigitalDateFName, Attribute::DigitalDateFSize,
                       DateSeparators(Number(Attribute::DigitalDateType)));
        if (type == AnalogClock && Number(Attribute::Analog_Date_d) != 0)
            CheckStrip(Attribute::AnalogDateFName, Attribute::AnalogDateFSize,
                       DateSeparators(Number(Attribute::AnalogDateType)));
        const int marks = Number(Attribute::HourScaleType);
        if (type == AnalogClock && (marks == TwelveNumerals || marks == FourNumerals))
            CheckStrip(Attribute::HourScaleFName, Attribute::HourScaleFSize, "");
    }

    static bool HasColons(int timeType)
    {
        return timeType != TimeLabelled && timeType != TimeLabelledToMinute;
    }

    static const char *DateSeparators(int dateType)
    {
        if (dateType == DateWithMinus)
            return "-";
        const bool hasSlashes = dateType < DateNamedMonthDayYear || dateType == DatePersian;
        return hasSlashes ? ",/" : "";
    }

    void CheckStrip(Attribute family, Attribute size, const char *separators)
    {
        const QString name = Text(family);
        const int points = Number(size) > 0 ? Number(size) : kDefaultPoints;
        const QString marks = QLatin1String(separators);
        const QString fault = LegibilityFault(name, points, marks);
        if (fault.isEmpty())
            return;
        const int right = NearestLegibleSize(name, points, marks);
        m_findings.Warn(
            PlaceInClock(size),
            FindingWords::tr("the digits of %1 are not legible at %2 points: %3%4")
                .arg(name.isEmpty() ? FindingWords::tr("the default font") : Quoted(name))
                .arg(points)
                .arg(fault, right > 0 ? FindingWords::tr("; accepted: %1").arg(right) : QString()),
            right > 0 ? QString::number(right) : QString());
    }

    Place PlaceInClock(Attribute attribute) const
    {
        const SettingPlace place = PlaceOf(m_clock, m_node.ClockType(), attribute);
        return place.IsSet() ? FindingPlace(place) : At(m_clock, Key(attribute));
    }

    const QDomElement m_clock;
    HClockNode &m_node;
    const qint64 m_instant;
    Findings &m_findings;
};

} // namespace

void LintWhole(const QDomElement &clock, HClockNode &node, qint64 instant, Findings &findings)
{
    WholeClock(clock, node, instant, findings).Run();
}

} // namespace ClockTool
