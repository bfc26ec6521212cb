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

// What is drawn, each after its key; "tr:" where the text is looked up in a catalogue.
const QStringList kCommonTexts {
    "_chWeek_1=tr:Monday",
    "_chWeek_2=tr:Tuesday",
    "_chWeek_3=tr:Wednesday",
    "_chWeek_4=tr:Thursday",
    "_chWeek_5=tr:Friday",
    "_chWeek_6=tr:Saturday",
    "_chWeek_7=tr:Sunday",
    "_enWeek_1=Monday",
    "_enWeek_2=Tuesday",
    "_enWeek_3=Wednesday",
    "_enWeek_4=Thursday",
    "_enWeek_5=Friday",
    "_enWeek_6=Saturday",
    "_enWeek_7=Sunday",
    "_enWeekSim_1=Mon.",
    "_enWeekSim_2=Tues.",
    "_enWeekSim_3=Wed.",
    "_enWeekSim_4=Thurs.",
    "_enWeekSim_5=Fri.",
    "_enWeekSim_6=Sat.",
    "_enWeekSim_7=Sun.",
    "_PersiaWeek_1=tr:PersiaMonday",
    "_PersiaWeek_2=tr:PersiaTuesday",
    "_PersiaWeek_3=tr:PersiaWednesday",
    "_PersiaWeek_4=tr:PersiaThursday",
    "_PersiaWeek_5=tr:PersiaFriday",
    "_PersiaWeek_6=tr:PersiaSaturday",
    "_PersiaWeek_7=tr:PersiaSunday",
    "_lunar=tr:lunarString",
    "_dateEnMonth_1=Jan.",
    "_dateEnMonth_2=Feb.",
    "_dateEnMonth_3=Mar.",
    "_dateEnMonth_4=Apr.",
    "_dateEnMonth_5=May",
    "_dateEnMonth_6=Jun.",
    "_dateEnMonth_7=Jul.",
    "_dateEnMonth_8=Aug.",
    "_dateEnMonth_9=Sep.",
    "_dateEnMonth_10=Oct.",
    "_dateEnMonth_11=Nov.",
    "_dateEnMonth_12=Dec.",
    "_dateCh=tr:DateString",
    "_dateChar=,/",
    "_space= ",
    "_Minus=-",
};
const QStringList kAnalogTexts {"_AnalogAM=AM", "_AnalogPM=PM"};
const QStringList kDigitalTexts {"_timeCh=tr:TimeString", "_timeChar=:", "_timeAM= AM",
                                 "_timePM= PM"};
const QStringList kWithoutText {"_toptext", "_dateNumber", "_hourhandNumber", "_timeNumber"};

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
    void Generation_data() { ClockTypes(); }
    void Generation()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Generation, clockType), CommonGenerated() + OnlyOf(clockType));
    }

    void Exported_data() { ClockTypes(); }
    void Exported()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Bookkeeping, clockType, &GlyphRow::exported),
                 OnlyOf(clockType) + CommonExported());
    }

    void Required_data() { ClockTypes(); }
    void Required()
    {
        QFETCH(int, clockType);
        QCOMPARE(KeysOf(GlyphOrder::Bookkeeping, clockType, &GlyphRow::required),
                 OnlyOf(clockType) + CommonRequired());
    }

    void Keys()
    {
        QCOMPARE(GlyphKey(Glyph::TimeNumber), QString("_timeNumber"));
        QCOMPARE(GlyphKey(Glyph::ChWeek, 3), QString("_chWeek_3"));
        QCOMPARE(GlyphKey(Glyph::EnMonth, 12), QString("_dateEnMonth_12"));
        QCOMPARE(&GlyphKey(Glyph::Lunar), &GlyphKey(Glyph::Lunar));
    }

    void KeysOutsideASeries_data()
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
    void KeysOutsideASeries()
    {
        QFETCH(int, glyph);
        QFETCH(int, number);
        QVERIFY(GlyphKey(static_cast<Glyph>(glyph), number).isEmpty());
    }

    // Every text of a set as it is drawn, by key; the common ones are in the sets of all clocks.
    void Texts_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("analog") << 0 << kCommonTexts + kAnalogTexts;
        QTest::newRow("digital") << 1 << kCommonTexts + kDigitalTexts;
        QTest::newRow("unknown") << 3 << kCommonTexts;
    }
    void Texts()
    {
        QFETCH(int, clockType);
        QFETCH(QStringList, expected);
        QStringList texts;
        for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, clockType)) {
            const bool isTranslated = image.row->wording == GlyphWording::Translated;
            if (image.Text())
                texts << image.Key() + (isTranslated ? "=tr:" : "=") + image.Text();
            else
                QVERIFY2(kWithoutText.contains(image.Key()), qPrintable(image.Key()));
        }
        texts.sort();
        expected.sort();
        QCOMPARE(texts, expected);
    }

    void TopTextIsTheNodesOwn()
    {
        for (const GlyphRow &row : kGlyphTable)
            QCOMPARE(row.wording == GlyphWording::TopText, QLatin1String(row.key) == "_toptext");
    }

    void OnlyTheThreeNumbersAreStrips()
    {
        QStringList strips;
        for (const GlyphRow &row : kGlyphTable) {
            if (row.shape == GlyphShape::DigitStrip)
                strips << row.key;
        }
        strips.sort();
        QCOMPARE(strips, (QStringList {"_dateNumber", "_hourhandNumber", "_timeNumber"}));
    }

    void Fonts_data()
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
    void Fonts()
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
