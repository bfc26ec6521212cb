// clock_player_seconds: steady seconds of the whole player, from its timer to the screen, and what
// each of them takes of the process. With --floor the pictures are drawn and what changed in them
// is copied, without a player, an event loop or a window: no player can take less. Without a number
// of seconds it is the start, and its floor an application with a font.
#include "player.h"
#include "plugins.h"
#include "process_counts.h"
#include "window_show.h"

#include "happconfig.h"
#include "pictureplayer.h"
#include "stage.h"
#include "time_travel.h"

#include <QCommandLineParser>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

#include <sys/resource.h>
#include <time.h>

namespace {

using namespace ClockPlayer;
using namespace ClockProgram;
using namespace ClockStage;

constexpr qint64 kFirstInstant = 1709632800000; // 2024-03-05T10:00:00Z: no date changes
constexpr int kFirstSeconds = 70;               // hands are kept within the first minute
constexpr int kFirstSpeed = 50;
constexpr int kSecond = 1000; // milliseconds
constexpr long long kFrameBytes = 64 << 10;

qint64 s_second = 0; // that the clocks show

// The same seconds however slow the machine is: none is left out.
long long TellSecond()
{
    StageTime::TellPlugin(); // costs what it does in the player
    return kFirstInstant + s_second * kSecond;
}

/// What the process has taken since it began.
struct Taken
{
    ProcessCounts counts = CountsNow();
    double processor; // milliseconds of this thread
    long wakeUps;

    Taken()
    {
        timespec time {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        processor = double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
        rusage used {};
        ::getrusage(RUSAGE_THREAD, &used);
        wakeUps = used.ru_nvcsw;
    }
};

void Print(const char *name, double number)
{
    std::printf("%s: %.4g\n", name, number);
}

// The counts of the start show that counting works.
void Print(const Taken &begun, const Taken &ended, int presentations, int seconds)
{
    const ProcessCounts &from = begun.counts;
    const ProcessCounts &to = ended.counts;
    Print("presentations a second", double(presentations) / seconds);
    Print("wake-ups a second", double(ended.wakeUps - begun.wakeUps) / seconds);
    Print("processor ms a second", (ended.processor - begun.processor) / seconds);
    Print("allocations a second", double(to.allocations - from.allocations) / seconds);
    Print("bytes allocated a second", double(to.bytes - from.bytes) / seconds);
    Print("frame-sized allocations before", double(from.frameSized));
    Print("frame-sized allocations", double(to.frameSized - from.frameSized));
    Print("files opened before", double(from.filesOpened));
    Print("files opened", double(to.filesOpened - from.filesOpened));
}

void Complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Returns when the first area has shown so many seconds, and says how often something was
// presented.
int Present(int seconds)
{
    constexpr unsigned int kFirstArea = 1;
    const qint64 last = s_second + seconds;
    int presentations = 0;
    QEventLoop loop;
    const auto *const player = Lw::pictureplayer::ForIdentifier(kFirstArea);
    const auto *const window =
        qobject_cast<PlayerWindow *>(QGuiApplication::topLevelWindows().value(0));
    QObject::connect(player, &Lw::pictureplayer::ImageUpdated, &loop, [] { ++s_second; });
    QObject::connect(window, &PlayerWindow::Painted, &loop, [&] {
        ++presentations;
        if (s_second >= last)
            loop.quit();
    });
    loop.exec();
    return presentations;
}

// By their names scripts/check-instructions knows what to count.
__attribute__((noinline)) int PresentSteadySeconds(int seconds)
{
    return Present(seconds);
}

MaybeFailure MeasurePlayer(const Options &options, int seconds)
{
    WindowShow show(options, Playback::Travelling::Possible, Complain);
    const Result<Program> program = ReadProgram(options.programPath);
    if (const MaybeFailure failure = show.Play(program, SignatureOf(options.programPath)))
        return failure;
    Lw::pictureplayer::SetTimeScale(kFirstSpeed);
    Present(kFirstSeconds);
    Lw::pictureplayer::SetTimeScale(options.speed);
    Present(1);
    const Taken begun;
    const int presentations = PresentSteadySeconds(seconds);
    Print(begun, Taken(), presentations, seconds);
    return std::nullopt;
}

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
        ++s_second;
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
    QVector<QRegion> m_changed; // by each area in its turn
};

__attribute__((noinline)) void DrawSteadySeconds(BareScreen &screen, int seconds, double speed)
{
    const auto wait = static_cast<long>(1e9 / speed);
    for (int i = 0; i < seconds; ++i) {
        const timespec time {wait / 1000000000, wait % 1000000000};
        ::nanosleep(&time, nullptr);
        screen.ShowNextSecond();
    }
}

MaybeFailure MeasureFloor(const Options &options, int seconds)
{
    Lw::pictureplayer::SetTimeScale(0);
    const Result<Program> program = ReadProgram(options.programPath);
    if (!program)
        return program.Error();
    Stage stage;
    if (const MaybeFailure failure = BuildStage(stage, *program, options, Complain))
        return failure;
    stage.Start();
    BareScreen screen(stage);
    for (int i = 0; i <= kFirstSeconds; ++i)
        screen.ShowNextSecond();
    const Taken begun;
    DrawSteadySeconds(screen, seconds, options.speed);
    Print(begun, Taken(), seconds, seconds);
    return std::nullopt;
}

double ProcessMilliseconds()
{
    timespec time {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

// Up to the first frame in the window.
MaybeFailure MeasureStart(const Options &options)
{
    WindowShow show(options, Playback::Travelling::Possible, Complain);
    const Result<Program> program = ReadProgram(options.programPath);
    if (const MaybeFailure failure = show.Play(program, SignatureOf(options.programPath)))
        return failure;
    while (!QGuiApplication::topLevelWindows().constFirst()->isExposed())
        QCoreApplication::processEvents();
    Print("processor ms", ProcessMilliseconds());
    return std::nullopt;
}

// What no program with texts can do without: an application, and a font.
void MeasureBareStart()
{
    if (QFontMetrics(QFont(QStringLiteral("DejaVu Sans"))).horizontalAdvance(QLatin1Char('0')) > 0)
        Print("processor ms", ProcessMilliseconds());
}

struct Request
{
    Options options;
    int seconds; ///< 0 for the start
    bool isFloor;
    QString files; ///< where the glyph images are; empty: none are there
};

MaybeFailure Measure(const Request &request)
{
    QStringList warnings;
    if (const MaybeFailure failure = LoadPlugins(
            QCoreApplication::applicationDirPath() + QStringLiteral("/../plugins"), warnings))
        return failure;
    if (const MaybeFailure failure = SetTimeSource(&TellSecond))
        return failure;
    const QTemporaryDir directory;
    Lw::HAppConfig::SetClockOutputPath(request.files.isEmpty() ? directory.path() : request.files);
    SetFrameBytes(kFrameBytes);
    if (request.seconds == 0)
        return MeasureStart(request.options);
    return request.isFloor ? MeasureFloor(request.options, request.seconds)
                           : MeasurePlayer(request.options, request.seconds);
}

} // namespace

int main(int argc, char **argv)
{
    PrepareEnvironment();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("PROGRAM [SECONDS SPEED]"),
                                 QStringLiteral("without SECONDS: the start"));
    const QCommandLineOption floor(QStringLiteral("floor"));
    const QCommandLineOption files(QStringLiteral("files-dir"), {}, QStringLiteral("DIRECTORY"));
    parser.addOptions({floor, files});
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 1 && arguments.size() != 3)
        parser.showHelp(2);
    Request request {{}, arguments.value(1).toInt(), parser.isSet(floor), parser.value(files)};
    request.options.programPath = arguments.first();
    request.options.speed = qBound(kMinimumSpeed, arguments.value(2).toDouble(), 1e3);
    if (request.seconds == 0 && request.isFloor) {
        MeasureBareStart();
        return 0;
    }
    const MaybeFailure failure = Measure(request);
    if (failure)
        Complain(failure->text);
    return failure ? 1 : 0;
}
