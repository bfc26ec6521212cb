#include "plain_digital.h"

#include <QPainter>

namespace {

QPixmap Canvas(int width, int height)
{
    QPixmap canvas(width, height);
    canvas.fill(QColor(0, 0, 0, 0));
    return canvas;
}

QPixmap Cell(const QPixmap &strip, int cells, int index)
{
    const int width = strip.width() / cells;
    return width > 0 ? strip.copy(index * width, 0, width, strip.height()) : QPixmap();
}

QPixmap Digit(const QPixmap &strip, int digit)
{
    return Cell(strip, 10, digit);
}

// Draws the parts one after the other from x = 0.
void DrawFrom(QPixmap &canvas, int x, const QList<QPixmap> &parts)
{
    if (canvas.isNull())
        return;
    QPainter painter(&canvas);
    for (const QPixmap &part : parts) {
        painter.drawPixmap(x, 0, part);
        x += part.width();
    }
}

QPixmap Digits(const QPixmap &strip, const QList<int> &digits)
{
    QPixmap canvas = Canvas(strip.width() / 10 * digits.size(), strip.height());
    QList<QPixmap> parts;
    for (const int digit : digits)
        parts.append(Digit(strip, digit));
    DrawFrom(canvas, 0, parts);
    return canvas;
}

} // namespace

PlainDigitalClock::Shown PlainDigitalClock::Gregorian(const QDateTime &reading)
{
    const QDate date = reading.date();
    const QTime time = reading.time();
    return {date.year(),
            date.month(),
            date.day(),
            time.hour(),
            time.minute(),
            time.second(),
            date.dayOfWeek(),
            0,
            0};
}

QPixmap PlainDigitalClock::File(const char *key)
{
    return QPixmap(m_node.GetFirstFile(QString::fromLatin1(key)));
}

int PlainDigitalClock::Number(const char *key)
{
    return m_node.GetAttributeToInt(QString::fromLatin1(key));
}

QPixmap PlainDigitalClock::Date(const Shown &s)
{
    const QPixmap digits = File("_dateNumber");
    const QPixmap labels = File("_dateCh");
    const QPixmap chars = File("_dateChar");
    const QPixmap space = File("_space");
    const QPixmap year =
        Digits(digits, {s.year / 1000, s.year % 1000 / 100, s.year % 100 / 10, s.year % 10});
    const QPixmap day = Digits(digits, {s.day / 10, s.day % 10});
    const int type = Number("DigitalDateType");
    QPixmap month = Digits(digits, {s.month / 10, s.month % 10});
    if (type == 3 || type == 4) {
        month = File(qPrintable(QStringLiteral("_dateEnMonth_%1").arg(s.month)));
        QPixmap canvas = Canvas(year.width() + month.width() + day.width() + chars.width() / 2
                                    + 2 * space.width(),
                                labels.height());
        const QPixmap first = type == 3 ? month : day;
        DrawFrom(canvas, 0, {first});
        DrawFrom(canvas, first.width() + space.width(), {type == 3 ? day : month, year});
        return canvas;
    }
    if (type == 5 || type == 6) {
        const int cell = labels.width() / 3;
        const bool withYear = type == 5;
        QPixmap canvas =
            Canvas(month.width() + day.width() + 2 * cell + (withYear ? year.width() + cell : 0),
                   labels.height());
        QList<QPixmap> parts;
        if (withYear)
            parts << year << Cell(labels, 3, 0);
        parts << month << Cell(labels, 3, 1) << day << Cell(labels, 3, 2);
        DrawFrom(canvas, 0, parts);
        return canvas;
    }
    const QPixmap separator = type == 8 ? File("_Minus") : Cell(chars, 2, 1);
    QPixmap canvas =
        Canvas(year.width() + month.width() + day.width() + chars.width(), labels.height());
    switch (type) {
    case 0:
    case 7:
    case 8:
        DrawFrom(canvas, 0, {year, separator, month, separator, day});
        return canvas;
    case 1:
        DrawFrom(canvas, 0, {month, separator, day, separator, year});
        return canvas;
    case 2:
        DrawFrom(canvas, 0, {day, separator, month, separator, year});
        return canvas;
    default:
        return QPixmap();
    }
}

QPixmap PlainDigitalClock::Time(const Shown &s)
{
    const QPixmap digits = File("_timeNumber");
    const QPixmap labels = File("_timeCh");
    const QPixmap separator = File("_timeChar");
    const int type = Number("DigitalTimeType");
    const int w = digits.width() / 10;
    const int label = labels.width() / 3;
    int hour = s.hour;
    QPixmap mark;
    if (Number("DigitalMode") == 1) {
        mark = File(hour < 12 ? "_timeAM" : "_timePM");
        if (hour > 12)
            hour -= 12;
        if (m_node.HaveAttribute("DigitalDispAMPM") && Number("DigitalDispAMPM") == 0)
            mark = QPixmap();
    }
    int width = 6 * w + 2 * separator.width();
    QList<QPixmap> parts = {Digit(digits, hour / 10), Digit(digits, hour % 10)};
    const QList<QPixmap> minute = {Digit(digits, s.minute / 10), Digit(digits, s.minute % 10)};
    const QList<QPixmap> second = {Digit(digits, s.second / 10), Digit(digits, s.second % 10)};
    switch (type) {
    case 0:
        parts << separator << minute << separator << second;
        break;
    case 1:
        width = 4 * w + separator.width();
        parts << separator << minute;
        break;
    case 2:
        width = 6 * w + labels.width();
        parts << Cell(labels, 3, 0) << minute << Cell(labels, 3, 1) << second << Cell(labels, 3, 2);
        break;
    case 3:
        width = 4 * w + 2 * label;
        parts << Cell(labels, 3, 0) << minute << Cell(labels, 3, 1) << second;
        break;
    case 4:
        width = (hour < 10 ? 3 : 4) * w + separator.width();
        if (hour < 10)
            parts.removeFirst();
        parts << separator << minute;
        break;
    default:
        parts << (type > 4 ? Cell(labels, 3, 0) : separator) << minute << second;
        break;
    }
    QPixmap time = Canvas(width, labels.height());
    DrawFrom(time, 0, parts);
    if (mark.isNull())
        return time;
    QPixmap both = Canvas(time.width() + mark.width(), time.height());
    DrawFrom(both, 0, {time, mark});
    return both;
}

QPixmap PlainDigitalClock::Week(const Shown &s)
{
    const char *const families[] = {"_chWeek_%1", "_enWeek_%1", "_enWeekSim_%1", "_PersiaWeek_%1"};
    const int type = Number("DigitalWeekType");
    if (type < 0 || type > 3)
        return QPixmap();
    return File(qPrintable(QString::fromLatin1(families[type]).arg(s.dayOfWeek)));
}

QPixmap PlainDigitalClock::Lunar(const Shown &s)
{
    const QPixmap strip = File("_lunar");
    QList<int> cells = {10, 11};
    if (s.lunarMonth >= 11)
        cells << 9 << s.lunarMonth % 10 - 1;
    else
        cells << (s.lunarMonth == 1 ? 16 : s.lunarMonth - 1);
    cells << 13;
    const int day = s.lunarDay;
    if (day <= 10)
        cells << 15 << day - 1;
    else if (day < 20)
        cells << 9 << day % 10 - 1;
    else if (day == 20)
        cells << 1 << 9;
    else if (day < 30)
        cells << 1 << 9 << day % 10 - 1;
    else
        cells << 2 << 9;
    QPixmap canvas = Canvas(strip.width() / 17 * cells.size(), strip.height());
    QList<QPixmap> parts;
    for (const int cell : cells)
        parts.append(Cell(strip, 17, cell));
    DrawFrom(canvas, 0, parts);
    return canvas;
}

QPixmap PlainDigitalClock::TopText()
{
    return File("_toptext");
}

QImage PlainDigitalClock::Frame(const Shown &shown)
{
    struct Part
    {
        char name;
        int flag;
        QPixmap pixmap;
        int y = 0;
    };
    QList<Part> all = {{'t', Number("Digital_TopTexy_d"), TopText()},
                       {'d', Number("Digital_Date_d"), Date(shown)},
                       {'w', Number("Digital_Week_d"), Week(shown)},
                       {'h', Number("Digital_Time_d"), Time(shown)},
                       {'l', Number("Digital_Lunar_d"), Lunar(shown)}};
    const QSize size = m_node.Size();
    const int middle = size.height() / 2;
    const int space = Number("DigitalSpace");
    const int swap = Number("DigitalSwapArea");
    QList<Part> parts;
    for (const Part &part : qAsConst(all)) {
        if (part.flag != 0)
            parts.append(part);
    }
    const auto indexOf = [&parts](char name) {
        for (int i = 0; i < parts.size(); ++i) {
            if (parts.at(i).name == name)
                return i;
        }
        return -1;
    };
    const auto exchangeDateAndWeek = [&] {
        const int date = indexOf('d');
        const int week = indexOf('w');
        if (date >= 0 && week >= 0)
            std::swap(parts[date], parts[week]);
    };
    const auto h = [&parts](int index) { return parts.at(index).pixmap.height(); };

    QImage frame(size, QImage::Format_ARGB32);
    frame.fill(QColor(1, 2, 1));
    QPainter painter(&frame);
    if (Number("DigitalDisplayMode") != 0) {
        if (swap == 0)
            exchangeDateAndWeek();
        qint64 total = qint64(space) * (parts.size() - 1);
        for (const Part &part : qAsConst(parts))
            total += part.pixmap.width();
        qint64 x = size.width() / 2 - total / 2;
        for (const Part &part : qAsConst(parts)) {
            if (part.flag != 1)
                continue;
            painter.drawPixmap(int(x), middle - part.pixmap.height() / 2, part.pixmap);
            x += part.pixmap.width() + space;
        }
        return frame;
    }
    switch (parts.size()) {
    case 1:
        parts[0].y = middle - h(0) / 2;
        break;
    case 2: {
        const bool dateAndWeek = indexOf('d') >= 0 && indexOf('w') >= 0;
        const bool exchanged = dateAndWeek && swap == 1;
        if (exchanged)
            exchangeDateAndWeek();
        parts[0].y = middle - space / 2 - h(0);
        const char upper = parts.at(0).name;
        if (space % 2 != 0 && (upper == 'h' || (upper == 'w' && !exchanged)))
            parts[0].y -= 1;
        parts[1].y = middle + space / 2;
        break;
    }
    case 3:
        if (swap != 1)
            exchangeDateAndWeek();
        parts[1].y = middle - h(1) / 2;
        parts[0].y = middle - h(1) / 2 - space - h(0);
        parts[2].y = middle + space + h(1) / 2;
        break;
    case 4:
        if (swap != 1)
            exchangeDateAndWeek();
        parts[1].y = middle - space / 2 - h(1);
        parts[0].y = parts[1].y - space - h(0);
        parts[2].y = middle + space / 2;
        parts[3].y = parts[2].y + h(2) + space;
        break;
    case 5:
        if (swap != 1)
            exchangeDateAndWeek();
        parts[2].y = middle - h(2) / 2;
        parts[1].y = parts[2].y - space - h(1);
        parts[0].y = parts[1].y - space - h(0);
        parts[3].y = space + middle + h(2) / 2;
        parts[4].y = parts[3].y + space + h(3);
        break;
    default:
        break;
    }
    // Where rows lie over each other, the later of this order is on top.
    for (const char name : {'t', 'd', 'w', 'h', 'l'}) {
        const int index = indexOf(name);
        if (index < 0 || parts.at(index).flag != 1)
            continue;
        const Part &part = parts.at(index);
        painter.drawPixmap(size.width() / 2 - part.pixmap.width() / 2, part.y, part.pixmap);
    }
    return frame;
}
