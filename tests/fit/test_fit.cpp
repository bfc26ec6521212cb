// The parts of a check: ink, days, contrast, and findings that are known beforehand.
#include "clock_checks.h"
#include "clock_under_test.h"
#include "ink_mask.h"
#include "wall_check.h"
#include "year_stretches.h"

#include <QtTest>

using namespace ClockFit;
using Lw::HNodeClock::Element;
using Lw::HNodeClock::GlyphStrip;

namespace {

qint64 At(const char *iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODate).toMSecsSinceEpoch();
}

// An image whose ink is the "#" of the rows.
QImage Picture(const QStringList &rows)
{
    QImage image(rows.first().size(), rows.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < rows.size(); ++y) {
        for (int x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] == '#')
                image.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    return image;
}

} // namespace

class TestFit : public QObject
{
    Q_OBJECT

private slots:
    void BoundsOfInk();
    void InkInCommon_data();
    void InkInCommon();
    void StretchesOfAYear();
    void StretchesOfDaylightSaving();
    void ContrastToBlack_data();
    void ContrastToBlack();
    void HiddenPartsAreNotFound();
    void VisiblePartOfAnArea();
    void HugeSizesAreNotDrawn();
    void NothingOfOddClocks_data();
    void NothingOfOddClocks();
};

void TestFit::BoundsOfInk()
{
    const InkMask mask =
        InkMask::OfPicture(Picture({".....", "..#..", "...#.", "....."}), {10, 20});
    QCOMPARE(mask.Bounds(), QRect(12, 21, 2, 2));
    QCOMPARE(mask.Count(), 2);
    QVERIFY(mask.HasInkIn(QRect(13, 22, 1, 1)));
    QVERIFY(!mask.HasInkIn(QRect(12, 22, 1, 1)));
    QCOMPARE(InkMask().Bounds(), QRect());
    const QImage column = Picture({"#", "#", "#"});
    QCOMPARE(InkMask::OfPicture(column, {-4, -2}).Bounds(), QRect(-4, -2, 1, 3));
}

void TestFit::InkInCommon_data()
{
    QTest::addColumn<int>("shift");
    for (const int shift : {0, 1, 31, 32, 33, 64, 90})
        QTest::addRow("%d columns", shift) << shift;
}

// Rows of 96 columns, every third one ink; and the same moved to the right.
void TestFit::InkInCommon()
{
    QFETCH(int, shift);
    const QString row = QString("#..").repeated(32);
    const GlyphStrip strip(Picture({row, row}));
    const Element element(strip);
    const InkMask one(element, {-5, 3});
    const InkMask other(element, {-5 + shift, 4});
    QCOMPARE(one.Common(other), shift % 3 == 0 ? 32 - shift / 3 : 0);
    InkMask both = one;
    both.Unite(other);
    QCOMPARE(both.Count(), one.Count() + other.Count() - one.Common(other));
    QCOMPARE(both.Bounds(), one.Bounds() | other.Bounds());
}

void TestFit::StretchesOfAYear()
{
    ClockUnderTest clock(1);
    clock.Set("TimeZone", "+08:00");
    clock.Set("UseDaylightSavingTime", 0);
    const auto stretches = StretchesOf(clock.node, YearFrom(At("2026-08-20T12:00:00Z")));
    QCOMPARE(stretches.size(), 366); // both ends are within a day
    QCOMPARE(stretches[0].firstSecond, 20 * 3600);
    QCOMPARE(stretches[0].EndSecond(), 24 * 3600);
    QCOMPARE(stretches[1].begin, At("2026-08-20T16:00:00Z"));
    QCOMPARE(stretches[1].firstSecond, 0);
    QCOMPARE(stretches[1].At(61), At("2026-08-20T16:01:01Z"));
    QCOMPARE(stretches.last().end, At("2027-08-20T12:00:00Z"));
    QCOMPARE(MidnightOf(stretches), stretches[1].begin);
}

// The hour after two o'clock is passed over in spring and comes twice in autumn. The lunar date
// does not follow daylight saving: in summer it changes at one o'clock.
void TestFit::StretchesOfDaylightSaving()
{
    ClockUnderTest clock(1);
    clock.Set("TimeZone", "+01:00");
    clock.Set("UseDaylightSavingTime", 1);
    clock.Set("DaylightSavingTimeStart", "3.Last.7.02:00:00");
    clock.Set("DaylightSavingTimeEnd", "10.Last.7.02:00:00");
    QMap<qint64, int> seconds;
    for (const Stretch &stretch : StretchesOf(clock.node, YearFrom(At("2026-01-01T00:00:00Z"))))
        seconds.insert(stretch.begin, stretch.firstSecond);
    QCOMPARE(seconds.value(At("2026-03-29T01:00:00Z"), -1), 3 * 3600);
    QCOMPARE(seconds.value(At("2026-10-25T01:00:00Z"), -1), 2 * 3600);
    QCOMPARE(seconds.value(At("2026-07-01T23:00:00Z"), -1), 3600);
    QCOMPARE(seconds.value(At("2026-07-01T22:00:00Z"), -1), 0);
    QVERIFY(!seconds.contains(At("2026-12-01T22:00:00Z")));
}

void TestFit::ContrastToBlack_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<double>("expected");
    // Luminances 1, 0.2126, 0.7152, 0.0722 and that of sRGB grey 119, 0.18448; black has 0.
    QTest::newRow("white") << qRgb(255, 255, 255) << 21.0;
    QTest::newRow("red") << qRgb(255, 0, 0) << 5.252;
    QTest::newRow("green") << qRgb(0, 255, 0) << 15.304;
    QTest::newRow("blue") << qRgb(0, 0, 255) << 2.444;
    QTest::newRow("grey") << qRgb(119, 119, 119) << 4.689;
    QTest::newRow("black") << qRgb(0, 0, 0) << 1.0;
}

void TestFit::ContrastToBlack()
{
    QFETCH(QRgb, colour);
    QFETCH(double, expected);
    QVERIFY(qAbs(ContrastOf(colour, qRgb(0, 0, 0)) - expected) < 0.001);
    QCOMPARE(ContrastOf(colour, qRgb(0, 0, 0)), ContrastOf(qRgb(0, 0, 0), colour));
}

void TestFit::HiddenPartsAreNotFound()
{
    ClockUnderTest clock(1, QSize(8, 8));
    for (const char *flag :
         {"Digital_TopTexy_d", "Digital_Date_d", "Digital_Week_d", "Digital_Time_d"})
        clock.Set(flag, 0);
    ClockCheck check(YearFrom(0));
    QVERIFY(check.Check(clock.node).IsEmpty());
    clock.Set("Digital_Week_d", 1);
    const ClockFindings findings = check.Check(clock.node);
    QVERIFY(!findings.cuts.isEmpty());
    for (const Cut &cut : findings.cuts)
        QCOMPARE(cut.part, Part::Week);
}

// What is cut by the edge of the screen is what is beyond the visible part.
void TestFit::VisiblePartOfAnArea()
{
    QCOMPARE(VisibleOf(QRect(-10, 5, 40, 20), QSize(100, 15)), QRect(10, 0, 30, 10));
    ClockUnderTest clock(1, QSize(200, 40));
    for (const char *flag : {"Digital_TopTexy_d", "Digital_Date_d", "Digital_Week_d"})
        clock.Set(flag, 0);
    ClockCheck check(YearFrom(0));
    QVERIFY(check.Check(clock.node).cuts.isEmpty());
    const QVector<Cut> cuts = check.Check(clock.node, QRect(0, 0, 100, 40)).cuts;
    QCOMPARE(cuts.size(), 1);
    QCOMPARE(cuts[0].side, Side::Right);
    QVERIFY(!cuts[0].isGone);
}

void TestFit::HugeSizesAreNotDrawn()
{
    ClockUnderTest clock(1);
    clock.Set("DigitalTimeFSize", 40000);
    ClockCheck check(YearFrom(0));
    const ClockFindings findings = check.Check(clock.node);
    QCOMPARE(findings.tooLarge.size(), 1);
    QCOMPARE(findings.tooLarge[0].part, Part::Time);
    QCOMPARE(findings.tooLarge[0].points, 40000);
}

void TestFit::NothingOfOddClocks_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("size");
    QTest::newRow("picture") << 2 << QSize(64, 64);
    QTest::newRow("unknown type") << 7 << QSize(64, 64);
    QTest::newRow("no size") << 1 << QSize(0, 64);
}

void TestFit::NothingOfOddClocks()
{
    QFETCH(int, type);
    QFETCH(QSize, size);
    ClockUnderTest clock(type, size);
    ClockCheck check(YearFrom(0));
    QVERIFY(check.Check(clock.node).IsEmpty());
    QVERIFY(CheckWall(check, {{&clock.node, QRect(QPoint(0, 0), size)}}, QSize(64, 64))
                .overlaps.empty());
}

QTEST_MAIN(TestFit)

#include "test_fit.moc"
