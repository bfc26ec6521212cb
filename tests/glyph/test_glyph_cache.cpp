// Only what changed is drawn and encoded; and what is remembered gives the same files as drawing.
#include "glyph_output.h"

#include "glyph/glyph_cache.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

constexpr int kCommonImages = 1 + 4 * 7 + 1 + 12 + 5; // top text, weekdays, lunar, months, date
constexpr int kAnalogImages = kCommonImages + 3;
constexpr int kDigitalImages = kCommonImages + 5;
/// Months, labels, separators, blank, digits and minus.
constexpr int kDateImages = 12 + 5;

/// How many images are drawn by an action.
template<typename Action>
int Drawn(Action action)
{
    const int before = GlyphCache::Shared().DrawnImages();
    action();
    return GlyphCache::Shared().DrawnImages() - before;
}

/// Fonts of as many colours: no two images of the clock are equal, except where their texts are.
void FillColoured(HClockNode &node, int clockType, int id)
{
    FillNode(node, clockType, id);
    for (int font = 0; font < kGlyphFontCount; ++font)
        SetInt(node, FontAttributes(static_cast<GlyphFont>(font), clockType).colour,
               0x101010 * font);
}

QMap<QString, QByteArray> Files(const QString &directory)
{
    QMap<QString, QByteArray> files;
    for (const QString &name : GlyphOutput::FilesIn(directory))
        files.insert(name, GlyphOutput::Content(directory + name));
    return files;
}

} // namespace

class TestGlyphCache : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;

    static void Types()
    {
        QTest::addColumn<int>("clockType");
        // Without a catalogue the Chinese weekdays are the English ones.
        QTest::addColumn<int>("images");
        QTest::newRow("analog") << 0 << kAnalogImages - 7;
        QTest::newRow("digital") << 1 << kDigitalImages - 7;
    }

private Q_SLOTS:
    void init()
    {
        m_output.reset(new GlyphOutput);
        GlyphCache::Shared().Forget();
    }
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void EqualImagesAreDrawnOnce_data() { Types(); }
    void EqualImagesAreDrawnOnce()
    {
        QFETCH(int, clockType);
        QFETCH(int, images);
        HClockNode node;
        FillColoured(node, clockType, 7);
        QCOMPARE(Drawn([&] { Generate(node); }), images);
        QCOMPARE(Drawn([&] { Generate(node); }), 0);
        HClockNode alike;
        FillColoured(alike, clockType, 8);
        QCOMPARE(Drawn([&] { Generate(alike); }), 0);
        for (const Lw::FileRecord &record : node.FileRecords())
            QCOMPARE(GlyphOutput::Content(alike.GetFirstFile(record.key)),
                     GlyphOutput::Content(record.path));
    }

    // With digest names too, where the files of the plain names are moved away each time.
    void DigestsNeedNoDrawing_data() { Types(); }
    void DigestsNeedNoDrawing()
    {
        QFETCH(int, clockType);
        HClockNode node;
        FillColoured(node, clockType, 7);
        Generate(node, true);
        QCOMPARE(Drawn([&] { Generate(node, true); }), 0);
    }

    void OneSettingDrawsWhatDependsOnIt_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("images");
        QTest::newRow("date colour") << "DigitalDateColor"
                                     << "255" << kDateImages;
        QTest::newRow("date size") << "DigitalDateFSize"
                                   << "49" << kDateImages;
        QTest::newRow("date font") << "DigitalDateFName"
                                   << "DejaVu Serif" << kDateImages;
        QTest::newRow("top text") << "DigitalTopText"
                                  << "other" << 1;
        QTest::newRow("time colour") << "DigitalTimeColor"
                                     << "255" << 5;
        QTest::newRow("weekday colour") << "DigitalWeekColor"
                                        << "255" << 3 * 7;
        QTest::newRow("lunar colour") << "DigitalLunarColor"
                                      << "255" << 1;
        QTest::newRow("zone") << "TimeZone"
                              << "+05:30" << 0;
        QTest::newRow("date format") << "DigitalDateType"
                                     << "3" << 0;
        QTest::newRow("another kind's colour") << "AnalogDateColor"
                                               << "255" << 0;
    }
    void OneSettingDrawsWhatDependsOnIt()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(int, images);
        HClockNode node;
        FillColoured(node, DigitalClock, 7);
        for (const char *font : {"Date", "Time", "Week", "Lunar", "TopText"})
            node.SetAttribute(QString("Digital%1FSize").arg(font), 48, false);
        Generate(node);
        node.SetAttribute(key, value, false);
        QCOMPARE(Drawn([&] { Generate(node); }), images);
    }

    void RememberedFilesAreAsDrawn_data()
    {
        QTest::addColumn<bool>("calcMd5");
        QTest::newRow("plain") << false;
        QTest::newRow("digests") << true;
    }
    void RememberedFilesAreAsDrawn()
    {
        QFETCH(bool, calcMd5);
        HClockNode node;
        FillColoured(node, DigitalClock, 7);
        Generate(node, calcMd5);
        const auto drawn = Files(m_output->Regular());
        m_output.reset(new GlyphOutput);
        QCOMPARE(Drawn([&] { Generate(node, calcMd5); }), 0);
        QCOMPARE(Files(m_output->Regular()), drawn);
    }

    void FilesThatOthersChangedAreWrittenAgain()
    {
        HClockNode node;
        FillColoured(node, DigitalClock, 7);
        Generate(node);
        const auto drawn = Files(m_output->Regular());
        QVERIFY(QFile::remove(node.GetFirstFile("_timeNumber")));
        QFile changed(node.GetFirstFile("_timeChar"));
        QVERIFY(changed.open(QFile::ReadWrite) && changed.seek(50) && changed.putChar('\1'));
        changed.close();
        QVERIFY(QFile::resize(node.GetFirstFile("_timeAM"), 10));
        QCOMPARE(Drawn([&] { Generate(node); }), 0);
        QCOMPARE(Files(m_output->Regular()), drawn);
    }

    // The files of other clocks take the place of the first one's, whose facts stay.
    void SetsBeyondTheMemory()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        SetFonts(node, "DejaVu Sans", 48, 0);
        Generate(node);
        const auto drawn = Files(m_output->Regular());
        qint64 bytes = 0;
        for (const QByteArray &file : drawn)
            bytes += file.size();
        HClockNode other;
        FillNode(other, DigitalClock, 8);
        for (int colour = 1; colour * bytes < 1280 * 1024; ++colour) {
            SetFonts(other, "DejaVu Sans", 48, colour);
            Generate(other);
        }
        QCOMPARE(Drawn([&] { Generate(node); }), 0);
        m_output.reset(new GlyphOutput);
        QVERIFY(Drawn([&] { Generate(node); }) > 0);
        QCOMPARE(Files(m_output->Regular()), drawn);
    }

    void SurroundingsCount_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("direction of texts") << 0;
        QTest::newRow("application font") << 1;
        QTest::newRow("substitute") << 2;
        QTest::newRow("installed font") << 3;
    }
    void SurroundingsCount()
    {
        QFETCH(int, change);
        const QFont before = QGuiApplication::font();
        HClockNode node;
        FillColoured(node, DigitalClock, 7);
        SetFonts(node, change == 1 ? QString() : QStringLiteral("No Such Font"), 12, 255);
        Generate(node);
        if (change == 0)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        else if (change == 1)
            QGuiApplication::setFont(QFont("DejaVu Serif"));
        else if (change == 2)
            QFont::insertSubstitution("No Such Font", "DejaVu Serif");
        else
            QVERIFY(QFontDatabase::addApplicationFont(CLOCK_TEST_FONT) >= 0);
        const int drawn = Drawn([&] { Generate(node); });
        const auto files = Files(m_output->Regular());
        GlyphCache::Shared().Forget();
        m_output.reset(new GlyphOutput);
        Generate(node);
        QGuiApplication::setFont(before);
        QFont::removeSubstitutions("No Such Font");
        QVERIFY(drawn > 0);
        QCOMPARE(Files(m_output->Regular()), files);
    }
};

QTEST_MAIN(TestGlyphCache)
#include "test_glyph_cache.moc"
