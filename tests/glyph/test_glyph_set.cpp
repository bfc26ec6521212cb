// The glyph table against lists written out by hand: what is made, checked and exported, and when.
#include "glyph/glyph_set.h"

#include <QStringList>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

QStringList Numbered(const QString &key, int count)
{
    QStringList keys;
    for (int number = 1; number <= count; ++number)
        keys << key + QString::number(number);
    return keys;
}

QStringList WeekKeys(const QStringList &families)
{
    QStringList keys;
    for (int day = 1; day <= 7; ++day) {
        for (const QString &family : families)
            keys << family + QString::number(day);
    }
    return keys;
}

const QStringList kAllWeeks {"_chWeek_", "_enWeek_", "_enWeekSim_", "_PersiaWeek_"};
const QStringList kRequiredWeeks {"_chWeek_", "_enWeek_", "_enWeekSim_"};

QStringList CommonGenerated()
{
    return QStringList {"_toptext"} + WeekKeys(kAllWeeks) + QStringList {"_lunar"}
    + Numbered("_dateEnMonth_", 12)
        + QStringList {"_dateCh", "_dateChar", "_space", "_dateNumber", "_Minus"};
}

QStringList CommonExported()
{
    return QStringList {"_toptext"} + WeekKeys(kAllWeeks)
        + QStringList {"_lunar", "_dateNumber", "_dateCh", "_dateChar", "_space"}
    + Numbered("_dateEnMonth_", 12);
}

QStringList CommonRequired()
{
    return WeekKeys(kRequiredWeeks) + QStringList {"_lunar", "_dateNumber", "_dateCh", "_dateChar"}
    + Numbered("_dateEnMonth_", 12);
}

const QStringList kAnalogOnly {"_hourhandNumber", "_AnalogAM", "_AnalogPM"};
const QStringList kDigitalOnly {"_timeCh", "_timeChar", "_timeNumber", "_timeAM", "_timePM"};

QStringList OnlyOf(int clockType)
{
    return clockType == 0 ? kAnalogOnly : clockType == 1 ? kDigitalOnly : QStringList();
}

QStringList KeysOf(GlyphOrder order, int clockType, bool GlyphRow::*flag = nullptr)
{
    QStringList keys;
    for (const GlyphImage &image : GlyphImages(order, clockType)) {
        if (!flag || image.row->*flag)
            keys << image.Key();
    }
    return keys;
}

} // namespace

class TestGlyphSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generation_data() { ClockTypes(); }
    void generation()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Generation, clockType), CommonGenerated() + OnlyOf(clockType));
    }

    void exported_data() { ClockTypes(); }
    void exported()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Bookkeeping, clockType, &GlyphRow::exported),
                 OnlyOf(clockType) + CommonExported());
    }

    void required_data() { ClockTypes(); }
    void required()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Bookkeeping, clockType, &GlyphRow::required),
                 OnlyOf(clockType) + CommonRequired());
    }

    void keys()
    {
        QCOMPARE(GlyphKey(Glyph::TimeNumber), QString("_timeNumber"));
        QCOMPARE(GlyphKey(Glyph::ChWeek, 3), QString("_chWeek_3"));
        QCOMPARE(GlyphKey(Glyph::EnMonth, 12), QString("_dateEnMonth_12"));
        QCOMPARE(&GlyphKey(Glyph::Lunar), &GlyphKey(Glyph::Lunar));
    }

    void keysOutsideASeries_data()
    {
        QTest::addColumn<int>("glyph");
        QTest::addColumn<int>("number");
        QTest::newRow("series without a number") << int(Glyph::ChWeek) << 0;
        QTest::newRow("eighth day") << int(Glyph::ChWeek) << 8;
        QTest::newRow("day before the first") << int(Glyph::ChWeek) << -1;
        QTest::newRow("thirteenth month") << int(Glyph::EnMonth) << 13;
        QTest::newRow("single image with a number") << int(Glyph::Lunar) << 1;
        QTest::newRow("far away") << int(Glyph::Lunar) << 2147483647;
    }
    void keysOutsideASeries()
    {
        QFETCH(int, glyph);
        QFETCH(int, number);
        QVERIFY(GlyphKey(static_cast<Glyph>(glyph), number).isEmpty());
    }

    void texts_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("wording");
        const int verbatim = int(GlyphWording::Verbatim);
        const int translated = int(GlyphWording::Translated);
        QTest::newRow("Chinese week") << "_chWeek_3"
                                      << "Wednesday" << translated;
        QTest::newRow("English week") << "_enWeek_7"
                                      << "Sunday" << verbatim;
        QTest::newRow("uneven Tuesday") << "_enWeekSim_2"
                                        << "Tues." << verbatim;
        QTest::newRow("uneven Thursday") << "_enWeekSim_4"
                                         << "Thurs." << verbatim;
        QTest::newRow("Persian week") << "_PersiaWeek_3"
                                      << "PersiaWednesday" << translated;
        QTest::newRow("lunar") << "_lunar"
                               << "lunarString" << translated;
        QTest::newRow("May has no stop") << "_dateEnMonth_5"
                                         << "May" << verbatim;
        QTest::newRow("December") << "_dateEnMonth_12"
                                  << "Dec." << verbatim;
        QTest::newRow("date labels") << "_dateCh"
                                     << "DateString" << translated;
        QTest::newRow("date separators") << "_dateChar"
                                         << ",/" << verbatim;
        QTest::newRow("blank") << "_space"
                               << " " << verbatim;
        QTest::newRow("minus") << "_Minus"
                               << "-" << verbatim;
        QTest::newRow("time labels") << "_timeCh"
                                     << "TimeString" << translated;
        QTest::newRow("time separator") << "_timeChar"
                                        << ":" << verbatim;
        QTest::newRow("digital AM has a blank") << "_timeAM"
                                                << " AM" << verbatim;
        QTest::newRow("digital PM has a blank") << "_timePM"
                                                << " PM" << verbatim;
    }
    void texts()
    {
        QFETCH(QString, key);
        QFETCH(QString, text);
        QFETCH(int, wording);
        for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, DigitalClock)) {
            if (image.Key() != key)
                continue;
            QCOMPARE(QString(image.Text()), text);
            QCOMPARE(int(image.row->wording), wording);
            return;
        }
        QFAIL("no such image");
    }

    void analogMarksHaveNoBlank()
    {
        QCOMPARE(QString(RowOf(Glyph::AnalogAM).texts[0]), QString("AM"));
        QCOMPARE(QString(RowOf(Glyph::AnalogPM).texts[0]), QString("PM"));
    }

    void onlyTheThreeNumbersAreStrips()
    {
        QStringList strips;
        for (const GlyphRow &row : kGlyphTable) {
            if (row.shape == GlyphShape::DigitStrip)
                strips << row.key;
        }
        strips.sort();
        QCOMPARE(strips, (QStringList {"_dateNumber", "_hourhandNumber", "_timeNumber"}));
    }

    void fonts_data()
    {
        QTest::addColumn<int>("glyph");
        QTest::addColumn<QString>("analog");
        QTest::addColumn<QString>("digital");
        const auto row = [](const char *name, Glyph glyph, const char *analog,
                            const char *digital) {
            QTest::newRow(name) << int(glyph) << QString(analog) << QString(digital);
        };
        row("top text", Glyph::TopText, "AnalogTopText", "DigitalTopText");
        row("week", Glyph::PersiaWeek, "AnalogWeek", "DigitalWeek");
        row("lunar", Glyph::Lunar, "AnalogLunar", "DigitalLunar");
        row("month", Glyph::EnMonth, "AnalogDate", "DigitalDate");
        row("minus", Glyph::Minus, "AnalogDate", "DigitalDate");
        row("hour scale", Glyph::HourhandNumber, "HourScale", "HourScale");
        row("badge", Glyph::AnalogPM, "AnalogAMPM", "AnalogAMPM");
        row("time", Glyph::TimeAM, "DigitalTime", "DigitalTime");
    }
    void fonts()
    {
        QFETCH(int, glyph);
        QFETCH(QString, analog);
        QFETCH(QString, digital);
        const GlyphFont font = RowOf(static_cast<Glyph>(glyph)).font;
        const auto keysOf = [font](int clockType) {
            const GlyphFontAttributes attributes = FontAttributes(font, clockType);
            return QStringList {Key(attributes.family), Key(attributes.size),
                                Key(attributes.colour)};
        };
        QCOMPARE(keysOf(AnalogClock),
                 (QStringList {analog + "FName", analog + "FSize", analog + "Color"}));
        QCOMPARE(keysOf(DigitalClock),
                 (QStringList {digital + "FName", digital + "FSize", digital + "Color"}));
    }

private:
    void ClockTypes()
    {
        QTest::addColumn<int>("clockType");
        QTest::newRow("analog") << 0;
        QTest::newRow("digital") << 1;
        QTest::newRow("picture") << 2;
        QTest::newRow("unknown") << 3;
        QTest::newRow("negative") << -1;
    }
};

QTEST_GUILESS_MAIN(TestGlyphSet)
#include "test_glyph_set.moc"
