// Hostile settings: sizes and texts that no image can hold cost neither time, memory nor files.
#include "glyph_output.h"

#include <QFontDatabase>
#include <QImageReader>
#include <QTest>

#include <ctime>

#include <sys/resource.h>

using namespace Lw::HNodeClock;

namespace {

constexpr double kPatienceSeconds = 20; // of processor time

long PeakKilobytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

class TestGlyphBounds : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;
    std::clock_t m_start = 0;

    QString Draw(const QString &text, const QString &family, int size)
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawImage(&node, "_k", text, "1", family, size, 0, "_k.png");
        return node.GetFirstFile("_k");
    }
    QString DrawStrip(const QString &family, int size)
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawNumberImage(&node, "_k", "1", family, size, 0, "_k.png");
        return node.GetFirstFile("_k");
    }
    static bool IsEmptyOrWithinBounds(const QString &path)
    {
        const QSize size = QImageReader(path).size();
        return !QFile::exists(path)
            || (size.width() <= 32767 && size.height() <= 32767
                && qint64(4) * size.width() * size.height() <= 64 * 1024 * 1024);
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(QFontDatabase::addApplicationFont(CLOCK_TEST_FONT) >= 0); }
    void init()
    {
        m_output.reset(new GlyphOutput);
        m_start = std::clock();
    }
    void cleanup()
    {
        QVERIFY(static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC < kPatienceSeconds);
    }

    void SizesThatAreNotMade_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<int>("size");
        // From about 65 536 on Qt has no glyphs but boxes of a fixed size, which are no image of
        // the text; further on its arithmetic overflows.
        for (int size : {30000, 32767, 32768, 65535, 65536, 1000000, 2000000000, 2147483647}) {
            for (const QString family : {"DejaVu Sans", "WenQuanYi Micro Hei", "No Such Font", ""})
                QTest::newRow(qPrintable(family + QString::number(size))) << family << size;
        }
    }
    void SizesThatAreNotMade()
    {
        QFETCH(QString, family);
        QFETCH(int, size);
        const long before = PeakKilobytes();
        QVERIFY(!QFile::exists(Draw("AM", family, size)));
        QVERIFY(!QFile::exists(DrawStrip(family, size)));
        QVERIFY(PeakKilobytes() - before < 32 * 1024);
    }

    // A strip of 2000 points is 218 MB; its "-" alone, far below, is made.
    void LargeButPossible()
    {
        QVERIFY(!QFile::exists(DrawStrip("DejaVu Sans", 2000)));
        const QString path = Draw("-", "DejaVu Sans", 2000);
        QVERIFY(QFile::exists(path));
        QVERIFY(IsEmptyOrWithinBounds(path));
    }

    // An "A" of the test font is 12 pixels wide: 2730 of them 32 760, 2731 of them 32 772.
    void SideBoundary()
    {
        const QString last = Draw(QString(2730, 'A'), "Clock Test", 12);
        QCOMPARE(QImageReader(last).size(), QSize(32760, 16));
        QFile::remove(last);
        QVERIFY(!QFile::exists(Draw(QString(2731, 'A'), "Clock Test", 12)));
    }

    // At 1536 points an "A" is 1536 pixels wide, a line 2048 high: 12 MiB each, so that five fit.
    void ByteBoundary()
    {
        QCOMPARE(QImageReader(Draw("AAAAA", "Clock Test", 1536)).size(), QSize(7680, 2048));
        m_output.reset(new GlyphOutput);
        QVERIFY(!QFile::exists(Draw("AAAAAA", "Clock Test", 1536)));
    }

    void ExactlyTheMostBytes()
    {
        // 8192 by 2048 pixels of four bytes are 64 MiB; a "1" is 512 wide and a blank 640.
        const QString text =
            "     " + QString("1").repeated(5) + QString(" ").repeated(3) + QString("1");
        QCOMPARE(QImageReader(Draw(text, "Clock Test", 1536)).size(), QSize(8192, 2048));
        m_output.reset(new GlyphOutput);
        QVERIFY(!QFile::exists(Draw(text + "1", "Clock Test", 1536)));
    }

    void LongTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        const int length = 1024 * 1024;
        const auto row = [length](const char *name, QChar character, int size = 12) {
            QTest::newRow(name) << QString(length, character) << size;
        };
        row("letters", 'a');
        row("letters of one point", 'i', 1);
        row("letters of 1500 points", 'W', 1500);
        row("blanks", ' ');
        row("tabs", '\t');
        row("line breaks", '\n');
        row("character 0", QChar(0));
        row("Chinese", QChar(0x4e2d));
        row("zero-width blanks", QChar(0x200b));
        row("combining accents", QChar(0x0301));
        row("right-to-left overrides", QChar(0x202e));
        row("lone surrogates", QChar(0xd83d));
        row("not a character", QChar(0xffff));
    }
    void LongTexts()
    {
        QFETCH(QString, text);
        QFETCH(int, size);
        const long before = PeakKilobytes();
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        SetText(node, Attribute::AnalogTopText, text);
        SetInt(node, Attribute::AnalogTopTextFSize, size);
        Generate(node);
        QVERIFY(IsEmptyOrWithinBounds(node.GetFirstFile("_toptext")));
        QVERIFY(QFile::exists(node.GetFirstFile("_AnalogPM")));
        QVERIFY(PeakKilobytes() - before < 512 * 1024);
    }

    // Qt's widths wrap around at 2^25 pixels: a text a little wider than that is not a narrow one.
    void WidthsThatWrapAround()
    {
        // 2 796 203 letters of 12 pixels are 2^25 and 4 pixels.
        QVERIFY(!QFile::exists(Draw(QString(2796203, 'A'), "Clock Test", 12)));
    }

    void WholeSetOfAbsurdFonts_data()
    {
        QTest::addColumn<int>("size");
        for (int size : {-2147483647 - 1, -12, 0, 5000, 30000, 65536, 2000000000, 2147483647})
            QTest::newRow(QByteArray::number(size).constData()) << size;
    }
    void WholeSetOfAbsurdFonts()
    {
        QFETCH(int, size);
        for (int clockType : {0, 1, 3}) {
            HClockNode node;
            FillNode(node, clockType, 7);
            SetFonts(node, QString(), size, 0);
            Generate(node);
            for (const Lw::FileRecord &record : node.FileRecords())
                QVERIFY(IsEmptyOrWithinBounds(record.path));
            QCOMPARE(node.FileRecords().size(),
                     GlyphImages(GlyphOrder::Generation, clockType).size());
        }
    }

    void StrangeFamilies_data()
    {
        QTest::addColumn<QString>("family");
        QTest::newRow("unknown") << "No Such Font";
        QTest::newRow("list") << "No Such Font,DejaVu Sans";
        QTest::newRow("foundry") << "DejaVu Sans [no one]";
        QTest::newRow("format directive") << "%n%s";
        QTest::newRow("very long") << QString(1024 * 1024, 'x');
        QTest::newRow("character 0") << QString(8, QChar(0));
        QTest::newRow("blanks") << "   ";
        QTest::newRow("lone surrogate") << QString(QChar(0xd83d));
    }
    void StrangeFamilies()
    {
        QFETCH(QString, family);
        QVERIFY(QFile::exists(Draw("12:34", family, 12)));
        QVERIFY(QFile::exists(DrawStrip(family, 12)));
    }
};

QTEST_MAIN(TestGlyphBounds)
#include "test_glyph_bounds.moc"
