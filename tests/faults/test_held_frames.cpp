// A consumer that gives no frame back: each stays what it was when it was handed out, and they cost
// what they hold and nothing else.
#include "clock_render.h"
#include "fault_support.h"

#include "pictureplayer.h"

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#endif

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr unsigned int kId = 61;
constexpr int kFrames = 600;
constexpr qint64 kSlack = 256 << 10;

/// Bytes of the heap in use; -1 where that is not known.
qint64 HeapInUse()
{
#if !defined(__GLIBC__) || defined(__SANITIZE_ADDRESS__)
    return -1;
#elif __GLIBC__ > 2 || __GLIBC_MINOR__ >= 33
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
#else
    const struct mallinfo info = mallinfo();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
#endif
}

quint64 Checksum(const QImage &image)
{
    quint64 sum = 0xcbf29ce484222325;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum = (sum ^ image.pixel(x, y)) * 0x100000001b3;
    }
    return sum;
}

} // namespace

class TestHeldFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { pictureplayer::SetTimeScale(0); }
    void init() { ChosenTime::Set("2026-11-21T11:55:00"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void EveryFrameHeld_data() { AddKinds(); }
    void EveryFrameHeld();
    void SameFrameHeldTwice_data() { AddKinds(); }
    void SameFrameHeldTwice();
    void ConsumerWritesIntoItsFrames_data() { AddKinds(); }
    void ConsumerWritesIntoItsFrames();
};

// Ten minutes, noon among them.
void TestHeldFrames::EveryFrameHeld()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    HClockRender render(&clock->node);
    render.Start(kId, 0);
    pictureplayer *const player = pictureplayer::ForIdentifier(kId);
    for (int i = 0; i < 3; ++i) {
        ChosenTime::Advance(1000);
        render.PlayNext();
    }
    QVector<QImage> held;
    QVector<quint64> sums;
    held.reserve(kFrames);
    sums.reserve(kFrames);
    const qint64 before = HeapInUse();
    for (int i = 0; i < kFrames; ++i) {
        ChosenTime::Advance(1000);
        render.PlayNext();
        held.append(player->LastImage());
        sums.append(Checksum(held.last()));
    }
    const qint64 growth = HeapInUse() - before;
    const qint64 frames = held.first().sizeInBytes() * kFrames;
    if (before >= 0) {
        QVERIFY2(growth > frames * 9 / 10, qPrintable(QString::number(growth)));
        QVERIFY2(growth < frames * 11 / 10 + kSlack, qPrintable(QString::number(growth)));
    }
    for (int i = 0; i < kFrames; ++i)
        QCOMPARE(Checksum(held.at(i)), sums.at(i));
    QVERIFY(sums.at(1) != sums.at(2));
    QCOMPARE(held.last(), player->LastImage());

    held.clear();
    if (before >= 0)
        QVERIFY(HeapInUse() - before < kSlack);
    // And those to come are as if nothing had been held.
    const qint64 now = ChosenTime::Milliseconds();
    render.PlayNext();
    render.PlayNext();
    QCOMPARE(player->LastImage(), SettledFrame(clock->node, now));
}

void TestHeldFrames::SameFrameHeldTwice()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    DrawDisplayImage drawer(&clock->node);
    const qint64 begin = ChosenTime::Milliseconds();
    FrameAt(drawer, begin);
    QImage first = FrameAt(drawer, begin);
    const QImage second = first;
    const quint64 sum = Checksum(first);
    for (int i = 1; i < 5; ++i)
        FrameAt(drawer, begin + 1000 * i);
    QCOMPARE(Checksum(first), sum);
    first = QImage();
    for (int i = 5; i < 9; ++i)
        FrameAt(drawer, begin + 1000 * i);
    QCOMPARE(Checksum(second), sum);
    QCOMPARE(FrameAt(drawer, begin), second);
}

// What is written into a frame that was handed out is the consumer's own: no later frame shows it.
void TestHeldFrames::ConsumerWritesIntoItsFrames()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    const qint64 begin = ChosenTime::Milliseconds();
    DrawDisplayImage undisturbed(&clock->node);
    DrawDisplayImage drawer(&clock->node);
    QVector<QImage> held;
    for (int i = 0; i < 12; ++i) {
        const QImage expected = FrameAt(undisturbed, begin + 1000 * i).copy();
        QImage frame = FrameAt(drawer, begin + 1000 * i);
        QCOMPARE(frame, expected);
        if (i % 3 == 0)
            frame.fill(Qt::magenta);
        else
            frame.setPixel(i, i, 0xffabcdef);
        if (i % 2 == 0)
            held.append(frame);
    }
    QCOMPARE(held.at(0).pixel(5, 5), QColor(Qt::magenta).rgb());
}

QTEST_MAIN(TestHeldFrames)

#include "test_held_frames.moc"
