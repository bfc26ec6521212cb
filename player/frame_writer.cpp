#include "frame_writer.h"

#include "instant.h"
#include "player_time.h"
#include "screen_composer.h"
#include "stage.h"

#include <QDir>
#include <QSaveFile>

namespace ClockPlayer {

namespace {

constexpr int kNameDigits = 4;

// A file that cannot be written whole is not touched.
MaybeFailure SaveFrame(const QImage &screen, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && screen.save(&file, "PNG") && file.commit())
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString())};
}

Failure TooLarge(int magnification)
{
    return {ExitCode::RuntimeFailure,
            QStringLiteral("the screen is too large to be magnified %1 times").arg(magnification)};
}

} // namespace

QString FrameName(int number, int count)
{
    const int digits = qMax(kNameDigits, QString::number(count).size());
    return QStringLiteral("frame_%1.png").arg(number, digits, 10, QLatin1Char('0'));
}

MaybeFailure WriteFrames(Stage &stage, const FrameRun &run)
{
    const QDir directory(run.directory);
    PlayerTime::HoldAt(WholeSecond(run.start));
    stage.Start();
    for (int number = 1; number <= run.count; ++number) {
        if (number > 1) {
            PlayerTime::StepToNextSecond();
            stage.PlayNext();
        }
        const QString path = directory.filePath(FrameName(number, run.count));
        const QImage frame = Magnified(stage.Screen(), run.magnification);
        if (frame.isNull())
            return TooLarge(run.magnification);
        if (const MaybeFailure failure = SaveFrame(frame, path))
            return failure;
        if (run.isEnded())
            break;
    }
    return std::nullopt;
}

} // namespace ClockPlayer
