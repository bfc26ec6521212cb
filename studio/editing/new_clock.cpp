#include "new_clock.h"

#include "clock_attributes.h"
#include "font_check.h"
#include "system_zones.h"

#include <QDate>
#include <QFont>
#include <QFontMetrics>
#include <QTimeZone>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

constexpr int kLargestSize = 400;

// The heights of a digital clock's time and label as fractions of the area's height, and the height
// of the numerals as a fraction of the dial's side.
constexpr double kTimeShare = 0.62;
constexpr double kLabelShare = 0.28;
constexpr double kNumeralShare = 0.13;

ZoneSettings ZoneOfThisComputer()
{
    static const ZoneSettings settings = [] {
        const auto span = ClockZones::TenYearsFrom(QDate::currentDate());
        const QByteArray name = QTimeZone::systemTimeZoneId();
        const auto civil = ClockZones::CivilTimeOf(name, span);
        const auto after = ClockZones::CivilTimeOf(name, ClockZones::ListedAfter(span));
        return civil && after && span.begin < span.end ? ClockZones::BestSettings(*civil, *after)
                                                       : ZoneSettings();
    }();
    return settings;
}

QString Setting(Attribute attribute, const QString &value)
{
    return QStringLiteral("    <attribute key=\"%1\" value=\"%2\"/>\n").arg(Key(attribute), value);
}

QString DaylightLines(const ZoneSettings &zone)
{
    if (!zone.HasDaylightSaving())
        return {};
    return Setting(Attribute::UseDaylightSavingTime, QStringLiteral("1"))
        + Setting(Attribute::DaylightSavingTimeStart, zone.start)
        + Setting(Attribute::DaylightSavingTimeEnd, zone.end);
}

QString Font(const QString &family, int size, const char *colour)
{
    return QStringLiteral("fontName=\"%1\" fontSize=\"%2\" color=\"%3\"")
        .arg(family)
        .arg(size)
        .arg(QLatin1String(colour));
}

QString DigitalLines(QSize size)
{
    const QString family = NewClockFamily();
    const auto share = [size](double part) {
        return QSize(size.width() - 2, static_cast<int>(size.height() * part));
    };
    const int time = FittingSize(family, QStringLiteral("88:88"), share(kTimeShare));
    const int label = FittingSize(family, QStringLiteral("Label"), share(kLabelShare));
    return QStringLiteral("    <title display=\"false\" value=\"Label\" %1/>\n"
                          "    <date display=\"false\" format=\"2\" %1/>\n"
                          "    <week display=\"false\" format=\"1\" %1/>\n"
                          "    <time display=\"true\" format=\"1\" %2/>\n")
        .arg(Font(family, label, "#ffffff"), Font(family, time, "#ffb000"));
}

QString AnalogLines(QSize size)
{
    const QString family = NewClockFamily();
    const int side = qMin(size.width(), size.height());
    const int box = static_cast<int>(side * kNumeralShare);
    const int numerals = FittingSize(family, QStringLiteral("12"), {side, box});
    return QStringLiteral("    <title display=\"false\" value=\"Label\" %1/>\n"
                          "    <date display=\"false\" format=\"2\" %1/>\n"
                          "    <week display=\"false\" format=\"1\" %1/>\n"
                          "    <ampm display=\"false\"/>\n"
                          "    <analog hourHandColor=\"#ffffff\" minuteHandColor=\"#b0c8ff\" "
                          "secondHandColor=\"#ff3030\"\n"
                          "            hourScaleType=\"%2\" hourScaleFontName=\"%3\" "
                          "hourScaleFontSize=\"%4\"\n"
                          "            hourScaleColor=\"#ffb000\" minuteScaleType=\"0\" "
                          "minuteScaleColor=\"#808080\"/>\n")
        .arg(Font(family, numerals, "#ffffff"))
        .arg(side >= 96 ? 3 : 0) // numerals only on dials of at least 96 pixels
        .arg(family)
        .arg(numerals);
}

QString PictureLines()
{
    return Setting(Attribute::ClockType, QString::number(PictureClock))
        + Setting(Attribute::PictrueClockType, QStringLiteral("1"));
}

struct KindText
{
    const char *type;
    QString lines;
};

KindText TextOf(ClockKind kind, QSize size)
{
    switch (kind) {
    case ClockKind::Digital:
        return {"digital", DigitalLines(size)};
    case ClockKind::Analog:
        return {"dial", AnalogLines(size)};
    case ClockKind::Picture:
        break;
    }
    return {"picture", PictureLines()};
}

} // namespace

QString NewClockFamily()
{
    static const QString family = [] {
        const QString wanted = QStringLiteral("DejaVu Sans");
        return ClockFit::InstalledFamilies().contains(wanted) ? wanted : QFont().family();
    }();
    return family;
}

int FittingSize(const QString &family, const QString &text, QSize box)
{
    int fits = kSmallestTextSize;
    for (int step = 256; step > 0; step /= 2) {
        const QFontMetrics metrics(QFont(family, fits + step));
        if (fits + step <= kLargestSize && metrics.height() <= box.height()
            && metrics.horizontalAdvance(text) <= box.width())
            fits += step;
    }
    return fits;
}

QString NewAreaText(ClockKind kind, const QRect &geometry)
{
    const ZoneSettings zone = ZoneOfThisComputer();
    const KindText text = TextOf(kind, geometry.size());
    return QStringLiteral("<area x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\">\n"
                          "  <clock type=\"%5\" timezone=\"%6\">\n%7  </clock>\n</area>")
        .arg(geometry.x())
        .arg(geometry.y())
        .arg(geometry.width())
        .arg(geometry.height())
        .arg(QLatin1String(text.type), zone.ZoneText(), text.lines + DaylightLines(zone));
}

QString NewProgramText(QSize size)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<program width=\"%1\" height=\"%2\">\n</program>\n")
        .arg(size.width())
        .arg(size.height());
}

} // namespace ClockStudio
