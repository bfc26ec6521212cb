// tools/: clock_tool glyphs: lists a program's glyph images and where each is used.
#include "clock_nodes.h"
#include "commands.h"
#include "output.h"
#include "tool_arguments.h"
#include "work_directory.h"

#include "glyph/glyph_set.h"
#include "glyph/hmd5.h"
#include "glyph_faults.h"
#include "happconfig.h"

#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QVector>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

constexpr char kDescription[] =
    "Lists the glyph images of a program, one line per distinct image, tab-separated: MD5\n"
    "digest, size in bytes, width and height in pixels, and where it is used, as area:key, with "
    "areas\n"
    "numbered from 1. Images that cannot be made, such as that of an empty text, share\n"
    "one line, with \"-\" for the digest.";

struct Image
{
    QString digest; // empty where there is no file
    qint64 bytes = 0;
    QSize pixels = QSize(0, 0);
    QStringList uses;
};

class Audit
{
public:
    void Add(int area, HClockNode &clock)
    {
        {
            const QuietOutput quiet;
            clock.NodeAlready(0);
        }
        if (clock.ClockType() == PictureClock)
            return;
        CheckWritten(clock);
        for (const GlyphImage &image : GlyphImages(GlyphOrder::Bookkeeping, clock.ClockType())) {
            const QString path = clock.GetFirstFile(image.Key());
            ImageIn(path).uses.append(QStringLiteral("%1:%2").arg(area).arg(image.Key()));
            ++m_count;
        }
    }

    /// The first image that could not be written; without it the table is incomplete.
    MaybeFailure Fault() const { return m_fault; }

    QString Table() const
    {
        QString table = QStringLiteral("md5\tbytes\tpixels\tused by\n");
        for (const Image &image : m_images)
            table += QStringLiteral("%1\t%2\t%3x%4\t%5\n")
                         .arg(image.digest.isEmpty() ? QStringLiteral("-") : image.digest)
                         .arg(image.bytes)
                         .arg(image.pixels.width())
                         .arg(image.pixels.height())
                         .arg(image.uses.join(QLatin1Char(' ')));
        return table;
    }

    QString Summary() const
    {
        qint64 bytes = 0;
        int files = 0;
        for (const Image &image : m_images) {
            bytes += image.bytes;
            files += image.digest.isEmpty() ? 0 : 1;
        }
        return QStringLiteral("%1 images, %2 different files, %3 bytes to send")
            .arg(m_count)
            .arg(files)
            .arg(bytes);
    }

private:
    void CheckWritten(const HClockNode &clock)
    {
        for (const Lw::GlyphFault &fault : Lw::GlyphFaultsOf(clock)) {
            if (fault.kind == Lw::GlyphFault::NotWritten && !m_fault)
                m_fault = Failure {
                    ExitCode::RuntimeFailure,
                    QStringLiteral("%1: %2").arg(fault.path, qt_error_string(fault.error))};
        }
    }

    Image &ImageIn(const QString &path)
    {
        const QString digest = HMD5::FileDigest(path);
        const auto known = m_places.constFind(digest);
        if (known != m_places.constEnd())
            return m_images[*known];
        m_places.insert(digest, m_images.size());
        Image image;
        image.digest = digest;
        if (!digest.isEmpty()) {
            image.bytes = QFileInfo(path).size();
            image.pixels = QImageReader(path).size();
        }
        m_images.append(image);
        return m_images.last();
    }

    QVector<Image> m_images; // in order of first use
    QHash<QString, int> m_places;
    int m_count = 0;
    MaybeFailure m_fault;
};

} // namespace

CommandResult RunGlyphs(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("glyphs"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml"), QStringLiteral("The program to inspect."));
    tool.AddOutput();
    tool.AddLanguage();
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    if (const MaybeFailure failure = tool.InstallLanguage())
        return Report(*failure);
    const Result<ProgramClocks> clocks = ReadClocks(tool.Positional(0));
    if (!clocks)
        return Report(clocks.Error());
    const WorkDirectory work;
    if (const MaybeFailure failure = work.Fault())
        return Report(*failure);
    Lw::HAppConfig::SetClockOutputPath(work.Path());
    Audit audit;
    for (int i = 0; i < clocks->Count(); ++i)
        audit.Add(i + 1, clocks->Clock(i));
    if (const MaybeFailure failure = audit.Fault())
        return Report(*failure);
    Say(audit.Summary());
    return Deliver(tool.Output(), audit.Table().toUtf8());
}

} // namespace ClockTool
