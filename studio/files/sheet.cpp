#include "sheet.h"

#include "properties/property_groups.h"

#include "calendar/clock_time.h"
#include "clock_attributes.h"
#include "clock_node.h"
#include "happconfig.h"
#include "led_screen.h"
#include "number_text.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

constexpr int kPitch = 6;        // pixels per LED in the picture
constexpr int kMinPitch = 3;     // printed dots per LED
constexpr int kResolution = 150; // dots per inch
// Pixels at 96 dpi: as wide as the text between the margins that QTextDocument sets, and so high
// that the findings fit under it.
constexpr QSize kPicture(630, 600);

QSize PrintedSize(LiveWall &wall)
{
    return wall.Size().scaled(kPicture, Qt::KeepAspectRatio);
}

// As LEDs where they can be told apart; smaller ones would only darken the picture.
QImage PictureOf(LiveWall &wall)
{
    const double dots = double(kResolution) / 96 * PrintedSize(wall).width() / wall.Size().width();
    const QImage leds =
        dots < kMinPitch ? QImage() : ClockStage::LedScreen(kPitch).Diodes(wall.Screen());
    return leds.isNull() ? wall.Screen() : leds;
}

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::Sheet", text);
}

QString Words(const char *words)
{
    return QCoreApplication::translate("ClockStudio::Attributes", words).toHtmlEscaped();
}

QString ValueText(const AttributeRow &row, HClockNode &clock)
{
    const QString stored = clock.GetAttribute(Key(row.attribute));
    if (row.role == ValueRole::Colour) {
        const QString colour = Lw::HAppConfig::IntToColor(Lw::NumberIn(stored)).name();
        return QStringLiteral(
                   "<span style=\"background-color:%1\">&nbsp;&nbsp;&nbsp;&nbsp;</span> %1")
            .arg(colour);
    }
    if (const char *const name = row.range.NameOf(Lw::NumberIn(stored)))
        return Words(name);
    if (row.role == ValueRole::Flag)
        return Lw::NumberIn(stored) != 0
            ? Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "yes"))
            : Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "no"));
    return row.role == ValueRole::Size ? stored + QStringLiteral(" pt") : stored.toHtmlEscaped();
}

QString Row(const QString &label, const QString &value)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td><b>%2</b></td></tr>").arg(label, value);
}

/// Zone, daylight-saving rules where they are used, and the adjustment where there is one.
QString TimeRows(HClockNode &clock)
{
    const auto row = [&clock](Attribute attribute) {
        return Row(Words(RowOf(attribute).label), ValueText(RowOf(attribute), clock));
    };
    QString html = row(Attribute::TimeZone);
    if (clock.GetAttributeToInt(Key(Attribute::UseDaylightSavingTime)) != 0)
        html += row(Attribute::DaylightSavingTimeStart) + row(Attribute::DaylightSavingTimeEnd);
    const int seconds = ParseAdjustment(clock.GetAttribute(Key(Attribute::TimeAdjust)));
    if (seconds != 0)
        html += Row(Words(RowOf(Attribute::TimeAdjust).label),
                    FormatAscii(QTime(0, 0).addSecs(seconds), "hh:mm:ss") + QLatin1Char(' ')
                        + ValueText(RowOf(Attribute::AdjustType), clock));
    return html;
}

/// What the clock shows and how; the settings of what it hides are left out.
QString ClockTable(HClockNode &clock, int number, const QRect &geometry)
{
    QString html = QStringLiteral("<h3>%1</h3><p>%2</p><table cellpadding=\"2\">")
                       .arg(Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "Clock %1: %2"))
                                .arg(number)
                                .arg(ValueText(RowOf(Attribute::ClockType), clock)),
                            QStringLiteral("%1, %2 &nbsp; %3 × %4")
                                .arg(geometry.x())
                                .arg(geometry.y())
                                .arg(geometry.width())
                                .arg(geometry.height()));
    html += TimeRows(clock);
    for (const AttributeRow &row : kAttributeTable) {
        const QString value = ValueText(row, clock);
        if (ShowsProperty(clock, row.attribute) && !value.isEmpty())
            html += Row(Words(row.label), value);
    }
    return html + QStringLiteral("</table>");
}

} // namespace

QString SheetHtml(const QString &title, LiveWall &wall, const QStringList &findings)
{
    QString html =
        QStringLiteral("<h1>%1</h1><p>%2 &nbsp; %3 × %4</p><p><img src=\"wall\" width=\"%5\"/></p>")
            .arg(title.toHtmlEscaped(),
                 QLocale().toString(QDate::currentDate(), QLocale::LongFormat),
                 QString::number(wall.Size().width()), QString::number(wall.Size().height()),
                 QString::number(PrintedSize(wall).width()));
    html += QStringLiteral("<h3>%1</h3>")
                .arg(Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "Findings")));
    if (findings.isEmpty())
        html += QStringLiteral("<p>%1</p>")
                    .arg(Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "None")));
    for (const QString &finding : findings)
        html += QStringLiteral("<p>%1</p>").arg(finding.toHtmlEscaped());
    html +=
        QStringLiteral("<p><br/>%1</p>")
            .arg(Translated(QT_TRANSLATE_NOOP(
                "ClockStudio::Sheet", "Approved by ______________________   on ______________")));
    for (int area = 0; area < wall.AreaCount(); ++area) {
        if (HClockNode *const clock = wall.Clock(area))
            html += ClockTable(*clock, area + 1, wall.Geometry(area));
    }
    return html;
}

QByteArray SheetPdf(const QString &title, LiveWall &wall, const QStringList &findings)
{
    QBuffer pdf;
    pdf.open(QBuffer::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(title);
    QTextDocument document;
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("wall")),
                         PictureOf(wall));
    document.setHtml(SheetHtml(title, wall, findings));
    document.print(&writer);
    return pdf.data();
}

} // namespace ClockStudio
