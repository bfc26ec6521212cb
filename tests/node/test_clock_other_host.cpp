// The node in a host that does with colours and words as it likes: which of the host's operations
// the node asks for each of them.
//
// The functions below replace the stand-in host's: a program's own definitions take precedence over
// those of its libraries.
#include "node_test_support.h"

#include <QColor>

using Lw::HNodeClock::HClockNode;

namespace {

constexpr int kNamedColour = 0x5a5a5a; // this host's int of every colour that is given by name

} // namespace

namespace Lw {

// Red in the high byte here, and a mark above it that no colour has by itself.
QColor HAppConfig::IntToColor(int value)
{
    return QColor(value >> 16 & 0xff, value >> 8 & 0xff, value & 0xff, value >> 24 & 0x7f);
}

int HAppConfig::ColorToInt(QColor color)
{
    return 0x11000000 | color.red() << 16 | color.green() << 8 | color.blue();
}

int HAppConfig::NameToIntColor(QString)
{
    return kNamedColour;
}

int BooleanToInt(QString text)
{
    return text.size();
}

} // namespace Lw

class TestClockOtherHost : public QObject
{
    Q_OBJECT

    static int Imported(bool analog, const QString &child, const QString &key)
    {
        QDomDocument document;
        QDomElement clock = ParseXml(document, QStringLiteral("<clock>%1</clock>").arg(child));
        HClockNode node;
        analog ? node.PatchAnalog(clock) : node.PatchDigital(clock);
        return node.GetAttributeToInt(key);
    }

private Q_SLOTS:
    void DefaultsAreTheHostsInts_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("value");
        QTest::newRow("red") << "HourHandColor" << 0x11ff0000;
        QTest::newRow("green") << "MinuteHandColor" << 0x1100ff00;
        QTest::newRow("blue") << "SecondHandColor" << 0x110000ff;
        QTest::newRow("yellow") << "DigitalLunarColor" << 0x11ffff00;
    }
    void DefaultsAreTheHostsInts()
    {
        QFETCH(QString, key);
        HClockNode node;
        node.InitData();
        QTEST(node.GetAttributeToInt(key), "value");
    }

    void PackedColourHasItsOwnLayout()
    {
        HClockNode node;
        QCOMPARE(node.LWColorToInt(0x00332211), 0x11112233);
    }

    void ExportedColourIsTheHosts()
    {
        HClockNode node;
        node.SetAttribute(QStringLiteral("c"), 0x11223344, false); // not opaque in this host
        QDomDocument document;
        QDomElement child = document.createElement(QStringLiteral("x"));
        node.LunarCoverToSDK(child, QStringLiteral("c"), QString());
        QCOMPARE(child.attribute(QStringLiteral("color")), QStringLiteral("#ff223344"));
    }

    void ImportedColour_data()
    {
        QTest::addColumn<bool>("analog");
        QTest::addColumn<QString>("child");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("value");
        const auto named = [](bool analog, const char *child, const char *key) {
            QTest::newRow(key) << analog << QString::fromLatin1(child) << QString::fromLatin1(key)
                               << kNamedColour;
        };
        named(true, "<fixedText color='red'/>", "AnalogTopTextColor");
        named(true, "<date color='red'/>", "AnalogDateColor");
        named(true, "<week color='red'/>", "AnalogWeekColor");
        named(true, "<lunar color='red'/>", "AnalogLunarColor");
        named(true, "<analog hourHandColor='red'/>", "HourHandColor");
        named(true, "<analog minuteHandColor='red'/>", "MinuteHandColor");
        named(true, "<analog secondHandColor='red'/>", "SecondHandColor");
        named(true, "<analog hourScaleColor='red'/>", "HourScaleColor");
        named(true, "<analog minuteScaleColor='red'/>", "MinuteScaleColor");
        named(false, "<fixedText color='red'/>", "DigitalTopTextColor");
        named(false, "<date color='red'/>", "DigitalDateColor");
        named(false, "<week color='red'/>", "DigitalWeekColor");
        named(false, "<time color='red'/>", "DigitalTimeColor");
        named(false, "<lunarCalendar color='red'/>", "DigitalLunarColor");
        // The AM/PM colour alone is read by its name here and only then given to the host.
        QTest::newRow("AnalogAMPMColor") << true << "<timeFormat color='red'/>"
                                         << "AnalogAMPMColor" << 0x11ff0000;
    }
    void ImportedColour()
    {
        QFETCH(bool, analog);
        QFETCH(QString, child);
        QFETCH(QString, key);
        QTEST(Imported(analog, child, key), "value");
    }

    void ColourOfTheCommonFontIsReadByItsNameHere()
    {
        QDomDocument document;
        const QDomElement clock = ParseXml(
            document, QStringLiteral("<clock type='picture'><font color='lime'/></clock>"));
        HClockNode node;
        QList<Lw::FileInfo> files;
        node.UpdateNode(clock, files);
        QCOMPARE(node.AttributeKeys().size(), 10);
        for (const QString &key : node.AttributeKeys())
            QCOMPARE(node.GetAttributeToInt(key), 0x1100ff00);
    }

    void WordsAreTheHosts()
    {
        QCOMPARE(HClockNode().CovertDisplay(QStringLiteral("anything")), 8);
        QCOMPARE(Imported(false, QStringLiteral("<date display='four'/>"),
                          QStringLiteral("Digital_Date_d")),
                 4);
    }
};

QTEST_GUILESS_MAIN(TestClockOtherHost)
#include "test_clock_other_host.moc"
