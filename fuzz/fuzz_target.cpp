#include "fuzz_target.h"

#include "happconfig.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

// What is not ours writes a line about each broken picture: too slow, and nobody reads it.
void DropMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        std::abort();
    }
}

// A fuzzer ends without clearing up, so whoever starts one may name a place to clear up himself.
QString Place()
{
    const QString named = qEnvironmentVariable("CLOCK_FUZZ_SCRATCH");
    if (!named.isEmpty())
        return named;
    const QString inMemory = QStringLiteral("/dev/shm");
    return QDir(inMemory).exists() ? inMemory : QDir::tempPath();
}

QTemporaryDir &Temporary()
{
    static QTemporaryDir directory(Place() + QStringLiteral("/clock-fuzz"));
    return directory;
}

} // namespace

// The application lives as long as the process: fonts and pictures need it.
extern "C" int LLVMFuzzerInitialize(int *argumentCount, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qInstallMessageHandler(DropMessage);
    static QGuiApplication application(*argumentCount, *arguments);
    Lw::HAppConfig::SetClockOutputPath(Fuzz::Directory());
    Lw::HAppConfig::SetTempProgramImagePath(Fuzz::Directory());
    return 0;
}

namespace Fuzz {

void Expect(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "broken expectation: %s\n", what);
    std::abort();
}

QString Directory()
{
    return Temporary().path() + QLatin1Char('/');
}

void EmptyDirectory()
{
    const QDir directory(Temporary().path());
    for (const QString &name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System))
        QFile::remove(directory.filePath(name));
}

} // namespace Fuzz
