// A node read back from an SDK clock element, and the files that the element lists.
#include "node_test_support.h"

#include <ctime>

using Lw::HNodeClock::HClockNode;

namespace {

bool Update(HClockNode &node, const QString &xml, QList<Lw::FileInfo> &files)
{
    QDomDocument document;
    return node.UpdateNode(ParseXml(document, xml), files);
}

bool Update(HClockNode &node, const QString &xml)
{
    QList<Lw::FileInfo> files;
    return Update(node, xml, files);
}

const QStringList kFontNames {"HourScaleFName",  "AnalogTopTextFName", "AnalogLunarFName",
                              "AnalogDateFName", "AnalogWeekFName",    "AnalogAMPMFName"};
const QStringList kFontSizes {"HourScaleFSize",  "AnalogTopTextFSize", "AnalogDateFSize",
                              "AnalogWeekFSize", "AnalogLunarFSize",   "AnalogAMPMFSize"};
const QStringList kFontColours {"AnalogTopTextColor", "AnalogDateColor",  "AnalogWeekColor",
                                "AnalogLunarColor",   "AnalogAMPMColor",  "DigitalTopTextColor",
                                "DigitalDateColor",   "DigitalWeekColor", "DigitalLunarColor",
                                "DigitalTimeColor"};

} // namespace

class TestClockUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NullElement()
    {
        HClockNode node;
        QList<Lw::FileInfo> files;
        QVERIFY(!node.UpdateNode(QDomElement(), files));
        QVERIFY(node.AttributeKeys().isEmpty());
    }

    void Type_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("taken");
        QTest::addColumn<int>("type");
        QTest::newRow("absent is a dial") << "<clock/>" << true << 0;
        QTest::newRow("dial") << "<clock type='dial'/>" << true << 0;
        QTest::newRow("digital") << "<clock type='digital'/>" << true << 1;
        QTest::newRow("picture") << "<clock type='picture'/>" << false << -1;
        QTest::newRow("empty") << "<clock type=''/>" << false << -1;
        QTest::newRow("other case") << "<clock type='Dial'/>" << false << -1;
        QTest::newRow("blank") << "<clock type=' dial'/>" << false << -1;
        QTest::newRow("a number") << "<clock type='1'/>" << false << -1;
        QTest::newRow("com, analog") << "<clock><clockCom clockType='0'/></clock>" << true << 0;
        QTest::newRow("com, digital") << "<clock><clockCom clockType='1'/></clock>" << true << 1;
        QTest::newRow("com, picture") << "<clock><clockCom clockType='2'/></clock>" << false << -1;
        QTest::newRow("com without a type") << "<clock><clockCom/></clock>" << false << -1;
        QTest::newRow("com, no number") << "<clock><clockCom clockType='x'/></clock>" << true << 0;
        QTest::newRow("com, empty") << "<clock><clockCom clockType=''/></clock>" << true << 0;
        QTest::newRow("com, too large")
            << "<clock><clockCom clockType='4294967297'/></clock>" << true << 0;
        QTest::newRow("com overrides the word")
            << "<clock type='nonsense'><clockCom clockType='1'/></clock>" << true << 1;
        QTest::newRow("the word does not help a com without a type")
            << "<clock type='digital'><clockCom/></clock>" << false << -1;
        QTest::newRow("first com counts")
            << "<clock><clockCom clockType='1'/><clockCom clockType='0'/></clock>" << true << 1;
        QTest::newRow("the tag is not looked at") << "<other type='digital'/>" << true << 1;
    }
    void Type()
    {
        QFETCH(QString, xml);
        QFETCH(bool, taken);
        QFETCH(int, type);
        HClockNode node;
        RedrawLog log(node);
        QCOMPARE(Update(node, xml), taken);
        QCOMPARE(node.AttributeKeys(), taken ? QStringList("ClockType") : QStringList());
        QCOMPARE(log.Count(), taken ? 1 : 0);
        if (taken)
            QCOMPARE(node.GetAttribute(QStringLiteral("ClockType")), QString::number(type));
    }

    void TypeIsStoredAfterThePatch()
    {
        HClockNode node;
        node.SetAttribute(QStringLiteral("ClockType"), 0, false);
        QList<int> seen;
        connect(&node, &HClockNode::ReDrawSourceImage, this,
                [&] { seen.append(node.ClockType()); });
        QVERIFY(Update(node,
                       QStringLiteral("<clock type='digital' timezone='+01:00'>"
                                      "<date format='1' fontSize='2'/></clock>")));
        // Two of the date, one of the type, one of the zone.
        QCOMPARE(seen, QList<int>({0, 0, 1, 1}));
    }

    void OnlyTheKindNamedIsPatched()
    {
        const QString children = QStringLiteral("<date format='4'/></clock>");
        HClockNode analog;
        Update(analog, QStringLiteral("<clock>") + children);
        QCOMPARE(analog.AttributeKeys(), QStringList({"AnalogDateType", "ClockType"}));
        HClockNode digital;
        Update(digital, QStringLiteral("<clock type='digital'>") + children);
        QCOMPARE(digital.AttributeKeys(), QStringList({"DigitalDateType", "ClockType"}));
    }

    void Font_data()
    {
        QTest::addColumn<QString>("font");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("values");
        const auto filled = [](const QStringList &keys, const char *value) {
            QStringList values;
            for (int i = 0; i < keys.size(); ++i)
                values.append(QLatin1String(value));
            return values;
        };
        QTest::newRow("nothing") << "<font/>" << QStringList() << QStringList();
        QTest::newRow("name") << "<font name='F'/>" << kFontNames << filled(kFontNames, "F");
        QTest::newRow("empty name") << "<font name=''/>" << kFontNames << filled(kFontNames, "");
        QTest::newRow("size") << "<font size='20'/>" << kFontSizes << filled(kFontSizes, "20");
        QTest::newRow("size of no number")
            << "<font size='big'/>" << kFontSizes << filled(kFontSizes, "0");
        QTest::newRow("colour") << "<font color='#00ff00'/>" << kFontColours
                                << filled(kFontColours, "65280");
        QTest::newRow("colour of no name")
            << "<font color='?'/>" << kFontColours << filled(kFontColours, "0");
        QTest::newRow("all") << "<font color='red' size='3' name='G'/>"
                             << kFontNames + kFontSizes + kFontColours
                             << filled(kFontNames, "G") + filled(kFontSizes, "3")
                + filled(kFontColours, "255");
        QTest::newRow("the first counts")
            << "<font name='F'/><font name='G' size='1'/>" << kFontNames << filled(kFontNames, "F");
    }
    void Font()
    {
        QFETCH(QString, font);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, values);
        HClockNode node;
        RedrawLog log(node);
        // The font takes effect although the type is then refused.
        QVERIFY(!Update(node, QStringLiteral("<clock type='picture'>%1</clock>").arg(font)));
        QCOMPARE(node.AttributeKeys(), keys);
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(node.GetAttribute(keys.at(i)), values.at(i));
        QCOMPARE(log.Count(), keys.size());
    }

    void WhatIsMoreSpecificWinsOverTheFont()
    {
        HClockNode node;
        QVERIFY(Update(node,
                       QStringLiteral("<clock><date color='lime' fontSize='9'/>"
                                      "<font name='F' size='20' color='red'/></clock>")));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogDateColor")), 0x00ff00);
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogDateFSize")), 9);
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogDateFName")), QStringLiteral("F"));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AnalogWeekColor")), 0x0000ff);
    }

    void ClockCom_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<int>("emissions");
        const auto row = [](const char *attribute, QStringList keys, QStringList values, int n) {
            QTest::newRow(attribute) << QString::fromLatin1(attribute) << keys << values << n;
        };
        row("timeZoneIndex='17'", {"TimeZoneIndex"}, {"17"}, 0);
        row("timeZoneIndex='x'", {"TimeZoneIndex"}, {"0"}, 0);
        row("timeZone='+05:30'", {"TimeZone"}, {"+05:30"}, 1);
        row("timeZone=''", {"TimeZone"}, {""}, 1);
        row("timeAdjust='-90'", {"AdjustType", "TimeAdjust"}, {"1", "00A01B30"}, 2);
        row("timeAdjust='-2147483648'", {"AdjustType", "TimeAdjust"}, {"1", "03A14B08"}, 2);
        row("timeAdjust='x'", {"AdjustType", "TimeAdjust"}, {"0", "00A00B00"}, 2);
        row("isDaylightSavingTime='1'", {"UseDaylightSavingTime"}, {"1"}, 0);
        row("isDaylightSavingTime='true'", {"UseDaylightSavingTime"}, {"0"}, 0);
        row("Start='3.Last.7.02:00:00'", {"DaylightSavingTimeStart"}, {"3.Last.7.02:00:00"}, 0);
        row("End='any text'", {"DaylightSavingTimeEnd"}, {"any text"}, 0);
        row("start='x' end='x' timezone='x' adjust='+01:00:00'", {}, {}, 0);
    }
    void ClockCom()
    {
        QFETCH(QString, attribute);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, values);
        QFETCH(int, emissions);
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Update(
            node, QStringLiteral("<clock><clockCom clockType='1' %1/></clock>").arg(attribute)));
        QCOMPARE(node.AttributeKeys(), QStringList("ClockType") + keys);
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(node.GetAttribute(keys.at(i)), values.at(i));
        QCOMPARE(log.Count(), 1 + emissions);
    }

    void TimesAreTakenInTheirOrder()
    {
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Update(node,
                       QStringLiteral("<clock timezone='-02:00' adjust='-00:00:01'><clockCom "
                                      "clockType='0' End='e' Start='s' isDaylightSavingTime='1' "
                                      "timeAdjust='3600' timeZone='+01:00' timeZoneIndex='4'/>"
                                      "</clock>")));
        QCOMPARE(node.AttributeKeys(),
                 QStringList({"ClockType", "TimeZoneIndex", "TimeZone", "AdjustType", "TimeAdjust",
                              "UseDaylightSavingTime", "DaylightSavingTimeStart",
                              "DaylightSavingTimeEnd"}));
        // The element's own attributes come last and win.
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), QStringLiteral("-02:00"));
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeAdjust")), QStringLiteral("00A00B01"));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AdjustType")), 1);
        // The type, the zone twice, the adjustment twice with two each.
        QCOMPARE(log.Count(), 7);
    }

    void AbsentZoneKeepsTheOldOne()
    {
        HClockNode node;
        node.InitData();
        node.SetTimeZone(QStringLiteral("+03:00"));
        QVERIFY(Update(node, QStringLiteral("<clock/>")));
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), QStringLiteral("+03:00"));
        QVERIFY(Update(node, QStringLiteral("<clock timezone=''/>")));
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeZone")), QString());
    }

    void Adjust_data()
    {
        QTest::addColumn<QString>("adjust");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("magnitude");
        QTest::newRow("back") << "-01:30:00" << 1 << "01A30B00";
        QTest::newRow("forward") << "+01:02:05" << 0 << "01A02B05";
        QTest::newRow("minus zero") << "-00:00:00" << 0 << "00A00B00";
        QTest::newRow("last second") << "+23:59:59" << 0 << "23A59B59";
    }
    void Adjust()
    {
        QFETCH(QString, adjust);
        QFETCH(int, type);
        QFETCH(QString, magnitude);
        HClockNode node;
        RedrawLog log(node);
        QVERIFY(Update(node, QStringLiteral("<clock adjust='%1'/>").arg(adjust)));
        QCOMPARE(node.GetAttribute(QStringLiteral("AdjustType")), QString::number(type));
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeAdjust")), magnitude);
        QCOMPARE(log.Count(), 3);
    }

    void AdjustThatSaysNothing_data()
    {
        QTest::addColumn<QString>("adjust");
        for (const char *adjust : {"",
                                   "+",
                                   "-",
                                   "01:30:00",
                                   " 01:30:00",
                                   "*01:30:00",
                                   "+1:30:00",
                                   "+01:30",
                                   "+013000",
                                   "+ 01:30:00",
                                   "+01:30:00 ",
                                   "+24:00:00",
                                   "+23:60:00",
                                   "+23:59:60",
                                   "+01:30:00.5",
                                   "+01-30-00",
                                   "++01:30:00",
                                   "+-01:30:00",
                                   "+aa:bb:cc",
                                   "+01:30:0",
                                   "+001:30:00",
                                   "%n%n%n%n%n",
                                   "\xe2\x88\x92"
                                   "01:30:00"})
            QTest::newRow(adjust) << QString::fromUtf8(adjust);
    }
    void AdjustThatSaysNothing()
    {
        QFETCH(QString, adjust);
        HClockNode node;
        node.SetTimeAdjust(-7);
        RedrawLog log(node);
        QVERIFY(Update(node, QStringLiteral("<clock adjust='%1'/>").arg(adjust)));
        QCOMPARE(node.GetAttributeToInt(QStringLiteral("AdjustType")), 1);
        QCOMPARE(node.GetAttribute(QStringLiteral("TimeAdjust")), QStringLiteral("00A00B07"));
        QCOMPARE(log.Count(), 1);
    }

    void Files()
    {
        HClockNode node;
        QList<Lw::FileInfo> files {{QStringLiteral("kept"), 1, QStringLiteral("before")}};
        QVERIFY(Update(node,
                       QStringLiteral("<clock><file md5='m1' size='12' path='/p/1' key='_space'/>"
                                      "<x><file key='deep' path='/no'/></x>"
                                      "<file/>"
                                      "<file key='Id' path='../../etc/passwd' size='4294967296'/>"
                                      "<file key='_space' path='/p/2' md5='m2'/></clock>"),
                       files));
        QCOMPARE(files.size(), 5);
        QCOMPARE(files.at(0).path, QStringLiteral("before"));
        QCOMPARE(files.at(1).path, QStringLiteral("/p/1"));
        QCOMPARE(files.at(1).md5, QStringLiteral("m1"));
        QCOMPARE(files.at(1).size, quint64(12));
        QCOMPARE(files.at(2).path, QString());
        QCOMPARE(files.at(3).size, Q_UINT64_C(4294967296));
        QCOMPARE(files.at(4).path, QStringLiteral("/p/2"));
        // The later record of a key is the one that counts; attributes are another matter.
        QCOMPARE(node.GetFirstFile(QStringLiteral("_space")), QStringLiteral("/p/2"));
        QCOMPARE(node.GetFirstFile(QStringLiteral("Id")), QStringLiteral("../../etc/passwd"));
        QVERIFY(!node.HaveAttribute(QStringLiteral("Id")));
        const auto records = node.FileRecords();
        QCOMPARE(records.size(), 3);
        QCOMPARE(records.at(0).name, QStringLiteral("m2"));
        QCOMPARE(records.at(0).kind, 3);
        QCOMPARE(records.at(1).key, QString());
        QCOMPARE(records.at(2).size, Q_INT64_C(4294967296));
    }

    void RefusedElementReadsNoFile()
    {
        HClockNode node;
        QList<Lw::FileInfo> files;
        QVERIFY(!Update(
            node, QStringLiteral("<clock type='picture'><file key='k' path='p'/></clock>"), files));
        QVERIFY(files.isEmpty());
        QVERIFY(!node.HaveSourcFile());
    }

    void FileSize_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint64>("size");
        QTest::newRow("zero") << "0" << quint64(0);
        QTest::newRow("above two GiB") << "3000000000" << Q_UINT64_C(3000000000);
        QTest::newRow("largest signed") << "9223372036854775807" << Q_UINT64_C(9223372036854775807);
        QTest::newRow("largest") << "18446744073709551615" << ~quint64(0);
        QTest::newRow("too large") << "18446744073709551616" << quint64(0);
        QTest::newRow("negative") << "-1" << quint64(0);
        QTest::newRow("fraction") << "1.5" << quint64(0);
        QTest::newRow("no number") << "12kB" << quint64(0);
        QTest::newRow("empty") << "" << quint64(0);
    }
    void FileSize()
    {
        QFETCH(QString, text);
        QFETCH(quint64, size);
        QDomDocument document;
        QDomElement element = ParseXml(
            document, QStringLiteral("<clock><file key='k' size='%1'/></clock>").arg(text));
        HClockNode node;
        QList<Lw::FileInfo> files;
        node.ProcFile(element, files);
        QCOMPARE(files.at(0).size, size);
        // The record is signed: from 2^63 on it turns negative.
        QCOMPARE(node.FileRecords().at(0).size, static_cast<long long>(size));
    }

    void ProcFileOfNull()
    {
        HClockNode node;
        QDomElement null;
        QList<Lw::FileInfo> files;
        node.ProcFile(null, files);
        QVERIFY(files.isEmpty());
    }

    void ManyFilesAreReadInTime()
    {
        QString xml = QStringLiteral("<clock>");
        for (int i = 0; i < 100000; ++i)
            xml += QStringLiteral("<file key='%1' path='/p'/>").arg(i);
        QDomDocument document;
        QDomElement element = ParseXml(document, xml + QStringLiteral("</clock>"));
        HClockNode node;
        QList<Lw::FileInfo> files;
        const std::clock_t start = std::clock();
        QVERIFY(node.UpdateNode(element, files));
        QCOMPARE(files.size(), 100000);
        QVERIFY2(std::clock() - start < 10 * CLOCKS_PER_SEC,
                 "a time that grows with the square is no walk");
    }

    void HostileElements_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("taken");
        QString deep;
        for (int i = 0; i < 200; ++i)
            deep += QStringLiteral("<date>");
        for (int i = 0; i < 200; ++i)
            deep += QStringLiteral("</date>");
        QTest::newRow("200 levels") << QStringLiteral("<clock>%1</clock>").arg(deep) << true;
        QString attributes;
        for (int i = 0; i < 3000; ++i)
            attributes += QStringLiteral(" a%1='x'").arg(i);
        QTest::newRow("3000 attributes")
            << QStringLiteral("<clock%1><font%1/><clockCom clockType='0'%1/></clock>")
                   .arg(attributes)
            << true;
        const QString megabyte(1 << 20, QLatin1Char('9'));
        QTest::newRow("megabytes everywhere")
            << QStringLiteral("<clock timezone='%1' adjust='%1'><font name='%1' size='%1'/>"
                              "<fixedText value='%1' fontSize='%1'/><file key='%1' size='%1'/>"
                              "</clock>")
                   .arg(megabyte)
            << true;
        QTest::newRow("format directives")
            << "<clock timezone='%n%s' adjust='%n'><fixedText value='%s%n'/>"
               "<file key='%n' path='%s' md5='%n'/></clock>"
            << true;
        if (QT_VERSION_MAJOR == 5) // later readers refuse it
            QTest::newRow("character 0")
                << "<clock timezone='a&#0;b'><fixedText value='&#0;'/></clock>" << true;
        QTest::newRow("all invalid")
            << "<clock type='digital' timezone='?' adjust='?'><font name='' size='?' color='?'/>"
               "<date display='?' format='?' color='?' fontSize='?'/></clock>"
            << true;
    }
    void HostileElements()
    {
        QFETCH(QString, xml);
        QFETCH(bool, taken);
        HClockNode node;
        QCOMPARE(Update(node, xml), taken);
    }

    void TextsAreKeptAsTheReaderHandsThemOver()
    {
        QDomDocument document;
        QDomElement element =
            ParseXml(document, QStringLiteral("<clock><fixedText value='x'/></clock>"));
        const QString text = QStringLiteral("a") + QChar(0) + QStringLiteral("b\n\u202e%n");
        element.firstChildElement().setAttribute(QStringLiteral("value"), text);
        HClockNode node;
        QList<Lw::FileInfo> files;
        QVERIFY(node.UpdateNode(element, files));
        QCOMPARE(node.GetAttribute(QStringLiteral("AnalogTopText")), text);
    }

    void ListenerMayDeleteTheNode_data()
    {
        QTest::addColumn<int>("lastEmission");
        // 6 of the font, 1 of the date, 1 of the type, 1 of the zone, 2 of the adjustment.
        for (const int last : {1, 6, 7, 8, 9, 10, 11})
            QTest::addRow("emission %d", last) << last;
    }
    void ListenerMayDeleteTheNode()
    {
        QFETCH(int, lastEmission);
        const DeletedNode deleted(lastEmission);
        QList<Lw::FileInfo> files;
        QVERIFY(!Update(deleted.Node(),
                        QStringLiteral("<clock timezone='+01:00' adjust='+00:00:01'>"
                                       "<font size='3'/><date format='1'/><file key='k'/></clock>"),
                        files));
        QCOMPARE(deleted.Emissions(), lastEmission);
        QVERIFY(files.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestClockUpdate)
#include "test_clock_update.moc"
