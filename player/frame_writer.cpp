#include "frame_writer.h"

#include "instant.h"
#include "player_time.h"
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
        if (const MaybeFailure failure = SaveFrame(stage.Screen(), path))
            return failure;
        if (run.isEnded())
            break;
    }
    return std::nullopt;
}

} // namespace ClockPlayer
