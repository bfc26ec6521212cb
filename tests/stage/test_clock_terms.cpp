// The settings that decide until when a clock is right, from its attributes.
#include "clock_terms.h"

#include "hnode.h"

#include <QtTest>

using namespace ClockStage;
using ClockZones::ValidityTerms;

namespace {

// A node with these attributes, "key=value" each, beside a zone.
std::unique_ptr<Lw::HNode> Clock(const QStringList &settings)
{
    auto node = std::make_unique<Lw::HNode>();
    for (const QString &setting : QStringList {"TimeZone=+03:30"} + settings)
        node->SetAttribute(setting.section('=', 0, 0), setting.section('=', 1), false);
    return node;
}

} // namespace

class TestClockTerms : public QObject
{
    Q_OBJECT

private slots:
    void NoClock();
    void Dates_data();
    void Dates();
    void ZoneWithoutAdjustment();
};

void TestClockTerms::NoClock()
{
    Lw::HNode node;
    QVERIFY(!TermsOf(&node));
    QVERIFY(!TermsOf(nullptr));
}

void TestClockTerms::Dates_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QString>("shown");
    QTest::newRow("digital, Persian")
        << QStringList {"ClockType=1", "Digital_Date_d=1", "DigitalDateType=7"} << "Persian";
    QTest::newRow("digital, hidden")
        << QStringList {"ClockType=1", "Digital_Date_d=0", "DigitalDateType=7"} << "";
    QTest::newRow("digital, Gregorian")
        << QStringList {"ClockType=1", "Digital_Date_d=1", "DigitalDateType=6"} << "";
    QTest::newRow("digital, lunar") << QStringList {"ClockType=1", "Digital_Lunar_d=1"} << "lunar";
    QTest::newRow("digital, with the settings of a dial")
        << QStringList {"ClockType=1", "Analog_Lunar_d=1", "Analog_Date_d=1", "AnalogDateType=7"}
        << "";
    QTest::newRow("dial, both") << QStringList {"ClockType=0", "Analog_Lunar_d=1",
                                                "Analog_Date_d=1", "AnalogDateType=7"}
                                << "lunar Persian";
    QTest::newRow("pictures show no date")
        << QStringList {"ClockType=2", "Analog_Lunar_d=1", "Digital_Lunar_d=1"} << "";
}

void TestClockTerms::Dates()
{
    QFETCH(QStringList, settings);
    const std::optional<ValidityTerms> terms = TermsOf(Clock(settings).get());
    QVERIFY(terms.has_value());
    QStringList shown;
    if (terms->showsLunarDate)
        shown.append("lunar");
    if (terms->showsPersianDate)
        shown.append("Persian");
    QTEST(shown.join(' '), "shown");
}

void TestClockTerms::ZoneWithoutAdjustment()
{
    const QStringList rules {"TimeAdjust=00:01:05", "DaylightSavingTimeStart=3.Last.7.02:00:00",
                             "DaylightSavingTimeEnd=10.Last.7.02:00:00"};
    const std::optional<ValidityTerms> unused = TermsOf(Clock(rules).get());
    QCOMPARE(unused->zone.offset, 12600);
    QCOMPARE(unused->zone.start, QString());
    const std::optional<ValidityTerms> used =
        TermsOf(Clock(rules + QStringList {"UseDaylightSavingTime=1"}).get());
    QCOMPARE(used->zone.start, QString("3.Last.7.02:00:00"));
    QCOMPARE(used->zone.end, QString("10.Last.7.02:00:00"));
}

QTEST_GUILESS_MAIN(TestClockTerms)
#include "test_clock_terms.moc"
