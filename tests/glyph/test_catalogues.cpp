// The shipped wording: complete, drawable with the fonts the project names, and fit for the cells
// in which the label images are cut.
#include "catalogues.h"
#include "glyph_output.h"

#include <QGlyphRun>
#include <QImage>
#include <QLocale>
#include <QTest>
#include <QTextLayout>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Lw::HNodeClock;

namespace {

const char kGlyphContext[] = "Lw::HNodeClock::DrwSourceIMage";
const char kNodeContext[] = "Lw::HNodeClock::HClockNode";

// The empty one is the application's default.
const QStringList kFamilies {"DejaVu Sans", "WenQuanYi Micro Hei", ""};

QString U(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString Translated(const char *context, const char *source)
{
    return QCoreApplication::translate(context, source);
}

QFont FontOf(const QString &family, int size)
{
    QFont font = family.isEmpty() ? QGuiApplication::font() : QFont(family);
    font.setPointSize(size);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

bool HasMissingGlyph(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun &run : layout.glyphRuns()) {
        if (run.glyphIndexes().contains(0))
            return true;
    }
    return false;
}

/// "context/source" of every entry of a catalogue's source file, in order; unfinished ones as
/// "context/source unfinished".
QStringList EntriesOf(const QString &language)
{
    QFile file(QString(CLOCK_CATALOGUE_SOURCES) + "/clock_" + language + ".ts");
    if (!file.open(QFile::ReadOnly))
        return {"unreadable"};
    QXmlStreamReader xml(&file);
    QStringList entries;
    QString context;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement() && xml.atEnd())
            break;
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            entries << context + "/" + xml.readElementText();
        else if (xml.name() == QLatin1String("translation")
                 && xml.attributes().hasAttribute("type"))
            entries.last() += " " + xml.attributes().value("type").toString();
    }
    return entries;
}

/// Columns that hold ink, from the first to the last; empty without ink.
QRect InkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// Puts the ink of one image over another of its size.
void Add(QImage &sum, const QImage &image)
{
    for (int y = 0; y < sum.height(); ++y) {
        for (int x = 0; x < sum.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                sum.setPixel(x, y, image.pixel(x, y));
        }
    }
}

} // namespace

class TestCatalogues : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;

    QImage Draw(const QString &text, const QString &family, int size)
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawImage(&node, "_k", text, "1", family, size, 0x0000ff, "_k.png");
        return QImage(node.GetFirstFile("_k")).convertToFormat(QImage::Format_ARGB32);
    }
    static void EachLanguage()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : ClockCatalogues::Languages())
            QTest::newRow(qPrintable(language)) << language;
    }

private Q_SLOTS:
    void init() { m_output.reset(new GlyphOutput); }

    void WithoutACatalogueTheKeysStand()
    {
        QCOMPARE(Translated(kGlyphContext, "PersiaWednesday"), QString("PersiaWednesday"));
    }

    void LanguagesAreFound()
    {
        QStringList files;
        for (const QString &language : ClockCatalogues::Languages())
            files.append("clock_" + language + ".ts");
        QCOMPARE(files, QDir(CLOCK_CATALOGUE_SOURCES).entryList({"clock_*.ts"}, QDir::Files));
        QVERIFY(files.contains("clock_en.ts"));
    }

    void LanguageOfALocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("American") << "en_US"
                                  << "en";
        QTest::newRow("mainland China") << "zh_CN"
                                        << "zh";
        QTest::newRow("Taiwan") << "zh_TW"
                                << "zh";
        QTest::newRow("Iran") << "fa_IR"
                              << "fa";
        QTest::newRow("language alone") << "fa"
                                        << "fa";
        QTest::newRow("none shipped") << "la_VA"
                                      << "en";
        QTest::newRow("three letters") << "fil_PH"
                                       << "en";
        QTest::newRow("C") << "C"
                           << "en";
        QTest::newRow("nonsense") << "?!"
                                  << "en";
    }
    void LanguageOfALocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        QCOMPARE(ClockCatalogues::LanguageFor(QLocale(locale)), language);
    }

    void InstallReplacesTheEarlierOne()
    {
        QVERIFY(ClockCatalogues::Install("zh"));
        QCOMPARE(Translated(kGlyphContext, "Monday"), U("星期一"));
        QVERIFY(ClockCatalogues::Install("en"));
        QCOMPARE(Translated(kGlyphContext, "Monday"), QString("Monday"));
        const int translators = qApp->findChildren<QTranslator *>().size();
        QVERIFY(ClockCatalogues::Install("fa"));
        QCOMPARE(qApp->findChildren<QTranslator *>().size(), translators);
    }

    void UnknownLanguageChangesNothing_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("not shipped") << "de";
        QTest::newRow("empty") << "";
        QTest::newRow("other case") << "ZH";
        QTest::newRow("locale") << "zh_CN";
        QTest::newRow("path") << "../clock_en";
    }
    void UnknownLanguageChangesNothing()
    {
        QFETCH(QString, language);
        QVERIFY(ClockCatalogues::Install("zh"));
        QVERIFY(!ClockCatalogues::Install(language));
        QCOMPARE(Translated(kGlyphContext, "Monday"), U("星期一"));
    }

    // Exactly the texts that the plugin translates, and none of them left open.
    void TextsAreComplete_data() { EachLanguage(); }
    void TextsAreComplete()
    {
        QFETCH(QString, language);
        QSet<QString> expected;
        for (const GlyphRow &row : kGlyphTable) {
            if (row.wording != GlyphWording::Translated)
                continue;
            for (int i = 0; i < qMax(1, row.count); ++i)
                expected << QString("%1/%2").arg(kGlyphContext, row.texts[i]);
        }
        for (const AttributeRow &row : kAttributeTable) {
            if (row.origin == Default::Translated)
                expected << QString("%1/%2").arg(kNodeContext, row.text);
        }
        const QStringList entries = EntriesOf(language);
        QCOMPARE(entries.size(), expected.size());
        for (const QString &entry : entries)
            QVERIFY2(expected.contains(entry), qPrintable(entry));
    }

    void TextsHaveTheirWording_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *language, const char *source, const char *text) {
            QTest::addRow("%s: %s", language, source)
                << QString(language) << QByteArray(source) << U(text);
        };
        row("en", "Monday", "Monday");
        row("en", "Sunday", "Sunday");
        row("en", "DateString", "ＹＭＤ");
        row("en", "TimeString", "ＨＭＳ");
        row("zh", "Monday", "星期一");
        row("zh", "Saturday", "星期六");
        row("zh", "Sunday", "星期日");
        row("zh", "DateString", "年月日");
        row("zh", "TimeString", "时分秒");
        row("fa", "Monday", "دوشنبه");
        row("fa", "Friday", "جمعه");
        row("fa", "Sunday", "یکشنبه");
        row("fa", "DateString", "ＹＭＤ");
        row("fa", "TimeString", "ＨＭＳ");
    }
    void TextsHaveTheirWording()
    {
        QFETCH(QString, language);
        QFETCH(QByteArray, source);
        QFETCH(QString, text);
        QVERIFY(ClockCatalogues::Install(language));
        QCOMPARE(Translated(kGlyphContext, source.constData()), text);
    }

    void SameInEveryLanguage_data() { EachLanguage(); }
    void SameInEveryLanguage()
    {
        QFETCH(QString, language);
        QVERIFY(ClockCatalogues::Install(language));
        QCOMPARE(Translated(kNodeContext, "LED"), QString("LED"));
        QCOMPARE(Translated(kGlyphContext, "lunarString"), U("一二三四五六七八九十农历闰月日初正"));
        QCOMPARE(Translated(kGlyphContext, "PersiaMonday"), U("دوشنبه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaTuesday"), U("سه\u200cشنبه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaWednesday"), U("چهارشنبه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaThursday"), U("پنجشنبه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaFriday"), U("جمعه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaSaturday"), U("شنبه"));
        QCOMPARE(Translated(kGlyphContext, "PersiaSunday"), U("یکشنبه"));
    }

    void MissingGlyphsAreNoticed()
    {
        QVERIFY(HasMissingGlyph(QString(QChar(0xe123)), FontOf("DejaVu Sans", 12)));
        QVERIFY(!HasMissingGlyph("A", FontOf("DejaVu Sans", 12)));
    }

    void NoMissingGlyph_data() { EachLanguage(); }
    void NoMissingGlyph()
    {
        QFETCH(QString, language);
        QVERIFY(ClockCatalogues::Install(language));
        QStringList texts {Translated(kNodeContext, "LED"), "0123456789"};
        for (int clockType : {0, 1}) {
            for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, clockType)) {
                if (!image.Text())
                    continue;
                const bool translated = image.row->wording == GlyphWording::Translated;
                texts << (translated ? Translated(kGlyphContext, image.Text()) : image.Text());
            }
        }
        for (const QString &family : kFamilies) {
            for (const QString &text : texts)
                QVERIFY2(!HasMissingGlyph(text, FontOf(family, 12)), qPrintable(family + text));
        }
    }

    void TextsFillTheirCells_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<int>("cells");
        QTest::addColumn<QString>("family");
        for (const QString &language : ClockCatalogues::Languages()) {
            for (const QString &family : kFamilies) {
                const auto row = [&](const char *source, int cells) {
                    QTest::newRow(qPrintable(language + ' ' + source + ' ' + family))
                        << language << QByteArray(source) << cells << family;
                };
                row("DateString", 3);
                row("TimeString", 3);
                if (language == "en") // the same in every language
                    row("lunarString", 17);
            }
        }
    }
    // Each character is drawn alone, with ideographic blanks in place of the others: its ink must
    // lie in its own cell, and all of them together must be the label as it is drawn at once.
    void TextsFillTheirCells()
    {
        QFETCH(QString, language);
        QFETCH(QByteArray, source);
        QFETCH(int, cells);
        QFETCH(QString, family);
        QVERIFY(ClockCatalogues::Install(language));
        const QString text = Translated(kGlyphContext, source.constData());
        QCOMPARE(text.size(), cells);
        for (int size = 8; size <= 48; size += size < 24 ? 1 : 4) {
            const QImage whole = Draw(text, family, size);
            const int cell = whole.width() / cells;
            QImage sum(whole.size(), QImage::Format_ARGB32);
            sum.fill(0);
            for (int i = 0; i < cells; ++i) {
                QString alone(cells, QChar(0x3000));
                alone[i] = text[i];
                const QImage image = Draw(alone, family, size);
                QCOMPARE(image.size(), whole.size());
                const QRect ink = InkOf(image);
                QVERIFY2(!ink.isEmpty(), qPrintable(QString("%1 of %2").arg(text[i]).arg(size)));
                QVERIFY2(ink.left() >= i * cell && ink.right() < (i + 1) * cell,
                         qPrintable(QString("%1 of size %2: %3 to %4 in cells of %5")
                                        .arg(text[i])
                                        .arg(size)
                                        .arg(ink.left())
                                        .arg(ink.right())
                                        .arg(cell)));
                Add(sum, image);
            }
            QCOMPARE(sum, whole);
        }
    }

    void InstalledWordingIsDrawn()
    {
        QVERIFY(ClockCatalogues::Install("zh"));
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        SetFonts(node, "WenQuanYi Micro Hei", 12, 0x0000ff);
        Generate(node);
        // Three characters of 16 pixels, an em at 12 points and 96 dpi.
        QCOMPARE(QImage(node.GetFirstFile("_timeCh")).width(), 48);
        QCOMPARE(QImage(node.GetFirstFile("_chWeek_1")).width(), 48);
        QCOMPARE(QImage(node.GetFirstFile("_lunar")).width(), 17 * 16);
    }
};

QTEST_MAIN(TestCatalogues)
#include "test_catalogues.moc"
