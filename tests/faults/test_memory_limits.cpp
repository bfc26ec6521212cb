// Memory that runs out while clocks play. A picture that cannot be made is left out; a frame that
// cannot be made is a null image; once there is memory again the clock shows what it would have
// shown. Nothing crashes, and nothing larger than the bounds is ever asked for.
#include "clock_render.h"
#include "compose/draw_clock_classify_image.h"
#include "compose/glyph_strip.h"
#include "compose/picture_file.h"
#include "failing_memory.h"
#include "fault_support.h"
#include "glyph/glyph_drawing.h"
#include "messages.h"
#include "process_run.h"

#include "pictureplayer.h"

#include <sys/resource.h>
#include <unistd.h>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kNoon = 1795262399000; // 2026-11-21 11:59:59 UTC
constexpr unsigned int kId = 41;

// What is as large as the area below: frames, dials, backgrounds, the dial picture when it is
// scaled. The pictures of the files are smaller: one that fails to be read is taken for broken.
constexpr QSize kArea(400, 320);
constexpr std::size_t kLarge = 400000;

/// The program's address space grows no further than so many bytes while it lives.
class AddressLimit
{
public:
    explicit AddressLimit(rlim_t more)
    {
        getrlimit(RLIMIT_AS, &m_old);
        rlimit limited = m_old;
        limited.rlim_cur = Used() + more;
        setrlimit(RLIMIT_AS, &limited);
    }
    ~AddressLimit() { setrlimit(RLIMIT_AS, &m_old); }
    Q_DISABLE_COPY(AddressLimit)

private:
    static rlim_t Used()
    {
        QFile file(QStringLiteral("/proc/self/statm"));
        return file.open(QFile::ReadOnly) ? file.readAll().split(' ').first().toULongLong()
                * static_cast<rlim_t>(sysconf(_SC_PAGESIZE))
                                          : 0;
    }
    rlimit m_old;
};

} // namespace

class TestMemoryLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { ChosenTime::Set("2026-11-21T11:59:59"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void EveryRequestFailsOnce_data() { AddKinds(); }
    void EveryRequestFailsOnce();
    void RowsOfANewDial_data();
    void RowsOfANewDial();
    void MinuteHandOfALargeClock();
    void HourHandOfALargePictureClock();
    void HandsWithoutADial();
    void AllRequestsFailFromOneOn_data() { AddKinds(); }
    void AllRequestsFailFromOneOn();
    void PixmapsOfElements();
    void GlyphsMadeWithoutMemory();
    void EncodingALargeGlyph();
    void CountingALargeGlyph();
    void AreasUnderALimit_data();
    void AreasUnderALimit();
    void PlayerUnderALimit_data();
    void PlayerUnderALimit();
};

void TestMemoryLimits::initTestCase()
{
    if (!FailingMemory::Available())
        QSKIP("the allocator cannot be limited under a sanitizer");
    // Painters on null images warn at each call.
    SilenceMessages();
    pictureplayer::SetTimeScale(0);
}

// Over noon, when an analog dial is redrawn.
void TestMemoryLimits::EveryRequestFailsOnce()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind, kArea);
    const QImage expected = SettledFrame(clock->node, kNoon + 5000);
    int requests = 1;
    for (int nth = 0; nth < requests; ++nth) {
        FailingMemory::Fail(kLarge, nth, false);
        {
            DrawDisplayImage drawer(&clock->node);
            drawer.InitClockTypePixmap();
            QList<QImage> held;
            for (int second = 0; second < 4; ++second)
                held.append(FrameAt(drawer, kNoon + 1000 * second));
            requests = FailingMemory::Stop();
            held.clear();
            // With memory, two frames later at the latest, all is as if nothing had been.
            FrameAt(drawer, kNoon + 5000);
            FrameAt(drawer, kNoon + 5000);
            QCOMPARE(FrameAt(drawer, kNoon + 5000), expected);
        }
        QVERIFY(requests >= 4);
    }
}

void TestMemoryLimits::RowsOfANewDial_data()
{
    QTest::addColumn<bool>("allLater");
    QTest::newRow("one fails") << false;
    QTest::newRow("all fail from one on") << true;
}

// A row of letters as large as a frame, when noon asks for a new dial: its images are decoded
// already.
void TestMemoryLimits::RowsOfANewDial()
{
    QFETCH(bool, allLater);
    const auto clock = FullClock(AnalogClock, {900, 400});
    clock->Set("AnalogDateFSize", 100);
    clock->MakeGlyphs();
    const QImage expected = SettledFrame(clock->node, kNoon + 5000);
    int requests = 1;
    for (int nth = 0; nth < requests; ++nth) {
        DrawDisplayImage drawer(&clock->node);
        FrameAt(drawer, kNoon);
        FrameAt(drawer, kNoon);
        FailingMemory::Fail(kLarge, nth, allLater);
        FrameAt(drawer, kNoon + 1000);
        FrameAt(drawer, kNoon + 2000);
        requests = FailingMemory::Stop();
        QVERIFY(requests > 0);
        FrameAt(drawer, kNoon + 5000);
        FrameAt(drawer, kNoon + 5000);
        QVERIFY2(FrameAt(drawer, kNoon + 5000) == expected, qPrintable(QString::number(nth)));
    }
}

namespace {

/// Draws the first frame of a minute, while large requests fail from the nth on.
int RequestsOfNewMinute(DrawDisplayImage &drawer, qint64 minute, int nth)
{
    FrameAt(drawer, minute - 2000);
    FrameAt(drawer, minute - 1000);
    FailingMemory::Fail(kLarge, nth, true);
    FrameAt(drawer, minute);
    return FailingMemory::Stop();
}

} // namespace

// The minute hand is kept as a picture for its minute; it is missed no longer than memory is.
void TestMemoryLimits::MinuteHandOfALargeClock()
{
    const auto clock = FullClock(AnalogClock, {2000, 2000});
    const qint64 minute = kNoon + 1000 + 8 * 60000; // 12:08:00
    const QImage expected = SettledFrame(clock->node, minute + 5000);
    int requests = 1;
    for (int nth = 0; nth < requests; ++nth) {
        DrawDisplayImage drawer(&clock->node);
        requests = RequestsOfNewMinute(drawer, minute, nth);
        QVERIFY(requests > 0);
        FrameAt(drawer, minute + 5000);
        QVERIFY2(FrameAt(drawer, minute + 5000) == expected, qPrintable(QString::number(nth)));
    }
}

// The hour hand is painted on the background for its minute; where there was no memory for the
// pixels below it, nothing of it remains when it moves.
void TestMemoryLimits::HourHandOfALargePictureClock()
{
    const auto clock = FullClock(PictureClock, {2000, 2000});
    const qint64 minute = kNoon + 1000 + 90 * 60000; // 13:30:00
    const QImage then = SettledFrame(clock->node, minute);
    const QImage later = SettledFrame(clock->node, minute + 20 * 60000);
    int requests = 1;
    for (int nth = 0; nth < requests; ++nth) {
        DrawDisplayImage drawer(&clock->node);
        requests = RequestsOfNewMinute(drawer, minute, nth);
        QVERIFY(requests > 0);
        FrameAt(drawer, minute);
        QVERIFY2(FrameAt(drawer, minute) == then, qPrintable(QString::number(nth)));
        FrameAt(drawer, minute + 20 * 60000);
        QVERIFY2(FrameAt(drawer, minute + 20 * 60000) == later, qPrintable(QString::number(nth)));
    }
}

// At noon there is no memory for a new dial, while the frames are there: each second has its own
// hands and no others.
void TestMemoryLimits::HandsWithoutADial()
{
    const auto clock = FullClock(AnalogClock, kArea);
    clock->Set("SecondHandColor", 0x12fe12);
    const auto secondHandPixels = [](const QImage &frame) {
        int count = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                count += frame.pixel(x, y) == qRgb(0x12, 0xfe, 0x12) ? 1 : 0;
        }
        return count;
    };
    const qint64 noon = kNoon + 1000;
    QList<int> most;
    for (int second = 0; second < 20; ++second)
        most.append(secondHandPixels(SettledFrame(clock->node, noon + 1000 * second)));
    QVERIFY2(most.first() > 50, qPrintable(QString::number(most.first())));

    DrawDisplayImage drawer(&clock->node);
    for (int second = 1; second <= 3; ++second)
        FrameAt(drawer, noon - 1000 * second);
    FailingMemory::Fail(kLarge, 0, true);
    QList<int> shown;
    for (int second = 0; second < 20; ++second)
        shown.append(secondHandPixels(FrameAt(drawer, noon + 1000 * second)));
    const int requests = FailingMemory::Stop();
    QVERIFY(requests > 0);
    for (int second = 0; second < 20; ++second) {
        QVERIFY2(shown.at(second) > 0 && shown.at(second) <= most.at(second),
                 qPrintable(QString::number(second)));
    }
    FrameAt(drawer, noon + 5000);
    FrameAt(drawer, noon + 5000);
    QCOMPARE(FrameAt(drawer, noon + 5000), SettledFrame(clock->node, noon + 5000));
}

void TestMemoryLimits::AllRequestsFailFromOneOn()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind, kArea);
    const QImage expected = SettledFrame(clock->node, kNoon + 5000);
    for (int nth = 0; nth < 12; ++nth) {
        ChosenTime::Milliseconds() = kNoon;
        HClockRender render(&clock->node);
        FailingMemory::Fail(kLarge, nth, true);
        render.Start(kId, 0);
        pictureplayer *const player = pictureplayer::ForIdentifier(kId);
        QList<QImage> held = {player->LastImage()};
        for (int second = 1; second < 6; ++second) {
            ChosenTime::Milliseconds() = kNoon + 1000 * second;
            render.PlayNext();
            held.append(player->LastImage());
        }
        if (nth == 0) {
            for (const QImage &frame : held)
                QVERIFY(frame.isNull());
        }
        FailingMemory::Stop();
        held.clear();
        for (int i = 0; i < 3; ++i)
            render.PlayNext();
        QCOMPARE(player->LastImage(), expected);
    }
}

void TestMemoryLimits::PixmapsOfElements()
{
    QImage image(400, 320, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixel(3, 4, 0xffff0000);
    const GlyphStrip strip(image);
    QVERIFY(strip.IsInk());
    FailingMemory::Fail(kLarge, 0, true);
    const bool none = strip.Pixmap().isNull();
    FailingMemory::Stop();
    QVERIFY(none);
    QCOMPARE(strip.Pixmap().toImage().pixel(3, 4), 0xffff0000);

    const auto clock = FullClock(DigitalClock);
    for (const char *const key : {"DigitalTimeFSize", "DigitalDateFSize"})
        clock->Set(key, 150);
    clock->MakeGlyphs();
    DrawClockClassifyImage composer;
    composer.InitParameters(&clock->node);
    QDateTime reading;
    composer.CalculateTimeZone(reading);
    const QSize date = composer.GetDatePixmap().size();
    QVERIFY(date.width() * date.height() * 4 > int(kLarge));
    DrawClockClassifyImage other;
    other.InitParameters(&clock->node);
    FailingMemory::Fail(kLarge, 0, true);
    const bool noDate = other.GetDatePixmap().isNull();
    const bool noTime = other.GetTimePixmap().isNull();
    FailingMemory::Stop();
    QVERIFY(noDate);
    QVERIFY(noTime);
}

// What cannot be drawn is not written; an existing file stays.
void TestMemoryLimits::GlyphsMadeWithoutMemory()
{
    const auto clock = FullClock(DigitalClock);
    const QString path = clock->node.GetFirstFile(QStringLiteral("_dateNumber"));
    const auto content = [&path] {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = content();
    QVERIFY(!before.isEmpty());
    clock->Set("DigitalDateFSize", 151); // drawn by no other case, and so not remembered
    FailingMemory::Fail(kLarge, 0, true);
    clock->MakeGlyphs();
    QVERIFY(FailingMemory::Stop() > 0);
    QCOMPARE(content(), before);
    clock->MakeGlyphs();
    QVERIFY(content() != before);
    QVERIFY(!QImage(path).isNull());
}

namespace {

/// Of 64 MiB, its ink of 2 MiB: transparent but for a green bar.
QImage LargeGlyph()
{
    QImage image(4096, 4096, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, 7, qRgb(0, 255, 0));
    return image;
}

} // namespace

// Needs neither a copy of the image nor its ink.
void TestMemoryLimits::EncodingALargeGlyph()
{
    UnencodedPicture picture {GlyphState::Drawn, LargeGlyph(), {}};
    picture.image.setDotsPerMeterX(5000);
    QBuffer expected;
    QVERIFY(expected.open(QBuffer::WriteOnly));
    QVERIFY(picture.image.save(&expected, "png"));
    FailingMemory::Fail(kLarge, 0, true);
    const DrawnGlyph encoded = EncodeGlyphPicture(picture);
    FailingMemory::Stop();
    QVERIFY(encoded.state == GlyphState::Drawn);
    QVERIFY(encoded.facts.hasInk);
    QCOMPARE(encoded.file, expected.data());
}

// There is memory for the image, but not for its ink as well.
void TestMemoryLimits::CountingALargeGlyph()
{
    const QImage image = LargeGlyph();
    QBuffer png;
    QVERIFY(png.open(QBuffer::WriteOnly));
    QVERIFY(image.save(&png, "png"));
    FailingMemory::Fail(kLarge, 1, true);
    const qint64 bytes = GlyphBytesOfPng(png.data());
    FailingMemory::Stop();
    QCOMPARE(bytes, 4096LL * 4096 / 8);
}

void TestMemoryLimits::AreasUnderALimit_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("fits");
    for (const int kind : kKinds) {
        const struct
        {
            QSize size;
            bool fits;
        } areas[] = {{{64, 32}, true},       {{1920, 1080}, true},    {{8000, 8000}, false},
                     {{32767, 2048}, false}, {{32767, 32767}, false}, {{40000, 1}, false}};
        for (const auto &area : areas)
            QTest::addRow("%s, %dx%d", KindName(kind), area.size.width(), area.size.height())
                << kind << area.size << area.fits;
    }
}

// 200 MiB more than the program has: a frame of 244 or 256 MiB, within the bounds, does not fit.
void TestMemoryLimits::AreasUnderALimit()
{
    QFETCH(int, kind);
    QFETCH(QSize, size);
    QFETCH(bool, fits);
    const auto clock = FullClock(kind, {64, 32});
    const QImage small = SettledFrame(clock->node, kNoon);
    clock->node.SetSize(size);
    ChosenTime::Milliseconds() = kNoon;
    HClockRender render(&clock->node);
    {
        const AddressLimit limit(200 << 20);
        render.Start(kId, 0);
        render.PlayNext();
    }
    const QSize drawn = pictureplayer::ForIdentifier(kId)->LastImage().size();
    QCOMPARE(drawn, fits ? size : QSize(0, 0));
    // Another size, and the clock is there again.
    clock->node.SetSize({64, 32});
    render.PlayNext();
    render.PlayNext();
    QCOMPARE(pictureplayer::ForIdentifier(kId)->LastImage(), small);
}

void TestMemoryLimits::PlayerUnderALimit_data()
{
    constexpr int kPlayed = 0;
    constexpr int kGlyphsMissing = 1;
    QTest::addColumn<QString>("element");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("digital") << "<clock type=\"digital\"/>" << kPlayed;
    QTest::newRow("analog") << "<clock type=\"dial\"/>" << kPlayed;
    QTest::newRow("picture") << "<clock type=\"picture\"/>" << kPlayed;
    QTest::newRow("letters as large as they come")
        << "<clock type=\"digital\"><time fontSize=\"30000\"/><date fontSize=\"2000000000\"/>"
           "</clock>"
        << kGlyphsMissing;
}

// The real player in 300 MiB of addresses: one area fits, the one beside it does not. With one
// arena of memory: Qt 6 converts large images in threads, and each thread's own would take 64 MiB.
void TestMemoryLimits::PlayerUnderALimit()
{
    QFETCH(QString, element);
    QFETCH(int, exitCode);
    const QTemporaryDir directory;
    QFile program(directory.filePath(QStringLiteral("program.xml")));
    QVERIFY(program.open(QFile::WriteOnly));
    program.write(QStringLiteral("<program width=\"128\" height=\"64\">"
                                 "<area x=\"0\" y=\"0\" width=\"5700\" height=\"5800\">%1</area>"
                                 "<area x=\"64\" y=\"0\" width=\"64\" height=\"64\">"
                                 "<clock type=\"dial\"/></area></program>")
                      .arg(element)
                      .toUtf8());
    program.close();
    const ProcessRun run =
        RunProcess(QStringLiteral("/bin/sh"),
                   {QStringLiteral("-c"),
                    QStringLiteral("ulimit -v 307200; MALLOC_ARENA_MAX=1 exec \"$0\" \"$@\""),
                    QStringLiteral(PLAYER), program.fileName(), QStringLiteral("--large-frames"),
                    QStringLiteral("--output"), directory.path(), QStringLiteral("--frames"),
                    QStringLiteral("3")});
    QVERIFY(!run.crashed);
    QVERIFY2(run.exitCode == exitCode, qPrintable(run.errors));
    const QImage frame(directory.filePath(QStringLiteral("frame_0003.png")));
    QCOMPARE(frame.size(), QSize(128, 64));
    QVERIFY(PixelsShown(frame.copy(64, 0, 64, 64)) > 0);
}

QTEST_MAIN(TestMemoryLimits)

#include "test_memory_limits.moc"
