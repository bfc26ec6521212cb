// Analog and picture clocks drawn the plain way: every frame from the whole background, every row
// every second, the time asked for wherever it is needed, nothing remembered but what the look of a
// clock depends on. The reference that the drawer, which draws only what changed, is compared with.
#pragma once

#include "clock_node.h"
#include "compose/draw_clock_classify_image.h"

#include <QDate>
#include <QDateTime>
#include <QImage>
#include <QPixmap>

class PlainClock
{
public:
    explicit PlainClock(Lw::HNodeClock::HClockNode *node);

    QImage Frame(); ///< of this moment, by the node's clock type
    /// An analog clock's dial with the texts of this moment and without hands, on a canvas larger
    /// than the area by so many pixels on each side.
    QImage Dial(int margin);

private:
    /// A hand as fractions of the dial; k, m, w and the ring are an arrow's.
    struct Hand
    {
        const char *type;
        const char *colour;
        double angle;
        double bar;
        double k;
        double m;
        double w;
        QPointF ringCentre;
        double ring;
    };

    int Number(const char *key) { return m_node->GetAttributeToInt(QLatin1String(key)); }
    QColor Colour(const char *key);
    QImage NewImage();

    void ReadTime();
    void DrawAnalog();
    void DrawDial();
    void DrawHourMark(QPainter &painter, double r, double a, double b);
    void DrawMinuteMark(QPainter &painter, double r, double a, double b);
    void DrawNumerals(QPainter &painter, double r, double a);
    void DrawBadge();
    void DrawHands();
    void DrawHand(QPainter &painter, const Hand &hand, double a);
    void DrawArrow(QPainter &painter, const Hand &hand, double a);
    void DrawTexts();
    void PlaceTexts();
    void DrawPicture();
    void LoadPictures();

    Lw::HNodeClock::HClockNode *m_node;
    Lw::HNodeClock::DrawClockClassifyImage m_composer;
    QDateTime m_reading;
    QString m_dateText;
    int m_year = 0;
    int m_month = 0;
    int m_day = 0;
    int m_hourShown = 0;
    int m_minuteShown = 0;
    int m_secondShown = 0;
    int m_millisecond = 0;
    QImage m_frame;
    QImage m_dial;
    int m_margin = 0; ///< around the dial
    QDate m_dialDate;
    QString m_dialAP;
    int m_topTextY = 0;
    int m_dateY = 0;
    int m_weekY = 0;
    int m_lunarY = 0;
    QPixmap m_hour;
    QPixmap m_minute;
    QPixmap m_second;
    QPixmap m_centre;
    QImage m_background;
    bool m_loaded = false;
    int m_type = 0;
};
