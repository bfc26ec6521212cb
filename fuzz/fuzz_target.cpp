#include "fuzz_target.h"

#include "happconfig.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

// Qt logs a line about each broken picture, which is slow and of no use here.
void DropMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        std::abort();
    }
}

// A fuzzer exits without cleaning up, so its caller may name a directory and remove that.
QString ScratchParent()
{
    const QString named = qEnvironmentVariable("CLOCK_FUZZ_SCRATCH");
    if (!named.isEmpty())
        return named;
    const QString inMemory = QStringLiteral("/dev/shm");
    return QDir(inMemory).exists() ? inMemory : QDir::tempPath();
}

QTemporaryDir &Temporary()
{
    static QTemporaryDir directory(ScratchParent() + QStringLiteral("/clock-fuzz"));
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
