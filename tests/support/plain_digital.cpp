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

struct Row
{
    char name; // t top text, d date, w week, h time, l lunar date
    int flag;
    QPixmap pixmap;
    int y = 0;
};

using Rows = QList<Row>;

int IndexOf(const Rows &rows, char name)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i).name == name)
            return i;
    }
    return -1;
}

bool HasDateAndWeek(const Rows &rows)
{
    return IndexOf(rows, 'd') >= 0 && IndexOf(rows, 'w') >= 0;
}

void ExchangeDateAndWeek(Rows &rows)
{
    if (HasDateAndWeek(rows))
        std::swap(rows[IndexOf(rows, 'd')], rows[IndexOf(rows, 'w')]);
}

/// All rows in one line, from left to right.
void DrawBeside(QPainter &painter, const Rows &rows, const QSize &size, int space)
{
    qint64 total = qint64(space) * (rows.size() - 1);
    for (const Row &row : rows)
        total += row.pixmap.width();
    qint64 x = size.width() / 2 - total / 2;
    for (const Row &row : rows) {
        if (row.flag != 1)
            continue;
        painter.drawPixmap(int(x), size.height() / 2 - row.pixmap.height() / 2, row.pixmap);
        x += row.pixmap.width() + space;
    }
}

int HeightOf(const Rows &rows, int index)
{
    return rows.at(index).pixmap.height();
}

struct Column
{
    int middle;
    int space;
    int swap;
};

void PlaceTwo(Rows &rows, const Column &column)
{
    const bool exchanged = HasDateAndWeek(rows) && column.swap == 1;
    if (exchanged)
        ExchangeDateAndWeek(rows);
    rows[0].y = column.middle - column.space / 2 - HeightOf(rows, 0);
    const char upper = rows.at(0).name;
    if (column.space % 2 != 0 && (upper == 'h' || (upper == 'w' && !exchanged)))
        rows[0].y -= 1;
    rows[1].y = column.middle + column.space / 2;
}

void PlaceThree(Rows &rows, const Column &column)
{
    rows[1].y = column.middle - HeightOf(rows, 1) / 2;
    rows[0].y = rows[1].y - column.space - HeightOf(rows, 0);
    rows[2].y = column.middle + column.space + HeightOf(rows, 1) / 2;
}

void PlaceFour(Rows &rows, const Column &column)
{
    rows[1].y = column.middle - column.space / 2 - HeightOf(rows, 1);
    rows[0].y = rows[1].y - column.space - HeightOf(rows, 0);
    rows[2].y = column.middle + column.space / 2;
    rows[3].y = rows[2].y + HeightOf(rows, 2) + column.space;
}

void PlaceFive(Rows &rows, const Column &column)
{
    rows[2].y = column.middle - HeightOf(rows, 2) / 2;
    rows[1].y = rows[2].y - column.space - HeightOf(rows, 1);
    rows[0].y = rows[1].y - column.space - HeightOf(rows, 0);
    rows[3].y = column.space + column.middle + HeightOf(rows, 2) / 2;
    rows[4].y = rows[3].y + column.space + HeightOf(rows, 3);
}

void PlaceBelow(Rows &rows, const Column &column)
{
    if (rows.size() > 2 && column.swap != 1)
        ExchangeDateAndWeek(rows);
    switch (rows.size()) {
    case 1:
        rows[0].y = column.middle - HeightOf(rows, 0) / 2;
        break;
    case 2:
        PlaceTwo(rows, column);
        break;
    case 3:
        PlaceThree(rows, column);
        break;
    case 4:
        PlaceFour(rows, column);
        break;
    case 5:
        PlaceFive(rows, column);
        break;
    default:
        break;
    }
}

/// Where rows overlap, the later of this order is on top.
void DrawBelow(QPainter &painter, const Rows &rows, int width)
{
    for (const char name : {'t', 'd', 'w', 'h', 'l'}) {
        const int index = IndexOf(rows, name);
        if (index < 0 || rows.at(index).flag != 1)
            continue;
        const Row &row = rows.at(index);
        painter.drawPixmap(width / 2 - row.pixmap.width() / 2, row.y, row.pixmap);
    }
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
    switch (Number("DigitalDateType")) {
    case 3:
    case 4:
        return DateWithMonthName(s);
    case 5:
    case 6:
        return DateWithLabels(s);
    default:
        return DateWithSeparators(s);
    }
}

PlainDigitalClock::DateDigits PlainDigitalClock::DigitsOf(const Shown &s)
{
    const QPixmap digits = File("_dateNumber");
    return {Digits(digits, {s.year / 1000, s.year % 1000 / 100, s.year % 100 / 10, s.year % 10}),
            Digits(digits, {s.month / 10, s.month % 10}), Digits(digits, {s.day / 10, s.day % 10})};
}

QPixmap PlainDigitalClock::DateWithMonthName(const Shown &s)
{
    const auto [year, number, day] = DigitsOf(s);
    const QPixmap space = File("_space");
    const QPixmap month = File(qPrintable(QStringLiteral("_dateEnMonth_%1").arg(s.month)));
    QPixmap canvas = Canvas(year.width() + month.width() + day.width()
                                + File("_dateChar").width() / 2 + 2 * space.width(),
                            File("_dateCh").height());
    const bool monthFirst = Number("DigitalDateType") == 3;
    const QPixmap first = monthFirst ? month : day;
    DrawFrom(canvas, 0, {first});
    DrawFrom(canvas, first.width() + space.width(), {monthFirst ? day : month, year});
    return canvas;
}

QPixmap PlainDigitalClock::DateWithLabels(const Shown &s)
{
    const auto [year, month, day] = DigitsOf(s);
    const QPixmap labels = File("_dateCh");
    const int cell = labels.width() / 3;
    const bool withYear = Number("DigitalDateType") == 5;
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

QPixmap PlainDigitalClock::DateWithSeparators(const Shown &s)
{
    const auto [year, month, day] = DigitsOf(s);
    const QPixmap chars = File("_dateChar");
    const int type = Number("DigitalDateType");
    const QPixmap separator = type == 8 ? File("_Minus") : Cell(chars, 2, 1);
    QPixmap canvas = Canvas(year.width() + month.width() + day.width() + chars.width(),
                            File("_dateCh").height());
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
    int hour = s.hour;
    QPixmap mark;
    if (Number("DigitalMode") == 1) {
        mark = File(hour < 12 ? "_timeAM" : "_timePM");
        if (hour > 12)
            hour -= 12;
        if (m_node.HaveAttribute("DigitalDispAMPM") && Number("DigitalDispAMPM") == 0)
            mark = QPixmap();
    }
    const QPixmap time = TimeOfDay(hour, s.minute, s.second);
    if (mark.isNull())
        return time;
    QPixmap both = Canvas(time.width() + mark.width(), time.height());
    DrawFrom(both, 0, {time, mark});
    return both;
}

QPixmap PlainDigitalClock::TimeOfDay(int hour, int minute, int second)
{
    const QPixmap digits = File("_timeNumber");
    const QPixmap labels = File("_timeCh");
    const QPixmap separator = File("_timeChar");
    const int type = Number("DigitalTimeType");
    const int w = digits.width() / 10;
    int width = 6 * w + 2 * separator.width();
    QList<QPixmap> parts = {Digit(digits, hour / 10), Digit(digits, hour % 10)};
    const QList<QPixmap> minutes = {Digit(digits, minute / 10), Digit(digits, minute % 10)};
    const QList<QPixmap> seconds = {Digit(digits, second / 10), Digit(digits, second % 10)};
    const auto label = [&labels](int index) { return Cell(labels, 3, index); };
    switch (type) {
    case 0:
        parts << separator << minutes << separator << seconds;
        break;
    case 1:
        width = 4 * w + separator.width();
        parts << separator << minutes;
        break;
    case 2:
        width = 6 * w + labels.width();
        parts << label(0) << minutes << label(1) << seconds << label(2);
        break;
    case 3:
        width = 4 * w + 2 * (labels.width() / 3);
        parts << label(0) << minutes << label(1) << seconds;
        break;
    case 4:
        width = (hour < 10 ? 3 : 4) * w + separator.width();
        if (hour < 10)
            parts.removeFirst();
        parts << separator << minutes;
        break;
    default:
        parts << (type > 4 ? label(0) : separator) << minutes << seconds;
        break;
    }
    QPixmap time = Canvas(width, labels.height());
    DrawFrom(time, 0, parts);
    return time;
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
    const Row all[] = {{'t', Number("Digital_TopTexy_d"), TopText()},
                       {'d', Number("Digital_Date_d"), Date(shown)},
                       {'w', Number("Digital_Week_d"), Week(shown)},
                       {'h', Number("Digital_Time_d"), Time(shown)},
                       {'l', Number("Digital_Lunar_d"), Lunar(shown)}};
    Rows rows;
    for (const Row &row : all) {
        if (row.flag != 0)
            rows.append(row);
    }
    const QSize size = m_node.Size();
    const int space = Number("DigitalSpace");
    const int swap = Number("DigitalSwapArea");
    QImage frame(size, QImage::Format_ARGB32);
    frame.fill(QColor(1, 2, 1));
    QPainter painter(&frame);
    if (Number("DigitalDisplayMode") != 0) {
        if (swap == 0)
            ExchangeDateAndWeek(rows);
        DrawBeside(painter, rows, size, space);
    } else {
        PlaceBelow(rows, {size.height() / 2, space, swap});
        DrawBelow(painter, rows, size.width());
    }
    return frame;
}
