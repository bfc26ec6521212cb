// A clock node with its glyph images in a folder of its own, and a clock that stands still.
#pragma once

#include "calendar/device_clock.h"
#include "clock_node.h"
#include "glyph/draw_source_image.h"

#include "happconfig.h"

#include <QDateTime>
#include <QImage>
#include <QTemporaryDir>

namespace PlainFixture {

inline long long now = 0;

inline long long Now()
{
    return now;
}

/// The instant from which AdvanceSecond goes on, read as UTC.
inline void SetTime(const QString &iso)
{
    now = QDateTime::fromString(iso + QLatin1Char('Z'), Qt::ISODate).toMSecsSinceEpoch();
    clock_set_time_source(&Now);
}

inline void AdvanceSecond()
{
    now += 1000;
}

class Clock
{
public:
    using HClockNode = Lw::HNodeClock::HClockNode;

    explicit Clock(const QSize &size, int type = 0)
    {
        Lw::HAppConfig::SetClockOutputPath(m_folder.path());
        Lw::HAppConfig::SetRenderImageFormat(5);
        node.InitData();
        Set("Id", 1000);
        Set("ClockType", type);
        Set("TimeZone", QStringLiteral("+00:00"));
        Set("UseDaylightSavingTime", 0);
        for (const char *font : {"HourScaleFName", "AnalogAMPMFName", "AnalogTopTextFName",
                                 "AnalogDateFName", "AnalogWeekFName", "AnalogLunarFName"})
            Set(font, QStringLiteral("DejaVu Sans"));
        Set("AnalogWeekType", 2);
        node.SetSize(size);
    }

    template<typename Value>
    void Set(const char *key, Value value)
    {
        node.SetAttribute(QLatin1String(key), value, false);
    }

    void MakeGlyphs() { Lw::HNodeClock::DrwSourceIMage().DrawClockSourceImage(&node); }

    /// Makes every inked pixel of the glyph images translucent, in levels that differ from place
    /// to place.
    void SoftenGlyphs()
    {
        for (const Lw::FileRecord &record : node.FileRecords()) {
            QImage image = QImage(record.path).convertToFormat(QImage::Format_ARGB32);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb pixel = image.pixel(x, y);
                    const int alpha = qAlpha(pixel) * (1 + (x * 7 + y * 13) % 255) / 255;
                    image.setPixel(x, y, (pixel & 0xffffff) | static_cast<QRgb>(alpha) << 24);
                }
            }
            image.save(record.path, "PNG");
        }
    }

    QString Folder() const { return m_folder.path(); }

    HClockNode node;

private:
    QTemporaryDir m_folder;
};

} // namespace PlainFixture
