// The SDK element that a clock appends to its program.
#include "node_test_support.h"

#include <memory>

using Lw::HNodeClock::HClockNode;

namespace {

using Attributes = QMap<QString, QString>;

Attributes AttributesOfElement(const QDomElement &element)
{
    Attributes all;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i)
        all.insert(map.item(i).nodeName(), map.item(i).nodeValue());
    return all;
}

} // namespace

class TestClockSdkExport : public QObject
{
    Q_OBJECT

    QDomDocument m_document;
    QDomElement m_parent;
    std::unique_ptr<HClockNode> m_node;

    void Set(const char *key, int value) { m_node->SetAttribute(QLatin1String(key), value, false); }
    void Set(const char *key, const char *value)
    {
        m_node->SetAttribute(QLatin1String(key), QString::fromUtf8(value), false);
    }
    QDomElement Exported()
    {
        m_node->CoverToSDKFormate(m_parent, Lw::ProgramForController);
        return m_parent.lastChildElement();
    }
    Attributes ChildOfExported(const char *name)
    {
        return AttributesOfElement(Exported().firstChildElement(QLatin1String(name)));
    }

private Q_SLOTS:
    void init()
    {
        m_document = QDomDocument();
        m_parent = m_document.createElement(QStringLiteral("area"));
        m_document.appendChild(m_parent);
        m_node = std::make_unique<HClockNode>();
    }

    void NewAnalogClock()
    {
        Lw::HAppConfig::SetTimeInfo(0, false);
        m_node->InitData();
        const QDomElement clock = Exported();
        QCOMPARE(clock.tagName(), QStringLiteral("clock"));
        QCOMPARE(AttributesOfElement(clock),
                 (Attributes {{"type", "dial"}, {"timezone", "00:00"}, {"adjust", "+00:00:00"}}));
        QCOMPARE(ChildOfExported("title"),
                 (Attributes {{"value", "LED"}, {"color", "#ff0000ff"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("date"),
                 (Attributes {{"value", "0"}, {"color", "#ff0000ff"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("week"),
                 (Attributes {{"value", "0"}, {"color", "#ff00ff00"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("time"), Attributes());
        QCOMPARE(ChildOfExported("lunarCalendar"), (Attributes {{"color", "#ffff0000"}}));
    }

    void DigitalClock()
    {
        m_node->InitData();
        Set("ClockType", 1);
        Set("Digital_Time_d", 0);
        Set("DigitalTimeType", 3);
        Set("DigitalTopText", "a & <b>");
        Set("Digital_Lunar_d", 1);
        QCOMPARE(Exported().attribute(QStringLiteral("type")), QStringLiteral("digital"));
        QCOMPARE(ChildOfExported("title"),
                 (Attributes {{"value", "a & <b>"}, {"color", "#ffff0000"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("date"),
                 (Attributes {{"value", "0"}, {"color", "#ff0000ff"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("week"),
                 (Attributes {{"value", "0"}, {"color", "#ff00ff00"}, {"display", "true"}}));
        QCOMPARE(ChildOfExported("time"),
                 (Attributes {{"value", "3"}, {"color", "#ffff0000"}, {"display", "false"}}));
        QCOMPARE(ChildOfExported("lunarCalendar"),
                 (Attributes {{"color", "#ffffff00"}, {"display", "true"}}));
    }

    void FiveChildrenInOrder_data()
    {
        QTest::addColumn<QString>("clockType");
        for (const char *type : {"0", "1", "2", "-1", "text", ""})
            QTest::newRow(qPrintable(QStringLiteral("type \"%1\"").arg(QLatin1String(type))))
                << QString::fromLatin1(type);
    }
    void FiveChildrenInOrder()
    {
        QFETCH(QString, clockType);
        m_node->InitData();
        m_node->SetAttribute(QStringLiteral("ClockType"), clockType, false);
        QStringList names;
        for (QDomElement child = Exported().firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            names.append(child.tagName());
        QCOMPARE(names, QStringList({"title", "date", "week", "time", "lunarCalendar"}));
    }

    void TypeAndChildren_data()
    {
        QTest::addColumn<QString>("clockType"); // null: without the attribute
        QTest::addColumn<QString>("type");      // null: not written
        QTest::addColumn<bool>("filled");
        QTest::newRow("analog") << "0"
                                << "dial" << true;
        QTest::newRow("digital") << "1"
                                 << "digital" << true;
        QTest::newRow("picture") << "2" << QString() << false;
        QTest::newRow("negative") << "-1" << QString() << false;
        QTest::newRow("no number is analog") << "abc"
                                             << "dial" << true;
        QTest::newRow("empty is analog") << ""
                                         << "dial" << true;
        QTest::newRow("too large is analog") << "4294967297"
                                             << "dial" << true;
        QTest::newRow("white space around") << " 1 "
                                            << "digital" << true;
        QTest::newRow("absent") << QString() << QString() << false;
    }
    void TypeAndChildren()
    {
        QFETCH(QString, clockType);
        QFETCH(QString, type);
        QFETCH(bool, filled);
        Set("AnalogTopText", "a");
        Set("DigitalTopText", "d");
        if (!clockType.isNull())
            m_node->SetAttribute(QStringLiteral("ClockType"), clockType, false);
        const QDomElement clock = Exported();
        QCOMPARE(clock.hasAttribute(QStringLiteral("type")), !type.isNull());
        QCOMPARE(clock.attribute(QStringLiteral("type")), type);
        QCOMPARE(ChildOfExported("title").isEmpty(), !filled);
    }

    void Guid()
    {
        m_node->SetGuid(QStringLiteral("{1-2}"));
        QVERIFY(!Exported().hasAttribute(QStringLiteral("guid")));
        Set("__GUID__", "anything");
        QCOMPARE(Exported().attribute(QStringLiteral("guid")), QStringLiteral("{1-2}"));
    }

    void Timezone()
    {
        QVERIFY(!Exported().hasAttribute(QStringLiteral("timezone")));
        Set("TimeZone", " UTC\"+8 ");
        QCOMPARE(Exported().attribute(QStringLiteral("timezone")), QStringLiteral(" UTC\"+8 "));
    }

    void Adjust_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("adjust");
        QTest::newRow("forward") << "0"
                                 << "01A02B05"
                                 << "+01:02:05";
        QTest::newRow("backward") << "1"
                                  << "01A02B05"
                                  << "-01:02:05";
        QTest::newRow("any other number is backward") << "-7"
                                                      << "01A02B05"
                                                      << "-01:02:05";
        QTest::newRow("no number is forward") << "x"
                                              << "01A02B05"
                                              << "+01:02:05";
        QTest::newRow("minus zero") << "1"
                                    << "00A00B00"
                                    << "-00:00:00";
        QTest::newRow("other letters") << "0"
                                       << "12:34:56"
                                       << "+12:34:56";
        QTest::newRow("longer") << "0"
                                << "01A02B05C06"
                                << "+01:02:05";
        QTest::newRow("short") << "0"
                               << "01A0"
                               << "+01:0:";
        QTest::newRow("empty") << "1"
                               << ""
                               << "-::";
        QTest::newRow("absent") << "1" << QString() << "-::";
    }
    void Adjust()
    {
        QFETCH(QString, type);
        QFETCH(QString, stored);
        QFETCH(QString, adjust);
        m_node->SetAttribute(QStringLiteral("AdjustType"), type, false);
        if (!stored.isNull())
            m_node->SetAttribute(QStringLiteral("TimeAdjust"), stored, false);
        QCOMPARE(Exported().attribute(QStringLiteral("adjust")), adjust);
    }

    void NoAdjustWithoutItsType()
    {
        Set("TimeAdjust", "01A02B05");
        QVERIFY(!Exported().hasAttribute(QStringLiteral("adjust")));
    }

    void Display_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("display");
        QTest::newRow("shown") << "1"
                               << "true";
        QTest::newRow("hidden") << "0"
                                << "false";
        QTest::newRow("negative") << "-1"
                                  << "true";
        QTest::newRow("two") << "2"
                             << "true";
        QTest::newRow("no number") << "true"
                                   << "false";
    }
    void Display()
    {
        QFETCH(QString, stored);
        QFETCH(QString, display);
        m_node->SetAttribute(QStringLiteral("shown"), stored, false);
        QDomElement child = m_document.createElement(QStringLiteral("x"));
        m_node->LunarCoverToSDK(child, QStringLiteral("none"), QStringLiteral("shown"));
        QCOMPARE(AttributesOfElement(child), (Attributes {{"display", display}}));
    }

    void Colour_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<QString>("colour");
        QTest::newRow("black") << 0 << "#ff000000";
        QTest::newRow("red is the low byte") << 0x0000ff << "#ffff0000";
        QTest::newRow("small channels keep their zeros") << 0x030201 << "#ff010203";
        QTest::newRow("top byte") << static_cast<int>(0x80030201u) << "#ff010203";
        QTest::newRow("minus one") << -1 << "#ffffffff";
    }
    void Colour()
    {
        QFETCH(int, stored);
        QFETCH(QString, colour);
        Set("c", stored);
        QDomElement child = m_document.createElement(QStringLiteral("x"));
        m_node->LunarCoverToSDK(child, QStringLiteral("c"), QStringLiteral("none"));
        QCOMPARE(AttributesOfElement(child), (Attributes {{"color", colour}}));
    }

    void SubnodeWritesOnlyWhatTheNodeHas()
    {
        QDomElement child = m_document.createElement(QStringLiteral("x"));
        m_node->ClockSubnodeCoverToSDK(child, QStringLiteral("v"), QStringLiteral("c"),
                                       QStringLiteral("d"));
        QCOMPARE(AttributesOfElement(child), Attributes());
        Set("v", "");
        m_node->ClockSubnodeCoverToSDK(child, QStringLiteral("v"), QStringLiteral("c"),
                                       QStringLiteral("d"));
        QCOMPARE(AttributesOfElement(child), (Attributes {{"value", ""}}));
    }

    void AppendedAsTheLastChild()
    {
        m_parent.appendChild(m_document.createElement(QStringLiteral("before")));
        m_node->InitData();
        Exported();
        Exported();
        QCOMPARE(m_parent.childNodes().count(), 3);
        QCOMPARE(m_parent.firstChildElement().tagName(), QStringLiteral("before"));
        // The element lives on in the parent's document and can be written out from there.
        QVERIFY(m_document.toString().contains(QLatin1String("<clock")));
        QCOMPARE(m_parent.lastChildElement().ownerDocument(), m_document);
    }

    void NullParent()
    {
        QDomElement null;
        m_node->InitData();
        m_node->CoverToSDKFormate(null, Lw::ProgramForPreview);
        QVERIFY(null.isNull());
    }

    void ExportChangesAndEmitsNothing()
    {
        m_node->InitData();
        const auto before = AttributesOf(*m_node);
        RedrawLog log(*m_node);
        Exported();
        QCOMPARE(AttributesOf(*m_node), before);
        QCOMPARE(log.Count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestClockSdkExport)
#include "test_clock_sdk_export.moc"
