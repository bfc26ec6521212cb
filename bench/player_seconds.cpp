// bench/: clock_player_seconds: measures seconds of the whole player, from its timer to the screen.
// With --floor the pictures are only drawn and what changed in them is copied, without a player, an
// event loop or a window: no player can cost less. Without SECONDS it measures the start, and with
// --floor that of a bare application with a font.
#include "player_floor.h"
#include "process_report.h"
#include "told_seconds.h"

#include "happconfig.h"
#include "pictureplayer.h"
#include "player.h"
#include "plugins.h"
#include "window_show.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace ClockPlayer;
using namespace ClockProgram;
namespace ToldSeconds = bench::ToldSeconds;
using bench::Print;

constexpr int kFirstSpeed = 50;
constexpr long long kFrameBytes = 64 << 10;

void Complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Runs until the first area has shown so many seconds; returns how often something was
// presented.
int Present(int seconds)
{
    constexpr unsigned int kFirstArea = 1;
    const qint64 last = ToldSeconds::Count() + seconds;
    int presentations = 0;
    QEventLoop loop;
    const auto *const player = Lw::pictureplayer::ForIdentifier(kFirstArea);
    const auto *const window =
        qobject_cast<PlayerWindow *>(QGuiApplication::topLevelWindows().value(0));
    QObject::connect(player, &Lw::pictureplayer::ImageUpdated, &loop, &ToldSeconds::Advance);
    QObject::connect(window, &PlayerWindow::Painted, &loop, [&] {
        ++presentations;
        if (ToldSeconds::Count() >= last)
            loop.quit();
    });
    loop.exec();
    return presentations;
}

// scripts/check-instructions finds this function by its name.
__attribute__((noinline)) int PresentSteadySeconds(int seconds)
{
    return Present(seconds);
}

void SetSpeed(double speed)
{
    Lw::pictureplayer::SetTimeScale(speed);
    ToldSeconds::SetSpeed(speed);
}

MaybeFailure MeasurePlayer(const Options &options, int seconds)
{
    WindowShow show(options, Playback::TimeControl::Possible, Complain);
    const Result<Program> program = ReadProgram(options.programPath);
    if (const MaybeFailure failure = show.Play(program, SignatureOf(options.programPath)))
        return failure;
    SetSpeed(kFirstSpeed);
    Present(ToldSeconds::kFirstSeconds);
    SetSpeed(options.speed);
    Present(2); // until all areas draw together
    const bench::Usage begun;
    const int presentations = PresentSteadySeconds(seconds);
    Print(begun, bench::Usage(), presentations, seconds);
    return std::nullopt;
}

// Up to the first frame in the window.
MaybeFailure MeasureStart(const Options &options)
{
    WindowShow show(options, Playback::TimeControl::Possible, Complain);
    const Result<Program> program = ReadProgram(options.programPath);
    if (const MaybeFailure failure = show.Play(program, SignatureOf(options.programPath)))
        return failure;
    while (!QGuiApplication::topLevelWindows().constFirst()->isExposed())
        QCoreApplication::processEvents();
    Print("processor ms", bench::ProcessMilliseconds());
    return std::nullopt;
}

// The least that any program with texts needs: an application and a font.
void MeasureBareStart()
{
    if (QFontMetrics(QFont(QStringLiteral("DejaVu Sans"))).horizontalAdvance(QLatin1Char('0')) > 0)
        Print("processor ms", bench::ProcessMilliseconds());
}

struct Request
{
    Options options;
    int seconds; ///< 0 for the start
    bool isFloor;
    QString files; ///< the directory of the glyph images; empty: a new, empty one
};

MaybeFailure Measure(const Request &request)
{
    QStringList warnings;
    if (const MaybeFailure failure = LoadPlugins(
            QCoreApplication::applicationDirPath() + QStringLiteral("/../plugins"), warnings))
        return failure;
    if (const MaybeFailure failure = SetTimeSource(&ToldSeconds::Tell))
        return failure;
    const QTemporaryDir directory;
    Lw::HAppConfig::SetClockOutputPath(request.files.isEmpty() ? directory.path() : request.files);
    SetFrameBytes(kFrameBytes);
    if (request.seconds == 0)
        return MeasureStart(request.options);
    return request.isFloor ? bench::MeasureFloor(request.options, request.seconds, Complain)
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
    parser.addPositionalArgument(
        QStringLiteral("PROGRAM [SECONDS SPEED]"),
        QStringLiteral("Measures so many seconds of the program; without SECONDS, its start."));
    const QCommandLineOption floor(QStringLiteral("floor"),
                                   QStringLiteral("Measures drawing and copying only."));
    const QCommandLineOption files(QStringLiteral("files-dir"),
                                   QStringLiteral("Uses the glyph images in DIRECTORY."),
                                   QStringLiteral("DIRECTORY"));
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
