// A clock node with glyph images in a directory of its own.
#pragma once

#include "clock_node.h"
#include "every_attribute.h"
#include "glyph/draw_source_image.h"

#include "happconfig.h"

#include <QImage>
#include <QTemporaryDir>

class ClockUnderTest
{
public:
    /// A new clock of a type, in UTC, with the default settings, a family that is installed
    /// everywhere the tests run, and no glyph images yet.
    explicit ClockUnderTest(int clockType, const QSize &size = QSize(256, 128))
    {
        Lw::HAppConfig::SetClockOutputPath(m_directory.path());
        node.InitData();
        Set("ClockType", clockType);
        Set("Id", 1000);
        Set("TimeZone", "+00:00");
        SetEvery(node, Lw::HNodeClock::ValueRole::Family, QStringLiteral("DejaVu Sans"));
        node.SetSize(size);
    }

    void Set(const char *key, int value)
    {
        node.SetAttribute(QString::fromLatin1(key), value, false);
    }
    void Set(const char *key, const char *value)
    {
        node.SetAttribute(QString::fromLatin1(key), QString::fromUtf8(value), false);
    }
    void Set(const char *key, const QString &value)
    {
        node.SetAttribute(QString::fromLatin1(key), value, false);
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

    QString Directory() const { return m_directory.path(); }

    Lw::HNodeClock::HClockNode node;

private:
    QTemporaryDir m_directory;
};
