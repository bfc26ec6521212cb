// The parts of a kiosk: the turned picture, the notices, and the guard of the screen.
#include "device_state.h"
#include "notice.h"
#include "screen_guard.h"
#include "screen_mapping.h"

#include <QJsonDocument>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTransform>
#include <QtTest>

using namespace ClockPlayer;

namespace {

constexpr QRgb kNoticePaper = qRgb(0, 0, 64);

// No two pixels alike.
QImage Numbered(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x + 1, y + 1, 77));
    }
    return image;
}

} // namespace

class TestKiosk : public QObject
{
    Q_OBJECT

private slots:
    void TurnedPicture_data();
    void TurnedPicture();
    void TurnedDiodes();
    void NoticesFitTheirPicture_data();
    void NoticesFitTheirPicture();
    void NoticesDiffer();
    void GuardBlanksWithoutSeconds();
    void GuardIsQuietWhileSecondsCome();
    void GuardEndsAtOnce();
    void Framebuffers();
    void StatusReplacesFilesOnly();
};

void TestKiosk::TurnedPicture_data()
{
    QTest::addColumn<int>("turn");
    for (const int turn : {0, 90, 180, 270})
        QTest::addRow("%d degrees", turn) << turn;
}

// Painted pixel by pixel, the wall is the whole picture as Qt turns it.
void TestKiosk::TurnedPicture()
{
    QFETCH(int, turn);
    const QImage screen = Numbered({5, 3});
    const QImage turned = screen.transformed(QTransform().rotate(turn));
    ScreenMapping mapping({turn, 0, {10, -1}});
    mapping.SetScreenSize(screen.size());
    QCOMPARE(mapping.Whole(), QRect(QPoint(10, -1), turned.size()));
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x) {
            const QRect pixel(x, y, 1, 1);
            const QRect place = mapping.WindowRectOf(pixel);
            QCOMPARE(place.size(), QSize(1, 1));
            QCOMPARE(mapping.ScreenRectOf(place), pixel);
            QCOMPARE(mapping.Picture(screen, pixel).pixel(0, 0), screen.pixel(x, y));
            QCOMPARE(turned.pixel(place.topLeft() - QPoint(10, -1)), screen.pixel(x, y));
        }
    }
    const QRect part(1, 1, 3, 2);
    QCOMPARE(mapping.Picture(screen, part).convertToFormat(QImage::Format_RGB32),
             turned.copy(mapping.WindowRectOf(part).translated(-10, 1)));
    QVERIFY(mapping.ScreenRectOf({0, 0, 5, 5}).isEmpty());
}

void TestKiosk::TurnedDiodes()
{
    ScreenMapping mapping({90, 8, {0, 0}});
    mapping.SetScreenSize({5, 3});
    QCOMPARE(mapping.Whole(), QRect(0, 0, 24, 40));
    QCOMPARE(mapping.WindowRectOf({0, 0, 1, 1}), QRect(16, 0, 8, 8));
    QCOMPARE(mapping.ScreenRectOf({17, 3, 1, 1}), QRect(0, 0, 1, 1));
    const QImage diode = mapping.Picture(Numbered({5, 3}), {0, 0, 1, 1});
    QCOMPARE(diode.size(), QSize(8, 8));
    QCOMPARE(diode.pixel(0, 0), qRgb(0, 0, 0));
    QCOMPARE(diode.pixel(4, 4), qRgb(1, 1, 77));
}

void TestKiosk::NoticesFitTheirPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small wall") << QSize(128, 64);
    QTest::newRow("upright") << QSize(240, 640);
    QTest::newRow("full HD") << QSize(1920, 1080);
}

void TestKiosk::NoticesFitTheirPicture()
{
    QFETCH(QSize, size);
    const QImage picture = NoticePicture(Notice::BadProgram, size);
    QCOMPARE(picture.size(), size);
    int ink = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isInk = picture.pixel(x, y) != kNoticePaper;
            const bool isEdge = x == 0 || y == 0 || x == size.width() - 1 || y == size.height() - 1;
            QVERIFY(!isInk || !isEdge);
            ink += isInk ? 1 : 0;
        }
    }
    QVERIFY(ink > 200);
}

void TestKiosk::NoticesDiffer()
{
    const QVector<Notice> all {Notice::NoProgram, Notice::BadProgram, Notice::NoPlugin,
                               Notice::NoGlyphs, Notice::TimeNotSet};
    QVector<QImage> pictures;
    for (const Notice notice : all) {
        const QImage picture = NoticePicture(notice, {128, 64});
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
    }
    QCOMPARE(NoticeCode(Notice::NoProgram), QString("P1"));
    QCOMPARE(NoticeCode(Notice::NoGlyphs), QString("G1"));
    QCOMPARE(NoticeCode(Notice::TimeNotSet), QString("T1"));
    QVERIFY(NoticePicture(Notice::NoProgram, {}).isNull());
}

void TestKiosk::GuardBlanksWithoutSeconds()
{
    QSemaphore blanked;
    ScreenGuard guard([&blanked] { blanked.release(); }, 50);
    QVERIFY(!blanked.tryAcquire(1, 200)); // before the first second there is nothing to blank
    guard.Feed();
    QVERIFY(blanked.tryAcquire(1, 10000));
    bool isTaken = false; // it may come a moment after the call
    QTRY_VERIFY(isTaken = isTaken || guard.TakeBlanked());
    QVERIFY(!guard.TakeBlanked());
    QVERIFY(!blanked.tryAcquire(1, 200)); // once is enough
    guard.Feed();
    QVERIFY(blanked.tryAcquire(1, 10000));
}

void TestKiosk::GuardIsQuietWhileSecondsCome()
{
    QSemaphore blanked;
    ScreenGuard guard([&blanked] { blanked.release(); }, 20000);
    for (int i = 0; i < 5; ++i) {
        guard.Feed();
        QVERIFY(!blanked.tryAcquire(1, 20));
    }
    QVERIFY(!guard.TakeBlanked());
}

void TestKiosk::GuardEndsAtOnce()
{
    QElapsedTimer timer;
    timer.start();
    {
        ScreenGuard guard([] {}, 60000);
        guard.Feed();
    }
    QVERIFY(timer.elapsed() < 30000);
}

void TestKiosk::Framebuffers()
{
    QCOMPARE(FramebufferOf("linuxfb"), QString("/dev/fb0"));
    QCOMPARE(FramebufferOf("linuxfb:fb=/dev/fb1:size=64x32"), QString("/dev/fb1"));
    QCOMPARE(FramebufferOf("xcb"), QString());
    QCOMPARE(FramebufferOf(""), QString());
    QVERIFY(!BlankFramebuffer("/dev/null"));
    QVERIFY(!BlankFramebuffer("/dev/there/is/none"));
}

void TestKiosk::StatusReplacesFilesOnly()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath("status");
    const QString link = directory.filePath("link");
    QVERIFY(!WriteStatus(file, {{"frames", 7}}));
    QVERIFY(!WriteStatus(file, {{"frames", 8}}));
    QVERIFY(QFile::link(file, link));
    QCOMPARE(WriteStatus(link, {{"frames", 9}})->text,
             link + ": cannot be written: is a symbolic link");
    QCOMPARE(WriteStatus(directory.path(), {})->text,
             directory.path() + ": cannot be written: is not a regular file");
    QFile written(file);
    QVERIFY(written.open(QFile::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(written.readAll()).object(), QJsonObject({{"frames", 8}}));
}

QTEST_GUILESS_MAIN(TestKiosk)
#include "test_kiosk.moc"
