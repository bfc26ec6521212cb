#include "compose/draw_clock_classify_image.h"

#include "compose/element_composer.h"

namespace Lw::HNodeClock {

DrawClockClassifyImage::DrawClockClassifyImage() : m_elements(new ElementComposer) { }

DrawClockClassifyImage::~DrawClockClassifyImage() = default;

void DrawClockClassifyImage::InitParameters(HClockNode *node)
{
    if (node)
        m_elements->SetUp(*node);
}

int DrawClockClassifyImage::CalculateTimeZone(QDateTime &reading)
{
    const ClockReading &now = m_elements->UpdateReading();
    reading = now.DateTime();
    return now.Fields().dayOfWeek;
}

QDateTime DrawClockClassifyImage::AnalyzeDaylightSavingTime(QDate date, QString rule)
{
    const std::optional<DaylightRule> parsed = ParseDaylightRule(rule);
    return parsed ? BoundaryInYear(*parsed, date.year()) : QDateTime();
}

QString DrawClockClassifyImage::GetTimeAP()
{
    return m_elements->ShownHour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
}

int DrawClockClassifyImage::CountLeapYear(int year)
{
    return IsPersianLeapYear(year) ? 1 : 0;
}

PersianDate DrawClockClassifyImage::CountPersianDate(QDate date)
{
    return ToPersianDate(date);
}

QPixmap DrawClockClassifyImage::GetDatePixmap()
{
    return m_elements->DatePixmap();
}

QPixmap DrawClockClassifyImage::GetTimePixmap()
{
    return m_elements->TimePixmap();
}

QPixmap DrawClockClassifyImage::GetWeeKPixmap()
{
    return m_elements->WeekPixmap();
}

QPixmap DrawClockClassifyImage::GetLunarPixmap()
{
    return m_elements->LunarPixmap();
}

QPixmap DrawClockClassifyImage::GetTopTextPixmap()
{
    return m_elements->TopTextPixmap();
}

void DrawClockClassifyImage::GetLunarDate()
{
    m_elements->UpdateLunarDate();
}

ElementComposer &DrawClockClassifyImage::Elements()
{
    return *m_elements;
}

} // namespace Lw::HNodeClock
