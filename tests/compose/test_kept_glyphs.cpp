// How much memory glyph images take: bounded for a clock and for the process.
#include "tiny_gif.h"

#include "clock_node.h"
#include "compose/clock_glyphs.h"
#include "compose/element_composer.h"
#include "compose/glyph_bounds.h"
#include "compose/picture_file.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

constexpr int kDigital = 1;
constexpr int kChineseWeek = 0;
constexpr QSize kLargest(4096, 4096); // 64 MiB at 32 bits per pixel
constexpr qint64 kMiB = 1 << 20;

void Append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly | QFile::Append) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

// Transparent, with a last pixel of that colour.
QImage Canvas(const QSize &size, QRgb colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixel(size.width() - 1, size.height() - 1, colour);
    return image;
}

QByteArray ContentOf(const QString &format)
{
    if (format == QLatin1String("gif"))
        return TinyGif();
    const QTemporaryDir directory;
    const QString path = directory.filePath("content");
    const bool isSoft = format == QLatin1String("png");
    const bool isJpeg = format == QLatin1String("jpeg");
    QImage image = isSoft
        ? Canvas(kLargest, 0x80ff0000)
        : QImage(kLargest, isJpeg ? QImage::Format_Grayscale8 : QImage::Format_Mono);
    if (!isSoft)
        image.fill(0);
    QFile file(path);
    return image.save(path, qPrintable(format), isJpeg ? 1 : -1) && file.open(QFile::ReadOnly)
        ? file.readAll()
        : QByteArray();
}

// 4096 by 4096 pixels, transparent but for a half-transparent one at the end.
const QByteArray &SoftPng()
{
    static const QByteArray content = ContentOf(QStringLiteral("png"));
    return content;
}

// The most memory that the process had since the last call, or -1.
qint64 PeakSinceLastCall()
{
    QFile status(QStringLiteral("/proc/self/status"));
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (!status.open(QFile::ReadOnly) || !reset.open(QFile::WriteOnly))
        return -1;
    qint64 peak = -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            peak = line.mid(6).simplified().split(' ').first().toLongLong() * 1024;
    }
    return reset.write("5") == 1 ? peak : -1;
}

qint64 BytesOf(const QVector<GlyphStrip> &strips)
{
    qint64 bytes = 0;
    for (const GlyphStrip &strip : strips)
        bytes += strip.Bytes();
    return bytes;
}

} // namespace

class TestKeptGlyphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        m_node.reset(new HClockNode);
        m_node->SetAttribute("ClockType", kDigital, false);
        m_node->SetAttribute("DigitalWeekType", kChineseWeek, false);
    }

    void ForeignFilesStayWithinTheBound_data();
    void ForeignFilesStayWithinTheBound();
    void LargeInkCountsWithItsInk();
    void BoundOfTheProcess();
    void EqualFilesCountOnce();
    void SetUpAgainFindsRoom();
    void MarkOfTheTwelveHoursCounts();
    void UnreadableFilesAreNotReported();
    void NodeTellsWhatIsLost();
    void PlannedImagesCountLikeFiles();

private:
    // A file of its own for a key, told apart by what follows its end.
    void Record(HClockNode &node, const QString &key, const QByteArray &content)
    {
        const QString path = m_directory->filePath(QString::number(++m_files));
        Append(path, content + QByteArray::number(m_files));
        node.SetFilePath(key, path, QString(), -1, 3);
    }
    static QStringList Keys(const QVector<Lw::GlyphFault> &lost)
    {
        QStringList keys;
        for (const Lw::GlyphFault &glyph : lost)
            keys.append(glyph.key);
        return keys;
    }

    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<HClockNode> m_node;
    int m_files = 0;
};

void TestKeptGlyphs::ForeignFilesStayWithinTheBound_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const char *const format : {"gif", "jpeg", "bmp", "pbm", "xbm", "png"})
        QTest::newRow(format) << ContentOf(QString::fromLatin1(format));
}

// Four images of 64 MiB: the first one in the order of loading is shown, and no other made.
void TestKeptGlyphs::ForeignFilesStayWithinTheBound()
{
    QFETCH(QByteArray, content);
    QVERIFY(!content.isEmpty());
    for (const char *const key : {"_timeNumber", "_toptext", "_lunar", "_chWeek_3"})
        Record(*m_node, QString::fromLatin1(key), content);
    GlyphAccount account;
    const QVector<Lw::GlyphFault> lost = account.AddFiles(*m_node);
    QCOMPARE(Keys(lost), QStringList({"_lunar", "_chWeek_3", "_timeNumber"}));
    QCOMPARE(int(lost.first().kind), int(Lw::GlyphFault::NotKept));
    QCOMPARE(lost.first().path, m_node->GetFirstFile("_lunar"));

    content = QByteArray();
    const qint64 before = GlyphBytesInProcess();
    PeakSinceLastCall();
    const qint64 usual = PeakSinceLastCall();
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(*m_node), kDigital, kChineseWeek);
    QVERIFY(glyphs.lunar.Pixmap().isNull());
    QVERIFY(glyphs.weeks.at(2).Pixmap().isNull());
    QVERIFY(glyphs.timeNumber.Pixmap().isNull());
    QCOMPARE(glyphs.topText.Size(), kLargest);
    QCOMPARE(GlyphBytesInProcess() - before, 64 * kMiB);
#ifndef __SANITIZE_ADDRESS__
    const qint64 peak = PeakSinceLastCall();
    QVERIFY(usual > 0 && peak > 0);
    // The image, and while it is decoded once more.
    QVERIFY2(peak - usual < 150 * kMiB, qPrintable(QString::number((peak - usual) / kMiB)));
#endif
}

// 4.6 MiB each at 32 bits per pixel, but 0.15 MiB as ink: 12 month names, 7 days and 10 others.
void TestKeptGlyphs::LargeInkCountsWithItsInk()
{
    const QString path = m_directory->filePath("ink.png");
    QVERIFY(Canvas({1200, 1000}, 0xff00ff00).save(path));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray content = file.readAll();
    for (const LoadedGlyph &each : GlyphsLoaded(kDigital, kChineseWeek))
        Record(*m_node, GlyphKey(each.glyph, each.number), content);
    QVERIFY(GlyphAccount().AddFiles(*m_node).isEmpty());
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(*m_node), kDigital, kChineseWeek);
    CountLoadedGlyphsExactly();
    for (const GlyphStrip &strip : glyphs.months.mid(1) + glyphs.weeks)
        QCOMPARE(strip.Bytes(), InkBytes({1200, 1000}));
    QCOMPARE(glyphs.months.last().Size(), QSize(1200, 1000));
    QVERIFY(glyphs.months.last().IsInk());
    QCOMPARE(BytesOf(glyphs.weeks), 7 * InkBytes({1200, 1000}));
}

void TestKeptGlyphs::BoundOfTheProcess()
{
    const QByteArray &soft = SoftPng();
    GlyphAccount account;
    std::vector<std::unique_ptr<HClockNode>> nodes;
    std::vector<ClockGlyphs> clocks(5);
    for (int i = 0; i < 5; ++i) {
        nodes.push_back(std::make_unique<HClockNode>());
        nodes.back()->SetAttribute("ClockType", kDigital, false);
        Record(*nodes.back(), "_toptext", soft);
        const QVector<Lw::GlyphFault> lost = account.AddFiles(*nodes.back());
        QCOMPARE(Keys(lost), i < 4 ? QStringList() : QStringList("_toptext"));
        ClockGlyphs &glyphs = clocks[static_cast<std::size_t>(i)];
        glyphs.Load(glyphs.RecordedFiles(*nodes.back()), kDigital, kChineseWeek);
        QCOMPARE(glyphs.topText.Bytes(), i < 4 ? 64 * kMiB : 0); // not decoded so far
    }
    clocks[0] = ClockGlyphs();
    ClockGlyphs &last = clocks[4];
    last.Load(last.RecordedFiles(*nodes[4]), kDigital, kChineseWeek);
    QCOMPARE(last.topText.Bytes(), 64 * kMiB);
}

void TestKeptGlyphs::EqualFilesCountOnce()
{
    const QByteArray &soft = SoftPng();
    Record(*m_node, "_toptext", soft);
    const QString path = m_node->GetFirstFile("_toptext");
    const QString copy = m_directory->filePath("copy");
    QVERIFY(QFile::copy(path, copy));
    for (const LoadedGlyph &each : GlyphsLoaded(kDigital, kChineseWeek))
        m_node->SetFilePath(GlyphKey(each.glyph, each.number), each.number % 2 ? copy : path,
                            QString(), -1, 3);
    QVERIFY(GlyphAccount().AddFiles(*m_node).isEmpty());
    const qint64 before = GlyphBytesInProcess();
    std::vector<ClockGlyphs> clocks(10);
    for (ClockGlyphs &glyphs : clocks) {
        glyphs.Load(glyphs.RecordedFiles(*m_node), kDigital, kChineseWeek);
        QCOMPARE(glyphs.minus.Key(), clocks.front().topText.Key());
    }
    // The spacer of the month list apart.
    QVERIFY(GlyphBytesInProcess() - before < 65 * kMiB + 10 * InkBytes({818, 4096}));
}

void TestKeptGlyphs::SetUpAgainFindsRoom()
{
    const QByteArray &soft = SoftPng();
    ClockGlyphs glyphs;
    for (int i = 0; i < 3; ++i) {
        Record(*m_node, "_toptext", soft);
        glyphs.Load(glyphs.RecordedFiles(*m_node), kDigital, kChineseWeek);
        QCOMPARE(glyphs.topText.Bytes(), 64 * kMiB);
    }
}

void TestKeptGlyphs::MarkOfTheTwelveHoursCounts()
{
    const QByteArray &soft = SoftPng();
    Record(*m_node, "_toptext", soft);
    Record(*m_node, "_timeAM", soft);
    QVERIFY(GlyphAccount().AddFiles(*m_node).isEmpty()); // 24 hours have no mark
    m_node->SetAttribute("DigitalMode", 1, false);
    QCOMPARE(Keys(GlyphAccount().AddFiles(*m_node)), QStringList("_timeAM"));
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(*m_node), kDigital, kChineseWeek);
    QVERIFY(glyphs.LoadFile(m_node->GetFirstFile("_timeAM")).IsNull());
    QVERIFY(glyphs.LoadFile(m_node->GetFirstFile("_toptext")).Key() == glyphs.topText.Key());
}

void TestKeptGlyphs::UnreadableFilesAreNotReported()
{
    Record(*m_node, "_toptext", "no picture");
    m_node->SetFilePath("_lunar", "/nowhere.png", QString(), -1, 3);
    QVERIFY(GlyphAccount().AddFiles(*m_node).isEmpty());
    m_node->SetAttribute("ClockType", 2, false);
    Record(*m_node, "_toptext", SoftPng());
    Record(*m_node, "_lunar", SoftPng());
    QVERIFY(GlyphAccount().AddFiles(*m_node).isEmpty());
}

// Until the next set-up finds room; faults of the making stay.
void TestKeptGlyphs::NodeTellsWhatIsLost()
{
    Lw::GlyphFault blank;
    blank.kind = Lw::GlyphFault::NoInk;
    blank.key = "_space";
    Lw::SetGlyphFaults(*m_node, {blank});
    Record(*m_node, "_toptext", SoftPng());
    Record(*m_node, "_lunar", SoftPng());
    ElementComposer composer;
    composer.SetUp(*m_node);
    QCOMPARE(Keys(Lw::GlyphFaultsOf(*m_node)), QStringList({"_space", "_lunar"}));
    composer.SetUp(*m_node);
    QCOMPARE(Keys(Lw::GlyphFaultsOf(*m_node)), QStringList({"_space", "_lunar"}));
    m_node->SetFilePath("_lunar", m_node->GetFirstFile("_toptext"), QString(), -1, 3);
    composer.SetUp(*m_node);
    QCOMPARE(Keys(Lw::GlyphFaultsOf(*m_node)), QStringList("_space"));
}

// Eight images of 8 MiB of ink fill a clock, four such clocks the process.
void TestKeptGlyphs::PlannedImagesCountLikeFiles()
{
    const auto planOf = [](int clock) {
        QHash<QString, PlannedImage> planned;
        for (int month = 1; month <= 9; ++month)
            planned.insert(GlyphKey(Glyph::EnMonth, month),
                           {QByteArray::number(clock * 12 + month), {32000, 2097}});
        planned.insert(GlyphKey(Glyph::EnMonth, 10), planned.value(GlyphKey(Glyph::EnMonth, 1)));
        return planned;
    };
    GlyphAccount account;
    for (int clock = 0; clock < 4; ++clock)
        QCOMPARE(Keys(account.AddPlanned(*m_node, planOf(clock))), QStringList("_dateEnMonth_9"));
    QVERIFY(account.AddPlanned(*m_node, planOf(3)).size() == 1);
    QCOMPARE(account.AddPlanned(*m_node, planOf(4)).size(), 10);
    QVERIFY(account.AddPlanned(*m_node, {}).isEmpty());
}

QTEST_MAIN(TestKeptGlyphs)
#include "test_kept_glyphs.moc"
