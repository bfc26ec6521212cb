// What an SDK clock element says, as attributes of an analog and of a digital clock.
#include "node_test_support.h"

#include <ctime>

using Lw::HNodeClock::HClockNode;

namespace {

enum Kind { Analog, Digital };

struct ImportCase
{
    Kind kind;
    const char *child; ///< the one child of the element
    const char *key;   ///< the one attribute it writes
    const char *value;
    int emissions;
};

// One row for each row of the two import tables, in their order. Colour ints are 0x00BBGGRR.
// clang-format off
constexpr ImportCase kSingle[] = {
    {Analog, "<fixedText display='true'/>", "Analog_TopTexy_d", "1", 1},
    {Analog, "<fixedText value='hi'/>", "AnalogTopText", "hi", 1},
    {Analog, "<fixedText fontName='F'/>", "AnalogTopTextFName", "F", 1},
    {Analog, "<fixedText fontSize='9'/>", "AnalogTopTextFSize", "9", 1},
    {Analog, "<fixedText color='#010203'/>", "AnalogTopTextColor", "197121", 1},
    {Analog, "<date display='true'/>", "Analog_Date_d", "1", 1},
    {Analog, "<date format='5'/>", "AnalogDateType", "5", 1},
    {Analog, "<date fontName='F'/>", "AnalogDateFName", "F", 1},
    {Analog, "<date fontSize='9'/>", "AnalogDateFSize", "9", 1},
    {Analog, "<date color='#010203'/>", "AnalogDateColor", "197121", 1},
    {Analog, "<week display='true'/>", "Analog_Week_d", "1", 1},
    {Analog, "<week format='2'/>", "AnalogWeekType", "2", 1},
    {Analog, "<week fontName='F'/>", "AnalogWeekFName", "F", 1},
    {Analog, "<week fontSize='9'/>", "AnalogWeekFSize", "9", 1},
    {Analog, "<week color='#010203'/>", "AnalogWeekColor", "197121", 1},
    {Analog, "<lunar display='true'/>", "Analog_Lunar_d", "1", 1},
    {Analog, "<lunar fontName='F'/>", "AnalogLunarFName", "F", 1},
    {Analog, "<lunar fontSize='9'/>", "AnalogLunarFSize", "9", 1},
    {Analog, "<lunar color='#010203'/>", "AnalogLunarColor", "197121", 1},
    {Analog, "<clockTextsSyle swapArea='0'/>", "AnalogSwapArea", "1", 0},
    {Analog, "<clockTextsSyle swapArea='1'/>", "AnalogSwapArea", "0", 0},
    {Analog, "<clockTextsSyle swapArea='7'/>", "AnalogSwapArea", "0", 0},
    {Analog, "<clockTextsSyle swapArea='no'/>", "AnalogSwapArea", "1", 0},
    {Analog, "<clockTextsSyle space='-3'/>", "AnalogSpace", "-3", 0},
    {Analog, "<timeFormat display='true'/>", "Analog_AMPM_d", "1", 1},
    {Analog, "<timeFormat display='false'/>", "Analog_AMPM_d", "0", 1},
    {Analog, "<timeFormat isEnableAmPm='0'/>", "Analog_AMPM_d", "1", 1},
    {Analog, "<timeFormat isEnableAmPm='1'/>", "Analog_AMPM_d", "0", 1},
    {Analog, "<timeFormat isEnableAmPm='true'/>", "Analog_AMPM_d", "1", 1},
    {Analog, "<timeFormat display='true' isEnableAmPm='1'/>", "Analog_AMPM_d", "1", 1},
    {Analog, "<timeFormat display='' isEnableAmPm='0'/>", "Analog_AMPM_d", "0", 1},
    {Analog, "<timeFormat fontName='F'/>", "AnalogAMPMFName", "F", 1},
    {Analog, "<timeFormat fontSize='9'/>", "AnalogAMPMFSize", "9", 1},
    {Analog, "<timeFormat color='#010203'/>", "AnalogAMPMColor", "197121", 1},
    {Analog, "<timeFormat color='no colour'/>", "AnalogAMPMColor", "0", 1},
    {Analog, "<ampm display='true'/>", "Analog_AMPM_d", "1", 1},
    {Analog, "<analog hourHandColor='#010203'/>", "HourHandColor", "197121", 1},
    {Analog, "<analog minuteHandColor='#010203'/>", "MinuteHandColor", "197121", 1},
    {Analog, "<analog secondHandColor='#010203'/>", "SecondHandColor", "197121", 1},
    {Analog, "<analog hourScaleType='4'/>", "HourScaleType", "4", 1},
    {Analog, "<analog hourScaleFontName='F'/>", "HourScaleFName", "F", 1},
    {Analog, "<analog hourScaleFontSize='9'/>", "HourScaleFSize", "9", 1},
    {Analog, "<analog hourScaleColor='#010203'/>", "HourScaleColor", "197121", 1},
    {Analog, "<analog minuteScaleType='2'/>", "MinuteScaleType", "2", 1},
    {Analog, "<analog minuteScaleColor='#010203'/>", "MinuteScaleColor", "197121", 1},
    {Analog, "<lunarCalendar color='#010203'/>", "AnalogLunarColor", "197121", 1},
    {Analog, "<lunarCalendar display='true'/>", "Analog_Lunar_d", "1", 1},

    {Digital, "<fixedText display='true'/>", "Digital_TopTexy_d", "1", 0},
    {Digital, "<fixedText value='hi'/>", "DigitalTopText", "hi", 1},
    {Digital, "<fixedText fontName='F'/>", "DigitalTopTextFName", "F", 1},
    {Digital, "<fixedText fontSize='9'/>", "DigitalTopTextFSize", "9", 1},
    {Digital, "<fixedText color='#010203'/>", "DigitalTopTextColor", "197121", 1},
    {Digital, "<date display='true'/>", "Digital_Date_d", "1", 0},
    {Digital, "<date format='5'/>", "DigitalDateType", "5", 1},
    {Digital, "<date fontName='F'/>", "DigitalDateFName", "F", 1},
    {Digital, "<date fontSize='9'/>", "DigitalDateFSize", "9", 1},
    {Digital, "<date color='#010203'/>", "DigitalDateColor", "197121", 1},
    {Digital, "<week display='true'/>", "Digital_Week_d", "1", 0},
    {Digital, "<week format='2'/>", "DigitalWeekType", "2", 1},
    {Digital, "<week fontName='F'/>", "DigitalWeekFName", "F", 1},
    {Digital, "<week fontSize='9'/>", "DigitalWeekFSize", "9", 1},
    {Digital, "<week color='#010203'/>", "DigitalWeekColor", "197121", 1},
    {Digital, "<lunar display='true'/>", "Digital_Lunar_d", "1", 0},
    {Digital, "<lunar fontName='F'/>", "DigitalLunarFName", "F", 1},
    {Digital, "<lunar fontSize='9'/>", "DigitalLunarFSize", "9", 1},
    {Digital, "<lunar color='#010203'/>", "DigitalLunarColor", "197121", 1},
    {Digital, "<time display='true'/>", "Digital_Time_d", "1", 0},
    {Digital, "<time format='4'/>", "DigitalTimeType", "4", 1},
    {Digital, "<time fontName='F'/>", "DigitalTimeFName", "F", 1},
    {Digital, "<time fontSize='9'/>", "DigitalTimeFSize", "9", 1},
    {Digital, "<time color='#010203'/>", "DigitalTimeColor", "197121", 1},
    {Digital, "<digital displayMode='1'/>", "DigitalDisplayMode", "1", 0},
    {Digital, "<digital timeMode='1'/>", "DigitalMode", "1", 0},
    {Digital, "<clockTextsSyle swapArea='1'/>", "DigitalSwapArea", "1", 0},
    {Digital, "<clockTextsSyle swapArea='7'/>", "DigitalSwapArea", "7", 0},
    {Digital, "<clockTextsSyle swapArea='-1'/>", "DigitalSwapArea", "-1", 0},
    {Digital, "<clockTextsSyle swapArea='no'/>", "DigitalSwapArea", "0", 0},
    {Digital, "<clockTextsSyle space='6'/>", "DigitalSpace", "6", 0},
    {Digital, "<lunarCalendar color='#010203'/>", "DigitalLunarColor", "197121", 1},
    {Digital, "<lunarCalendar display='true'/>", "Digital_Lunar_d", "1", 0},

    // Fallbacks: presence decides, on the level of the element and of the attribute.
    {Analog, "<title value='hi'/>", "AnalogTopText", "hi", 1},
    {Digital, "<title value='hi'/>", "DigitalTopText", "hi", 1},
    {Analog, "<fixedText text='hi'/>", "AnalogTopText", "hi", 1},
    {Digital, "<title text='hi'/>", "DigitalTopText", "hi", 1},
    {Analog, "<fixedText value='' text='hi'/>", "AnalogTopText", "", 1},
    {Digital, "<fixedText value='v' text='t'/>", "DigitalTopText", "v", 1},
    {Analog, "<date type='3'/>", "AnalogDateType", "3", 1},
    {Analog, "<week type='3'/>", "AnalogWeekType", "3", 1},
    {Digital, "<date type='3'/>", "DigitalDateType", "3", 1},
    {Digital, "<week type='3'/>", "DigitalWeekType", "3", 1},
    {Digital, "<time type='3'/>", "DigitalTimeType", "3", 1},
    {Digital, "<time format='1' type='3'/>", "DigitalTimeType", "1", 1},
    {Analog, "<date format='' type='3'/>", "AnalogDateType", "0", 1},

    // Only "true" is shown; "1" is no boolean word.
    {Analog, "<date display='1'/>", "Analog_Date_d", "0", 1},
    {Digital, "<date display='TRUE'/>", "Digital_Date_d", "0", 0},

    // Direct children only, the first of a name, by its exact name.
    {Analog, "<date format='1'/><date format='2'/>", "AnalogDateType", "1", 1},
    {Analog, "<x><date format='2'/></x><date format='1'/>", "AnalogDateType", "1", 1},
    {Analog, "<!-- <date format='2'/> --><date format='1'/>", "AnalogDateType", "1", 1},
    {Analog, "<![CDATA[<date format='2'/>]]><date format='1'/>", "AnalogDateType", "1", 1},
    {Analog, "<Date format='2'/><date format='1'/>", "AnalogDateType", "1", 1},
    {Analog, "<s:date xmlns:s='u' format='2'/><date format='1'/>", "AnalogDateType", "1", 1},
};

struct TextCase { const char *name; const char *text; int value; };
constexpr TextCase kNumbers[] = {
    {"plain", "12", 12},
    {"sign", "+12", 12},
    {"negative", "-12", -12},
    {"white space around", "  12\t", 12},
    {"leading zeros", "0012", 12},
    {"largest", "2147483647", 2147483647},
    {"empty", "", 0},
    {"one too large", "2147483648", 0},
    {"thirty-three bits", "4294967297", 0},
    {"hexadecimal", "0x1F", 0},
    {"exponent", "1e3", 0},
    {"fraction", "12.5", 0},
    {"group separator", "1,000", 0},
    {"letters behind", "12abc", 0},
    {"two signs", "--1", 0},
    {"inner space", "1 2", 0},
    {"full-width digits", "\xef\xbc\x91\xef\xbc\x92", 0},
};
constexpr TextCase kColours[] = {
    {"short", "#f80", 0x0088ff},
    {"long", "#ff8000", 0x0080ff},
    {"alpha first, dropped", "#80ff8000", 0x0080ff},
    {"twelve bits a channel", "#fff888000", 0x0088ff},
    {"sixteen bits a channel", "#ffff88880000", 0x0088ff},
    {"name", "lime", 0x00ff00},
    {"green is the darker one", "green", 0x008000},
    {"upper case", "RED", 0x0000ff},
    {"blanks inside", "light blue", 0xe6d8ad},
    {"empty", "", 0},
    {"unknown", "nosuchcolour", 0},
    {"no hash", "ff8000", 0},
    {"blank behind", "#f00 ", 0},
    {"five digits", "#12345", 0},
    {"no hexadecimal", "#gggggg", 0},
};
// clang-format on

const char kFullAnalog[] = R"(<clock>
 <lunarCalendar color="#000001" display="false"/>
 <analog hourHandColor="red" minuteHandColor="red" secondHandColor="red" hourScaleType="1"
  hourScaleFontName="F" hourScaleFontSize="1" hourScaleColor="red" minuteScaleType="1"
  minuteScaleColor="red"/>
 <timeFormat display="true" isEnableAmPm="1" fontName="F" fontSize="1" color="red"/>
 <clockTextsSyle swapArea="1" space="1"/>
 <lunar display="true" fontName="F" fontSize="1" color="red"/>
 <week display="true" format="1" type="2" fontName="F" fontSize="1" color="red"/>
 <date display="true" format="1" type="2" fontName="F" fontSize="1" color="red"/>
 <fixedText display="true" value="v" text="t" fontName="F" fontSize="1" color="red"/>
 <title display="false" value="other"/><ampm display="false"/>
 <time display="true" format="1"/><digital displayMode="1" timeMode="1"/></clock>)";

const char kFullDigital[] = R"(<clock>
 <lunarCalendar color="#000001" display="false"/>
 <clockTextsSyle swapArea="1" space="1"/>
 <digital displayMode="1" timeMode="1"/>
 <time display="true" format="1" type="2" fontName="F" fontSize="1" color="red"/>
 <lunar display="true" fontName="F" fontSize="1" color="red"/>
 <week display="true" format="1" type="2" fontName="F" fontSize="1" color="red"/>
 <date display="true" format="1" type="2" fontName="F" fontSize="1" color="red"/>
 <fixedText display="true" value="v" text="t" fontName="F" fontSize="1" color="red"/>
 <title display="false" value="other"/>
 <timeFormat display="true" fontName="F"/><ampm display="true"/>
 <analog hourHandColor="red" hourScaleType="1"/></clock>)";

bool Patch(HClockNode &node, Kind kind, const QString &xml)
{
    QDomDocument document;
    QDomElement element = ParseXml(document, xml);
    return kind == Analog ? node.PatchAnalog(element) : node.PatchDigital(element);
}

QString Clock(const QString &children)
{
    return QStringLiteral("<clock>") + children + QStringLiteral("</clock>");
}

constexpr const char *kRoundTripParts[] = {"TopText", "Date", "Week", "Lunar"};

/// A clock whose settings differ from the defaults.
void SetUnusual(HClockNode &node, int clockType, const QString &prefix)
{
    node.InitData();
    node.SetAttribute(QStringLiteral("ClockType"), clockType, false);
    for (const char *part : kRoundTripParts) {
        const QString key = prefix + QLatin1String(part);
        node.SetAttribute(key + QStringLiteral("Color"), 0x123456, false);
        node.SetAttribute(key + QStringLiteral("FName"), QStringLiteral("F"), false);
        node.SetAttribute(key + QStringLiteral("FSize"), 33, false);
    }
    node.SetAttribute(prefix + QStringLiteral("TopText"), QStringLiteral("Bahnhof"), false);
    node.SetAttribute(prefix + QStringLiteral("DateType"), 6, false);
    node.SetAttribute(prefix + QStringLiteral("WeekType"), 3, false);
    node.SetAttribute(prefix + QStringLiteral("Space"), 5, false);
    node.SetAttribute(prefix + QStringLiteral("_Date_d"), 0, false);
    node.SetAttribute(prefix + QStringLiteral("_Lunar_d"), 1, false);
    node.SetTimeZone(QStringLiteral("-03:30"));
    node.SetTimeAdjust(-3725);
}

/// What the exported form does not carry: codes (written as value, read as format or type), fonts,
/// sizes and spacing. The importing node keeps its own.
void ResetWhatIsNotCarried(QMap<QString, QString> &attributes, const QString &prefix)
{
    for (const char *part : kRoundTripParts) {
        const QString key = prefix + QLatin1String(part);
        attributes[key + QStringLiteral("FName")] = QString();
        attributes[key + QStringLiteral("FSize")] = QStringLiteral("12");
    }
    attributes[prefix + QStringLiteral("DateType")] = QStringLiteral("0");
    attributes[prefix + QStringLiteral("WeekType")] = QStringLiteral("0");
    attributes[prefix + QStringLiteral("Space")] = QStringLiteral("0");
}

} // namespace

class TestClockSdkImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachElementWritesOneKey_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < static_cast<int>(std::size(kSingle)); ++i)
            QTest::addRow("%s %s", kSingle[i].kind == Analog ? "analog" : "digital",
                          kSingle[i].child)
                << i;
    }
    void EachElementWritesOneKey()
    {
        QFETCH(int, row);
        const ImportCase &expected = kSingle[row];
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Patch(node, expected.kind, Clock(QLatin1String(expected.child))));
        QCOMPARE(node.AttributeKeys(), QStringList(QLatin1String(expected.key)));
        QCOMPARE(node.GetAttribute(QLatin1String(expected.key)), QLatin1String(expected.value));
        QCOMPARE(log.Count(), expected.emissions);
    }

    void FullAnalogElement()
    {
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Patch(node, Analog, QLatin1String(kFullAnalog)));
        // Five each of top text, date and week, four of lunar and AM/PM, nine of the dial, two of
        // the exported lunar row; none of spacing and swap.
        QCOMPARE(log.Count(), 34);
        // In the order of the effects, not of the document.
        QCOMPARE(node.AttributeKeys(),
                 QStringList({"Analog_TopTexy_d",   "AnalogTopText",      "AnalogTopTextFName",
                              "AnalogTopTextFSize", "AnalogTopTextColor", "Analog_Date_d",
                              "AnalogDateType",     "AnalogDateFName",    "AnalogDateFSize",
                              "AnalogDateColor",    "Analog_Week_d",      "AnalogWeekType",
                              "AnalogWeekFName",    "AnalogWeekFSize",    "AnalogWeekColor",
                              "Analog_Lunar_d",     "AnalogLunarFName",   "AnalogLunarFSize",
                              "AnalogLunarColor",   "AnalogSwapArea",     "AnalogSpace",
                              "Analog_AMPM_d",      "AnalogAMPMFName",    "AnalogAMPMFSize",
                              "AnalogAMPMColor",    "HourHandColor",      "MinuteHandColor",
                              "SecondHandColor",    "HourScaleType",      "HourScaleFName",
                              "HourScaleFSize",     "HourScaleColor",     "MinuteScaleType",
                              "MinuteScaleColor"}));
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogTopText")), QStringLiteral("v"));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogDateType")), 1);
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("Analog_AMPM_d")), 1);
        // The exported form comes last and wins.
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogLunarColor")), 0x010000);
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("Analog_Lunar_d")), 0);
    }

    void FullDigitalElement()
    {
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Patch(node, Digital, QLatin1String(kFullDigital)));
        // Four each of top text, date, week and time, three of lunar, one of the exported lunar
        // row; none of the display flags, the modes, spacing and swap.
        QCOMPARE(log.Count(), 20);
        QCOMPARE(node.AttributeKeys(),
                 QStringList({"Digital_TopTexy_d",   "DigitalTopText",      "DigitalTopTextFName",
                              "DigitalTopTextFSize", "DigitalTopTextColor", "Digital_Date_d",
                              "DigitalDateType",     "DigitalDateFName",    "DigitalDateFSize",
                              "DigitalDateColor",    "Digital_Week_d",      "DigitalWeekType",
                              "DigitalWeekFName",    "DigitalWeekFSize",    "DigitalWeekColor",
                              "Digital_Lunar_d",     "DigitalLunarFName",   "DigitalLunarFSize",
                              "DigitalLunarColor",   "Digital_Time_d",      "DigitalTimeType",
                              "DigitalTimeFName",    "DigitalTimeFSize",    "DigitalTimeColor",
                              "DigitalDisplayMode",  "DigitalMode",         "DigitalSwapArea",
                              "DigitalSpace"}));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("DigitalLunarColor")), 0x010000);
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("Digital_Lunar_d")), 0);
    }

    void EachEmissionFollowsItsOwnStore()
    {
        HClockNode node;
        RedrawLog log(node);
        Patch(node, Digital, QLatin1String(kFullDigital));
        QCOMPARE(log.NewestKeys().mid(0, 5),
                 QStringList({"DigitalTopText", "DigitalTopTextFName", "DigitalTopTextFSize",
                              "DigitalTopTextColor", "DigitalDateType"}));
    }

    void NothingMentionedNothingChanged_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::newRow("no children") << "<clock/>";
        QTest::newRow("children without attributes")
            << "<clock><fixedText/><title value='x'/><date/><week/><lunar/><clockTextsSyle/>"
               "<timeFormat/><ampm display='true'/><analog/><lunarCalendar/><time/><digital/>"
               "</clock>";
        QTest::newRow("unknown children") << "<clock><dates format='3'/><DATE format='3'/></clock>";
        QTest::newRow("attributes of the element itself")
            << "<clock display='true' format='3' color='red' fontName='F'/>";
    }
    void NothingMentionedNothingChanged()
    {
        QFETCH(QString, xml);
        for (const Kind kind : {Analog, Digital}) {
            HClockNode node;
            node.InitData();
            const auto before = AttributesOf(node);
            RedrawLog log(node);
            QVERIFY(Patch(node, kind, xml));
            QCOMPARE(AttributesOf(node), before);
            QCOMPARE(log.Count(), 0);
        }
    }

    void NullElement()
    {
        HClockNode node;
        QDomElement null;
        QVERIFY(node.PatchAnalog(null));
        QVERIFY(node.PatchDigital(null));
        QVERIFY(node.AttributeKeys().isEmpty());
    }

    void NumbersAreWholeTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        for (const TextCase &row : kNumbers)
            QTest::newRow(row.name) << QString::fromUtf8(row.text) << row.value;
    }
    void NumbersAreWholeTexts()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QDomDocument document;
        QDomElement element = ParseXml(document, QStringLiteral("<clock><date/></clock>"));
        element.firstChildElement().setAttribute(QStringLiteral("fontSize"), text);
        HClockNode node;
        node.PatchDigital(element);
        QCOMPARE(node.GetAttribute(QStringLiteral("DigitalDateFSize")), QString::number(value));
    }

    void Colours_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        for (const TextCase &row : kColours)
            QTest::newRow(row.name) << QString::fromUtf8(row.text) << row.value;
    }
    void Colours()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QDomDocument document;
        QDomElement element =
            ParseXml(document, QStringLiteral("<clock><date/><timeFormat/></clock>"));
        element.firstChildElement().setAttribute(QStringLiteral("color"), text);
        element.lastChildElement().setAttribute(QStringLiteral("color"), text);
        HClockNode node;
        RedrawLog log(node);
        node.PatchAnalog(element);
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogDateColor")), QString::number(value));
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogAMPMColor")), QString::number(value));
        QCOMPARE(log.Count(), 2); // also for a colour that does not parse
    }

    void RoundTrip_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::newRow("analog") << 0;
        QTest::newRow("digital") << 1;
    }
    void RoundTrip()
    {
        QFETCH(int, clockType);
        const QString prefix = QLatin1String(clockType == 0 ? "Analog" : "Digital");
        HClockNode first;
        SetUnusual(first, clockType, prefix);
        QDomDocument document;
        QDomElement parent = document.createElement(QStringLiteral("area"));
        document.appendChild(parent);
        first.CoverToSDKFormate(parent, Lw::ProgramForController);

        HClockNode second;
        second.InitData();
        QList<Lw::FileInfo> files;
        QVERIFY(second.UpdateNode(parent.firstChildElement(), files));

        auto expected = AttributesOf(first);
        expected[QStringLiteral("Id")] = second.GetAttribute(QStringLiteral("Id"));
        ResetWhatIsNotCarried(expected, prefix);
        QCOMPARE(AttributesOf(second), expected);
    }

    void PictureClockComesBackAsAnAnalogOne()
    {
        HClockNode first;
        first.InitData();
        first.SetAttribute(QStringLiteral("ClockType"), 2, false);
        QDomDocument document;
        QDomElement parent = document.createElement(QStringLiteral("area"));
        first.CoverToSDKFormate(parent, Lw::ProgramForController);
        HClockNode second;
        QList<Lw::FileInfo> files;
        QVERIFY(second.UpdateNode(parent.firstChildElement(), files));
        QCOMPARE(second.GetAttribute(QStringLiteral("ClockType")), QStringLiteral("0"));
    }

    void ListenerMayDeleteTheNode_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("lastEmission");
        QTest::newRow("analog, first") << int(Analog) << 1;
        QTest::newRow("analog, midway") << int(Analog) << 17;
        QTest::newRow("analog, last") << int(Analog) << 34;
        QTest::newRow("digital, last") << int(Digital) << 20;
    }
    void ListenerMayDeleteTheNode()
    {
        QFETCH(int, kind);
        QFETCH(int, lastEmission);
        const DeletedNode deleted(lastEmission);
        QVERIFY(Patch(deleted.Node(), Kind(kind),
                      QLatin1String(kind == Analog ? kFullAnalog : kFullDigital)));
        QCOMPARE(deleted.Emissions(), lastEmission);
    }

    void HundredThousandChildrenAreReadInTime()
    {
        QString children;
        for (int i = 0; i < 100000; ++i)
            children += QStringLiteral("<x/>");
        QDomDocument document;
        QDomElement element =
            ParseXml(document, Clock(children + QStringLiteral("<date format='5'/>")));
        const std::clock_t start = std::clock();
        HClockNode node;
        QVERIFY(node.PatchAnalog(element));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogDateType")), 5);
        QVERIFY2(std::clock() - start < 5 * CLOCKS_PER_SEC,
                 "one walk a table row's element, not more");
    }
};

QTEST_GUILESS_MAIN(TestClockSdkImport)
#include "test_clock_sdk_import.moc"
