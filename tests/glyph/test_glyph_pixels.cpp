// What the images show. The test font's pixels are known: at 12 points each character is a block 10
// pixels high, one pixel short of its advance on either side, in a line of 12 above and 4 below.
#include "glyph_output.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>
#include <QSet>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

const QString kTestFamily = QStringLiteral("Clock Test");
constexpr QRgb kBackground = 0;
constexpr int kFirstInkRow = 2;
constexpr int kInkRows = 10;

QImage Load(const QString &path)
{
    return QImage(path, "PNG").convertToFormat(QImage::Format_ARGB32);
}

/// The columns that hold ink, as "." and "#"; empty unless every inked column is a full block.
QString Columns(const QImage &image)
{
    QString columns;
    for (int x = 0; x < image.width(); ++x) {
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            const bool inked = image.pixel(x, y) != kBackground;
            if (inked && (y < kFirstInkRow || y >= kFirstInkRow + kInkRows))
                return QString();
            rows += inked;
        }
        if (rows != 0 && rows != kInkRows)
            return QString();
        columns += rows == 0 ? '.' : '#';
    }
    return columns;
}

QSet<QRgb> ColoursOf(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours;
}

} // namespace

class TestGlyphPixels : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;

    QImage Text(const QString &text, const QString &family, int size, int colour = 0x0000ff)
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawImage(&node, "_k", text, "1", family, size, colour, "_k.png");
        return Load(node.GetFirstFile("_k"));
    }
    QImage Strip(const QString &family, int size)
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawNumberImage(&node, "_k", "1", family, size, 0x0000ff, "_k.png");
        return Load(node.GetFirstFile("_k"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QFontDatabase::addApplicationFont(CLOCK_TEST_FONT) >= 0);
        QCOMPARE(QFontInfo(QFont(kTestFamily)).family(), kTestFamily);
    }
    void init() { m_output.reset(new GlyphOutput); }

    void Texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("columns");
        QTest::newRow("narrow digit") << "1" << 4 << ".##.";
        QTest::newRow("digit") << "0" << 8 << ".######.";
        QTest::newRow("wide digit") << "8" << 9 << ".#######.";
        QTest::newRow("several") << "1A8" << 25 << ".##..##########..#######.";
        QTest::newRow("blank") << " " << 5 << ".....";
        QTest::newRow("leading blank") << " 1" << 9 << "......##.";
    }
    void Texts()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(QString, columns);
        const QImage image = Text(text, kTestFamily, 12);
        QCOMPARE(image.size(), QSize(width, 16));
        QCOMPARE(Columns(image), columns);
    }

    // The font asks for two more pixels between lines; an image has the height of the font alone.
    void HeightIsTheFontsNotTheLines() { QCOMPARE(Text("A", kTestFamily, 24).height(), 32); }

    void SizesOfZeroOrLess_data()
    {
        QTest::addColumn<int>("size");
        for (int size : {0, -1, -12, -2147483647 - 1})
            QTest::newRow(QByteArray::number(size).constData()) << size;
    }
    void SizesOfZeroOrLess()
    {
        QFETCH(int, size);
        QCOMPARE(Text("A", kTestFamily, size).size(), QSize(12, 16));
        QCOMPARE(Strip(kTestFamily, size).size(), QSize(90, 16));
    }

    // Nine pixels is the widest digit, "8". Narrower ones are centred: an eight in nine has the odd
    // pixel at the right, a four in nine likewise.
    void StripOfProportionalDigits()
    {
        const QImage image = Strip(kTestFamily, 12);
        QCOMPARE(image.size(), QSize(90, 16));
        const QString usual = ".######..";
        QString expected;
        for (int digit = 0; digit < 10; ++digit)
            expected += digit == 1 ? "...##...." : digit == 8 ? ".#######." : usual;
        QCOMPARE(Columns(image), expected);
    }

    void StripOfAMonospacedFont()
    {
        const int digit = Text("0", "DejaVu Sans Mono", 16).width();
        QCOMPARE(Strip("DejaVu Sans Mono", 16).width(), 10 * digit);
    }

    void WidestDigit()
    {
        QFont font(kTestFamily, 12);
        QCOMPARE(DrwSourceIMage().GetNumberMaxWidth(QFontMetrics(font)), 9);
        font.setPointSize(24);
        QCOMPARE(DrwSourceIMage().GetNumberMaxWidth(QFontMetrics(font)), 18);
    }

    void Colours_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("red is the low byte") << 0x0000ff << QColor(255, 0, 0);
        QTest::newRow("green") << 0x00ff00 << QColor(0, 255, 0);
        QTest::newRow("blue is the third byte") << 0xff0000 << QColor(0, 0, 255);
        QTest::newRow("mixed") << 0x123456 << QColor(0x56, 0x34, 0x12);
        QTest::newRow("black") << 0 << QColor(0, 0, 0);
        QTest::newRow("top byte is ignored") << 0x7f0000ff << QColor(255, 0, 0);
        QTest::newRow("negative") << -16776961 << QColor(255, 0, 0); // 0xff0000ff
        QTest::newRow("all ones") << -1 << QColor(255, 255, 255);
    }
    void Colours()
    {
        QFETCH(int, value);
        QFETCH(QColor, colour);
        QCOMPARE(DrwSourceIMage().IntToQColor(value), colour);
        const QImage image = Text("A", kTestFamily, 12, value);
        QCOMPARE(ColoursOf(image), (QSet<QRgb> {kBackground, colour.rgba()}));
    }

    void EveryPixelIsBackgroundOrStroke_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<int>("size");
        const QStringList families {"DejaVu Sans", "DejaVu Serif", "WenQuanYi Micro Hei", ""};
        for (const QString &family : families) {
            for (int size : {5, 8, 12, 17, 48, 120})
                QTest::newRow(qPrintable(family + QString::number(size))) << family << size;
        }
    }
    void EveryPixelIsBackgroundOrStroke()
    {
        QFETCH(QString, family);
        QFETCH(int, size);
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        SetFonts(node, family, size, 0x123456);
        SetText(node, Attribute::DigitalTopText, QString::fromUtf8("Ag@ 点 é ‏شنبه"));
        Generate(node);
        for (const Lw::FileRecord &record : node.FileRecords()) {
            const QRgb stroke = qRgb(0x56, 0x34, 0x12);
            const QSet<QRgb> seen = ColoursOf(Load(record.path));
            QVERIFY2((QSet<QRgb> {kBackground, stroke}).contains(seen), qPrintable(record.key));
            // The finest strokes of tiny fonts may fall between the pixels.
            const bool inked = record.key != "_space" && size >= 8;
            QVERIFY2(!inked || seen.contains(stroke), qPrintable(record.key));
        }
    }

    // The empty family is the application's default font, not what an empty name matches.
    void EmptyFamilyIsTheDefaultFont()
    {
        const QFont before = QGuiApplication::font();
        QFont chosen(kTestFamily, 31);
        chosen.setWeight(QFont::Bold);
        chosen.setItalic(true);
        QGuiApplication::setFont(chosen);
        const QImage image = Text("1A8", QString(), 12);
        QGuiApplication::setFont(before);
        QCOMPARE(image, Text("1A8", kTestFamily, 12));
    }

    void StripAndTextOfOneDigitAgree()
    {
        const QImage strip = Strip("DejaVu Serif", 20);
        const int cell = strip.width() / 10;
        for (int digit = 0; digit < 10; ++digit) {
            const QImage single = Text(QString::number(digit), "DejaVu Serif", 20);
            QCOMPARE(strip.height(), single.height());
            if (single.width() == cell)
                QCOMPARE(strip.copy(digit * cell, 0, cell, strip.height()), single);
        }
    }

    void BytesAreThoseOfAPlainSave()
    {
        const QImage image = Text("1A8", "DejaVu Sans", 12);
        QVERIFY(!image.isNull());
        const QString plain = m_output->Regular() + "plain.png";
        QVERIFY(QPixmap::fromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied))
                    .save(plain, "png"));
        QCOMPARE(GlyphOutput::Content(m_output->Regular() + "1_k.png"),
                 GlyphOutput::Content(plain));
    }

    void AmpersandsAreNoMnemonics()
    {
        const QImage ampersand = Text("A&A", "DejaVu Sans", 12);
        QVERIFY(ampersand.width() > Text("AA", "DejaVu Sans", 12).width());
        QVERIFY(Text("&", "DejaVu Sans", 12) != Text(" ", "DejaVu Sans", 12));
    }

    void UnknownWordsAreTheirKeys()
    {
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        Generate(node);
        QCOMPARE(Load(node.GetFirstFile("_chWeek_3")), Text("Wednesday", "DejaVu Sans", 12));
        QCOMPARE(Load(node.GetFirstFile("_PersiaWeek_3")),
                 Text("PersiaWednesday", "DejaVu Sans", 12));
        QCOMPARE(Load(node.GetFirstFile("_enWeekSim_4")), Text("Thurs.", "DejaVu Sans", 12));
        QCOMPARE(Load(node.GetFirstFile("_toptext")), Text("LED", "DejaVu Sans", 12));
    }

    void EachElementHasItsOwnFont_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("font");
        const auto row = [](int clockType, const char *key, GlyphFont font) {
            QTest::newRow(key) << clockType << QString(key) << int(font);
        };
        row(AnalogClock, "_toptext", GlyphFont::TopText);
        row(AnalogClock, "_PersiaWeek_2", GlyphFont::Week);
        row(AnalogClock, "_lunar", GlyphFont::Lunar);
        row(AnalogClock, "_dateNumber", GlyphFont::Date);
        row(AnalogClock, "_hourhandNumber", GlyphFont::HourScale);
        row(AnalogClock, "_AnalogPM", GlyphFont::AmPm);
        row(DigitalClock, "_timeNumber", GlyphFont::Time);
    }
    void EachElementHasItsOwnFont()
    {
        QFETCH(int, clockType);
        QFETCH(QString, key);
        QFETCH(int, font);
        HClockNode node;
        FillNode(node, clockType, 7);
        const auto own = FontAttributes(static_cast<GlyphFont>(font), clockType);
        SetText(node, own.family, kTestFamily);
        SetInt(node, own.size, 24);
        SetInt(node, own.colour, 0xff0000);
        Generate(node);
        const QImage image = Load(node.GetFirstFile(key));
        QCOMPARE(image.height(), 32);
        QVERIFY(ColoursOf(image).contains(qRgb(0, 0, 255)));
    }
};

QTEST_MAIN(TestGlyphPixels)
#include "test_glyph_pixels.moc"
