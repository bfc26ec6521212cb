#include "player_floor.h"

#include "process_report.h"
#include "told_seconds.h"

#include "pictureplayer.h"
#include "plugins.h"
#include "program_file.h"
#include "stage.h"

#include <cstdio>
#include <cstring>

#include <time.h>

namespace bench {

using namespace ClockPlayer;
using namespace ClockProgram;
using namespace ClockStage;

namespace {

void CopyRows(QImage &screen, const Layer &layer, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QPoint from = QPoint(rect.left(), y) - layer.geometry.topLeft();
        std::memcpy(screen.scanLine(y) + rect.left() * sizeof(QRgb),
                    layer.image.constScanLine(from.y()) + from.x() * int(sizeof(QRgb)),
                    std::size_t(rect.width()) * sizeof(QRgb));
    }
}

/// Draws the next pictures of a stage, and copies what changed in them.
class BareScreen
{
public:
    explicit BareScreen(Stage &stage) : m_stage(stage), m_screen(BlackScreen(stage.Size()))
    {
        QObject::connect(&stage, &Stage::Changed,
                         [this](const QRegion &region) { m_changed.append(region); });
    }

    void ShowNextSecond()
    {
        ToldSeconds::Advance();
        m_changed.clear();
        m_stage.PlayNext();
        const QVector<Layer> layers = m_stage.Layers();
        for (int i = 0; i < qMin(layers.size(), m_changed.size()); ++i) {
            for (const QRect &rect : m_changed[i])
                CopyRows(m_screen, layers[i], rect & m_screen.rect());
        }
    }

private:
    Stage &m_stage;
    QImage m_screen;
    QVector<QRegion> m_changed; // of each area, in the order of the layers
};

// scripts/check-instructions finds this function by its name.
__attribute__((noinline)) void DrawSteadySeconds(BareScreen &screen, int seconds, double speed)
{
    const auto wait = static_cast<long>(1e9 / speed);
    for (int i = 0; i < seconds; ++i) {
        const timespec time {wait / 1000000000, wait % 1000000000};
        ::nanosleep(&time, nullptr);
        screen.ShowNextSecond();
    }
}

} // namespace

MaybeFailure MeasureFloor(const Options &options, int seconds, const Warn &warn)
{
    Lw::pictureplayer::SetTimeScale(0);
    const Result<Program> program = ReadProgram(options.programPath);
    if (!program)
        return program.Error();
    Stage stage;
    if (const MaybeFailure failure = BuildStage(stage, *program, options, warn))
        return failure;
    stage.Start();
    BareScreen screen(stage);
    for (int i = 0; i <= ToldSeconds::kFirstSeconds; ++i)
        screen.ShowNextSecond();
    const Usage begun;
    DrawSteadySeconds(screen, seconds, options.speed);
    Print(begun, Usage(), seconds, seconds);
    return std::nullopt;
}

} // namespace bench
