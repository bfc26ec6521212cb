#include "whole_texts.h"

#include "calendar/device_clock.h"
#include "compose/clock_reading.h"
#include "glyph/draw_source_image.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

using namespace ClockFit;
using namespace Lw::HNodeClock;
using A = Attribute;

namespace {

const char *const kMonths[] = {"Jan.", "Feb.", "Mar.", "Apr.", "May",  "Jun.",
                               "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
const char *const kDays[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                             "Friday", "Saturday", "Sunday"};
const char *const kShortDays[] = {"Mon.", "Tues.", "Wed.", "Thurs.", "Fri.", "Sat.", "Sun."};

QStringList Digits(int number, int count)
{
    return QStringLiteral("%1")
        .arg(number, count, 10, QLatin1Char('0'))
        .split(QString(), Qt::SkipEmptyParts);
}

QString Label(const char *labels, int index)
{
    return DrwSourceIMage::tr(labels).mid(index, 1);
}

QFont FontOf(HClockNode &node, Part part)
{
    QFont font(node.GetAttribute(Key(*FamilyAttribute(part, node.ClockType()))));
    font.setPointSize(node.GetAttributeToInt(Key(*SizeAttribute(part, node.ClockType()))));
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

int InkOfText(const QFont &font, const QString &text)
{
    const QFontMetrics metrics(font);
    const QSize box(metrics.horizontalAdvance(text), metrics.height());
    const int room = box.height();
    QImage image(box + 2 * QSize(room, room), QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    // Where glyphs are over each other, how much depends on the fraction of a pixel they begin at.
    painter.drawText(QRect(QPoint(room, room), box), Qt::AlignCenter | Qt::TextDontClip, text);
    painter.end();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixelColor(x, y) == Qt::white ? 1 : 0;
    }
    return ink;
}

} // namespace

bool WholeTexts::Tells(Part part)
{
    return part == Part::TopText || part == Part::Date || part == Part::Week || part == Part::Time;
}

int WholeTexts::Number(Attribute digital, Attribute analog) const
{
    return m_node.GetAttributeToInt(Key(m_node.ClockType() == DigitalClock ? digital : analog));
}

QStringList WholeTexts::Date() const
{
    const QStringList year = Digits(m_shown.year, 4);
    const QStringList month = Digits(m_shown.month, 2);
    const QStringList day = Digits(m_shown.day, 2);
    const QStringList slashes = {"/", "/"};
    const QString name = kMonths[m_shown.month - 1];
    switch (Number(A::DigitalDateType, A::AnalogDateType)) {
    case 3:
    case 4:
        return QStringList(name) + day + year;
    case 5:
        return year + month + day
            + QStringList {Label("DateString", 0), Label("DateString", 1), Label("DateString", 2)};
    case 6:
        return month + day + QStringList {Label("DateString", 1), Label("DateString", 2)};
    case 8:
        return year + month + day + QStringList {"-", "-"};
    default:
        return year + month + day + slashes;
    }
}

// Twelve o'clock is twelve, and midnight is 0.
QStringList WholeTexts::Time() const
{
    const int type = m_node.GetAttributeToInt(Key(A::DigitalTimeType));
    const bool twelve = m_node.GetAttributeToInt(Key(A::DigitalMode)) == 1;
    const int hour = twelve && m_shown.hour > 12 ? m_shown.hour - 12 : m_shown.hour;
    QStringList pieces = Digits(hour, type == 4 ? 1 : 2) + Digits(m_shown.minute, 2);
    if (type != 1 && type != 3 && type != 4)
        pieces += Digits(m_shown.second, 2);
    const int labels = type == 2 ? 3 : type == 3 ? 2 : type > 4 ? 1 : 0;
    for (int label = 0; label < labels; ++label)
        pieces.append(Label("TimeString", label));
    const int colons = type == 0 ? 2 : type < 0 || type == 1 || type == 4 ? 1 : 0;
    for (int colon = 0; colon < colons; ++colon)
        pieces.append(QStringLiteral(":"));
    const bool hasMark = !m_node.HaveAttribute(Key(A::DigitalDispAMPM))
        || m_node.GetAttributeToInt(Key(A::DigitalDispAMPM)) != 0;
    if (twelve && hasMark)
        pieces.append(m_shown.hour < 12 ? QStringLiteral(" AM") : QStringLiteral(" PM"));
    return pieces;
}

QStringList WholeTexts::Pieces(Part part) const
{
    const int day = m_shown.dayOfWeek - 1;
    switch (part) {
    case Part::Date:
        return Date();
    case Part::Time:
        return Time();
    case Part::TopText:
        return {m_node.GetAttribute(
            Key(m_node.ClockType() == DigitalClock ? A::DigitalTopText : A::AnalogTopText))};
    default:
        break;
    }
    switch (Number(A::DigitalWeekType, A::AnalogWeekType)) {
    case 0:
        return {DrwSourceIMage::tr(kDays[day])};
    case 1:
        return {kDays[day]};
    case 2:
        return {kShortDays[day]};
    default:
        return {DrwSourceIMage::tr(("Persia" + QByteArray(kDays[day])).constData())};
    }
}

void WholeTexts::ReadAt(qint64 utc)
{
    const HeldInstant then(utc);
    ClockReading reading;
    reading.SetUp(m_node);
    reading.Update(&m_node);
    m_shown = reading.Fields();
}

int WholeTexts::Ink(Part part, qint64 utc)
{
    ReadAt(utc);
    const QFont font = FontOf(m_node, part);
    int ink = 0;
    for (const QString &piece : Pieces(part)) {
        const QString key = NameOf(part) + piece;
        if (!m_known.contains(key))
            m_known.insert(key, InkOfText(font, piece));
        ink += m_known[key];
    }
    return ink;
}

int WholeTexts::Unsteadiness(Part part, qint64 utc)
{
    constexpr int kPixelsOfAPiece = 2;
    ReadAt(utc);
    const bool isUnsteady = FontOf(m_node, part).family().startsWith(QLatin1String("WenQuanYi"));
    int pixels = 0;
    for (const QString &piece : Pieces(part)) {
        const bool isLatin = std::all_of(piece.cbegin(), piece.cend(),
                                         [](QChar letter) { return letter.unicode() < 0x100; });
        pixels += isUnsteady || !isLatin ? kPixelsOfAPiece : 0;
    }
    return pixels;
}
