// Which images a composer loads, and what it makes of files that are none.
#include "chosen_time.h"
#include "compose/clock_glyphs.h"
#include "compose/element_composer.h"
#include "compose/picture_file.h"
#include "lettered_glyphs.h"
#include "swapped_file.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QProcess>
#include <QTest>

#include <sys/stat.h>

using namespace Lw::HNodeClock;

namespace {

constexpr int kHeaderEnd = 33; // where the chunk after a PNG's header begins
constexpr int kLastChunk = 12; // the length of its last

GlyphStrip FromFile(const QString &path)
{
    return GlyphStrip::OfFile(path);
}

/// The checksum, in hexadecimal digits, is Python's zlib.crc32 of the name.
QByteArray EmptyChunk(const char *name, const char *checksum)
{
    return QByteArray(4, '\0') + name + QByteArray::fromHex(checksum);
}

} // namespace

class TestGlyphLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DigitalClockLoadsAll();
    void AnalogClockLeavesTheTimeImages();
    void WeekCodeOutsideTheListChangesNothing();
    void MonthSpacer_data();
    void MonthSpacer();
    void OddFiles_data();
    void OddFiles();
    void UnknownChunksThatMayBeLeftOut();
    void PipeDoesNotBlock();
    void SwappedForAPipe();
    void TooLargeIsNotDecoded();
    void TextsInPicturesAreLeftOut();
    void PicturesLargerThanTheySay_data();
    void PicturesLargerThanTheySay();
    void FilesLongerThanAnyPicture_data();
    void FilesLongerThanAnyPicture();
    void PhotographsOfManyScans_data();
    void PhotographsOfManyScans();
    void LiveImageFollowsTheFile();
    void GivenImagesAreShownInPlaceOfFiles();
    void FilesOfLaterTimesAreRead();

private:
    QTemporaryDir m_directory;
};

void TestGlyphLoading::DigitalClockLoadsAll()
{
    HClockNode node;
    LetteredGlyphs written(node);
    written.WriteAll();
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(node), 1, 2);
    QCOMPARE(LetteredGlyphs::Read(glyphs.timeCh.Pixmap()), LetteredGlyphs::Cells("hms", 3));
    QCOMPARE(glyphs.timeNumber.Width(), 20);
    QCOMPARE(LetteredGlyphs::Read(glyphs.timeChar.Pixmap()), QStringLiteral(":"));
    QCOMPARE(glyphs.weeks.size(), 7);
    QCOMPARE(LetteredGlyphs::Read(glyphs.weeks.at(6).Pixmap()), QStringLiteral("yyyyyyy"));
    QCOMPARE(glyphs.months.size(), 13);
    QCOMPARE(LetteredGlyphs::Read(glyphs.months.at(0).Pixmap()), QStringLiteral("______"));
    QCOMPARE(LetteredGlyphs::Read(glyphs.months.at(12).Pixmap()), QStringLiteral("CCCCCC"));
    QCOMPARE(glyphs.lunar.Width(), 34);
    QCOMPARE(LetteredGlyphs::Read(glyphs.minus.Pixmap()), QStringLiteral("----"));
    QCOMPARE(glyphs.space.Width(), 2);
}

void TestGlyphLoading::AnalogClockLeavesTheTimeImages()
{
    HClockNode node;
    LetteredGlyphs written(node);
    written.WriteAll();
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(node), 0, 0);
    QVERIFY(glyphs.timeNumber.IsNull());
    QVERIFY(glyphs.timeCh.IsNull());
    QVERIFY(glyphs.timeChar.IsNull());
    QCOMPARE(glyphs.dateNumber.Width(), 30);
    QCOMPARE(LetteredGlyphs::Read(glyphs.topText.Pixmap()), QStringLiteral("LED"));
}

void TestGlyphLoading::WeekCodeOutsideTheListChangesNothing()
{
    HClockNode node;
    LetteredGlyphs written(node);
    written.WriteAll();
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(node), 1, 4);
    QVERIFY(glyphs.weeks.isEmpty());
    glyphs.Load(glyphs.RecordedFiles(node), 1, 1);
    const quint32 monday = glyphs.weeks.at(0).Key();
    glyphs.Load(glyphs.RecordedFiles(node), 1, -1);
    QCOMPARE(glyphs.weeks.size(), 7);
    QCOMPARE(glyphs.weeks.at(0).Key(), monday);
}

void TestGlyphLoading::MonthSpacer_data()
{
    QTest::addColumn<int>("strip");
    QTest::addColumn<int>("spacer");
    QTest::newRow("205 columns give 2 times 20") << 205 << 40;
    QTest::newRow("ten columns") << 10 << 2;
    QTest::newRow("narrower than its cells") << 9 << 0;
    QTest::newRow("no strip") << 0 << 0;
}

void TestGlyphLoading::MonthSpacer()
{
    QFETCH(int, strip);
    QFETCH(int, spacer);
    HClockNode node;
    LetteredGlyphs written(node);
    if (strip > 0)
        written.Write("_dateNumber", QString(strip, '7'), 4);
    ClockGlyphs glyphs;
    glyphs.Load(glyphs.RecordedFiles(node), 1, 0);
    QCOMPARE(glyphs.months.size(), 13);
    QCOMPARE(glyphs.months.at(0).Width(), spacer);
    QCOMPARE(LetteredGlyphs::Read(glyphs.months.at(0).Pixmap()), QString(spacer, '_'));
}

void TestGlyphLoading::OddFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::red);
    const QString path = m_directory.filePath("whole.png");
    QVERIFY(image.save(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("not a picture");
    QTest::newRow("signature only") << whole.left(8);
    QTest::newRow("header only") << whole.left(kHeaderEnd);
    QTest::newRow("cut in half") << whole.left(whole.size() / 2);
    QByteArray broken = whole;
    for (int i = 45; i < broken.size() - 20; ++i)
        broken[i] = static_cast<char>(broken.at(i) ^ 0x5a);
    QTest::newRow("broken pixels") << broken;
    // A name with a capital letter first: nobody may show the picture without the chunk.
    const auto withChunk = [&whole](int at, const char *name, const char *checksum) {
        return whole.left(at) + EmptyChunk(name, checksum) + whole.mid(at);
    };
    QTest::newRow("unknown chunk that is needed") << withChunk(kHeaderEnd, "CLKx", "9c3633ab");
    QTest::newRow("unknown chunk that is needed, at the end")
        << withChunk(whole.size() - kLastChunk, "CLKx", "9c3633ab");
    QTest::newRow("chunk without a name") << withChunk(kHeaderEnd, "0000", "0c9bc472");
}

void TestGlyphLoading::OddFiles()
{
    QFETCH(QByteArray, content);
    const QString path = m_directory.filePath("odd.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    QVERIFY(QPixmap(path).isNull());
    QVERIFY(ReadImageFile(path).isNull());
    QVERIFY(ReadPixmapFile(path).isNull());
    QCOMPARE(GlyphStrip::OfFile(path).Width(), 0);
}

// Chunks that begin with a small letter, known or not, are no reason to refuse a picture.
void TestGlyphLoading::UnknownChunksThatMayBeLeftOut()
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(buffer.open(QBuffer::WriteOnly) && image.save(&buffer, "png"));
    const QString path = m_directory.filePath("more.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(png.left(kHeaderEnd) + EmptyChunk("cLKx", "3c049c95") + png.mid(kHeaderEnd));
    file.close();
    QCOMPARE(QPixmap(path).size(), QSize(20, 20));
    QCOMPARE(ReadImageFile(path).size(), QSize(20, 20));
    QCOMPARE(GlyphStrip::OfFile(path).Width(), 20);
}

void TestGlyphLoading::PipeDoesNotBlock()
{
    const QString path = m_directory.filePath("pipe.png");
    QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    QVERIFY(ReadImageFile(path).isNull());
    QVERIFY(ReadImageFile("/dev/zero").isNull());
    QVERIFY(ReadImageFile(m_directory.path()).isNull());
    QVERIFY(ReadImageFile(QString()).isNull());
    // Of size 0 to the system, and without an end.
    QVERIFY(ReadImageFile("/proc/self/pagemap").isNull());
}

void TestGlyphLoading::SwappedForAPipe()
{
    const QString path = m_directory.filePath("swapped.png");
    QImage image(1, 1, QImage::Format_Mono);
    image.fill(0);
    QByteArray picture;
    QBuffer buffer(&picture);
    QVERIFY(buffer.open(QBuffer::WriteOnly) && image.save(&buffer, "PNG"));
    const SwappedFile swapped(path, picture);
    QVERIFY(swapped.BothAreMet(2000, [&path] { return !ReadImageFile(path).isNull(); }));
}

void TestGlyphLoading::TooLargeIsNotDecoded()
{
    const auto write = [this](const char *name, const QSize &size) {
        QImage image(size, QImage::Format_Mono);
        image.fill(0);
        const QString path = m_directory.filePath(name);
        return image.save(path) ? path : QString();
    };
    QVERIFY(!ReadImageFile(write("widest.png", {32767, 1})).isNull());
    QVERIFY(ReadImageFile(write("wide.png", {32768, 1})).isNull());
    QVERIFY(ReadImageFile(write("high.png", {1, 32768})).isNull());
    QVERIFY(!ReadImageFile(write("largest.png", {4096, 4096})).isNull());
    QVERIFY(ReadImageFile(write("large.png", {4096, 4097})).isNull());
}

// A text is unpacked whatever its length, and kept twice: a small file could take gigabytes.
void TestGlyphLoading::TextsInPicturesAreLeftOut()
{
    QImage image(20, 2, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixel(3, 1, 0xffff0000);
    QVERIFY(image.textKeys().isEmpty());
    image.setText("packed", QString(5000, 'a'));
    image.setText("plain", "b");
    const QString path = m_directory.filePath("texts.png");
    QVERIFY(image.save(path));
    QCOMPARE(QImage(path).textKeys(), QStringList({"packed", "plain"}));

    const QImage read = ReadImageFile(path);
    QVERIFY(read.textKeys().isEmpty());
    QCOMPARE(read.convertToFormat(QImage::Format_ARGB32).pixel(3, 1), 0xffff0000);
    const QImage small = DecodePng(PictureFile(path).SmallPng());
    QVERIFY(small.textKeys().isEmpty());
    QCOMPARE(small.size(), QSize(20, 2));
}

void TestGlyphLoading::PicturesLargerThanTheySay_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QBuffer::WriteOnly);
    QImage image(300, 200, QImage::Format_Mono);
    image.fill(0);
    QVERIFY(image.save(&buffer, "png"));
    // One entry: 16 by 16 pixels, 32 bits, the length of the picture and where it begins.
    QByteArray icon = QByteArray::fromHex("000001000100"
                                          "10100000"
                                          "01002000");
    const int length = png.size();
    for (int shift = 0; shift < 32; shift += 8)
        icon.append(static_cast<char>(length >> shift));
    icon.append(QByteArray::fromHex("16000000")).append(png);
    QTest::newRow("an icon of a picture") << icon;
    // 5000 by 5000 pixels in two colours, of which the first and only picture covers one.
    QTest::newRow("an animation's first frame") << QByteArray::fromHex("474946383961"
                                                                       "88138813"
                                                                       "800000"
                                                                       "ff0000"
                                                                       "0000ff"
                                                                       "2c00000000"
                                                                       "01000100"
                                                                       "00"
                                                                       "02"
                                                                       "024401"
                                                                       "00"
                                                                       "3b");
}

void TestGlyphLoading::PicturesLargerThanTheySay()
{
    QFETCH(QByteArray, content);
    const QString path = m_directory.filePath("larger.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    const QImage read = ReadImageFile(path);
    QVERIFY2(read.isNull(), qPrintable(QString("%1 x %2").arg(read.width()).arg(read.height())));
}

void TestGlyphLoading::FilesLongerThanAnyPicture_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<bool>("isRead");
    for (const QByteArray format : {"png", "bmp", "jpeg"}) {
        QTest::addRow("%s, padded", format.constData()) << format << (qint64(1) << 20) << true;
        QTest::addRow("%s, too long", format.constData()) << format << (qint64(137) << 20) << false;
    }
}

// What follows a picture is a hole in the file, which takes no place.
void TestGlyphLoading::FilesLongerThanAnyPicture()
{
    QFETCH(QByteArray, format);
    QFETCH(qint64, bytes);
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString path = m_directory.filePath("long.png");
    QVERIFY(image.save(path, format.constData()));
    QVERIFY(QFile::resize(path, bytes));
    QTEST(!ReadImageFile(path).isNull(), "isRead");
}

void TestGlyphLoading::PhotographsOfManyScans_data()
{
    QTest::addColumn<int>("repetitions");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("as they are made") << 1 << true;
    QTest::newRow("any number of times") << 300 << false;
}

// The last scan of a picture is repeated: it refines what is there, so that nothing else changes.
void TestGlyphLoading::PhotographsOfManyScans()
{
    QFETCH(int, repetitions);
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QBuffer::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    QVERIFY(writer.write(image));
    const int begin = jpeg.lastIndexOf("\xff\xda");
    const int end = jpeg.lastIndexOf("\xff\xd9");
    QVERIFY(begin > 0 && end > begin);
    const QByteArray scan = jpeg.mid(begin, end - begin);
    const QString path = m_directory.filePath("scans.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(jpeg.left(begin) + scan.repeated(repetitions) + jpeg.mid(end));
    file.close();
    QTEST(!ReadImageFile(path).isNull(), "isRead");
}

void TestGlyphLoading::LiveImageFollowsTheFile()
{
    HClockNode node;
    LetteredGlyphs written(node);
    LiveGlyph live;
    const QString path = written.Write("_timeAM", "AA", 3);
    const quint32 first = live.Load(path, FromFile).Key();
    QCOMPARE(LetteredGlyphs::Read(live.Load(path, FromFile).Pixmap()), QStringLiteral("AA"));
    QCOMPARE(live.Load(path, FromFile).Key(), first);
    written.Write("_timeAM", "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAB", 3);
    QCOMPARE(live.Load(path, FromFile).Width(), 33);
    QVERIFY(QFile::remove(path));
    QVERIFY(live.Load(path, FromFile).IsNull());
    QVERIFY(live.Load(QString(), FromFile).IsNull());
}

void TestGlyphLoading::GivenImagesAreShownInPlaceOfFiles()
{
    HClockNode node;
    LetteredGlyphs written(node);
    written.WriteAll();
    node.SetAttribute("ClockType", 1, false);
    node.SetAttribute("DigitalMode", 1, false);
    node.SetAttribute("DigitalTimeType", 1, false);
    const ClockGlyphs loader;
    const GlyphSource files = loader.RecordedFiles(node);
    const GlyphStrip given = files(Glyph::TimePM, 0);
    ElementComposer composer;
    composer.SetUp(node, [&](Glyph glyph, int number) {
        return glyph == Glyph::TimeAM ? given : files(glyph, number);
    });
    QVERIFY(QFile::remove(node.GetFirstFile("_timePM")));

    const HeldInstant midnight(0);
    QCOMPARE(LetteredGlyphs::Read(composer.TimePixmap()), QStringLiteral("0000:0000_PPP"));
    const HeldInstant noon(12 * 3600 * 1000);
    QCOMPARE(LetteredGlyphs::Read(composer.TimePixmap()), QStringLiteral("1122:0000_PPP"));
    composer.SetUp(node);
    QCOMPARE(LetteredGlyphs::Read(composer.TimePixmap()), QStringLiteral("1122:0000"));
}

void TestGlyphLoading::FilesOfLaterTimesAreRead()
{
    HClockNode node;
    LetteredGlyphs written(node);
    const QString path = written.Write("_timeAM", "AA", 3);
    QCOMPARE(QProcess::execute("touch", {"--date", "2040-01-01 00:00:00", path}), 0);
    QCOMPARE(QFileInfo(path).lastModified().toSecsSinceEpoch(), Q_INT64_C(2208988800));
    QVERIFY(!PictureFile(path).SmallPng().isEmpty());
    QVERIFY(!ReadPixmapFile(path).isNull());
    LiveGlyph live;
    QCOMPARE(LetteredGlyphs::Read(live.Load(path, FromFile).Pixmap()), QStringLiteral("AA"));
}

QTEST_MAIN(TestGlyphLoading)

#include "test_glyph_loading.moc"
