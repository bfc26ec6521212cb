#include "frame_checks.h"

#include "checks.h"

#include "calendar/device_clock.h"
#include "display/draw_display_image.h"
#include "display/style_pictures.h"
#include "fit.h"
#include "glyph/glyph_set.h"
#include "happconfig.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QtEndian>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

// A player's format without alpha: the clock smooths nothing in it.
constexpr int kPlainFormat = QImage::Format_RGB32;

/// While it exists, clocks show one fixed instant, without antialiasing.
class FixedTime
{
public:
    FixedTime() : m_format(Lw::HAppConfig::instance()->RenderImageFormat())
    {
        Lw::HAppConfig::SetRenderImageFormat(kPlainFormat);
        clock_set_time_source(&TestInstant);
    }
    ~FixedTime()
    {
        clock_set_time_source(nullptr);
        Lw::HAppConfig::SetRenderImageFormat(m_format);
    }
    Q_DISABLE_COPY(FixedTime)

private:
    const int m_format;
};

CheckResult CheckFrame(const QString &what, int type, const QString &directory,
                       const char *expected)
{
    HClockNode clock;
    if (directory.isEmpty() || !SetUpPatternClock(clock, type, directory))
        return {what, Outcome::Failed, QStringLiteral("temporary files cannot be written")};
    DrawDisplayImage drawer(&clock);
    drawer.DrawClockDisplayImage(); // an analog clock's texts show from the second frame on
    if (PictureDigest(drawer.DrawClockDisplayImage()) == expected)
        return {what, Outcome::Ok, QString()};
    return {what, Outcome::Failed, QStringLiteral("the frame differs from the expected one")};
}

QStringList UnreadablePictures()
{
    QStringList files;
    for (int style = 1; style <= kStyleCount; ++style)
        files += ClockFit::UnreadableStyleFiles(style);
    return files;
}

/// The pictures depend on the installation, so there is no digest: checks that all can be read and
/// that the clock draws something for each style.
CheckResult CheckPictureClock()
{
    const QString what = QStringLiteral("picture clock, %1 styles").arg(kStyleCount);
    if (!QFileInfo(StyleFolder()).isDir())
        return {
            what, Outcome::NotChecked,
            QStringLiteral("no pictures in %1").arg(QFileInfo(StyleFolder()).absoluteFilePath())};
    const QStringList unreadable = UnreadablePictures();
    if (!unreadable.isEmpty())
        return {what, Outcome::Failed, QStringLiteral("%1 cannot be read").arg(unreadable.first())};
    HClockNode clock;
    SetUpPatternClock(clock, PictureClock, QString());
    DrawDisplayImage drawer(&clock);
    for (int style = 1; style <= kStyleCount; ++style) {
        clock.SetAttribute(Key(Attribute::PictrueClockType), style, false);
        const QImage frame = drawer.DrawClockDisplayImage();
        QImage nothing = frame;
        nothing.fill(drawer.GetColorKey());
        if (frame.isNull() || frame == nothing)
            return {what, Outcome::Failed, QStringLiteral("style %1 draws nothing").arg(style)};
    }
    return {what, Outcome::Ok, QString()};
}

} // namespace

QByteArray PictureDigest(const QImage &picture)
{
    const QImage plain = picture.convertToFormat(QImage::Format_RGB888);
    QCryptographicHash digest(QCryptographicHash::Sha256);
    digest.addData(QByteArray::number(plain.width()) + 'x' + QByteArray::number(plain.height()));
    for (int y = 0; y < plain.height(); ++y)
        digest.addData(QByteArray::fromRawData(
            reinterpret_cast<const char *>(plain.constScanLine(y)), 3 * plain.width()));
    return digest.result().toHex();
}

QVector<CheckResult> CheckFrames(const QString &directory)
{
    const FixedTime still;
    return {
        CheckFrame(QStringLiteral("digital clock, a frame"), DigitalClock, directory,
                   kDigitalFrameDigest),
        CheckFrame(QStringLiteral("analog clock, a frame"), AnalogClock, directory,
                   kAnalogFrameDigest),
        CheckPictureClock(),
    };
}

} // namespace ClockTool
