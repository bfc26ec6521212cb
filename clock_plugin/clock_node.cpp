#include "clock_node.h"

#include "calendar/clock_time.h"

#include "happconfig.h"

#include <QColor>
#include <QDomElement>
#include <QPointer>
#include <QRandomGenerator>

namespace Lw::HNodeClock {

namespace {

/// 1000 plus the mean of two random numbers from 0 to 999, so middle values are more frequent.
int RandomIdentity()
{
    const auto draw = [] {
        return static_cast<int>(QRandomGenerator::global()->generate() % 1000);
    };
    const int first = draw();
    const int second = draw();
    return (first + second) / 2 + 1000;
}

} // namespace

HClockNode::HClockNode()
{
    qRegisterMetaType<HClockNode *>("HClockNode*");
}

HClockNode::~HClockNode() = default;

void HClockNode::Store(Attribute attribute, int value)
{
    if (attribute == Attribute::AnalogSpace || attribute == Attribute::AnalogSwapArea)
        m_analogRowsWritten = true;
    SetAttribute(Key(attribute), value, false);
    if (RowOf(attribute).redraw == Redraw::Yes)
        emit ReDrawSourceImage();
}

void HClockNode::Store(Attribute attribute, const QString &value)
{
    SetAttribute(Key(attribute), value, false);
    if (RowOf(attribute).redraw == Redraw::Yes)
        emit ReDrawSourceImage();
}

QString HClockNode::Type()
{
    return QLatin1String(kNodeType);
}

bool HClockNode::NodeMatch(QDomElement &element)
{
    return element.tagName() == QLatin1String(Sdk::kClock);
}

int HClockNode::Duration()
{
    return 6000;
}

// A slot connected to ReDrawSourceImage() may delete the node.
void HClockNode::InitData()
{
    const QPointer<HClockNode> self(this);
    for (const AttributeRow &row : kAttributeTable) {
        if (!self)
            return;
        StoreDefault(row);
    }
}

void HClockNode::StoreDefault(const AttributeRow &row)
{
    switch (row.origin) {
    case Default::Absent:
        return;
    case Default::Computed:
        return StoreComputedDefault(row.attribute);
    case Default::Translated:
        return Store(row.attribute, tr(row.text));
    case Default::Stored:
        break;
    }
    if (row.kind == ValueKind::Text)
        return Store(row.attribute, QString::fromLatin1(row.text));
    if (row.kind == ValueKind::Colour)
        return Store(row.attribute,
                     Lw::HAppConfig::ColorToInt(QColor(static_cast<QRgb>(row.number))));
    Store(row.attribute, row.number);
}

void HClockNode::StoreComputedDefault(Attribute attribute)
{
    if (attribute == Attribute::Id)
        return Store(attribute, RandomIdentity());
    if (attribute == Attribute::TimeZone)
        StoreHostTime();
    // UseDaylightSavingTime is stored along with the zone.
}

// Zone and flag come from one call, because a slot may change what the host returns next. The zone
// is stored without a sign, unlike those of editors, so ParseZoneOffset() takes its first digit for
// the sign. A zone west of Greenwich is stored as the local time there at midnight UTC: -5 hours as
// "19:00".
void HClockNode::StoreHostTime()
{
    int offsetSeconds = 0;
    bool daylightSaving = false;
    Lw::HAppConfig::instance()->GetTimeInfo(offsetSeconds, daylightSaving);
    const QPointer<HClockNode> self(this);
    SetTimeZone(FormatAscii(QTime(0, 0).addSecs(offsetSeconds), "hh:mm"));
    if (self)
        Store(Attribute::UseDaylightSavingTime, daylightSaving ? 1 : 0);
}

int HClockNode::ClockType()
{
    return GetAttributeToInt(Key(Attribute::ClockType));
}

int HClockNode::DigitalSwapArea()
{
    return GetAttributeToInt(Key(Attribute::DigitalSwapArea));
}

int HClockNode::Digital_TopText_d()
{
    return GetAttributeToInt(Key(Attribute::Digital_TopTexy_d));
}

int HClockNode::Digital_Date_d()
{
    return GetAttributeToInt(Key(Attribute::Digital_Date_d));
}

int HClockNode::Digital_Week_d()
{
    return GetAttributeToInt(Key(Attribute::Digital_Week_d));
}

int HClockNode::Digital_Time_d()
{
    return GetAttributeToInt(Key(Attribute::Digital_Time_d));
}

int HClockNode::Digital_Lunar_d()
{
    return GetAttributeToInt(Key(Attribute::Digital_Lunar_d));
}

// Widened first, as the smallest int has no positive counterpart.
void HClockNode::SetTimeAdjust(int seconds)
{
    constexpr qint64 kSecondsOfDay = 24 * 60 * 60;
    const auto magnitude = static_cast<int>(qAbs(qint64(seconds)) % kSecondsOfDay);
    const QPointer<HClockNode> self(this);
    Store(Attribute::AdjustType, seconds < 0 ? 1 : 0);
    if (self)
        Store(Attribute::TimeAdjust, FormatAscii(QTime(0, 0).addSecs(magnitude), "hh'A'mm'B'ss"));
}

void HClockNode::SetTimeZone(QString zone)
{
    Store(Attribute::TimeZone, zone);
}

void HClockNode::SetDaylightSavingTimeStart(QString rule)
{
    Store(Attribute::DaylightSavingTimeStart, rule);
}

void HClockNode::SetDaylightSavingTimeEnd(QString rule)
{
    Store(Attribute::DaylightSavingTimeEnd, rule);
}

void HClockNode::SetHourScaleFName(QString family)
{
    Store(Attribute::HourScaleFName, family);
}

void HClockNode::SetHourScaleFSize(int points)
{
    Store(Attribute::HourScaleFSize, points);
}

void HClockNode::SetAnalog_AMPM_d(int shown)
{
    Store(Attribute::Analog_AMPM_d, shown);
}

void HClockNode::SetAnalogAMPMFName(QString family)
{
    Store(Attribute::AnalogAMPMFName, family);
}

void HClockNode::SetAnalogAMPMFSize(int points)
{
    Store(Attribute::AnalogAMPMFSize, points);
}

void HClockNode::SetAnalogAMPMColor(int colour)
{
    Store(Attribute::AnalogAMPMColor, colour);
}

void HClockNode::SetAnalogTopText(QString text)
{
    Store(Attribute::AnalogTopText, text);
}

void HClockNode::SetAnalogTopTextFName(QString family)
{
    Store(Attribute::AnalogTopTextFName, family);
}

void HClockNode::SetAnalogTopTextFSize(int points)
{
    Store(Attribute::AnalogTopTextFSize, points);
}

void HClockNode::SetAnalogTopTextColor(int colour)
{
    Store(Attribute::AnalogTopTextColor, colour);
}

void HClockNode::SetAnalogDateType(int code)
{
    Store(Attribute::AnalogDateType, code);
}

void HClockNode::SetAnalogDateFName(QString family)
{
    Store(Attribute::AnalogDateFName, family);
}

void HClockNode::SetAnalogDateFSize(int points)
{
    Store(Attribute::AnalogDateFSize, points);
}

void HClockNode::SetAnalogDateColor(int colour)
{
    Store(Attribute::AnalogDateColor, colour);
}

void HClockNode::SetAnalogWeekType(int code)
{
    Store(Attribute::AnalogWeekType, code);
}

void HClockNode::SetAnalogWeekFName(QString family)
{
    Store(Attribute::AnalogWeekFName, family);
}

void HClockNode::SetAnalogWeekFSize(int points)
{
    Store(Attribute::AnalogWeekFSize, points);
}

void HClockNode::SetAnalogWeekColor(int colour)
{
    Store(Attribute::AnalogWeekColor, colour);
}

void HClockNode::SetAnalogLunarFName(QString family)
{
    Store(Attribute::AnalogLunarFName, family);
}

void HClockNode::SetAnalogLunarFSize(int points)
{
    Store(Attribute::AnalogLunarFSize, points);
}

void HClockNode::SetAnalogLunarColor(int colour)
{
    Store(Attribute::AnalogLunarColor, colour);
}

void HClockNode::SetDigitalDisplayMode(int mode)
{
    Store(Attribute::DigitalDisplayMode, mode);
}

void HClockNode::SetDigitalTopText(QString text)
{
    Store(Attribute::DigitalTopText, text);
}

void HClockNode::SetDigitalTopTextColor(int colour)
{
    Store(Attribute::DigitalTopTextColor, colour);
}

void HClockNode::SetDigitalDateType(int code)
{
    Store(Attribute::DigitalDateType, code);
}

void HClockNode::SetDigitalDateFName(QString family)
{
    Store(Attribute::DigitalDateFName, family);
}

void HClockNode::SetDigitalDateColor(int colour)
{
    Store(Attribute::DigitalDateColor, colour);
}

void HClockNode::SetDigitalTimeType(int code)
{
    Store(Attribute::DigitalTimeType, code);
}

void HClockNode::SetDigitalTimeFName(QString family)
{
    Store(Attribute::DigitalTimeFName, family);
}

void HClockNode::SetDigitalTimeColor(int colour)
{
    Store(Attribute::DigitalTimeColor, colour);
}

void HClockNode::SetDigitalWeekType(int code)
{
    Store(Attribute::DigitalWeekType, code);
}

void HClockNode::SetDigitalWeekFName(QString family)
{
    Store(Attribute::DigitalWeekFName, family);
}

void HClockNode::SetDigitalWeekColor(int colour)
{
    Store(Attribute::DigitalWeekColor, colour);
}

void HClockNode::SetDigitalLunarFName(QString family)
{
    Store(Attribute::DigitalLunarFName, family);
}

void HClockNode::SetDigitalLunarColor(int colour)
{
    Store(Attribute::DigitalLunarColor, colour);
}

int HClockNode::CovertDisplay(QString text)
{
    return Lw::BooleanToInt(text);
}

int HClockNode::LWColorToInt(LWColor colour)
{
    return Lw::HAppConfig::ColorToInt(QColor(RedOf(colour), GreenOf(colour), BlueOf(colour)));
}

} // namespace Lw::HNodeClock
