// What a node tells of a generation that went wrong, and which images a clock shows.
#include "file_size_limit.h"
#include "glyph_output.h"
#include "without_privileges.h"

#include "glyph/glyph_check.h"

#include <QTest>

#include <cerrno>

using namespace Lw::HNodeClock;
using Lw::GlyphFault;
using Lw::GlyphFaultsOf;

namespace {

// Braille without a dot: it has a width and no ink. The other is the last character for private
// use; no font that the tests install has it.
const QString kInkless(QChar(0x2800));
const char32_t kUnknownLetter = 0x10fffd;

QStringList Keys(const QVector<GlyphFault> &faults, GlyphFault::Kind kind)
{
    QStringList keys;
    for (const GlyphFault &fault : faults) {
        if (fault.kind == kind)
            keys << fault.key;
    }
    return keys;
}

/// A clock that shows every row.
void FillShown(HClockNode &node, int clockType)
{
    node.InitData();
    FillNode(node, clockType, 7);
}

void SetTopText(HClockNode &node, const QString &text)
{
    SetText(node, Attribute::AnalogTopText, text);
    SetText(node, Attribute::DigitalTopText, text);
}

QStringList ShownKeys(HClockNode &node)
{
    QStringList keys;
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, node.ClockType())) {
        // Of a series the first stands for all.
        if (image.number <= 1 && IsShown(image, node))
            keys << image.row->key;
    }
    return keys;
}

// A setting of a new clock, and the images that it shows then; of a series the first.
struct ShownCase
{
    const char *name;
    int clockType;
    QString key;
    int value;
    QStringList expected;
};

const QStringList kDate {"_dateChar", "_dateNumber"};
const QStringList kBadge {"_AnalogAM", "_AnalogPM"};
const QStringList kTime {"_timeChar", "_timeNumber"};
const QStringList kAnalog = QStringList {"_toptext", "_chWeek_"} + kDate + kBadge;
const QStringList kDigital = QStringList {"_toptext", "_chWeek_"} + kDate + kTime;

QStringList Without(QStringList keys, const QStringList &gone)
{
    for (const QString &key : gone)
        keys.removeAll(key);
    return keys;
}

const ShownCase kShownCases[] = {
    {"new analog clock", 0, "Id", 7, kAnalog},
    {"numerals", 0, "HourScaleType", 4,
     Without(kAnalog, kBadge) + QStringList {"_hourhandNumber"} + kBadge},
    {"squares without numerals", 0, "HourScaleType", 2, kAnalog},
    {"no badge", 0, "Analog_AMPM_d", 0, Without(kAnalog, kBadge)},
    {"no top text", 0, "Analog_TopTexy_d", 0, Without(kAnalog, {"_toptext"})},
    {"no date", 0, "Analog_Date_d", 0, Without(kAnalog, kDate)},
    {"new digital clock", 1, "Id", 7, kDigital},
    {"Persian week", 1, "DigitalWeekType", 3,
     QStringList {"_toptext", "_PersiaWeek_"} + kDate + kTime},
    {"lunar", 1, "Digital_Lunar_d", 1,
     QStringList {"_toptext", "_chWeek_", "_lunar"} + kDate + kTime},
    {"labelled time", 1, "DigitalTimeType", 3,
     Without(kDigital, kTime) + QStringList {"_timeCh", "_timeNumber"}},
    {"twelve hours", 1, "DigitalMode", 1, kDigital + QStringList {"_timeAM", "_timePM"}},
    {"minus", 1, "DigitalDateType", 8,
     QStringList {"_toptext", "_chWeek_", "_dateNumber", "_Minus"} + kTime},
    {"month's name", 1, "DigitalDateType", 3,
     QStringList {"_toptext", "_chWeek_", "_dateEnMonth_", "_space", "_dateNumber"} + kTime},
    {"picture clock", 2, "Id", 7, {}},
};

} // namespace

class TestGlyphCheck : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;

    static void Types()
    {
        QTest::addColumn<int>("clockType");
        QTest::newRow("analog") << 0;
        QTest::newRow("digital") << 1;
    }

private Q_SLOTS:
    void init() { m_output.reset(new GlyphOutput); }

    void GoodSetHasNoFaults_data() { Types(); }
    void GoodSetHasNoFaults()
    {
        QFETCH(int, clockType);
        HClockNode node;
        FillShown(node, clockType);
        Generate(node);
        QVERIFY(GlyphFaultsOf(node).isEmpty());
        QVERIFY(node.dynamicPropertyNames().isEmpty());
    }

    void NodeWithoutAGenerationTellsNothing()
    {
        HClockNode node;
        QVERIFY(GlyphFaultsOf(node).isEmpty());
        QVERIFY(GlyphFaultsOf(QObject()).isEmpty());
    }

    void FullDisk_data() { Types(); }
    void FullDisk()
    {
        QFETCH(int, clockType);
        HClockNode node;
        FillShown(node, clockType);
        {
            const FileSizeLimit limit(0);
            Generate(node);
        }
        const QVector<GlyphFault> faults = GlyphFaultsOf(node);
        QCOMPARE(Keys(faults, GlyphFault::NotWritten), KeysOfSet(clockType));
        QCOMPARE(faults.first().error, EFBIG);
        QCOMPARE(faults.first().path, node.GetFirstFile("_toptext"));
        Generate(node);
        QVERIFY(GlyphFaultsOf(node).isEmpty());
    }

    // Only what could not be written: the other files hold what they should already.
    void FullDiskKeepsWhatIsOlder()
    {
        HClockNode node;
        FillShown(node, DigitalClock);
        Generate(node);
        SetTopText(node, "today");
        {
            const FileSizeLimit limit(0);
            Generate(node);
        }
        QCOMPARE(Keys(GlyphFaultsOf(node), GlyphFault::NotWritten), QStringList("_toptext"));
        QVERIFY(QFile::exists(GlyphFaultsOf(node).first().path));
    }

    void UnwritableDirectory()
    {
        HClockNode node;
        FillShown(node, DigitalClock);
        QFile::setPermissions(m_output->Regular(), QFile::Permissions(0x5555));
        {
            const WithoutPrivileges nobody;
            QVERIFY(nobody.Dropped());
            Generate(node);
        }
        QFile::setPermissions(m_output->Regular(), QFile::Permissions(0x7777));
        QCOMPARE(GlyphFaultsOf(node).size(), KeysOfSet(DigitalClock).size());
        QCOMPARE(GlyphFaultsOf(node).first().error, EACCES);
    }

    void MissingDirectory()
    {
        HClockNode node;
        FillShown(node, AnalogClock);
        const QString missing = m_output->Regular() + "gone";
        Lw::HAppConfig::SetClockOutputPath(missing);
        QVERIFY(QDir().rmdir(missing));
        Generate(node);
        QCOMPARE(GlyphFaultsOf(node).size(), KeysOfSet(AnalogClock).size());
        QCOMPARE(GlyphFaultsOf(node).first().error, ENOENT);
    }

    void EmptyTopTextIsNoFault()
    {
        HClockNode node;
        FillShown(node, DigitalClock);
        SetTopText(node, QString());
        Generate(node);
        QVERIFY(GlyphFaultsOf(node).isEmpty());
    }

    void BadTopText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("letters");
        const QString unknown = QString::fromUcs4(&kUnknownLetter, 1);
        QTest::newRow("too wide") << QString(10000, 'W') << 12 << int(GlyphFault::TooLarge) << "";
        QTest::newRow("font too large") << "LED" << 40000 << int(GlyphFault::TooLarge) << "";
        QTest::newRow("unknown letter, twice")
            << unknown + "LED" + unknown << 12 << int(GlyphFault::MissingCharacters) << unknown;
    }
    void BadTopText()
    {
        QFETCH(QString, text);
        QFETCH(int, size);
        QFETCH(int, kind);
        QFETCH(QString, letters);
        HClockNode node;
        FillShown(node, DigitalClock);
        SetTopText(node, text);
        SetInt(node, Attribute::DigitalTopTextFSize, size);
        Generate(node);
        const QVector<GlyphFault> faults = GlyphFaultsOf(node);
        QCOMPARE(faults.size(), 1);
        QCOMPARE(faults[0].key, QString("_toptext"));
        QCOMPARE(int(faults[0].kind), kind);
        QCOMPARE(faults[0].characters, letters);
        SetInt(node, Attribute::Digital_TopTexy_d, 0);
        Generate(node);
        QVERIFY2(GlyphFaultsOf(node).isEmpty(), "told of a row that is hidden");
    }

    void TextWithoutInk()
    {
        HClockNode node;
        FillShown(node, AnalogClock);
        SetTopText(node, kInkless);
        Generate(node);
        QCOMPARE(Keys(GlyphFaultsOf(node), GlyphFault::NoInk), QStringList("_toptext"));
        SetTopText(node, "   ");
        Generate(node);
        QVERIFY2(GlyphFaultsOf(node).isEmpty(), "blanks need no ink");
    }

    void HugeStrips()
    {
        HClockNode node;
        FillShown(node, DigitalClock);
        SetInt(node, Attribute::DigitalTimeFSize, 2000);
        Generate(node);
        QCOMPARE(Keys(GlyphFaultsOf(node), GlyphFault::TooLarge), QStringList("_timeNumber"));
    }

    void PictureClocksAndOthersHaveNone()
    {
        HClockNode node;
        for (int clockType : {2, 3, -1}) {
            FillShown(node, clockType);
            SetTopText(node, QString(10000, 'W'));
            Generate(node);
            QVERIFY(GlyphFaultsOf(node).isEmpty());
        }
    }

    void ShownImages_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("value");
        QTest::addColumn<QStringList>("expected");
        for (const ShownCase &one : kShownCases)
            QTest::newRow(one.name) << one.clockType << one.key << one.value << one.expected;
    }
    void ShownImages()
    {
        QFETCH(int, clockType);
        QFETCH(QString, key);
        QFETCH(int, value);
        QFETCH(QStringList, expected);
        HClockNode node;
        FillShown(node, clockType);
        node.SetAttribute(key, value, false);
        QCOMPARE(ShownKeys(node), expected);
    }

    void MarkOfTwelveHoursCanBeHidden()
    {
        HClockNode node;
        FillShown(node, DigitalClock);
        SetInt(node, Attribute::DigitalMode, 1);
        SetInt(node, Attribute::DigitalDispAMPM, 0);
        QVERIFY(!ShownKeys(node).contains("_timeAM"));
        SetInt(node, Attribute::DigitalDispAMPM, 1);
        QVERIFY(ShownKeys(node).contains("_timeAM"));
    }
};

QTEST_MAIN(TestGlyphCheck)
#include "test_glyph_check.moc"
