#include "frame_writer.h"

#include "deadline_meter.h"
#include "instant.h"
#include "led_screen.h"
#include "screen_composer.h"
#include "stage.h"
#include "time_travel.h"
#include "whole_file.h"

#include <QBuffer>
#include <QDir>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

constexpr int kNameDigits = 4;

MaybeFailure SaveFrame(const QImage &screen, const QString &path)
{
    QBuffer png;
    if (screen.save(&png, "PNG"))
        return WriteFile(path, png.data(), Targets::RegularFiles);
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: out of memory while encoding the PNG").arg(path)};
}

Failure TooLarge(const FrameRun &run)
{
    const int times = run.ledPitch ? run.ledPitch : run.magnification;
    return {ExitCode::RuntimeFailure,
            QStringLiteral("the screen is too large to be magnified by %1").arg(times)};
}

QImage Enlarged(const QImage &screen, const FrameRun &run)
{
    return run.ledPitch ? LedScreen(run.ledPitch).Diodes(screen)
                        : Magnified(screen, run.magnification);
}

qint64 InstantOfFrame(int number, const FrameRun &run)
{
    return WholeSecond(run.start) + WholeSecond(qRound64(1000.0 * (number - 1) * run.speed));
}

/// The picture of a frame, drawn now.
QImage DrawFrame(Stage &stage, int number, const FrameRun &run)
{
    const double begun = StageTime::Steady();
    StageTime::HoldAt(InstantOfFrame(number, run));
    if (number == 1)
        stage.Start();
    else
        stage.PlayNext();
    const QImage frame = Enlarged(stage.Screen(), run);
    if (run.meter)
        run.meter->AddDrawn(StageTime::Steady() - begun);
    return frame;
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
    for (int number = 1; number <= run.count; ++number) {
        const QString path = directory.filePath(FrameName(number, run.count));
        const QImage frame = DrawFrame(stage, number, run);
        if (number == 1)
            run.onFirstFrame();
        if (frame.isNull())
            return TooLarge(run);
        if (const MaybeFailure failure = SaveFrame(frame, path))
            return failure;
        if (run.shouldStop())
            break;
    }
    return std::nullopt;
}

} // namespace ClockPlayer
