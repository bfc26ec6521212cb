// The ink of glyph images that were just drawn: that of their files, taken once, within its bound.
#include "glyph_output.h"

#include "compose/clock_glyphs.h"
#include "compose/element_composer.h"
#include "glyph/fresh_ink.h"
#include "glyph/glyph_cache.h"

#include <QtTest>

using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kMostBytes = 64 << 10;

QStringList FilesOf(HClockNode &node)
{
    QStringList files;
    for (const Lw::FileRecord &record : node.FileRecords())
        files.append(record.path);
    return files;
}

std::optional<Ink> Taken(const QString &path)
{
    return FreshInk::OfThread().Take(GlyphOutput::Content(path));
}

// The image as Qt reads it: transparent but for pixels of the ink's colour.
QImage Picture(const Ink &ink)
{
    QImage image(ink.size, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isSet = (ink.Row(y)[x / 32] >> x % 32 & 1) != 0;
            image.setPixel(x, y, isSet ? ink.colour : 0);
        }
    }
    return image;
}

int InkedRows(const QImage &image)
{
    int first = image.height();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                first = qMin(first, y);
                last = y;
            }
        }
    }
    return qMax(0, last - first + 1);
}

QImage FirstFrameTime(HClockNode &node)
{
    ElementComposer composer;
    composer.SetUp(node);
    return composer.TimePixmap().toImage();
}

} // namespace

class TestFreshInk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void EqualsTheFile_data();
    void EqualsTheFile();
    void OnlyWhatIsNeeded();
    void LoadingTakesIt();
    void NothingIsLeft_data();
    void NothingIsLeft();
    void ReplacedFilesAreRead();
    void RemovedFilesAreMissing();
    void TwoClocks();
    void EachClockTakesItsOwn();
    void IsBounded();
    void SmallOnesAreBoundedToo();
    void OtherThreadsHaveTheirOwn();
};

// Only images that are drawn leave ink.
void TestFreshInk::init()
{
    FreshInk::OfThread().Clear();
    GlyphCache::Shared().Forget();
}

void TestFreshInk::EqualsTheFile_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("digests");
    for (const bool digests : {false, true}) {
        const char *const mode = digests ? "digests" : "plain names";
        QTest::addRow("analog, %s", mode) << int(AnalogClock) << digests;
        QTest::addRow("digital, %s", mode) << int(DigitalClock) << digests;
    }
}

void TestFreshInk::EqualsTheFile()
{
    QFETCH(int, type);
    QFETCH(bool, digests);
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, type, 1);
    SetInt(node, Attribute::Digital_Time_d, 1);
    SetInt(node, Attribute::Digital_Date_d, 1);
    SetInt(node, Attribute::Analog_Date_d, 1);
    Generate(node, digests);
    int compared = 0;
    for (const QString &path : FilesOf(node)) {
        const std::optional<Ink> ink = Taken(path);
        if (!ink)
            continue;
        const QImage image(path);
        QCOMPARE(Picture(*ink), image);
        QCOMPARE(int(ink->rows.count), InkedRows(image));
        ++compared;
    }
    QVERIFY(compared > 1);
}

// The digits of the date give the width of the blank among the months.
void TestFreshInk::OnlyWhatIsNeeded()
{
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, DigitalClock, 1);
    for (const Attribute flag : {Attribute::Digital_TopTexy_d, Attribute::Digital_Date_d,
                                 Attribute::Digital_Week_d, Attribute::Digital_Lunar_d})
        SetInt(node, flag, 0);
    SetInt(node, Attribute::Digital_Time_d, 1);
    SetInt(node, Attribute::DigitalTimeType, 0);
    SetInt(node, Attribute::DigitalDateFSize, 14); // not the digits of the time
    Generate(node);
    QStringList kept;
    for (const QString &key : KeysOfSet(DigitalClock)) {
        if (Taken(node.GetFirstFile(key)))
            kept.append(key);
    }
    QCOMPARE(kept, QStringList({"_dateNumber", "_timeCh", "_timeChar", "_timeNumber"}));
}

// The memory of an image is known exactly only where its pixels are.
void TestFreshInk::LoadingTakesIt()
{
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, DigitalClock, 1);
    Generate(node);
    const QString path = node.GetFirstFile(GlyphKey(Glyph::TimeNumber));
    const QSize size = QImage(path).size();
    const GlyphStrip strip = GlyphStrip::OfFile(path);
    QCOMPARE(strip.Bytes(), InkBytes(size));
    QCOMPARE(strip.Size(), size);
    QVERIFY(!Taken(path));
}

void TestFreshInk::NothingIsLeft_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("analog") << int(AnalogClock);
    QTest::newRow("digital") << int(DigitalClock);
}

// Images that the clock loads later or without their ink leave none.
void TestFreshInk::NothingIsLeft()
{
    QFETCH(int, type);
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, type, 1);
    SetInt(node, Attribute::HourScaleType, 3);
    for (const Attribute shown : {Attribute::Digital_Time_d, Attribute::DigitalMode,
                                  Attribute::Analog_AMPM_d, Attribute::Analog_Date_d})
        SetInt(node, shown, 1);
    Generate(node);
    ElementComposer composer;
    composer.SetUp(node);
    for (const QString &path : FilesOf(node))
        QVERIFY2(!Taken(path), qPrintable(path));
}

// Even one with the same modification time.
void TestFreshInk::ReplacedFilesAreRead()
{
    const GlyphOutput output;
    HClockNode red;
    HClockNode green;
    FillNode(red, DigitalClock, 1);
    FillNode(green, DigitalClock, 2);
    SetFonts(green, QStringLiteral("DejaVu Sans"), 12, 0x00ff00);
    Generate(red);
    Generate(green);
    const QString digits = GlyphKey(Glyph::TimeNumber);
    const QByteArray other = GlyphOutput::Content(green.GetFirstFile(digits));
    QFile file(red.GetFirstFile(digits));
    const QDateTime time = QFileInfo(file).lastModified();
    QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
    QCOMPARE(file.write(other), other.size());
    file.flush();
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(GlyphStrip::OfFile(file.fileName()).Pixmap().toImage(),
             GlyphStrip(QImage(green.GetFirstFile(digits))).Pixmap().toImage());
}

void TestFreshInk::RemovedFilesAreMissing()
{
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, DigitalClock, 1);
    Generate(node);
    const QString path = node.GetFirstFile(GlyphKey(Glyph::TimeNumber));
    QVERIFY(QFile::remove(path));
    QVERIFY(GlyphStrip::OfFile(path).IsNull());
}

// Both are drawn before the first is loaded, and then shown as when nothing is kept.
void TestFreshInk::TwoClocks()
{
    const GlyphOutput output;
    HClockNode red;
    HClockNode green;
    FillNode(red, DigitalClock, 1);
    FillNode(green, DigitalClock, 2);
    SetFonts(green, QStringLiteral("DejaVu Sans"), 12, 0x00ff00);
    Generate(red);
    Generate(green);
    const QImage first = FirstFrameTime(red);
    const QImage second = FirstFrameTime(green);
    QVERIFY(!first.isNull());
    QVERIFY(first != second);
    FreshInk::OfThread().Clear();
    QCOMPARE(FirstFrameTime(red), first);
    QCOMPARE(FirstFrameTime(green), second);
}

// Hosts may have the images of all clocks made before they create a renderer.
void TestFreshInk::EachClockTakesItsOwn()
{
    const GlyphOutput output;
    HClockNode red;
    HClockNode green;
    FillNode(red, DigitalClock, 1);
    FillNode(green, DigitalClock, 2);
    SetFonts(green, QStringLiteral("DejaVu Sans"), 12, 0x00ff00);
    Generate(red);
    Generate(green);
    FirstFrameTime(red);
    QVERIFY(!Taken(red.GetFirstFile(GlyphKey(Glyph::TimeNumber))));
    QVERIFY(Taken(green.GetFirstFile(GlyphKey(Glyph::TimeNumber))));
}

void TestFreshInk::IsBounded()
{
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, DigitalClock, 1);
    SetFonts(node, QStringLiteral("DejaVu Sans"), 60, 0x0000ff);
    SetInt(node, Attribute::Digital_Date_d, 1);
    SetInt(node, Attribute::DigitalDateType, 3); // with names of months
    Generate(node);
    qint64 bytes = 0;
    for (const QString &path : FilesOf(node)) {
        if (const std::optional<Ink> ink = Taken(path))
            bytes += QFileInfo(path).size() + InkBytes(ink->size);
    }
    QVERIFY(bytes > kMostBytes / 2);
    QVERIFY(bytes <= kMostBytes);
}

// Each takes more than its pixels: at least the object and the block of its bits.
void TestFreshInk::SmallOnesAreBoundedToo()
{
    FreshInk &fresh = FreshInk::OfThread();
    QImage dot(1, 1, QImage::Format_ARGB32);
    dot.fill(Qt::red);
    for (int i = 0; i < 5000; ++i)
        fresh.Keep(QByteArray::number(i), dot);
    int kept = 0;
    for (int i = 0; i < 5000; ++i)
        kept += fresh.Take(QByteArray::number(i)).has_value();
    QVERIFY(kept > 100);
    QVERIFY(kept <= kMostBytes / qint64(sizeof(Ink) + 2 * sizeof(void *)));
}

void TestFreshInk::OtherThreadsHaveTheirOwn()
{
    const GlyphOutput output;
    HClockNode node;
    FillNode(node, DigitalClock, 1);
    Generate(node);
    const QString path = node.GetFirstFile(GlyphKey(Glyph::TimeNumber));
    bool isThere = true;
    const QScopedPointer<QThread> thread(
        QThread::create([&] { isThere = Taken(path).has_value(); }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(!isThere);
    QVERIFY(Taken(path));
}

QTEST_MAIN(TestFreshInk)
#include "test_fresh_ink.moc"
