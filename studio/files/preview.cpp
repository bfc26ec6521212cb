#include "preview.h"

#include "calendar/device_clock.h"
#include "time_travel.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace ClockStudio {

namespace {

constexpr int kSeconds = 10;
constexpr int kMagnifiedBelow = 640; // pixels; narrower walls are magnified by a whole number
const QString kConverter = QStringLiteral("convert");

// UTC milliseconds that the frames show. Static because a time source is a plain function.
long long s_instant = 0;

long long FrameTime()
{
    return s_instant;
}

} // namespace

QString WritePreviewFrames(LiveWall &wall, const QString &folder)
{
    if (QStandardPaths::findExecutable(kConverter).isEmpty())
        return QCoreApplication::translate("ClockStudio::Preview",
                                           "ImageMagick is not installed (package imagemagick).");
    s_instant = ClockStage::StageTime::Shown();
    clock_set_time_source(FrameTime);
    const int factor = qMax(1, kMagnifiedBelow / qMax(1, wall.Size().width()));
    bool isWritten = true;
    for (int second = 0; second < kSeconds && isWritten; ++second, s_instant += 1000) {
        wall.PlayNext();
        const QString name = QStringLiteral("%1.png").arg(second, 2, 10, QLatin1Char('0'));
        isWritten =
            wall.Screen().scaled(wall.Size() * factor).save(QDir(folder).filePath(name), "PNG");
    }
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    wall.PlayNext();
    return isWritten
        ? QString()
        : QCoreApplication::translate("ClockStudio::Preview",
                                      "The pictures of the preview could not be written.");
}

ToolCommand PreviewCommand(const QString &folder, const QString &path)
{
    return {kConverter,
            {QStringLiteral("-delay"), QStringLiteral("100"), QStringLiteral("-loop"),
             QStringLiteral("0"), folder + QStringLiteral("/*.png"),
             QStringLiteral("gif:") + path}};
}

} // namespace ClockStudio
