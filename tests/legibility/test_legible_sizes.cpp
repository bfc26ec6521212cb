// Sizes of installed fonts that people found hard to read, and others.
#include "legibility/legible_sizes.h"

#include <QFontInfo>
#include <QTest>

using namespace ClockTool;

class TestLegibleSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void NamesWhatASizeLoses_data();
    void NamesWhatASizeLoses();
    void NamesTheNearestLegibleSize_data();
    void NamesTheNearestLegibleSize();
    void LargeSizesAreNotChecked();
    void EverySizeIsLegibleOrHasAReason();
    void NamesOnlySizesThatAreChecked();
};

void TestLegibleSizes::initTestCase()
{
    for (const char *family : {"DejaVu Sans", "DejaVu Serif", "WenQuanYi Micro Hei"})
        QCOMPARE(QFontInfo(QFont(family)).family(), QString(family));
}

void TestLegibleSizes::NamesWhatASizeLoses_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("separators");
    QTest::addColumn<QString>("fault"); // a part of it; empty for none
    const auto row = [](const char *family, int points, const char *separators, const char *fault) {
        QTest::addRow("%s %d \"%s\"", family, points, separators)
            << family << points << separators << fault;
    };
    row("WenQuanYi Micro Hei", 8, ":", "0 has 0 holes instead of 1");
    row("WenQuanYi Micro Hei", 6, "", "0 has 0 holes instead of 1");
    row("WenQuanYi Micro Hei", 7, ":", "\":\" is not drawn");
    row("WenQuanYi Micro Hei", 7, "", "");
    row("WenQuanYi Micro Hei", 9, ":", "");
    row("WenQuanYi Micro Hei", 48, ":", "");
    row("WenQuanYi Micro Hei Mono", 5, "", "0 has 0 holes instead of 1");
    row("WenQuanYi Micro Hei Mono", 7, "", "0 has 0 holes instead of 1");
    row("DejaVu Serif", 5, "", "0 has 0 holes instead of 1");
    row("DejaVu Serif", 6, "", "0 has 0 holes instead of 1");
    row("DejaVu Sans", 12, ":", "");
    row("DejaVu Sans", 12, ",/", "");
    row("DejaVu Sans Mono", 5, "", "0 has 1 stroke instead of 2"); // its dot
}

void TestLegibleSizes::NamesWhatASizeLoses()
{
    QFETCH(QString, family);
    QFETCH(int, points);
    QFETCH(QString, separators);
    QFETCH(QString, fault);
    const QString found = LegibilityFault(family, points, separators);
    QVERIFY2(fault.isEmpty() ? found.isEmpty() : found.contains(fault), qPrintable(found));
    QCOMPARE(LegibilityFault(family, points, separators), found); // cached
}

void TestLegibleSizes::NamesTheNearestLegibleSize_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("right");
    QTest::newRow("larger") << "WenQuanYi Micro Hei" << 8 << 9;
    QTest::newRow("smaller") << "WenQuanYi Micro Hei" << 10 << 9;
    QTest::newRow("the larger of two") << "WenQuanYi Micro Hei" << 13 << 14;
    QTest::newRow("much too small") << "DejaVu Sans" << 1 << 6;
}

void TestLegibleSizes::NamesTheNearestLegibleSize()
{
    QFETCH(QString, family);
    QFETCH(int, points);
    QTEST(NearestLegibleSize(family, points, ":"), "right");
}

void TestLegibleSizes::LargeSizesAreNotChecked()
{
    for (const int points : {kLargestChecked + 1, 32767, 2147483647})
        QVERIFY(LegibilityFault("DejaVu Sans", points, ":").isEmpty());
}

void TestLegibleSizes::EverySizeIsLegibleOrHasAReason()
{
    const QVector<int> right = LegibleSizes("DejaVu Sans", ":");
    QVERIFY(!right.isEmpty());
    for (int points = 1; points <= kLargestChecked; ++points)
        QCOMPARE(right.contains(points), LegibilityFault("DejaVu Sans", points, ":").isEmpty());
}

// At one bit per pixel its strokes run together at all sizes that are checked.
void TestLegibleSizes::NamesOnlySizesThatAreChecked()
{
    const QString dense = QString::fromUtf8("鬱");
    QVERIFY(LegibleSizes("DejaVu Sans", dense).isEmpty());
    QCOMPARE(NearestLegibleSize("DejaVu Sans", kLargestChecked, dense), 0);
}

QTEST_MAIN(TestLegibleSizes)
#include "test_legible_sizes.moc"
