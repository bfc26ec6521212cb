#include "sheet.h"

#include "clock_attributes.h"
#include "clock_node.h"
#include "happconfig.h"
#include "led_screen.h"

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
constexpr int kResolution = 150; // dots per inch
constexpr int kMargin = 15;      // millimetres

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::Sheet", text);
}

QString Words(const char *words)
{
    return QCoreApplication::translate("ClockStudio::Attributes", words).toHtmlEscaped();
}

bool IsUsed(const AttributeRow &row, int kind)
{
    switch (row.clocks) {
    case ClockKinds::All:
        return row.attribute != Attribute::Id && row.attribute != Attribute::Guid;
    case ClockKinds::Analog:
        return kind == AnalogClock;
    case ClockKinds::Digital:
        return kind == DigitalClock;
    case ClockKinds::Picture:
        return kind == PictureClock;
    }
    return false;
}

QString ValueText(const AttributeRow &row, HClockNode &clock)
{
    const QString stored = clock.GetAttribute(Key(row.attribute));
    if (row.role == ValueRole::Colour) {
        const QString colour = Lw::HAppConfig::IntToColor(stored.toInt()).name();
        return QStringLiteral(
                   "<span style=\"background-color:%1\">&nbsp;&nbsp;&nbsp;&nbsp;</span> %1")
            .arg(colour);
    }
    if (const char *const name = row.range.NameOf(stored.toInt()))
        return Words(name);
    if (row.role == ValueRole::Flag)
        return stored.toInt() != 0 ? Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "yes"))
                                   : Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "no"));
    return stored.toHtmlEscaped();
}

QString ClockTable(HClockNode &clock, int number, const QRect &geometry)
{
    QString html =
        QStringLiteral("<h3>%1</h3><p>%2</p><table cellpadding=\"2\">")
            .arg(Translated(QT_TRANSLATE_NOOP("ClockStudio::Sheet", "Clock %1")).arg(number),
                 QStringLiteral("%1, %2 &nbsp; %3 × %4")
                     .arg(geometry.x())
                     .arg(geometry.y())
                     .arg(geometry.width())
                     .arg(geometry.height()));
    int column = 0;
    for (const AttributeRow &row : kAttributeTable) {
        if (!IsUsed(row, clock.ClockType()) || !clock.HaveAttribute(Key(row.attribute)))
            continue;
        html += column == 0 ? QStringLiteral("<tr>") : QString();
        html += QStringLiteral("<td>%1</td><td><b>%2</b>&nbsp;&nbsp;</td>")
                    .arg(Words(row.label), ValueText(row, clock));
        column = (column + 1) % 2;
        html += column == 0 ? QStringLiteral("</tr>") : QString();
    }
    return html + (column != 0 ? QStringLiteral("</tr></table>") : QStringLiteral("</table>"));
}

QString SheetText(const QString &title, LiveWall &wall, const QStringList &findings)
{
    QString html =
        QStringLiteral(
            "<h1>%1</h1><p>%2 &nbsp; %3 × %4</p><p><img src=\"wall\" width=\"640\"/></p>")
            .arg(title.toHtmlEscaped(),
                 QLocale().toString(QDate::currentDate(), QLocale::LongFormat))
            .arg(wall.Size().width())
            .arg(wall.Size().height());
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

} // namespace

void WriteSheet(QIODevice &device, const QString &title, LiveWall &wall,
                const QStringList &findings)
{
    QPdfWriter writer(&device);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
    writer.setTitle(title);
    QTextDocument document;
    const QImage picture = ClockStage::LedScreen(kPitch).Diodes(wall.Screen());
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("wall")),
                         picture.isNull() ? wall.Screen() : picture);
    document.setHtml(SheetText(title, wall, findings));
    document.print(&writer);
}

} // namespace ClockStudio
