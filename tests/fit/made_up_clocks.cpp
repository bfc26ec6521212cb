#include "made_up_clocks.h"

#include "catalogues.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"

#include "happconfig.h"

#include <QDateTime>

using namespace Lw::HNodeClock;
using A = Attribute;

namespace {

const char *const kFamilies[] = {"DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif",
                                 "WenQuanYi Micro Hei"};
const char *const kTitles[] = {"LED", "Central Station", "Ag", "", "北京时间", "AVAVAV.", "i"};
const char *const kZones[] = {"+00:00", "+08:00", "-05:00", "+03:30", "+13:00", "-11:00"};

struct Rules
{
    const char *start;
    const char *end;
};
constexpr Rules kRules[] = {{"3.Last.7.02:00:00", "10.Last.7.02:00:00"},
                            {"10.1.7.02:00:00", "4.1.7.02:00:00"},
                            {"3.2.7.00:00:00", "11.1.7.23:00:00"}};

} // namespace

MadeUpClock::MadeUpClock(quint32 seed, quint32 number)
{
    std::seed_seq both {seed, number};
    m_random.seed(both);
    const QStringList languages = ClockCatalogues::Languages();
    language = languages[Draw(0, languages.size() - 1)];
    ClockCatalogues::Install(language);
    Lw::HAppConfig::SetClockOutputPath(m_directory.path());
    node.InitData();
    Set(A::Id, 1000);
    SetTime();
    SetFonts();
    if (Draw(0, 2) == 0)
        SetAnalog();
    else
        SetDigital();
    DrwSourceIMage().DrawClockSourceImage(&node);
}

int MadeUpClock::Draw(int least, int most)
{
    return least + static_cast<int>(m_random() % static_cast<quint32>(most - least + 1));
}

template<typename Value>
void MadeUpClock::Set(Attribute attribute, const Value &value)
{
    node.SetAttribute(Key(attribute), value, false);
}

void MadeUpClock::SetTime()
{
    Set(A::TimeZone, QString(kZones[Draw(0, 5)]));
    Set(A::UseDaylightSavingTime, Draw(0, 1));
    const Rules &rules = kRules[Draw(0, 2)];
    Set(A::DaylightSavingTimeStart, QString(rules.start));
    Set(A::DaylightSavingTimeEnd, QString(rules.end));
    const QDateTime first(QDate(Draw(1990, 2049), Draw(1, 12), Draw(1, 28)),
                          QTime(Draw(0, 23), Draw(0, 59), Draw(0, 59)), Qt::UTC);
    begin = first.toMSecsSinceEpoch();
}

void MadeUpClock::SetFonts()
{
    const int usual = Draw(5, 18);
    for (const int clockType : {AnalogClock, DigitalClock}) {
        for (int font = 0; font < kGlyphFontCount; ++font) {
            const auto attributes = FontAttributes(static_cast<GlyphFont>(font), clockType);
            Set(attributes.family, QString(kFamilies[Draw(0, 3)]));
            Set(attributes.size, Draw(0, 2) == 0 ? Draw(4, 26) : usual);
            Set(attributes.colour, 0x204060 + font * 0x1d2b1b);
        }
    }
    const QString title = QString::fromUtf8(kTitles[Draw(0, 6)]);
    Set(A::AnalogTopText, title);
    Set(A::DigitalTopText, title);
}

void MadeUpClock::SetDigital()
{
    Set(A::ClockType, int(DigitalClock));
    node.SetSize(QSize(Draw(16, 230), Draw(8, 130)));
    for (const A flag : {A::Digital_TopTexy_d, A::Digital_Date_d, A::Digital_Week_d,
                         A::Digital_Time_d, A::Digital_Lunar_d})
        Set(flag, Draw(0, 1));
    Set(A::DigitalDateType, Draw(0, 8));
    Set(A::DigitalTimeType, Draw(-1, 5));
    Set(A::DigitalWeekType, Draw(0, 3));
    Set(A::DigitalMode, Draw(0, 1));
    if (Draw(0, 2) == 0)
        Set(A::DigitalDispAMPM, Draw(0, 1));
    Set(A::DigitalDisplayMode, Draw(0, 2) == 0 ? 1 : 0);
    Set(A::DigitalSwapArea, Draw(0, 1));
    Set(A::DigitalSpace, Draw(-12, 12));
}

void MadeUpClock::SetAnalog()
{
    Set(A::ClockType, int(AnalogClock));
    node.SetSize(QSize(Draw(10, 240), Draw(10, 240)));
    for (const A flag : {A::Analog_TopTexy_d, A::Analog_Date_d, A::Analog_Week_d, A::Analog_AMPM_d,
                         A::Analog_Lunar_d})
        Set(flag, Draw(0, 1));
    Set(A::AnalogDateType, Draw(0, 8));
    Set(A::AnalogWeekType, Draw(0, 3));
    Set(A::AnalogSwapArea, Draw(0, 1));
    Set(A::AnalogSpace, Draw(-10, 10));
    Set(A::HourScaleType, Draw(0, 5));
    Set(A::MinuteScaleType, Draw(0, 3));
    Set(A::MinuteScaleColor, 0x7f7f11);
}

QString MadeUpClock::Description()
{
    return QStringLiteral("%1 %2x%3 %4 %5")
        .arg(node.ClockType() == AnalogClock ? "analog" : "digital")
        .arg(node.Size().width())
        .arg(node.Size().height())
        .arg(language, QDateTime::fromMSecsSinceEpoch(begin, Qt::UTC).toString(Qt::ISODate));
}
