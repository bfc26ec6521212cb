// The first day on which two parts have ink in common.
#include "year_ink.h"

#include <QtTest>

using namespace ClockFit;

namespace {

constexpr qint64 kDay = 86400000;
constexpr QRgb kInk = 0xffff0000;

InkMask Bar(int x, int width)
{
    if (width == 0)
        return {};
    QImage bar(width, 1, QImage::Format_ARGB32);
    bar.fill(kInk);
    return {bar, QPoint(x, 0), kInk};
}

// A part that shows a bar from a column on; its width in pixels on each day.
PartInk Bars(int x, const QVector<int> &widths, qint64 begin)
{
    PartInk ink;
    ink.year = InkMask(QRect(0, 0, 100, 1));
    for (const int width : widths) {
        ink.days.push_back({begin, begin + kDay, Bar(x, width)});
        ink.year.Unite(Bar(x, width));
        begin += kDay;
    }
    return ink;
}

} // namespace

class TestYearInk : public QObject
{
    Q_OBJECT

private slots:
    void FirstDayInCommon_data();
    void FirstDayInCommon();
    void APartThatNeverChanges();
};

void TestYearInk::FirstDayInCommon_data()
{
    QTest::addColumn<QVector<int>>("widths");      // from column 0 on
    QTest::addColumn<QVector<int>>("otherWidths"); // from column 10 on
    QTest::addColumn<qint64>("otherBegin");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<qint64>("day");

    using Widths = QVector<int>;
    QTest::newRow("same day") << Widths {5, 15, 5} << Widths {0, 5, 0} << qint64(0) << 5 << kDay;
    QTest::newRow("last day") << Widths {5, 5, 12} << Widths {3, 3, 3} << qint64(0) << 2
                              << 2 * kDay;
    QTest::newRow("the day before and after only")
        << Widths {5, 15, 5} << Widths {5, 0, 5} << qint64(0) << 0 << qint64(0);
    QTest::newRow("days half a day apart")
        << Widths {5, 15, 5} << Widths {5, 0, 0} << kDay / 2 << 5 << kDay;
}

void TestYearInk::FirstDayInCommon()
{
    QFETCH(QVector<int>, widths);
    QFETCH(QVector<int>, otherWidths);
    QFETCH(qint64, otherBegin);
    const PartInk one = Bars(0, widths, 0);
    const PartInk other = Bars(10, otherWidths, otherBegin);
    for (const CommonInk &common : {FirstCommon(one, other, 0), FirstCommon(other, one, 0)}) {
        QTEST(common.pixels, "pixels");
        QTEST(common.day, "day");
    }
}

void TestYearInk::APartThatNeverChanges()
{
    PartInk constant;
    constant.year = Bar(10, 5);
    const CommonInk common = FirstCommon(constant, Bars(0, {5, 15, 5}, 0), 0);
    QCOMPARE(common.pixels, 5);
    QCOMPARE(common.day, kDay);
}

QTEST_MAIN(TestYearInk)
#include "test_year_ink.moc"
