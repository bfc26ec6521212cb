#include "clock_pictures.h"

#include "editing/new_clock.h"
#include "wall/live_wall.h"

#include "calendar/device_clock.h"
#include "clock_node.h"
#include "clock_plugin.h"
#include "node_keys.h"
#include "time_travel.h"

#include <QDomElement>
#include <QHash>
#include <QPair>

#include <limits>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

// An Id and a play number that no clock on the wall has.
constexpr int kIdentity = 99999;
constexpr unsigned int kPlay = std::numeric_limits<unsigned int>::max();

constexpr QSize kTextPicture(150, 22);
constexpr QSize kDialPicture(56, 56);
constexpr QSize kKindPicture(64, 44);
constexpr int kTextSize = 11; // points
constexpr int kHoursAndMinutes = 1;
constexpr int kInk = 0x00b0ff; // amber, as the host packs it
constexpr int kDialInk = 0xffffff;
constexpr int kDimInk = 0x606060; // for the parts that the picture is not about

/// 8 March 2026, 10:08:36 UTC: no hand covers another, and the digits differ.
long long PictureTime()
{
    return 1772964516000LL;
}

/// Makes clocks show the pictures' time until it is destroyed.
class AtPictureTime
{
public:
    AtPictureTime() { clock_set_time_source(PictureTime); }
    ~AtPictureTime() { clock_set_time_source(ClockStage::StageTime::TellPlugin); }
};

StoredValue Number(Attribute attribute, int value)
{
    return {attribute, QString::number(value)};
}

/// A digital clock of one line of text.
QVector<StoredValue> OneLine(Attribute shown)
{
    QVector<StoredValue> values {Number(Attribute::ClockType, DigitalClock)};
    for (const Attribute flag : {Attribute::Digital_TopTexy_d, Attribute::Digital_Date_d,
                                 Attribute::Digital_Week_d, Attribute::Digital_Time_d})
        values.append(Number(flag, flag == shown ? 1 : 0));
    for (const Attribute size :
         {Attribute::DigitalTimeFSize, Attribute::DigitalDateFSize, Attribute::DigitalWeekFSize})
        values.append(Number(size, kTextSize));
    for (const Attribute colour :
         {Attribute::DigitalTimeColor, Attribute::DigitalDateColor, Attribute::DigitalWeekColor})
        values.append(Number(colour, kInk));
    return values;
}

QVector<StoredValue> BareDial()
{
    QVector<StoredValue> values {Number(Attribute::ClockType, AnalogClock),
                                 Number(Attribute::HourScaleFSize, 6)};
    for (const Attribute flag : {Attribute::Analog_TopTexy_d, Attribute::Analog_Date_d,
                                 Attribute::Analog_Week_d, Attribute::Analog_AMPM_d})
        values.append(Number(flag, 0));
    for (const Attribute colour : {Attribute::HourHandColor, Attribute::MinuteHandColor,
                                   Attribute::SecondHandColor, Attribute::MinuteScaleColor})
        values.append(Number(colour, kDialInk));
    values.append(Number(Attribute::HourScaleColor, kInk));
    return values;
}

/// The quarter of a double-size dial that shows a shape clearly: the one with the hand at the
/// pictures' time, or with some of the marks.
struct DialPart
{
    Attribute shape;
    Attribute colour;
    QPoint corner; ///< of the quarter, in pixels
};

constexpr DialPart kDialParts[] = {
    {Attribute::HourRectType, Attribute::HourHandColor, {8, 8}},
    {Attribute::MinuteRectType, Attribute::MinuteHandColor, {48, 8}},
    {Attribute::SecondRectType, Attribute::SecondHandColor, {8, 48}},
    {Attribute::MinuteScaleType, Attribute::MinuteScaleColor, {56, 0}},
};

QPixmap DialPartPicture(const DialPart &part, int code)
{
    QVector<StoredValue> values = BareDial();
    for (const Attribute colour :
         {Attribute::HourHandColor, Attribute::MinuteHandColor, Attribute::SecondHandColor,
          Attribute::HourScaleColor, Attribute::MinuteScaleColor})
        values.append(Number(colour, colour == part.colour ? kInk : kDimInk));
    values.append(Number(part.shape, code));
    return ClockPicture(values, 2 * kDialPicture).copy({part.corner, kDialPicture});
}

QPixmap Draw(Attribute attribute, int code)
{
    switch (attribute) {
    case Attribute::AnalogDateType:
    case Attribute::DigitalDateType:
        return ClockPicture(OneLine(Attribute::Digital_Date_d)
                                << Number(Attribute::DigitalDateType, code),
                            kTextPicture);
    case Attribute::AnalogWeekType:
    case Attribute::DigitalWeekType:
        return ClockPicture(OneLine(Attribute::Digital_Week_d)
                                << Number(Attribute::DigitalWeekType, code),
                            kTextPicture);
    case Attribute::DigitalTimeType:
        return ClockPicture(OneLine(Attribute::Digital_Time_d) << Number(attribute, code),
                            kTextPicture);
    case Attribute::DigitalMode: // in the evening, when the hours differ
        return ClockPicture(OneLine(Attribute::Digital_Time_d)
                                << Number(attribute, code)
                                << Number(Attribute::DigitalTimeType, kHoursAndMinutes),
                            kTextPicture, QStringLiteral("+12:00"));
    case Attribute::PictrueClockType:
        return ClockPicture({Number(Attribute::ClockType, PictureClock), Number(attribute, code)},
                            kDialPicture);
    case Attribute::HourScaleType:
        return ClockPicture(BareDial() << Number(attribute, code), kDialPicture);
    default:
        for (const DialPart &part : kDialParts) {
            if (part.shape == attribute)
                return DialPartPicture(part, code);
        }
        return {};
    }
}

} // namespace

QPixmap ClockPicture(const QVector<StoredValue> &values, QSize size, const QString &zone)
{
    const AtPictureTime time;
    static HNodeClock plugin;
    std::unique_ptr<Lw::HNode> node(plugin.Create());
    node->InitData();
    node->SetSize(size);
    node->SetPos({});
    for (const StoredValue &value : values)
        node->SetAttribute(Key(value.attribute), value.text, false);
    node->SetAttribute(Key(Attribute::TimeZone), zone, false);
    node->SetAttribute(ClockProgram::kIdKey, kIdentity, false);
    ClockStage::Area area(kPlay, &plugin, std::move(node), ClockStage::GlyphFiles::Made);
    StartWithTexts(area);
    QImage screen = ClockStage::BlackScreen(size);
    ClockStage::ComposeScreen(screen, {{screen.rect(), area.Picture().image}}, screen.rect());
    return QPixmap::fromImage(screen);
}

QPixmap CodePicture(Attribute attribute, int code)
{
    static QHash<QPair<int, int>, QPixmap> pictures;
    const QPair<int, int> key(static_cast<int>(attribute), code);
    if (!pictures.contains(key))
        pictures.insert(key, Draw(attribute, code));
    return pictures.value(key);
}

QPixmap KindPicture(int kind)
{
    QVector<StoredValue> values {{Attribute::ClockType, QString::number(kind)}};
    for (const Attribute hidden :
         {Attribute::Digital_TopTexy_d, Attribute::Digital_Date_d, Attribute::Digital_Week_d,
          Attribute::Analog_TopTexy_d, Attribute::Analog_Date_d, Attribute::Analog_Week_d,
          Attribute::Analog_AMPM_d})
        values.append({hidden, QStringLiteral("0")});
    values.append({Attribute::DigitalTimeType, QStringLiteral("1")});
    values.append({Attribute::DigitalTimeFSize, QStringLiteral("14")});
    for (const Attribute white : {Attribute::DigitalTimeColor, Attribute::HourHandColor,
                                  Attribute::MinuteHandColor, Attribute::MinuteScaleColor})
        values.append({white, QString::number(0xffffff)});
    return ClockPicture(values, kKindPicture);
}

} // namespace ClockStudio
