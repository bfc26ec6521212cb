// Text sizes that the panel of settings sets by itself: so that a text that is shown is not cut,
// and so that texts fill the area and can be read. And what the panel's small pictures tell apart.
#include "studio_under_test.h"

#include "editing/value_edits.h"
#include "properties/clock_pictures.h"
#include "properties/property_panel.h"

#include "catalogues.h"
#include "clock_node.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>

using namespace ClockStudio;
using namespace Lw::HNodeClock;

namespace {

/// A digital clock of 96 by 64 pixels with a label of 6 points, a hidden date of 16, and a time.
QByteArray Clock(const char *showsLabel, int time)
{
    return QStringLiteral(
               "<program width=\"96\" height=\"64\">\n<area x=\"0\" y=\"0\" width=\"96\" "
               "height=\"64\">\n<clock type=\"digital\" timezone=\"+00:00\">\n"
               "<title display=\"%1\" value=\"Gate\" fontName=\"DejaVu Sans\" fontSize=\"6\"/>\n"
               "<date display=\"false\" format=\"2\" fontName=\"DejaVu Sans\" fontSize=\"16\"/>\n"
               "<week display=\"false\"/>\n"
               "<time format=\"1\" fontName=\"DejaVu Sans\" fontSize=\"%2\"/>\n"
               "</clock></area></program>\n")
        .arg(QLatin1String(showsLabel))
        .arg(time)
        .toUtf8();
}

struct SizesUnderTest
{
    StudioUnderTest studio;
    PropertyPanel panel {studio.editor};

    explicit SizesUnderTest(const QByteArray &program) : studio(program)
    {
        studio.WaitForClocks();
        studio.editor.Select({0});
        panel.resize(360, 700);
        panel.show();
    }

    void Show(Attribute attribute)
    {
        auto *const section = panel.findChild<QWidget *>(Key(attribute));
        QTest::mouseClick(section->findChild<QCheckBox *>(), Qt::LeftButton);
        studio.WaitForClocks();
    }
    int Number(Attribute attribute) const
    {
        return studio.wall.Clock(0)->GetAttributeToInt(Key(attribute));
    }
};

/// The width of a text's ink in pixels.
int InkWidth(const QString &text, int points)
{
    return QFontMetrics(QFont("DejaVu Sans", points)).tightBoundingRect(text).width();
}

/// That of the widest date of a year. Clocks lose up to a pixel of it at each edge of a piece.
int WidestDate(int points)
{
    int widest = 0;
    for (int day = 0; day < 366; ++day)
        widest =
            qMax(widest, InkWidth(QDate(2026, 1, 1).addDays(day).toString("dd/MM/yyyy"), points));
    return widest;
}

} // namespace

class TestTextSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ClockCatalogues::Install("en")); }
    void ShownTextIsNotCut();
    void ShownTextThatFitsKeepsItsSize();
    void FittedTextsCanBeRead();
    void ReturnEndsTyping();
    void PicturesDiffer_data();
    void PicturesDiffer();
};

void TestTextSizes::ShownTextIsNotCut()
{
    SizesUnderTest test(Clock("false", 12));
    const QByteArray bytes = *test.studio.document.Bytes();
    QVERIFY(WidestDate(16) > 96);
    test.Show(Attribute::Digital_Date_d);
    QCOMPARE(test.Number(Attribute::Digital_Date_d), 1);
    const int points = test.Number(Attribute::DigitalDateFSize);
    QVERIFY2(WidestDate(points) <= 98, qPrintable(QString::number(points)));
    QVERIFY2(WidestDate(points + 2) > 96, qPrintable(QString::number(points)));
    QCOMPARE(test.Number(Attribute::DigitalTimeFSize), 12);
    test.studio.document.History().undo(); // as one step
    QCOMPARE(*test.studio.document.Bytes(), bytes);
}

void TestTextSizes::ShownTextThatFitsKeepsItsSize()
{
    SizesUnderTest test(Clock("false", 12));
    test.Show(Attribute::Digital_TopTexy_d);
    QCOMPARE(test.Number(Attribute::Digital_TopTexy_d), 1);
    QCOMPARE(test.Number(Attribute::DigitalTopTextFSize), 6);
    QCOMPARE(test.Number(Attribute::DigitalTimeFSize), 12);
}

void TestTextSizes::FittedTextsCanBeRead()
{
    SizesUnderTest test(Clock("true", 60)); // more than twice what fits
    QVERIFY(InkWidth("00:00", 30) > 96);
    test.panel.FitSizes();
    test.studio.WaitForClocks();
    QCOMPARE(test.Number(Attribute::DigitalTopTextFSize), 6);
    const int points = test.Number(Attribute::DigitalTimeFSize);
    QVERIFY2(points > 12 && InkWidth("00:00", points) <= 96, qPrintable(QString::number(points)));
}

/// So that the wall can have the keys.
void TestTextSizes::ReturnEndsTyping()
{
    SizesUnderTest test(Clock("true", 12));
    QSignalSpy finished(&test.panel, &PropertyPanel::Finished);
    auto *const size =
        test.panel.findChild<QSpinBox *>(Key(Attribute::DigitalTimeFSize) + "Control");
    size->setFocus();
    size->selectAll();
    QTest::keyClicks(size, "14");
    QTest::keyClick(size, Qt::Key_Return);
    QTRY_COMPARE(finished.count(), 1);
    test.studio.WaitForClocks();
    QCOMPARE(test.Number(Attribute::DigitalTimeFSize), 14);
    auto *const text =
        test.panel.findChild<QLineEdit *>(Key(Attribute::DigitalTopText) + "Control");
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Return);
    QTRY_COMPARE(finished.count(), 2);
}

void TestTextSizes::PicturesDiffer_data()
{
    QTest::addColumn<int>("attribute");
    QTest::newRow("hours of the day") << int(Attribute::DigitalMode);
    QTest::newRow("hour hand") << int(Attribute::HourRectType);
    QTest::newRow("minute hand") << int(Attribute::MinuteRectType);
    QTest::newRow("second hand") << int(Attribute::SecondRectType);
    QTest::newRow("minute marks") << int(Attribute::MinuteScaleType);
    QTest::newRow("hour marks") << int(Attribute::HourScaleType);
}

void TestTextSizes::PicturesDiffer()
{
    QFETCH(int, attribute);
    const LiveWall wall; // which has the files of the pictures
    const auto shown = static_cast<Attribute>(attribute);
    QVector<QImage> pictures;
    for (int code = RowOf(shown).range.first; code <= RowOf(shown).range.last; ++code) {
        const QImage picture = CodePicture(shown, code).toImage();
        QVERIFY(!picture.isNull());
        QVERIFY2(!pictures.contains(picture), qPrintable(QString::number(code)));
        pictures.append(picture);
    }
    QVERIFY(pictures.size() > 1);
}

QTEST_MAIN(TestTextSizes)
#include "test_text_sizes.moc"
