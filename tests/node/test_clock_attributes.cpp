// The attributes of a new clock, and the operations that write one of them.
#include "node_test_support.h"
#include "type_names.h"

#include <QMetaMethod>
#include <QPointer>
#include <QTranslator>

#include <algorithm>
#include <climits>
#include <functional>
#include <iterator>
#include <new>

using Lw::HNodeClock::HClockNode;

Q_DECLARE_METATYPE(std::function<void(HClockNode &)>)

namespace {

struct ExpectedDefault
{
    const char *key;
    const char *value; ///< null where it is drawn
    bool redraw;
};

// The defaults as the host's editor knows them, in order. Colours: red is 255, green 65280, blue
// 16711680, yellow 65535.
// clang-format off
constexpr ExpectedDefault kDefaults[] = {
    {"Id", nullptr, true},
    {"ClockType", "0", true},
    {"AdjustType", "0", true},
    {"TimeAdjust", "00A00B00", true},
    {"TimeZone", "00:00", true},
    {"UseDaylightSavingTime", "0", false},
    {"DaylightSavingTimeStart", "", false},
    {"DaylightSavingTimeEnd", "", false},
    {"DaylightSavingTimeIndex", "", false},
    {"TimeZoneIndex", "-1", false},
    {"PictrueClockType", "1", false},
    {"HourHandColor", "255", true},
    {"MinuteHandColor", "65280", true},
    {"SecondHandColor", "16711680", true},
    {"HourScaleColor", "255", true},
    {"MinuteScaleColor", "65280", true},
    {"HourScaleType", "0", true},
    {"MinuteScaleType", "0", true},
    {"SecondRectType", "0", true},
    {"MinuteRectType", "0", true},
    {"HourRectType", "0", true},
    {"HourScaleFName", "", true},
    {"HourScaleFSize", "14", true},
    {"Analog_TopTexy_d", "1", true},
    {"Analog_Date_d", "1", true},
    {"Analog_Week_d", "1", true},
    {"Analog_AMPM_d", "1", true},
    {"AnalogAMPMFName", "", true},
    {"AnalogAMPMFSize", "12", true},
    {"AnalogAMPMColor", "255", true},
    {"AnalogTopText", "LED", true},
    {"AnalogTopTextFName", "", true},
    {"AnalogTopTextFSize", "12", true},
    {"AnalogTopTextColor", "16711680", true},
    {"AnalogDateType", "0", true},
    {"AnalogDateFName", "", true},
    {"AnalogDateFSize", "12", true},
    {"AnalogDateColor", "16711680", true},
    {"AnalogWeekType", "0", true},
    {"AnalogWeekFName", "", true},
    {"AnalogWeekFSize", "12", true},
    {"AnalogWeekColor", "65280", true},
    {"AnalogLunarFName", "", true},
    {"AnalogLunarFSize", "12", true},
    {"AnalogLunarColor", "255", true},
    {"AnalogSpace", "0", false},
    {"AnalogSwapArea", "0", false},
    {"DigitalSwapArea", "0", false},
    {"DigitalSpace", "0", false},
    {"DigitalMode", "0", false},
    {"DigitalDisplayMode", "0", false},
    {"Digital_TopTexy_d", "1", false},
    {"Digital_Date_d", "1", false},
    {"Digital_Week_d", "1", false},
    {"Digital_Time_d", "1", false},
    {"DigitalTopText", "LED", true},
    {"DigitalTopTextFName", "", true},
    {"DigitalTopTextFSize", "12", true},
    {"DigitalTopTextColor", "255", true},
    {"DigitalDateType", "0", true},
    {"DigitalDateFName", "", true},
    {"DigitalDateFSize", "12", true},
    {"DigitalDateColor", "16711680", true},
    {"DigitalTimeType", "0", true},
    {"DigitalTimeFName", "", true},
    {"DigitalTimeFSize", "12", true},
    {"DigitalTimeColor", "255", true},
    {"DigitalWeekType", "0", true},
    {"DigitalWeekFName", "", true},
    {"DigitalWeekFSize", "12", true},
    {"DigitalWeekColor", "65280", true},
    {"DigitalLunarFName", "", true},
    {"DigitalLunarFSize", "12", true},
    {"DigitalLunarColor", "65535", true},
};
// clang-format on

/// Answers every text with itself in brackets and its context.
class EchoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('|') + QLatin1String(text);
    }
};

/// An operation "Set" + key, and how many redraws it asks for.
template<typename Value>
struct Setter
{
    const char *key;
    void (HClockNode::*set)(Value);
    int emissions;
};

// clang-format off
constexpr Setter<QString> kTextSetters[] = {
    {"TimeZone", &HClockNode::SetTimeZone, 1},
    {"DaylightSavingTimeStart", &HClockNode::SetDaylightSavingTimeStart, 0},
    {"DaylightSavingTimeEnd", &HClockNode::SetDaylightSavingTimeEnd, 0},
    {"HourScaleFName", &HClockNode::SetHourScaleFName, 1},
    {"AnalogAMPMFName", &HClockNode::SetAnalogAMPMFName, 1},
    {"AnalogTopText", &HClockNode::SetAnalogTopText, 1},
    {"AnalogTopTextFName", &HClockNode::SetAnalogTopTextFName, 1},
    {"AnalogDateFName", &HClockNode::SetAnalogDateFName, 1},
    {"AnalogWeekFName", &HClockNode::SetAnalogWeekFName, 1},
    {"AnalogLunarFName", &HClockNode::SetAnalogLunarFName, 1},
    {"DigitalTopText", &HClockNode::SetDigitalTopText, 1},
    {"DigitalDateFName", &HClockNode::SetDigitalDateFName, 1},
    {"DigitalTimeFName", &HClockNode::SetDigitalTimeFName, 1},
    {"DigitalWeekFName", &HClockNode::SetDigitalWeekFName, 1},
    {"DigitalLunarFName", &HClockNode::SetDigitalLunarFName, 1},
};

constexpr Setter<int> kNumberSetters[] = {
    {"HourScaleFSize", &HClockNode::SetHourScaleFSize, 1},
    {"Analog_AMPM_d", &HClockNode::SetAnalog_AMPM_d, 1},
    {"AnalogAMPMFSize", &HClockNode::SetAnalogAMPMFSize, 1},
    {"AnalogAMPMColor", &HClockNode::SetAnalogAMPMColor, 1},
    {"AnalogTopTextFSize", &HClockNode::SetAnalogTopTextFSize, 1},
    {"AnalogTopTextColor", &HClockNode::SetAnalogTopTextColor, 1},
    {"AnalogDateType", &HClockNode::SetAnalogDateType, 1},
    {"AnalogDateFSize", &HClockNode::SetAnalogDateFSize, 1},
    {"AnalogDateColor", &HClockNode::SetAnalogDateColor, 1},
    {"AnalogWeekType", &HClockNode::SetAnalogWeekType, 1},
    {"AnalogWeekFSize", &HClockNode::SetAnalogWeekFSize, 1},
    {"AnalogWeekColor", &HClockNode::SetAnalogWeekColor, 1},
    {"AnalogLunarFSize", &HClockNode::SetAnalogLunarFSize, 1},
    {"AnalogLunarColor", &HClockNode::SetAnalogLunarColor, 1},
    {"DigitalDisplayMode", &HClockNode::SetDigitalDisplayMode, 0},
    {"DigitalTopTextColor", &HClockNode::SetDigitalTopTextColor, 1},
    {"DigitalDateType", &HClockNode::SetDigitalDateType, 1},
    {"DigitalDateColor", &HClockNode::SetDigitalDateColor, 1},
    {"DigitalTimeType", &HClockNode::SetDigitalTimeType, 1},
    {"DigitalTimeColor", &HClockNode::SetDigitalTimeColor, 1},
    {"DigitalWeekType", &HClockNode::SetDigitalWeekType, 1},
    {"DigitalWeekColor", &HClockNode::SetDigitalWeekColor, 1},
    {"DigitalLunarColor", &HClockNode::SetDigitalLunarColor, 1},
};
// clang-format on

} // namespace

class TestClockAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Lw::HAppConfig::SetTimeInfo(0, false); }

    void ConstructorWritesNothing()
    {
        HClockNode node;
        QVERIFY(node.AttributeKeys().isEmpty());
        QCOMPARE(node.ClockType(), 0);
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), QString());
    }

    void InitDataWritesEveryDefaultInOrder()
    {
        HClockNode node;
        node.InitData();
        QStringList keys;
        for (const ExpectedDefault &expected : kDefaults) {
            const QString key = QLatin1String(expected.key);
            keys.append(key);
            if (expected.value)
                QVERIFY2(node.GetAttribute(key) == QLatin1String(expected.value), expected.key);
        }
        QCOMPARE(node.AttributeKeys(), keys);
    }

    void InitDataEmitsAfterEachStoreThatNeedsIt()
    {
        HClockNode node;
        RedrawLog log(node);
        node.InitData();
        QStringList expected;
        for (const ExpectedDefault &row : kDefaults) {
            if (row.redraw)
                expected.append(QLatin1String(row.key));
        }
        QCOMPARE(log.Count(), 58);
        QCOMPARE(log.NewestKeys(), expected);
    }

    void SecondInitDataEmitsForEqualValuesToo()
    {
        HClockNode node;
        node.InitData();
        RedrawLog log(node);
        node.InitData();
        QCOMPARE(log.Count(), 58);
    }

    void KeysThatANewClockLacks_data()
    {
        QTest::addColumn<QString>("key");
        for (const char *key : {"Analog_Lunar_d", "Digital_Lunar_d", "DigitalDispAMPM", "__GUID__"})
            QTest::newRow(key) << QString::fromLatin1(key);
    }
    void KeysThatANewClockLacks()
    {
        QFETCH(QString, key);
        HClockNode node;
        node.InitData();
        QVERIFY(!node.HaveAttribute(key));
        QCOMPARE(node.GetAttributeToInt(key), 0);
    }

    void IdentityLiesInItsRangeAndVaries()
    {
        QSet<int> seen;
        for (int i = 0; i < 300; ++i) {
            HClockNode node;
            node.InitData();
            const int id = node.GetAttributeToInt(QStringLiteral("Id"));
            QVERIFY(id >= 1000 && id <= 1999);
            seen.insert(id);
        }
        // 300 draws that all fell on ten numbers would be no draws.
        QVERIFY(seen.size() > 10);
    }

    // The mean of two draws has half the variance of one: 41667 where one number drawn evenly of
    // the thousand has 83333. By Bernstein's inequality 2000 true draws miss the bounds with a
    // probability below 1e-20, and so do even ones that pass them.
    void IdentityIsTheMeanOfTwoDraws()
    {
        constexpr int kNodes = 2000;
        constexpr double kMean = 1499.25; // the half that an odd sum loses is a quarter on average
        double squares = 0;
        for (int i = 0; i < kNodes; ++i) {
            HClockNode node;
            node.InitData();
            const double distance = node.GetAttributeToInt(QStringLiteral("Id")) - kMean;
            squares += distance * distance;
        }
        const double variance = squares / kNodes;
        QVERIFY2(variance > 30000 && variance < 60000, qPrintable(QString::number(variance)));
    }

    void OwnBoolean_data()
    {
        QTest::addColumn<std::function<void(HClockNode &)>>("operation");
        QTest::addColumn<int>("value");
        const auto row = [](const char *name, std::function<void(HClockNode &)> operation,
                            int value) { QTest::newRow(name) << operation << value; };
        const auto patch = [](const char *xml) {
            return [xml](HClockNode &node) {
                QDomDocument document;
                QDomElement clock = ParseXml(document, QString::fromLatin1(xml));
                node.PatchAnalog(clock);
            };
        };
        row(
            "new node", [](HClockNode &) {}, 0);
        row(
            "defaults", [](HClockNode &node) { node.InitData(); }, 1);
        row("import without either", patch("<clock/>"), 0);
        row("import of the spacing", patch("<clock><clockTextsSyle space='3'/></clock>"), 1);
        row("import of the order", patch("<clock><clockTextsSyle swapArea='0'/></clock>"), 1);
        row(
            "write by somebody else",
            [](HClockNode &node) { node.SetAttribute(QStringLiteral("AnalogSpace"), 3, false); },
            0);
    }
    // It is the first member after the host's part of a node, in memory that was not zero.
    void OwnBoolean()
    {
        using Operation = std::function<void(HClockNode &)>;
        QFETCH(Operation, operation);
        QFETCH(int, value);
        static_assert(sizeof(HClockNode) > sizeof(Lw::HContentNode), "a node has its own boolean");
        alignas(HClockNode) unsigned char memory[sizeof(HClockNode)];
        std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xa5));
        auto *const node = new (memory) HClockNode;
        operation(*node);
        const int found = memory[sizeof(Lw::HContentNode)];
        node->~HClockNode();
        QCOMPARE(found, value);
    }

    void DefaultZone_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<bool>("daylightSaving");
        QTest::addColumn<QString>("zone");
        QTest::newRow("UTC") << 0 << false << "00:00";
        QTest::newRow("east") << 28800 << true << "08:00";
        QTest::newRow("west wraps") << -18000 << false << "19:00";
        QTest::newRow("half an hour") << 19800 << true << "05:30";
        QTest::newRow("a second west") << -1 << false << "23:59";
        QTest::newRow("more than a day") << 90000 << false << "01:00";
        QTest::newRow("largest") << INT_MAX << false << "03:14";  // 2147483647 mod 86400 = 11647
        QTest::newRow("smallest") << INT_MIN << false << "20:45"; // 86400 - 11648 = 74752
    }
    void DefaultZone()
    {
        QFETCH(int, offset);
        QFETCH(bool, daylightSaving);
        QFETCH(QString, zone);
        Lw::HAppConfig::SetTimeInfo(offset, daylightSaving);
        HClockNode node;
        node.InitData();
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), zone);
        QCOMPARE(node.GetAttribute(QStringLiteral("UseDaylightSavingTime")),
                 QString::fromLatin1(daylightSaving ? "1" : "0"));
    }

    // Zone and flag belong together: they come from one answer of the host, also where its
    // settings change while the clock is being made.
    void DefaultZoneAndFlagAreOfOneAnswer()
    {
        Lw::HAppConfig::SetTimeInfo(28800, true);
        HClockNode node;
        connect(&node, &HClockNode::ReDrawSourceImage, &node, [&node] {
            if (node.AttributeKeys().last() == QLatin1String("TimeZone"))
                Lw::HAppConfig::SetTimeInfo(-18000, false);
        });
        node.InitData();
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), QStringLiteral("08:00"));
        QCOMPARE(node.GetAttribute(QStringLiteral("UseDaylightSavingTime")), QStringLiteral("1"));
    }

    void DeletedOverItsDefaultZone()
    {
        auto *node = new HClockNode;
        connect(node, &HClockNode::ReDrawSourceImage, [node] {
            if (node->AttributeKeys().last() == QLatin1String("TimeZone"))
                delete node;
        });
        const QPointer<HClockNode> guard(node);
        node->InitData();
        QVERIFY(!guard);
    }

    void TopTextsAreTranslatedInTheNodesContext()
    {
        EchoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        HClockNode node;
        node.InitData();
        QCoreApplication::removeTranslator(&translator);
        const QString expected = QStringLiteral("Lw::HNodeClock::HClockNode|LED");
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogTopText")), expected);
        QCOMPARE(node.GetAttribute(QStringLiteral("DigitalTopText")), expected);
    }

    void Setters_data()
    {
        QTest::addColumn<std::function<void(HClockNode &)>>("set");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("emissions");
        const auto addRow = [](const auto &row, const auto &value) {
            QTest::addRow("Set%s", row.key)
                << std::function<void(HClockNode &)>(
                       [set = row.set, value](HClockNode &node) { (node.*set)(value); })
                << QString::fromLatin1(row.key) << QVariant(value).toString() << row.emissions;
        };
        for (const Setter<QString> &row : kTextSetters)
            addRow(row, QStringLiteral("x y"));
        for (const Setter<int> &row : kNumberSetters)
            addRow(row, 7);
    }
    void Setters()
    {
        using Set = std::function<void(HClockNode &)>;
        QFETCH(Set, set);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(int, emissions);
        HClockNode node;
        RedrawLog log(node);
        set(node);
        QCOMPARE(node.AttributeKeys(), QStringList(key));
        QCOMPARE(node.GetAttribute(key), value);
        QCOMPARE(log.Count(), emissions);
        set(node); // an equal value is no reason to keep silent
        QCOMPARE(log.Count(), 2 * emissions);
    }

    void TimeAdjust_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("magnitude");
        QTest::newRow("none") << 0 << 0 << "00A00B00";
        QTest::newRow("back") << -90 << 1 << "00A01B30";
        QTest::newRow("forward") << 3725 << 0 << "01A02B05";
        QTest::newRow("last second of a day") << 86399 << 0 << "23A59B59";
        QTest::newRow("a day") << 86400 << 0 << "00A00B00";
        QTest::newRow("a day back") << -86400 << 1 << "00A00B00";
        QTest::newRow("a day and a second back") << -86401 << 1 << "00A00B01";
        QTest::newRow("largest") << INT_MAX << 0 << "03A14B07";
        QTest::newRow("smallest") << INT_MIN << 1 << "03A14B08";
    }
    void TimeAdjust()
    {
        QFETCH(int, seconds);
        QFETCH(int, type);
        QFETCH(QString, magnitude);
        HClockNode node;
        RedrawLog log(node);
        node.SetTimeAdjust(seconds);
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AdjustType")), type);
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeAdjust")), magnitude);
        // One emission a key, the type first.
        QCOMPARE(log.NewestKeys(), QStringList({"AdjustType", "TimeAdjust"}));
    }

    void Getters()
    {
        HClockNode node;
        node.SetAttribute(QStringLiteral("ClockType"), 1, false);
        node.SetAttribute(QStringLiteral("DigitalSwapArea"), 2, false);
        node.SetAttribute(QStringLiteral("Digital_TopTexy_d"), 3, false);
        node.SetAttribute(QStringLiteral("Digital_TopText_d"), 99, false);
        node.SetAttribute(QStringLiteral("Digital_Date_d"), 4, false);
        node.SetAttribute(QStringLiteral("Digital_Week_d"), 5, false);
        node.SetAttribute(QStringLiteral("Digital_Time_d"), 6, false);
        node.SetAttribute(QStringLiteral("Digital_Lunar_d"), 7, false);
        QCOMPARE(node.ClockType(), 1);
        QCOMPARE(node.DigitalSwapArea(), 2);
        QCOMPARE(node.Digital_TopText_d(), 3);
        QCOMPARE(node.Digital_Date_d(), 4);
        QCOMPARE(node.Digital_Week_d(), 5);
        QCOMPARE(node.Digital_Time_d(), 6);
        QCOMPARE(node.Digital_Lunar_d(), 7);
    }

    void IdentityOfTheNode()
    {
        HClockNode node;
        QCOMPARE(node.Type(), QStringLiteral("LW_Clock_Plugin"));
        QCOMPARE(node.Duration(), 6000);
        QVERIFY(node.inherits("Lw::HNodeClock::HClockNode"));
        QVERIFY(node.inherits("Lw::HContentNode"));
        QVERIFY(!node.inherits("HClockNode"));
        const int pointer = qMetaTypeId<HClockNode *>();
        QCOMPARE(TypeNamed("HClockNode*"), pointer);
        QCOMPARE(TypeNamed("Lw::HNodeClock::HClockNode*"), pointer);
    }

    void SignalsStandInTheirOrder()
    {
        const QMetaObject &meta = HClockNode::staticMetaObject;
        const int first = meta.methodOffset();
        QCOMPARE(meta.method(first).methodSignature(), QByteArray("ReDrawSourceImage()"));
        QCOMPARE(meta.method(first + 1).methodSignature(), QByteArray("SizeChanged(QSize)"));
    }

    void NodeMatch_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("matches");
        QTest::newRow("clock") << "<clock/>" << true;
        QTest::newRow("upper case") << "<Clock/>" << false;
        QTest::newRow("prefixed") << "<a:clock/>" << false;
        QTest::newRow("longer") << "<clocks/>" << false;
    }
    void NodeMatch()
    {
        QFETCH(QString, xml);
        QFETCH(bool, matches);
        QDomDocument document;
        QDomElement element = ParseXml(document, xml);
        HClockNode node;
        QCOMPARE(node.NodeMatch(element), matches);
    }
    void NodeMatchOfNull()
    {
        QDomElement element;
        HClockNode node;
        QVERIFY(!node.NodeMatch(element));
    }

    void CovertDisplay()
    {
        HClockNode node;
        QCOMPARE(node.CovertDisplay(QStringLiteral("true")), 1);
        QCOMPARE(node.CovertDisplay(QStringLiteral("false")), 0);
    }

    void LWColorToInt_data()
    {
        QTest::addColumn<quint32>("packed");
        QTest::addColumn<int>("stored");
        QTest::newRow("red is the low byte") << 0x000000ffu << 255;
        QTest::newRow("blue is the third byte") << 0x00ff0000u << 0xff0000;
        QTest::newRow("mixed") << 0x00123456u << 0x123456;
        QTest::newRow("the top byte is ignored") << 0xff123456u << 0x123456;
        QTest::newRow("top bit alone") << 0x80000000u << 0;
    }
    void LWColorToInt()
    {
        QFETCH(quint32, packed);
        QFETCH(int, stored);
        HClockNode node;
        QCOMPARE(node.LWColorToInt(packed), stored);
    }

    void ListenerMayDeleteTheNode_data()
    {
        QTest::addColumn<std::function<void(HClockNode &)>>("operation");
        QTest::addColumn<int>("lastEmission");
        const auto row = [](const char *name, std::function<void(HClockNode &)> operation, int n) {
            QTest::newRow(name) << operation << n;
        };
        row(
            "setter", [](HClockNode &node) { node.SetTimeZone(QStringLiteral("+01:00")); }, 1);
        row(
            "adjustment, type", [](HClockNode &node) { node.SetTimeAdjust(5); }, 1);
        row(
            "adjustment, magnitude", [](HClockNode &node) { node.SetTimeAdjust(5); }, 2);
        row(
            "defaults, first", [](HClockNode &node) { node.InitData(); }, 1);
        row(
            "defaults, midway", [](HClockNode &node) { node.InitData(); }, 30);
        row(
            "defaults, last", [](HClockNode &node) { node.InitData(); }, 58);
    }
    void ListenerMayDeleteTheNode()
    {
        using Operation = std::function<void(HClockNode &)>;
        QFETCH(Operation, operation);
        QFETCH(int, lastEmission);
        const DeletedNode deleted(lastEmission);
        operation(deleted.Node());
        QCOMPARE(deleted.Emissions(), lastEmission);
    }

    void ListenerMayCallBack()
    {
        HClockNode node;
        int depth = 0;
        connect(&node, &HClockNode::ReDrawSourceImage, this, [&node, &depth] {
            if (depth++ == 0)
                node.SetTimeAdjust(-1);
        });
        node.SetTimeAdjust(3600);
        // The inner call is complete before the outer one writes its second key.
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AdjustType")), 1);
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeAdjust")), QStringLiteral("01A00B00"));
    }

    void StoreKeepsOddTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("character 0") << QString(QChar(0)) + QStringLiteral("x");
        QTest::newRow("right to left") << QStringLiteral("\u202eabc\u200f");
        QTest::newRow("long") << QString(70000, QLatin1Char('a'));
        QTest::newRow("format directives") << QStringLiteral("%n%s%1");
    }
    void StoreKeepsOddTexts()
    {
        QFETCH(QString, text);
        HClockNode node;
        node.SetAnalogTopText(text);
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogTopText")), text);
    }
};

QTEST_GUILESS_MAIN(TestClockAttributes)
#include "test_clock_attributes.moc"
