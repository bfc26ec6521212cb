#include "whole_clock.h"

#include "value_checks.h"
#include "zones/rule_note.h"

#include "calendar/clock_time.h"
#include "calendar/system_time.h"
#include "clock_node.h"
#include "clock_sdk_tables.h"
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"
#include "program_file.h"

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

class WholeClock
{
public:
    WholeClock(const QDomElement &clock, HClockNode &node, Findings &findings)
        : m_clock(clock), m_node(node), m_findings(findings)
    { }

    void Run()
    {
        CheckZone();
        CheckRules();
        CheckRows();
        CheckDate();
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
        if (!m_clock.hasAttribute(zone) && !older.hasAttribute(Key(Attribute::TimeZone))
            && !older.hasAttribute(QStringLiteral("timeZone")) && !HasSetting(Attribute::TimeZone))
            m_findings.Note(At(m_clock, zone),
                            QStringLiteral("the clock names no time zone and shows the player's, "
                                           "which is UTC; accepted: timezone=\"+01:00\", say"));
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
            m_findings.Warn(At(m_clock, Key(Attribute::UseDaylightSavingTime)),
                            QStringLiteral("the clock has rules for daylight saving that are not "
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
        const RuleNote note = NoteOnRules(settings, SystemDate());
        if (!note.rightEnd.isEmpty())
            m_findings.Warn(At(m_clock, Key(Attribute::DaylightSavingTimeEnd)), note.text,
                            note.rightEnd);
        else if (!note.text.isEmpty())
            m_findings.Note(At(m_clock), note.text);
    }

    /// An analog clock has its dial at least.
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
                            QStringLiteral("all rows of this clock are hidden; accepted: "
                                           "display=\"true\" for one of them"));
    }

    void CheckDate()
    {
        const bool isDigital = m_node.ClockType() == DigitalClock;
        const Attribute date = isDigital ? Attribute::DigitalDateType : Attribute::AnalogDateType;
        if (m_node.ClockType() != PictureClock && Number(date) == DateWithMinus)
            m_findings.Note(At(m_clock),
                            QStringLiteral("the minus of date type 8 does not travel with an "
                                           "exported program"));
    }

    const QDomElement m_clock;
    HClockNode &m_node;
    Findings &m_findings;
};

} // namespace

void LintWhole(const QDomElement &clock, HClockNode &node, Findings &findings)
{
    WholeClock(clock, node, findings).Run();
}

} // namespace ClockTool
