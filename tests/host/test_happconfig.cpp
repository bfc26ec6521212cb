// The application's configuration: directories, colours and the device's time settings.
#include "happconfig.h"
#include "lw_types.h"

#include <QtTest>

using Lw::HAppConfig;

class TestHAppConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void InstanceIsOne();
    void DirectoryIsMadeAndGetsItsSeparator_data();
    void DirectoryIsMadeAndGetsItsSeparator();
    void DirectoriesAreTwo();
    void ColourOfAnInt_data();
    void ColourOfAnInt();
    void IntOfAColour_data();
    void IntOfAColour();
    void IntOfAColourName_data();
    void IntOfAColourName();
    void ColourIntsThereAndBack();
    void TimeSettings();
    void ImageFormat();
    void BooleanWords_data();
    void BooleanWords();
};

void TestHAppConfig::InstanceIsOne()
{
    QVERIFY(HAppConfig::instance());
    QCOMPARE(HAppConfig::instance(), HAppConfig::instance());
}

void TestHAppConfig::DirectoryIsMadeAndGetsItsSeparator_data()
{
    QTest::addColumn<QString>("given");
    QTest::newRow("without a separator") << "/one/two";
    QTest::newRow("with one") << "/three/four/";
}

void TestHAppConfig::DirectoryIsMadeAndGetsItsSeparator()
{
    QFETCH(QString, given);
    QTemporaryDir root;
    HAppConfig::SetClockOutputPath(root.path() + given);
    const QString set = HAppConfig::ClockOutputPath();
    QVERIFY(set.startsWith(root.path() + given));
    QVERIFY(set.endsWith('/'));
    QVERIFY(!set.endsWith("//"));
    QVERIFY(QFileInfo(set).isDir());
}

void TestHAppConfig::DirectoriesAreTwo()
{
    QTemporaryDir root;
    HAppConfig::SetClockOutputPath(root.path() + "/a");
    HAppConfig::SetTempProgramImagePath(root.path() + "/b");
    QCOMPARE(HAppConfig::ClockOutputPath(), root.path() + "/a/");
    QCOMPARE(HAppConfig::TempProgramImagePath(), root.path() + "/b/");
    QVERIFY(QFileInfo(root.path() + "/b").isDir());
}

void TestHAppConfig::ColourOfAnInt_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("red in the low byte") << 0x0000ff << QColor(255, 0, 0);
    QTest::newRow("green") << 0x00ff00 << QColor(0, 255, 0);
    QTest::newRow("blue") << 0xff0000 << QColor(0, 0, 255);
    QTest::newRow("key colour") << 0x10201 << QColor(1, 2, 1);
    QTest::newRow("three parts") << 0x332211 << QColor(0x11, 0x22, 0x33);
    QTest::newRow("top byte ignored") << 0x7f0000ff << QColor(255, 0, 0);
    QTest::newRow("negative") << -1 << QColor(255, 255, 255);
}

void TestHAppConfig::ColourOfAnInt()
{
    QFETCH(int, value);
    QFETCH(QColor, colour);
    QCOMPARE(HAppConfig::IntToColor(value), colour);
    QCOMPARE(HAppConfig::IntToColor(value).alpha(), 255);
}

void TestHAppConfig::IntOfAColour_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("value");
    QTest::newRow("parts") << QColor(0x11, 0x22, 0x33) << 0x332211;
    QTest::newRow("alpha is dropped") << QColor(0x11, 0x22, 0x33, 0x44) << 0x332211;
    QTest::newRow("transparent") << QColor(Qt::transparent) << 0;
    QTest::newRow("another model") << QColor::fromHsv(120, 255, 255) << 0x00ff00;
    QTest::newRow("invalid") << QColor() << 0;
}

void TestHAppConfig::IntOfAColour()
{
    QFETCH(QColor, colour);
    QTEST(HAppConfig::ColorToInt(colour), "value");
}

void TestHAppConfig::IntOfAColourName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::newRow("#RGB") << "#f80" << 0x0088ff;
    QTest::newRow("#RRGGBB") << "#112233" << 0x332211;
    QTest::newRow("#AARRGGBB, alpha first") << "#ff112233" << 0x332211;
    QTest::newRow("#RRRGGGBBB") << "#110220330" << 0x332211;
    QTest::newRow("#RRRRGGGGBBBB") << "#110022003300" << 0x332211;
    QTest::newRow("green is the dark one") << "green" << 0x008000;
    QTest::newRow("lime") << "lime" << 0x00ff00;
    QTest::newRow("any case") << "RED" << 0x0000ff;
    QTest::newRow("blank inside a name") << "light blue" << 0xe6d8ad;
    QTest::newRow("blank after digits") << "#f00 " << 0;
    QTest::newRow("no such name") << "reddish" << 0;
    QTest::newRow("wrong digit") << "#12345g" << 0;
    QTest::newRow("wrong length") << "#12345" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("long") << QString(70000, 'f') << 0;
}

void TestHAppConfig::IntOfAColourName()
{
    QFETCH(QString, name);
    QTEST(HAppConfig::NameToIntColor(name), "value");
}

void TestHAppConfig::ColourIntsThereAndBack()
{
    for (int value = 0; value <= 0xffffff; value += 0x10101 / 3)
        QCOMPARE(HAppConfig::ColorToInt(HAppConfig::IntToColor(value)), value);
}

void TestHAppConfig::TimeSettings()
{
    HAppConfig::SetTimeInfo(-18000, true);
    int offset = 0;
    bool daylightSaving = false;
    HAppConfig::instance()->GetTimeInfo(offset, daylightSaving);
    QCOMPARE(offset, -18000);
    QVERIFY(daylightSaving);
    HAppConfig::SetTimeInfo(28800, false);
    HAppConfig::instance()->GetTimeInfo(offset, daylightSaving);
    QCOMPARE(offset, 28800);
    QVERIFY(!daylightSaving);
}

void TestHAppConfig::ImageFormat()
{
    HAppConfig::SetRenderImageFormat(4);
    QCOMPARE(HAppConfig::instance()->RenderImageFormat(), 4);
    HAppConfig::SetRenderImageFormat(5);
    QCOMPARE(HAppConfig::instance()->RenderImageFormat(), 5);
}

void TestHAppConfig::BooleanWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("true") << "true" << 1;
    QTest::newRow("false") << "false" << 0;
    QTest::newRow("number") << "1" << 0;
    QTest::newRow("capitals") << "TRUE" << 0;
    QTest::newRow("blank") << " true" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TestHAppConfig::BooleanWords()
{
    QFETCH(QString, text);
    QTEST(Lw::BooleanToInt(text), "value");
}

QTEST_GUILESS_MAIN(TestHAppConfig)
#include "test_happconfig.moc"
