// A clock that shows all that its kind can show, and what a new renderer makes of it.
#pragma once

#include "chosen_time.h"
#include "clock_under_test.h"
#include "display/draw_display_image.h"

#include <QCryptographicHash>
#include <QTest>

#include <memory>

namespace FaultSupport {

constexpr int kKinds[] = {Lw::HNodeClock::AnalogClock, Lw::HNodeClock::DigitalClock,
                          Lw::HNodeClock::PictureClock};

inline const char *KindName(int kind)
{
    static const char *const names[] = {"analog", "digital", "picture"};
    return names[kind];
}

inline void AddKinds()
{
    QTest::addColumn<int>("kind");
    for (const int kind : kKinds)
        QTest::newRow(KindName(kind)) << kind;
}

/// Those that are made of glyph images.
inline void AddKindsWithGlyphs()
{
    QTest::addColumn<int>("kind");
    for (const int kind : {Lw::HNodeClock::AnalogClock, Lw::HNodeClock::DigitalClock})
        QTest::newRow(KindName(kind)) << kind;
}

constexpr qint64 kMorning = 1795262390000; ///< 2026-11-21 11:59:50 UTC, a Saturday

inline QString Md5(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

/// With every row and mark, in UTC; twelve-hour display in a digital clock.
inline std::unique_ptr<ClockUnderTest> FullClock(int kind, const QSize &size = QSize(120, 90))
{
    auto clock = std::make_unique<ClockUnderTest>(kind, size);
    for (const char *const key :
         {"Analog_AMPM_d", "Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d", "Analog_Lunar_d",
          "Digital_Lunar_d", "DigitalMode"})
        clock->Set(key, 1);
    clock->MakeGlyphs();
    return clock;
}

inline QImage FrameAt(Lw::HNodeClock::DrawDisplayImage &drawer, qint64 instant)
{
    ChosenTime::Milliseconds() = instant;
    return drawer.DrawClockDisplayImage();
}

/// The second of two frames of a new drawer: an analog clock draws its rows after the first.
inline QImage SettledFrame(Lw::HNodeClock::HClockNode &node, qint64 instant)
{
    Lw::HNodeClock::DrawDisplayImage drawer(&node);
    FrameAt(drawer, instant);
    return FrameAt(drawer, instant).copy();
}

/// Pixels that are not the key colour.
inline int PixelsShown(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != qRgb(1, 2, 1) ? 1 : 0;
    }
    return count;
}

} // namespace FaultSupport
