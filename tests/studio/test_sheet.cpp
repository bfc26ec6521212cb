// The contents of the approval sheet.
#include "studio_under_test.h"

#include "files/sheet.h"

#include "catalogues.h"

using namespace ClockStudio;

namespace {

/// In Berlin, five minutes ahead, without a date; in UTC, with a Persian date.
const QByteArray kTwo =
    "<program width=\"128\" height=\"64\">\n"
    "<area x=\"0\" y=\"0\" width=\"64\" height=\"32\">"
    "<clock type=\"digital\" timezone=\"+01:00\"><title display=\"false\"/>"
    "<date display=\"false\" color=\"#123456\"/><week display=\"false\"/>"
    "<time fontSize=\"9\" color=\"#abcdef\"/>"
    "<attribute key=\"UseDaylightSavingTime\" value=\"1\"/>"
    "<attribute key=\"DaylightSavingTimeStart\" value=\"3.Last.7.02:00:00\"/>"
    "<attribute key=\"DaylightSavingTimeEnd\" value=\"10.Last.7.02:00:00\"/>"
    "<attribute key=\"TimeAdjust\" value=\"00A05B00\"/></clock></area>\n"
    "<area x=\"64\" y=\"32\" width=\"64\" height=\"32\">"
    "<clock type=\"dial\" timezone=\"+00:00\"><title display=\"false\"/>"
    "<date display=\"true\" format=\"7\"/><week display=\"false\"/></clock></area>\n"
    "</program>\n";

} // namespace

class TestSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ClockCatalogues::Install("en")); }
    void SaysWhatIsShown();
    void TextsAreNotMarkup();
    void PictureFitsOnAPage_data();
    void PictureFitsOnAPage();
};

void TestSheet::SaysWhatIsShown()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    const QString all = SheetHtml("wall", studio.wall, {"a finding"});
    QVERIFY(all.contains("128 × 64"));
    QVERIFY(all.contains("a finding"));
    const QString first = all.section("<h3>", 2, 2);
    const QString second = all.section("<h3>", 3, 3);
    for (const char *const shown : {"Clock 1: digital", "0, 0", "+01:00", "3.Last.7.02:00:00",
                                    "00:05:00 ahead", "9 pt", "#abcdef"})
        QVERIFY2(first.contains(QLatin1String(shown)), shown);
    for (const char *const hidden : {"#123456", "Date format", "Zone choice", "00A05B00"})
        QVERIFY2(!first.contains(QLatin1String(hidden)), hidden);
    for (const char *const shown : {"Clock 2: analog", "64, 32", "+00:00", "Date format"})
        QVERIFY2(second.contains(QLatin1String(shown)), shown);
    for (const char *const hidden : {"Last", "ahead", "Weekday"})
        QVERIFY2(!second.contains(QLatin1String(hidden)), hidden);
}

void TestSheet::TextsAreNotMarkup()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    const QString all = SheetHtml("100%3<b>", studio.wall, {"1 < 2"});
    QVERIFY(all.contains("100%3&lt;b&gt;"));
    QVERIFY(all.contains("1 &lt; 2"));
}

void TestSheet::PictureFitsOnAPage_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::newRow("tall") << QByteArray("width=\"64\" height=\"960\"");
    QTest::newRow("wide") << QByteArray("width=\"960\" height=\"64\"");
}

// One page is enough for the picture and a wall without clocks.
void TestSheet::PictureFitsOnAPage()
{
    QFETCH(QByteArray, size);
    StudioUnderTest studio("<program " + size + "/>\n");
    const QByteArray pdf = SheetPdf("wall", studio.wall, {});
    QVERIFY(pdf.startsWith("%PDF"));
    QCOMPARE(pdf.count("/Type /Page\n"), 1);
}

QTEST_MAIN(TestSheet)
#include "test_sheet.moc"
