// Clocks with large fonts: their images are encoded outside the window's thread, are the same as
// the plugin's, and may be no longer wanted by then.
#include "studio_under_test.h"

#include "wall/image_encoder.h"

#include "clock_node.h"
#include "failing_memory.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_picture.h"
#include "happconfig.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace ClockStudio;
using namespace Lw::HNodeClock;

namespace {

/// A clock whose label and time (of a digital clock) have 96 points.
QByteArray Wall(const char *type, const char *label)
{
    return QStringLiteral("<program width=\"256\" height=\"128\">\n<area x=\"0\" y=\"0\" "
                          "width=\"256\" height=\"128\">\n<clock type=\"%1\" "
                          "timezone=\"+00:00\"><title value=\"%2\" fontName=\"DejaVu Sans\" "
                          "fontSize=\"96\"/><time fontName=\"DejaVu Sans\" fontSize=\"96\"/>"
                          "</clock></area></program>\n")
        .arg(QLatin1String(type), QLatin1String(label))
        .toUtf8();
}

QMap<QString, QByteArray> FilesIn(const QString &directory)
{
    QMap<QString, QByteArray> files;
    for (const QFileInfo &file : QDir(directory).entryInfoList(QDir::Files))
        files.insert(file.fileName(), ContentsOf(file.filePath()));
    return files;
}

int DrawnImages()
{
    return GlyphCache::Shared().DrawnImages();
}

ImageEncoder &EncoderOf(const StudioUnderTest &studio)
{
    return *studio.wall.findChild<ImageEncoder *>();
}

void ChangeLabel(StudioUnderTest &studio, const QString &from, const QString &to)
{
    const int place = studio.document.Text().indexOf("\"" + from + "\"") + 1;
    studio.document.Change({{place, from, to}}, "label");
}

/// The text "Gate" at 96 points.
UnencodedGlyph DrawnGate()
{
    const QFont font = GlyphTypeface("DejaVu Sans", 96);
    const GlyphContent content {GlyphShape::Text, "Gate", FontIdentity(font), 0xffffff};
    QPainter painter;
    return {content, DrawGlyphPicture(painter, content, font)};
}

} // namespace

class TestLargeFonts : public QObject
{
    Q_OBJECT

private slots:
    void init() { GlyphCache::Shared().Forget(); }
    void FilesAreThePlugins_data();
    void FilesAreThePlugins();
    void EqualImagesAreEncodedOnce();
    void TypingReplacesWhatIsEncoded();
    void WallIsClosedMeanwhile();
    void OutdatedFontsAreNotCached();
    void NoWidthIsNotEncoded();
    void NoMemoryToEncode();
};

void TestLargeFonts::FilesAreThePlugins_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("digital") << QByteArray("digital");
    QTest::newRow("dial") << QByteArray("dial");
}

void TestLargeFonts::FilesAreThePlugins()
{
    QFETCH(QByteArray, type);
    StudioUnderTest studio(Wall(type, "Gate"));
    QSignalSpy encoded(&EncoderOf(studio), &ImageEncoder::Encoded);
    const int before = DrawnImages();
    studio.WaitForClocks();
    QVERIFY(encoded.count() > 20);
    QVERIFY(!EncoderOf(studio).IsBusy());
    QCOMPARE(DrawnImages() - before, encoded.count());

    const auto files = FilesIn(Lw::HAppConfig::ClockOutputPath());
    QVERIFY(files.size() >= encoded.count());
    const QTemporaryDir other;
    Lw::HAppConfig::SetClockOutputPath(other.path());
    GlyphCache::Shared().Forget();
    DrwSourceIMage().DrawClockSourceImage(studio.wall.Clock(0));
    QCOMPARE(FilesIn(other.path()), files);
}

void TestLargeFonts::EqualImagesAreEncodedOnce()
{
    StudioUnderTest studio(Wall("digital", "Gate"));
    studio.WaitForClocks();
    const int before = DrawnImages();
    ChangeLabel(studio, "Gate", "Gates");
    studio.WaitForClocks();
    ChangeLabel(studio, "Gates", "Gate");
    studio.WaitForClocks();
    QCOMPARE(DrawnImages() - before, 1);
}

void TestLargeFonts::TypingReplacesWhatIsEncoded()
{
    StudioUnderTest studio(Wall("digital", "G"));
    QString label = "G";
    for (const char *const next : {"Ga", "Gat", "Gate"}) {
        QTRY_VERIFY(EncoderOf(studio).IsBusy());
        ChangeLabel(studio, label, next);
        label = next;
    }
    studio.WaitForClocks();
    QCOMPARE(studio.wall.Clock(0)->GetAttribute(Key(Attribute::DigitalTopText)), label);
    const QImage shown = studio.Screen();
    GlyphCache::Shared().Forget();
    StudioUnderTest fresh(Wall("digital", "Gate"));
    fresh.WaitForClocks();
    QCOMPARE(fresh.Screen(), shown);
}

void TestLargeFonts::WallIsClosedMeanwhile()
{
    for (const char *const label : {"a", "b", "c"}) {
        StudioUnderTest studio(Wall("digital", label));
        QTRY_VERIFY(EncoderOf(studio).IsBusy());
    }
    QCoreApplication::processEvents(); // nothing arrives for a wall that is gone
    StudioUnderTest studio(Wall("digital", "d"));
    QTRY_VERIFY(EncoderOf(studio).IsBusy());
    studio.document.Load(QByteArray("<program width=\"8\" height=\"8\"/>"));
    QTRY_VERIFY(!EncoderOf(studio).IsBusy());
    QCOMPARE(studio.wall.AreaCount(), 0);
}

void TestLargeFonts::OutdatedFontsAreNotCached()
{
    const UnencodedGlyph glyph = DrawnGate();
    ImageEncoder encoder;
    QSignalSpy encoded(&encoder, &ImageEncoder::Encoded);
    encoder.Encode(glyph);
    emit qGuiApp->fontDatabaseChanged();
    QVERIFY(encoded.wait());
    QVERIFY(GlyphCache::Shared().Find(glyph.content).state != GlyphState::Drawn);
    encoder.Encode(glyph);
    QVERIFY(encoded.wait());
    QCOMPARE(GlyphCache::Shared().Find(glyph.content).file, EncodeGlyphPicture(glyph.picture).file);
}

// A label of a space without width.
void TestLargeFonts::NoWidthIsNotEncoded()
{
    StudioUnderTest studio(Wall("digital", "&#8203;"));
    QSignalSpy encoded(&EncoderOf(studio), &ImageEncoder::Encoded);
    const int before = DrawnImages();
    studio.WaitForClocks();
    QVERIFY(encoded.count() > 20);
    QCOMPARE(encoded.count(), DrawnImages() - before);
}

// Noise makes a large file.
void TestLargeFonts::NoMemoryToEncode()
{
    if (!FailingMemory::Available())
        QSKIP("the allocator cannot be limited under a sanitizer");
    UnencodedGlyph glyph = DrawnGate();
    glyph.picture.image = QImage(1000, 1000, QImage::Format_ARGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(glyph.picture.image.bits()),
                                  1000 * 1000);
    ImageEncoder encoder;
    QSignalSpy encoded(&encoder, &ImageEncoder::Encoded);
    FailingMemory::Fail(1 << 20, 0, true);
    encoder.Encode(glyph);
    const bool isEncoded = encoded.wait();
    QVERIFY(FailingMemory::Stop() > 0);
    QVERIFY(isEncoded);
    QVERIFY(!encoder.IsBusy());
    QVERIFY(GlyphCache::Shared().Find(glyph.content).state != GlyphState::Drawn);
}

QTEST_MAIN(TestLargeFonts)
#include "test_large_fonts.moc"
