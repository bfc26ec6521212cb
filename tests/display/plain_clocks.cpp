#include "plain_clocks.h"

#include "calendar/device_clock.h"

#include "happconfig.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>

#include <cstring>

using namespace Lw::HNodeClock;

namespace {

const QColor kKeyColour(1, 2, 1);

int Trunc(double value)
{
    return static_cast<int>(value);
}

bool Smooth()
{
    return Lw::HAppConfig::instance()->RenderImageFormat() == 5;
}

void CopyBytes(const QImage &from, QImage &to)
{
    if (!to.isNull() && from.size() == to.size())
        std::memcpy(to.bits(), from.constBits(),
                    static_cast<std::size_t>(to.height())
                        * static_cast<std::size_t>(to.bytesPerLine()));
}

} // namespace

PlainClock::PlainClock(HClockNode *node) : m_node(node)
{
    m_composer.InitParameters(node);
}

QColor PlainClock::Colour(const char *key)
{
    const int colour = Number(key);
    return QColor(colour & 255, (colour >> 8) & 255, (colour >> 16) & 255);
}

QImage PlainClock::NewImage()
{
    if (m_node->Size().isEmpty())
        return QImage();
    const QSize size = m_node->Size() + 2 * QSize(m_margin, m_margin);
    QImage image(size, QImage::Format_ARGB32);
    image.fill(kKeyColour);
    return image;
}

QImage PlainClock::Frame()
{
    ReadTime();
    m_frame = m_frame.copy(); // its holder keeps the frame before
    if (Number("ClockType") == 0) {
        PlaceTexts();
        DrawAnalog();
    } else if (Number("ClockType") == 2) {
        DrawPicture();
    }
    return m_frame;
}

QImage PlainClock::Dial(int margin)
{
    m_margin = margin;
    ReadTime();
    PlaceTexts();
    m_dial = NewImage();
    DrawDial();
    DrawBadge();
    DrawTexts();
    m_margin = 0;
    return m_dial;
}

void PlainClock::ReadTime()
{
    m_composer.CalculateTimeZone(m_reading);
    const auto text = [this](const char *format) {
        return QLocale::c().toString(m_reading, QLatin1String(format));
    };
    m_dateText = text("yyyy/MM/dd");
    m_year = text("yyyy").toInt();
    m_month = text("MM").toInt();
    m_day = text("dd").toInt();
    m_hourShown = text("hh").toInt();
    m_minuteShown = text("mm").toInt();
    m_secondShown = m_reading.time().second();
    m_millisecond = LocalMillisecond();
}

void PlainClock::DrawAnalog()
{
    const QSize size = m_node->Size();
    if (m_frame.isNull() || m_frame.size() != size)
        m_frame = NewImage();
    if (m_dial.isNull() || m_dialDate != LocalDate() || m_dial.size() != size
        || m_composer.GetTimeAP() != m_dialAP) {
        m_dial = NewImage();
        if (!m_dial.isNull())
            DrawDial();
        DrawBadge();
        m_dialDate = LocalDate();
    }
    if (m_frame.isNull())
        return;
    CopyBytes(m_dial, m_frame);
    DrawHands();
    DrawTexts();
}

void PlainClock::DrawDial()
{
    const QSize size = m_node->Size();
    const double r = qMin(size.width(), size.height()) * 0.5;
    const double a = r / 27;
    const double b = r / 90;
    QPainter painter(&m_dial);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.translate(m_margin + size.width() / 2, m_margin + size.height() / 2);
    QPen pen(Colour("MinuteScaleColor"));
    pen.setWidth(Trunc(b));
    painter.setPen(pen);
    painter.setBrush(Colour("MinuteScaleColor"));
    for (int i = 0; i < 60; i++) {
        if (i % 5 == 0) {
            painter.save();
            pen.setColor(Colour("HourScaleColor"));
            painter.setPen(pen);
            painter.setBrush(Colour("HourScaleColor"));
            DrawHourMark(painter, r, a, b);
            painter.restore();
        } else if (r > 40) {
            DrawMinuteMark(painter, r, a, b);
        }
        painter.rotate(6.0);
    }
    DrawNumerals(painter, r, a);
}

void PlainClock::DrawHourMark(QPainter &painter, double r, double a, double b)
{
    const int type = Number("HourScaleType");
    if (r > 100) {
        if (type == 0)
            painter.drawLine(QPointF(0, b - r), QPointF(0, b - r + 2 * a));
        else if (type == 1)
            painter.drawEllipse(QRectF(-a, b - r, 2 * a, 2 * a));
        else if (type >= 2 && type <= 4)
            painter.drawRect(
                QRect(QPoint(Trunc(-a / 2), Trunc(b - r)),
                      QPoint(Trunc(a) + Trunc(-a / 2) - 1, Trunc(2 * a) + Trunc(b - r) - 1)));
    } else {
        if (type == 0)
            painter.drawLine(QPointF(0, b - r), QPointF(0, b - r + 4 * a));
        else if (type == 1)
            painter.drawEllipse(QRectF(-2 * a, b - r, 4 * a, 4 * a));
        else if (type >= 2 && type <= 4)
            painter.drawRect(QRect(QPoint(-1, Trunc(b - r)), QPoint(0, Trunc(b - r) + 1)));
    }
}

void PlainClock::DrawMinuteMark(QPainter &painter, double r, double a, double b)
{
    const int type = Number("MinuteScaleType");
    if (type == 0)
        painter.drawEllipse(QRectF(-a / 2, b - r, a, a));
    else if (type == 1)
        painter.drawRect(QRect(QPoint(Trunc(-a / 2), Trunc(b - r)),
                               QPoint(Trunc(-a / 2) + Trunc(a) - 1, Trunc(b - r) + Trunc(a) - 1)));
    else if (type == 2)
        painter.drawLine(QPointF(0, b - r), QPointF(0, b - r + a));
}

void PlainClock::DrawNumerals(QPainter &painter, double r, double a)
{
    const int type = Number("HourScaleType");
    if (type != 3 && type != 4)
        return;
    const QPixmap strip(m_node->GetFirstFile(QStringLiteral("_hourhandNumber")));
    if (strip.isNull())
        return;
    const int d = strip.width() / 10;
    const int h = strip.height();
    const int o = strip.width() / 20;
    const double r1 = r - 3 * a;
    painter.drawPixmap(-d, Trunc(-r1), strip, d, 0, 2 * d, h);
    painter.drawPixmap(-o, Trunc(r1 - h), strip, 6 * d, 0, d, h);
    painter.drawPixmap(Trunc(r1 - d), -(h / 2), strip, 3 * d, 0, d, h);
    painter.drawPixmap(Trunc(-r1), -(h / 2), strip, 9 * d, 0, d, h);
    if (type != 3)
        return;
    const double r2 = r - 5 * a;
    const double k30 = 0.8660254037844386;
    const double places[12][2] = {{0.5, -k30}, {k30, -0.5},  {0, 0},       {k30, 0.5},
                                  {0.5, k30},  {0, 0},       {-0.5, k30},  {-k30, 0.5},
                                  {0, 0},      {-k30, -0.5}, {-0.5, -k30}, {0, 0}};
    for (const int n : {1, 2, 4, 5, 7, 8, 10, 11}) {
        const int x = Trunc(places[n - 1][0] * r2 - o);
        const int y = Trunc(places[n - 1][1] * r2 - h / 2);
        if (n < 10) {
            painter.drawPixmap(x, y, strip, n * d, 0, d, h);
            continue;
        }
        QPixmap two(2 * d, h);
        two.fill(kKeyColour);
        QPainter other(&two);
        other.drawPixmap(0, 0, strip, d, 0, d, h);
        other.drawPixmap(d, 0, strip, (n - 10) * d, 0, d, h);
        other.end();
        painter.drawPixmap(x, y, two);
    }
}

void PlainClock::DrawBadge()
{
    m_dialAP = m_composer.GetTimeAP();
    if (Number("Analog_AMPM_d") != 1 || m_dial.isNull())
        return;
    const QPixmap badge(m_node->GetFirstFile(m_dialAP == QLatin1String("AM")
                                                 ? QStringLiteral("_AnalogAM")
                                                 : QStringLiteral("_AnalogPM")));
    const QSize size = m_node->Size();
    QPainter painter(&m_dial);
    painter.translate(m_margin, m_margin);
    painter.drawPixmap(size.width() / 2 - badge.width() / 2,
                       size.height() / 8 * 3 - badge.height() / 2, badge);
}

void PlainClock::DrawHands()
{
    const double r = qMin(m_frame.width(), m_frame.height()) / 2;
    const double a = r / 27;
    const int hour = m_hourShown;
    const int minute = m_minuteShown;
    const int second = m_secondShown;
    const Hand hands[] = {
        {"HourRectType", "HourHandColor", (hour + minute / 60.0 + second / 3600.0) * 30, 0.5, 0.5,
         0.25, 1.5 * a, QPointF(0, Trunc(3 * a)), a},
        {"MinuteRectType", "MinuteHandColor", (minute + second / 60) * 6.0, 0.75, 0.75, 0.5,
         1.5 * a, QPointF(0, Trunc(3.75 * a)), 0.75 * a},
        {"SecondRectType", "SecondHandColor", second * 6.0, 1, 1, 1, a, QPointF(0, 4.5 * a),
         0.5 * a},
    };
    QPainter painter(&m_frame);
    painter.setRenderHint(QPainter::Antialiasing, Smooth());
    painter.translate(m_frame.width() / 2, m_frame.height() / 2);
    for (const Hand &hand : hands)
        DrawHand(painter, hand, a);
    const bool arrow = Number("HourRectType") == 1 || Number("MinuteRectType") == 1
        || Number("SecondRectType") == 1;
    const int cap = arrow ? Trunc(a) : Trunc(2 * a);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colour("SecondHandColor"));
    painter.drawEllipse(QRect(QPoint(-cap, -cap), QPoint(cap - 1, cap - 1)));
}

void PlainClock::DrawHand(QPainter &painter, const Hand &hand, double a)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colour(hand.colour));
    painter.rotate(hand.angle);
    if (Number(hand.type) == 0) {
        const double tip = -hand.bar * 23 * a;
        const QPointF bar[] = {{-a, 0}, {a, 0}, {a, tip}, {-a, tip}};
        painter.drawConvexPolygon(bar, 4);
    } else if (Number(hand.type) == 1) {
        DrawArrow(painter, hand, a);
    }
    painter.restore();
}

void PlainClock::DrawArrow(QPainter &painter, const Hand &hand, double a)
{
    const double k = hand.k;
    const double m = hand.m * 23 * a;
    const QPointF arrow[] = {{-hand.w, -k * 7.5 * a},
                             {-a / 2, -k * 3 * a},
                             {-a / 2, k * 4 * a},
                             {a / 2, k * 4 * a},
                             {a / 2, -k * 3 * a},
                             {hand.w, -k * 7.5 * a},
                             {a / 4, -m},
                             {a, -m},
                             {0, -k * 25 * a},
                             {-a, -m},
                             {-a / 4, -m}};
    painter.drawConvexPolygon(arrow, 11);
    QPen pen(Colour(hand.colour));
    pen.setWidth(Trunc(a / 2));
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(hand.ringCentre, hand.ring, hand.ring);
}

void PlainClock::PlaceTexts()
{
    const int w = m_node->Size().width();
    const int h = m_node->Size().height();
    const int s = Number("AnalogSpace");
    const int p = s % 2 != 0 ? 1 : 0;
    const int up = w < h ? h / 2 - w / 4 : h / 4;
    const int down = w < h ? h / 2 + w / 4 : 3 * (h / 4);
    const int lunar = m_composer.GetLunarPixmap().height();
    const int week = m_composer.GetWeeKPixmap().height();
    const int date = m_composer.GetDatePixmap().height();
    const bool hasLunar = Number("Analog_Lunar_d") != 0;
    const bool hasWeek = Number("Analog_Week_d") != 0;
    const bool hasDate = Number("Analog_Date_d") != 0;
    const int swap = Number("AnalogSwapArea");
    m_topTextY = up - m_composer.GetTopTextPixmap().height() / 2;
    switch (hasLunar + hasWeek + hasDate) {
    case 1:
        m_dateY = down - date / 2;
        m_weekY = down - week / 2;
        m_lunarY = down - lunar / 2;
        break;
    case 2:
        m_lunarY = down - s / 2 - lunar - p;
        m_weekY = hasLunar || swap != 1 ? down + s / 2 : down - s / 2 - week - p;
        m_dateY = hasLunar || swap == 1 ? down + s / 2 : down - s / 2 - date - p;
        break;
    case 3:
        if (swap != 0) {
            m_weekY = down - week / 2;
            m_lunarY = m_weekY - s - lunar;
            m_dateY = down + s + week / 2;
        } else {
            m_dateY = down - date / 2;
            m_lunarY = m_dateY - s - lunar;
            m_weekY = down + s + date / 2;
        }
        break;
    default:
        break;
    }
}

void PlainClock::DrawTexts()
{
    QPainter painter(&m_dial);
    painter.translate(m_margin, m_margin);
    painter.setRenderHint(QPainter::Antialiasing, Smooth());
    const auto draw = [&](const char *flag, const QPixmap &row, int y) {
        if (Number(flag) == 1)
            painter.drawPixmap(m_node->Size().width() / 2 - row.width() / 2, y, row);
    };
    draw("Analog_TopTexy_d", m_composer.GetTopTextPixmap(), m_topTextY);
    draw("Analog_Date_d", m_composer.GetDatePixmap(), m_dateY);
    draw("Analog_Week_d", m_composer.GetWeeKPixmap(), m_weekY);
    draw("Analog_Lunar_d", m_composer.GetLunarPixmap(), m_lunarY);
}

void PlainClock::LoadPictures()
{
    const QString folder =
        QCoreApplication::applicationDirPath() + QLatin1String("/../image/ClockType/");
    m_hour = QPixmap(folder + QLatin1String("hour.png"));
    m_minute = QPixmap(folder + QLatin1String("minute.png"));
    m_second = QPixmap(folder + QLatin1String("second.png"));
    m_centre = QPixmap(folder + QLatin1String("center.png"));
    m_dialAP.clear();
    m_background = NewImage();
    const QImage dial(folder + QStringLiteral("picbutton%1.png").arg(Number("PictrueClockType")));
    if (m_background.isNull() || dial.isNull())
        return;
    const int side = qMin(m_node->Size().width(), m_node->Size().height());
    QPainter painter(&m_background);
    painter.drawImage((m_node->Size().width() - side) / 2, (m_background.height() - side) / 2,
                      dial.scaled(side, side, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void PlainClock::DrawPicture()
{
    const int type = Number("PictrueClockType");
    if (!m_loaded || type != m_type || m_background.size() != m_node->Size()) {
        LoadPictures();
        m_type = type;
        m_loaded = true;
    }
    if (m_frame.isNull() || m_frame.size() != m_node->Size())
        m_frame = NewImage();
    if (m_frame.isNull())
        return;
    m_frame.fill(kKeyColour);
    CopyBytes(m_background, m_frame);

    const QTime time = m_reading.time();
    const int width = m_node->Size().width();
    QPainter painter(&m_frame);
    painter.translate(width / 2, m_frame.height() / 2);
    painter.scale(qMin(m_frame.height(), width) / 300.0, qMin(m_frame.height(), width) / 300.0);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.save();
    painter.rotate((m_hourShown + time.minute() / 60.0) * 30.0);
    painter.drawPixmap(QRect(-12, -65, 24, 70), m_hour);
    painter.restore();
    painter.save();
    painter.rotate((time.minute() + time.second() / 60.0) * 6.0);
    painter.drawPixmap(QRect(-10, -85, 20, 90), m_minute);
    painter.restore();
    painter.save();
    painter.rotate(time.second() * 6.0);
    painter.drawPixmap(QRect(-5, -110, 10, 110), m_second);
    painter.restore();
    painter.drawPixmap(QRect(-10, -10, 20, 20), m_centre);
}
