// The picture clock. Its pictures are beside the executable's folder, so the program runs a copy
// of itself in a folder of its own, and that copy makes the pictures it needs.
#include "chosen_time.h"
#include "clock_under_test.h"
#include "messages.h"
#include "odd_areas.h"
#include "opened_files.h"
#include "plain_clocks.h"
#include "start_program.h"

#include "clock_render.h"
#include "display/draw_display_image.h"

#include "pictureplayer.h"

#include <QGuiApplication>
#include <QPainter>
#include <QtTest>

using namespace Lw::HNodeClock;

namespace {

constexpr char kChildMark[] = "CLOCK_PICTURE_TEST_CHILD";
constexpr int kPicture = 2;
constexpr unsigned int kId = 41;
constexpr QRgb kKeyColour = 0xff010201;

QString Folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../image/ClockType/");
}

QImage Plain(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

// With holes and translucent parts, and no symmetry.
QImage Fancy(const QSize &size, const QColor &colour)
{
    QImage image = Plain(size, Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0, colour);
    gradient.setColorAt(1, QColor(255, 255, 255, 60));
    painter.setBrush(gradient);
    painter.drawEllipse(image.rect());
    painter.drawRect(0, 0, size.width() / 3, size.height());
    return image;
}

void Save(const QImage &image, const char *name)
{
    QVERIFY(image.save(Folder() + QLatin1String(name), "PNG"));
}

void SaveHands()
{
    Save(Plain(QSize(24, 70), Qt::red), "hour.png");
    Save(Plain(QSize(20, 90), Qt::green), "minute.png");
    Save(Plain(QSize(10, 110), Qt::blue), "second.png");
    Save(Plain(QSize(20, 20), Qt::white), "center.png");
}

void SaveFancyPictures()
{
    Save(Fancy(QSize(48, 140), Qt::red), "hour.png");
    Save(Fancy(QSize(61, 33), Qt::green), "minute.png");
    Save(Fancy(QSize(7, 300), Qt::blue), "second.png");
    Save(Fancy(QSize(31, 31), Qt::white), "center.png");
    Save(Fancy(QSize(310, 290), Qt::darkYellow), "picbutton1.png");
}

} // namespace

class TestPictureClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void EqualsThePlainWay_data();
    void EqualsThePlainWay();
    void ChangingSettings();
    void ADigitalClockBecomesOne();
    void HandsPointAtTheTime();
    void DialIsCentred_data();
    void DialIsCentred();
    void HandsFollowTheSmallerSide();
    void StyleChangesAtTheNextFrame();
    void PicturesAreKept();
    void EachPictureIsReadOnce_data();
    void EachPictureIsReadOnce();
    void MissingDialShowsHands();
    void MissingHandsShowDial();
    void OddFiles_data();
    void OddFiles();
    void OddStyleNumbers_data();
    void OddStyleNumbers();
    void OddAreas_data() { AddOddAreas(); }
    void OddAreas();
    void SizeChangedBetweenCalls();
    void AnalogDialIsRedrawnAfterwards();
    void NodeGone();
};

void TestPictureClock::init()
{
    QDir(Folder()).removeRecursively();
    QVERIFY(QDir().mkpath(Folder()));
    ChosenTime::Set("2024-03-05T09:30:30");
}

void TestPictureClock::cleanup()
{
    clock_set_time_source(nullptr);
    Lw::HAppConfig::SetRenderImageFormat(5);
}

void TestPictureClock::EqualsThePlainWay_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("held");
    const auto noon = QStringLiteral("2024-03-05T11:58:55");
    const auto midnight = QStringLiteral("2024-03-05T23:58:55");
    QTest::newRow("noon") << QSize(128, 128) << 5 << noon << 1;
    QTest::newRow("midnight, other image format") << QSize(160, 160) << 4 << midnight << 1;
    QTest::newRow("wide") << QSize(200, 64) << 5 << noon << 1;
    QTest::newRow("high, odd") << QSize(63, 131) << 5 << noon << 1;
    QTest::newRow("larger than the face") << QSize(333, 331) << 5 << midnight << 1;
    QTest::newRow("none held") << QSize(64, 64) << 5 << noon << 0;
    QTest::newRow("two held") << QSize(64, 64) << 5 << noon << 2;
    QTest::newRow("one pixel") << QSize(1, 1) << 5 << noon << 1;
    QTest::newRow("a line") << QSize(3000, 3) << 5 << noon << 1;
}

void TestPictureClock::EqualsThePlainWay()
{
    QFETCH(QSize, size);
    QFETCH(int, format);
    QFETCH(QString, from);
    QFETCH(int, held);
    SaveFancyPictures();
    ChosenTime::Set(from);
    ClockUnderTest clock(kPicture, size);
    Lw::HAppConfig::SetRenderImageFormat(format);
    DrawDisplayImage drawer(&clock.node);
    PlainClock plain(&clock.node);
    const CollectedMessages messages;
    QList<QImage> shown;
    for (int i = 0; i < 150; ++i, ChosenTime::Advance(1000)) {
        QImage frame = drawer.DrawClockDisplayImage();
        QVERIFY2(frame == plain.Frame(), qPrintable(QStringLiteral("second %1").arg(i)));
        shown.append(frame);
        frame = QImage();
        while (shown.size() > held)
            shown.removeFirst();
    }
    QCOMPARE(messages.Lines(), QStringList());
}

void TestPictureClock::ChangingSettings()
{
    SaveFancyPictures();
    Save(Fancy(QSize(20, 30), Qt::cyan), "picbutton2.png");
    ClockUnderTest clock(kPicture, QSize(100, 90));
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    PlainClock plain(&clock.node);
    QImage held;
    for (int i = 0; i < 60; ++i, ChosenTime::Advance(1000)) {
        switch (i) {
        case 10:
            clock.Set("PictrueClockType", 2);
            break;
        case 20:
            clock.node.SetSize(QSize(90, 100));
            break;
        case 25:
            clock.node.SetSize(QSize(100, 90));
            break;
        case 30:
            clock.Set("ClockType", 0);
            break;
        case 35:
            clock.Set("ClockType", 2);
            break;
        case 40:
            clock.Set("PictrueClockType", 3);
            break; // has no picture
        case 50:
            clock.Set("PictrueClockType", 1);
            break;
        default:
            break;
        }
        held = drawer.DrawClockDisplayImage();
        QVERIFY2(held == plain.Frame(), qPrintable(QStringLiteral("second %1").arg(i)));
    }
}

// 09:30:30: the hour hand at 285 degrees, the minute hand at 183, the second hand at 180.
// The renderer was created for a digital clock.
void TestPictureClock::ADigitalClockBecomesOne()
{
    SaveFancyPictures();
    ClockUnderTest clock(DigitalClock, QSize(100, 90));
    clock.MakeGlyphs();
    HClockRender render(&clock.node);
    render.Start(kId, 0);
    clock.Set("ClockType", kPicture);
    render.PlayNext();
    PlainClock plain(&clock.node);
    QCOMPARE(Lw::pictureplayer::ForIdentifier(kId)->LastImage(), plain.Frame());
}

void TestPictureClock::HandsPointAtTheTime()
{
    SaveHands();
    ClockUnderTest clock(kPicture, QSize(300, 300));
    const QImage frame = DrawDisplayImage(&clock.node).DrawClockDisplayImage();
    QCOMPARE(frame.pixelColor(102, 137), QColor(Qt::red));   // 50 units out
    QCOMPARE(frame.pixelColor(89, 133), QColor(Qt::red));    // 63 units
    QCOMPARE(frame.pixel(83, 132), kKeyColour);              // 69 units: beyond its tip
    QCOMPARE(frame.pixelColor(137, 224), QColor(Qt::green)); // 75 units, left of the second hand
    QCOMPARE(frame.pixel(137, 236), kKeyColour);
    QCOMPARE(frame.pixelColor(150, 258), QColor(Qt::blue)); // 108 units
    QCOMPARE(frame.pixel(150, 262), kKeyColour);
    QCOMPARE(frame.pixelColor(150, 150), QColor(Qt::white));
    QCOMPARE(frame.pixelColor(141, 141), QColor(Qt::white));
    QVERIFY(frame.pixelColor(139, 139) != QColor(Qt::white));
}

void TestPictureClock::DialIsCentred_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("dial");
    QTest::newRow("wide") << QSize(100, 60) << QRect(20, 0, 60, 60);
    QTest::newRow("high") << QSize(60, 101) << QRect(0, 20, 60, 60);
    QTest::newRow("odd rest") << QSize(64, 33) << QRect(15, 0, 33, 33);
}

void TestPictureClock::DialIsCentred()
{
    QFETCH(QSize, size);
    QFETCH(QRect, dial);
    Save(Plain(QSize(300, 100), Qt::yellow), "picbutton1.png"); // made square
    ClockUnderTest clock(kPicture, size);
    const QImage frame = DrawDisplayImage(&clock.node).DrawClockDisplayImage();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            QCOMPARE(frame.pixel(x, y) != kKeyColour, dial.contains(x, y));
    }
}

void TestPictureClock::HandsFollowTheSmallerSide()
{
    SaveHands();
    ClockUnderTest clock(kPicture, QSize(150, 600));
    const QImage frame = DrawDisplayImage(&clock.node).DrawClockDisplayImage();
    QCOMPARE(frame.pixelColor(75, 300 + 53), QColor(Qt::blue)); // 106 units at half the size
    QCOMPARE(frame.pixel(75, 300 + 57), kKeyColour);
}

void TestPictureClock::StyleChangesAtTheNextFrame()
{
    Save(Plain(QSize(10, 10), Qt::yellow), "picbutton1.png");
    Save(Plain(QSize(10, 10), Qt::magenta), "picbutton12.png");
    ClockUnderTest clock(kPicture, QSize(40, 40));
    DrawDisplayImage drawer(&clock.node);
    drawer.InitClockTypePixmap();
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(5, 5), QColor(Qt::yellow));
    clock.Set("PictrueClockType", 12);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(5, 5), QColor(Qt::magenta));
}

void TestPictureClock::PicturesAreKept()
{
    SaveHands();
    Save(Plain(QSize(10, 10), Qt::yellow), "picbutton1.png");
    ClockUnderTest clock(kPicture, QSize(100, 100));
    DrawDisplayImage drawer(&clock.node);
    const QImage first = drawer.DrawClockDisplayImage();
    QVERIFY(QDir(Folder()).removeRecursively());
    QCOMPARE(drawer.DrawClockDisplayImage(), first);
    QCOMPARE(drawer.DrawClockDisplayImage(), first);
}

void TestPictureClock::EachPictureIsReadOnce_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("files");
    const QStringList none;
    QTest::newRow("analog") << int(AnalogClock) << none;
    QTest::newRow("digital") << int(DigitalClock) << none;
    QTest::newRow("picture") << kPicture
                             << QStringList {"center.png", "hour.png", "minute.png",
                                             "picbutton1.png", "second.png"};
}

void TestPictureClock::EachPictureIsReadOnce()
{
    QFETCH(int, type);
    SaveFancyPictures();
    OpenedFiles opened(Folder());
    QVERIFY(opened.IsWatching());
    ClockUnderTest clock(type, QSize(100, 90));
    HClockRender render(&clock.node);
    render.Start(kId, 0);
    QTEST(opened.Take(), "files");
    render.PlayNext();
    QCOMPARE(opened.Take(), QStringList());
}

void TestPictureClock::MissingDialShowsHands()
{
    SaveHands();
    ClockUnderTest clock(kPicture, QSize(300, 300));
    clock.Set("PictrueClockType", 7);
    const QImage frame = DrawDisplayImage(&clock.node).DrawClockDisplayImage();
    QCOMPARE(frame.pixel(10, 10), kKeyColour);
    QCOMPARE(frame.pixelColor(150, 258), QColor(Qt::blue));
}

void TestPictureClock::MissingHandsShowDial()
{
    Save(Plain(QSize(10, 10), Qt::yellow), "picbutton1.png");
    ClockUnderTest clock(kPicture, QSize(30, 30));
    DrawDisplayImage drawer(&clock.node);
    const CollectedMessages messages;
    drawer.InitClockTypePixmap();
    QImage frame;
    for (int i = 0; i < 3; ++i, ChosenTime::Advance(1000))
        frame = drawer.DrawClockDisplayImage();
    QCOMPARE(frame, Plain(QSize(30, 30), Qt::yellow));
    QCOMPARE(messages.Lines(), QStringList());
}

void TestPictureClock::OddFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture at all");
    // A sound file that promises 60000 by 60000 pixels.
    QTest::newRow("enormous") << QByteArray::fromHex(
        "89504e470d0a1a0a0000000d494844520000ea600000ea60080600000080d275420000000b494441"
        "54789c63604005000010000139bd8f650000000049454e44ae426082");
    QTest::newRow("header only") << QByteArray::fromHex("89504e470d0a1a0a");
}

void TestPictureClock::OddFiles()
{
    QFETCH(QByteArray, content);
    for (const char *name :
         {"hour.png", "minute.png", "second.png", "center.png", "picbutton1.png"}) {
        QFile file(Folder() + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    ClockUnderTest clock(kPicture, QSize(30, 20));
    DrawDisplayImage drawer(&clock.node);
    QCOMPARE(drawer.DrawClockDisplayImage(), Plain(QSize(30, 20), QColor(1, 2, 1)));
    const CollectedMessages messages;
    ChosenTime::Advance(1000);
    QCOMPARE(drawer.DrawClockDisplayImage(), Plain(QSize(30, 20), QColor(1, 2, 1)));
    QCOMPARE(messages.Lines(), QStringList());
}

void TestPictureClock::OddStyleNumbers_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("negative") << QStringLiteral("-1") << QByteArray("picbutton-1.png");
    QTest::newRow("zero") << QStringLiteral("0") << QByteArray("picbutton0.png");
    QTest::newRow("a path is no number")
        << QStringLiteral("../../x") << QByteArray("picbutton0.png");
    QTest::newRow("leading zeros") << QStringLiteral("007") << QByteArray("picbutton7.png");
}

void TestPictureClock::OddStyleNumbers()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, file);
    Save(Plain(QSize(10, 10), Qt::yellow), file.constData());
    ClockUnderTest clock(kPicture, QSize(20, 20));
    clock.Set("PictrueClockType", type);
    QCOMPARE(DrawDisplayImage(&clock.node).DrawClockDisplayImage(),
             Plain(QSize(20, 20), Qt::yellow));
}

void TestPictureClock::OddAreas()
{
    QFETCH(QSize, size);
    QFETCH(bool, drawn);
    SaveFancyPictures();
    ClockUnderTest clock(kPicture, size);
    DrawDisplayImage drawer(&clock.node);
    const CollectedMessages messages;
    drawer.InitClockTypePixmap();
    CheckThreeFrames(drawer, size, drawn);
    QCOMPARE(messages.Lines(), QStringList());
}

// The width is read at the start of a frame, the height while drawing: when they belong to two
// sizes nothing is copied beyond an image.
void TestPictureClock::SizeChangedBetweenCalls()
{
    SaveFancyPictures();
    ClockUnderTest clock(kPicture, QSize(40, 40));
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    clock.node.SetSize(QSize(90, 70));
    drawer.DrawPixmapClock();
    PlainClock plain(&clock.node);
    QCOMPARE(drawer.DrawClockDisplayImage(), plain.Frame());
}

// Loading pictures forgets the half of the day that the analog dial was drawn in, so its new style
// shows at once.
void TestPictureClock::AnalogDialIsRedrawnAfterwards()
{
    ClockUnderTest clock(AnalogClock, QSize(100, 100));
    clock.Set("HourScaleColor", 0x0000ff);
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    const QPoint twelve(50, 5);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::red));
    clock.Set("HourScaleColor", 0xffffff);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::red));
    clock.Set("ClockType", kPicture);
    drawer.DrawClockDisplayImage();
    clock.Set("ClockType", 0);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::white));
}

void TestPictureClock::NodeGone()
{
    SaveFancyPictures();
    QScopedPointer<ClockUnderTest> clock(new ClockUnderTest(kPicture, QSize(40, 40)));
    DrawDisplayImage drawer(&clock->node);
    const QImage frame = drawer.DrawClockDisplayImage();
    clock.reset();
    drawer.InitClockTypePixmap();
    drawer.DrawPixmapClock();
    QCOMPARE(drawer.DrawClockDisplayImage(), frame);
}

namespace {

int RunCopy(const QStringList &arguments)
{
    QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("bin/test_picture_clock"));
    if (!QDir().mkpath(folder.filePath(QStringLiteral("bin")))
        || !QFile::copy(QCoreApplication::applicationFilePath(), copy))
        qFatal("cannot copy the test program");
    qputenv(kChildMark, "1");
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    StartProgram(process, copy, arguments.mid(1));
    if (!process.waitForFinished(240000))
        qFatal("the copy of the test program did not finish");
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (!qEnvironmentVariableIsSet(kChildMark))
        return RunCopy(application.arguments());
    TestPictureClock test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_picture_clock.moc"
