#include "clock_ids.h"

#include <QtTest>

using ClockProgram::ClockId;
using ClockProgram::DefaultIdAt;
using ClockProgram::DistinctIds;

Q_DECLARE_METATYPE(QVector<ClockId>)

class TestClockIds : public QObject
{
    Q_OBJECT

private slots:
    void IdsAreMadeDistinct_data();
    void IdsAreMadeDistinct();
    void NumbersOfPlaces();
    void MoreClocksThanDrawnNumbers();
};

void TestClockIds::IdsAreMadeDistinct_data()
{
    QTest::addColumn<QVector<ClockId>>("ids");
    QTest::addColumn<QVector<int>>("numbers");
    const auto placed = [](int number) { return ClockId {number, false}; };
    const auto given = [](int number) { return ClockId {number, true}; };

    QTest::newRow("no clock") << QVector<ClockId> {} << QVector<int> {};
    QTest::newRow("different already")
        << QVector<ClockId> {placed(1500), given(7), placed(1501)} << QVector<int> {1500, 7, 1501};
    QTest::newRow("drawn twice") << QVector<ClockId> {placed(1500), placed(1500), placed(1500)}
                                 << QVector<int> {1500, 1501, 1502};
    QTest::newRow("one that moves leaves a later one's number alone")
        << QVector<ClockId> {placed(1500), placed(1500), placed(1501)}
        << QVector<int> {1500, 1502, 1501};
    QTest::newRow("given wins over an earlier drawn one")
        << QVector<ClockId> {placed(1500), given(1500)} << QVector<int> {1501, 1500};
    QTest::newRow("free numbers go round")
        << QVector<ClockId> {placed(1999), placed(1999)} << QVector<int> {1999, 1000};
    QTest::newRow("given twice, the later moves")
        << QVector<ClockId> {given(1500), given(1500)} << QVector<int> {1500, 1501};
    QTest::newRow("given twice outside the drawn range")
        << QVector<ClockId> {given(-3), given(-3), placed(1000)} << QVector<int> {-3, 1001, 1000};
}

void TestClockIds::IdsAreMadeDistinct()
{
    QFETCH(QVector<ClockId>, ids);
    QFETCH(QVector<int>, numbers);
    QCOMPARE(DistinctIds(ids), numbers);
}

// Whatever else is in the program: giving the third clock the second one's number moves no other.
void TestClockIds::NumbersOfPlaces()
{
    const auto numbers = [](const ClockId &third) {
        return DistinctIds(
            {{DefaultIdAt(0), false}, {DefaultIdAt(1), false}, third, {DefaultIdAt(3), false}});
    };
    QCOMPARE(numbers({DefaultIdAt(2), false}), (QVector<int> {1000, 1001, 1002, 1003}));
    QCOMPARE(numbers({1001, true}), (QVector<int> {1000, 1002, 1001, 1003}));
    QCOMPARE(DefaultIdAt(999), 1999);
    QCOMPARE(DefaultIdAt(1000), 1000);
}

void TestClockIds::MoreClocksThanDrawnNumbers()
{
    const QVector<int> numbers = DistinctIds(QVector<ClockId>(1002, ClockId {1000, false}));
    QCOMPARE(numbers[999], 1999);
    QCOMPARE(numbers[1000], 2000);
    QCOMPARE(numbers[1001], 2001);
}

QTEST_GUILESS_MAIN(TestClockIds)
#include "test_clock_ids.moc"
