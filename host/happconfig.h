// host/: the application's configuration, one per process.
#pragma once

#include <QColor>
#include <QString>

namespace Lw {

class HAppConfig
{
public:
    static HAppConfig *instance();

    /// Directory for the clocks' glyph images, with a trailing separator.
    static QString ClockOutputPath();
    /// Directory for the images of a temporary program, with a trailing separator.
    static QString TempProgramImagePath();

    /// Stored colour ints are 0x00BBGGRR; the top byte is ignored and colours come back opaque.
    static QColor IntToColor(int value);
    static int ColorToInt(QColor color);     ///< alpha is dropped; an invalid colour is 0
    static int NameToIntColor(QString name); ///< Qt colour-name syntax; an invalid name is 0

    int RenderImageFormat(); ///< a QImage::Format value
    /// The device's offset from UTC in seconds, and whether daylight saving is on.
    void GetTimeInfo(int &utcOffsetSeconds, bool &daylightSaving);

    // Not called by plugins; for players and tests. Directories are created if missing and get a
    // trailing separator; an empty path restores the default.
    static void SetClockOutputPath(QString directory);
    static void SetTempProgramImagePath(QString directory);
    static void SetTimeInfo(int utcOffsetSeconds, bool daylightSaving);
    static void SetRenderImageFormat(int format);

private:
    HAppConfig();
    ~HAppConfig();
    Q_DISABLE_COPY(HAppConfig)
    class Private;
    Private *d; // a raw pointer, so that other hosts can define their own Private
};

} // namespace Lw
