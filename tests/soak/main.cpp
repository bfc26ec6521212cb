// clock_soak: plays clocks of each kind through a simulated year, one renderer a kind, and holds
// every hundredth frame against that of a new renderer. Memory and open files must stay as they
// were after the first month.
#include "frame_history.h"
#include "soak_clock.h"
#include "soak_year.h"

#include "happconfig.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kCompared = 100; // every so many frames
constexpr int kGrowthKiB = 1024;
constexpr int kEnoughDifferent = 10; // the rest of the year would say no more
constexpr unsigned int kLongId = 1;
constexpr unsigned int kNewId = 2;
const char *const kNames[] = {"analog", "digital", "picture"};

int ResidentKiB()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QFile::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toInt();
    }
    return 0;
}

int OpenFiles()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size();
}

/// What a year came to.
struct Result
{
    int frames = 0;
    int compared = 0;
    int different = 0;
    qint64 firstDifferent = 0;
    int residentFirst = 0; // after the first month
    int residentMost = 0;  // since then
    int residentLast = 0;
    int filesFirst = 0;
    int filesMost = 0;
    bool delaysAreRight = false;
    QByteArray digest; // of all compared frames

    bool IsGood() const
    {
        return compared > 0 && different == 0 && delaysAreRight && residentFirst > 0
            && residentMost - residentFirst <= kGrowthKiB && filesMost == filesFirst;
    }
};

class YearOfAClock
{
public:
    YearOfAClock(Lw::INodePlugin *plugin, Soak::Kind kind)
        : m_plugin(plugin), m_node(Soak::NewNode(plugin, kind)), m_history(m_year, kind)
    { }
    Result Run();

private:
    void Compare(const QImage &frame, qint64 instant);
    void LookAtProcess(qint64 instant);

    Lw::INodePlugin *m_plugin;
    std::unique_ptr<Lw::HNode> m_node;
    SoakYear m_year;
    FrameHistory m_history;
    QCryptographicHash m_digest {QCryptographicHash::Md5};
    Result m_result;
};

void YearOfAClock::Compare(const QImage &frame, qint64 instant)
{
    QImage expected;
    {
        Soak::Play fresh(m_plugin, m_node.get(), kNewId);
        for (const qint64 before : m_history.Frames())
            expected = fresh.Frame(before);
    }
    ++m_result.compared;
    m_digest.addData(QByteArray::fromRawData(reinterpret_cast<const char *>(frame.constBits()),
                                             static_cast<int>(frame.sizeInBytes())));
    if (!frame.isNull() && frame == expected)
        return;
    if (m_result.different++ == 0)
        m_result.firstDifferent = instant;
}

void YearOfAClock::LookAtProcess(qint64 instant)
{
    const int resident = ResidentKiB();
    const int files = OpenFiles();
    if (m_result.residentFirst == 0) {
        if (m_year.CivilTime(instant).date() < QDate(2026, 2, 1))
            return;
        m_result.residentFirst = resident;
        m_result.filesFirst = files;
    }
    m_result.residentLast = resident;
    m_result.residentMost = std::max(m_result.residentMost, resident);
    m_result.filesMost = std::max(m_result.filesMost, files);
}

Result YearOfAClock::Run()
{
    Soak::Play play(m_plugin, m_node.get(), kLongId);
    for (qint64 instant = m_year.First(); instant >= 0 && m_result.different < kEnoughDifferent;
         instant = m_year.Next(instant)) {
        const QImage frame = play.Frame(instant);
        m_history.Add(instant);
        if (++m_result.frames % kCompared == 0)
            Compare(frame, instant);
        if (m_result.frames % (100 * kCompared) == 0)
            LookAtProcess(instant);
    }
    m_result.delaysAreRight = play.DelaysAreRight();
    m_result.digest = m_digest.result().toHex();
    return m_result;
}

void Print(const char *name, const Result &result, double seconds)
{
    std::printf("%s: %d frames, %d compared, %d different, resident %d KiB after a month, %d at "
                "most, %d at the end, %d files open, at most %d, digest %s, %.1f s: %s\n",
                name, result.frames, result.compared, result.different, result.residentFirst,
                result.residentMost, result.residentLast, result.filesFirst, result.filesMost,
                result.digest.constData(), seconds, result.IsGood() ? "good" : "BAD");
    if (result.different > 0)
        std::printf("%s: the first different frame is that of %lld\n", name,
                    static_cast<long long>(result.firstDifferent));
    if (!result.delaysAreRight)
        std::printf("%s: not every frame asked for the next second\n", name);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("TZ", "UTC");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    Lw::INodePlugin *const plugin = Soak::LoadPlugin(QStringLiteral(CLOCK_PLUGIN_FILE));
    const QTemporaryDir directory;
    if (!plugin || !directory.isValid()) {
        std::fputs("clock_soak: the plugin or a temporary directory is missing\n", stderr);
        return 2;
    }
    Lw::HAppConfig::SetClockOutputPath(directory.path());
    bool good = true;
    for (const Soak::Kind kind : {Soak::Analog, Soak::Digital, Soak::Picture}) {
        if (arguments.size() > 1 && !arguments.contains(QLatin1String(kNames[kind])))
            continue;
        QElapsedTimer timer;
        timer.start();
        const Result result = YearOfAClock(plugin, kind).Run();
        Print(kNames[kind], result, static_cast<double>(timer.elapsed()) / 1000);
        good = good && result.IsGood();
    }
    return good ? 0 : 1;
}
