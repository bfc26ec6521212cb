// What is planned of glyph images agrees with those that are made.
#include "glyph_output.h"

#include "glyph/glyph_plan.h"

#include <QFile>
#include <QImage>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

using PlannedSet = QHash<QString, PlannedImage>;

QStringList SortedKeys(const PlannedSet &images)
{
    QStringList keys = images.keys();
    keys.sort();
    return keys;
}

/// What the files recorded on a node say of the same.
PlannedSet MadeImages(HClockNode &node)
{
    PlannedSet made;
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, node.ClockType())) {
        QFile file(node.GetFirstFile(image.Key()));
        if (file.open(QFile::ReadOnly)) {
            const QByteArray content = file.readAll();
            made.insert(image.Key(), {content, QImage::fromData(content).size()});
        }
    }
    return made;
}

} // namespace

class TestGlyphPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PlanAgreesWithTheFiles_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("topText");
        QTest::newRow("analog") << int(AnalogClock) << 12 << "LED";
        QTest::newRow("digital") << int(DigitalClock) << 12 << "LED";
        QTest::newRow("default size") << int(DigitalClock) << 0 << "LED";
        QTest::newRow("without a title") << int(DigitalClock) << 20 << "";
        QTest::newRow("title as a day") << int(AnalogClock) << 20 << "Monday";
        QTest::newRow("title too wide") << int(DigitalClock) << 12 << QString(10000, 'W');
        QTest::newRow("font too large") << int(DigitalClock) << 40000 << "LED";
        QTest::newRow("picture clock") << int(PictureClock) << 12 << "LED";
    }
    void PlanAgreesWithTheFiles()
    {
        QFETCH(int, clockType);
        QFETCH(int, points);
        QFETCH(QString, topText);
        const GlyphOutput output;
        HClockNode node;
        node.InitData();
        FillNode(node, clockType, 7);
        SetText(node, Attribute::AnalogTopText, topText);
        SetText(node, Attribute::DigitalTopText, topText);
        SetInt(node, Attribute::AnalogTopTextFSize, points);
        SetInt(node, Attribute::DigitalTopTextFSize, points);
        SetInt(node, Attribute::DigitalTimeFSize, points);
        Generate(node);
        const PlannedSet planned = PlannedImages(node);
        const PlannedSet made = MadeImages(node);
        QCOMPARE(SortedKeys(planned), SortedKeys(made));
        for (auto one = made.cbegin(); one != made.cend(); ++one) {
            QCOMPARE(planned[one.key()].size, one->size);
            for (auto other = made.cbegin(); other != made.cend(); ++other)
                QVERIFY2(planned[one.key()].identity != planned[other.key()].identity
                             || one->identity == other->identity,
                         qPrintable(one.key() + other.key()));
        }
    }
};

QTEST_MAIN(TestGlyphPlan)
#include "test_glyph_plan.moc"
