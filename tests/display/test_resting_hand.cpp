// A hand that lies on the background for a while, and is taken up before it is laid again.
#include "display/resting_hand.h"

#include <QtTest>

using Lw::HNodeClock::RestingHand;

namespace {

constexpr QRgb kHand = 0xff00ff00;

// Every pixel tells its place.
QImage Background()
{
    QImage image(20, 10, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 7));
    }
    return image;
}

QImage WithHand(const QRect &box)
{
    QImage image = Background();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (box.contains(x, y))
                image.setPixel(x, y, kHand);
        }
    }
    return image;
}

QRegion Lay(RestingHand &hand, QImage &background, double degrees, const QRect &box)
{
    return hand.Lay(background, degrees, box, [&box](QImage &image) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (box.contains(x, y))
                    image.setPixel(x, y, kHand);
            }
        }
    });
}

} // namespace

class TestRestingHand : public QObject
{
    Q_OBJECT
private slots:
    void LiesWhereItWasLaid();
    void IsTakenUpFirst();
    void ReachesBeyondTheBackground();
    void AnotherBackgroundIsLeftAlone();
};

void TestRestingHand::LiesWhereItWasLaid()
{
    RestingHand hand;
    QImage background = Background();
    QVERIFY(!hand.Lies(background, 30));
    QCOMPARE(Lay(hand, background, 30, QRect(2, 3, 4, 5)), QRegion(2, 3, 4, 5));
    QCOMPARE(background, WithHand(QRect(2, 3, 4, 5)));
    QVERIFY(hand.Lies(background, 30));
    QVERIFY(!hand.Lies(background, 30.5));
}

void TestRestingHand::IsTakenUpFirst()
{
    RestingHand hand;
    QImage background = Background();
    Lay(hand, background, 30, QRect(2, 3, 4, 5));
    const QRegion changed = Lay(hand, background, 60, QRect(4, 1, 10, 4));
    QCOMPARE(background, WithHand(QRect(4, 1, 10, 4)));
    QCOMPARE(changed, QRegion(2, 3, 4, 5) + QRegion(4, 1, 10, 4));
}

void TestRestingHand::ReachesBeyondTheBackground()
{
    RestingHand hand;
    QImage background = Background();
    QCOMPARE(Lay(hand, background, 30, QRect(-5, 5, 50, 50)), QRegion(0, 5, 20, 5));
    Lay(hand, background, 60, QRect(50, 50, 3, 3)); // nowhere
    QCOMPARE(background, Background());
    Lay(hand, background, 90, QRect(0, 0, 1, 1));
    QCOMPARE(background, WithHand(QRect(0, 0, 1, 1)));
}

// What was drawn by others since is theirs: nothing of an older background comes back.
void TestRestingHand::AnotherBackgroundIsLeftAlone()
{
    RestingHand hand;
    QImage background = Background();
    Lay(hand, background, 30, QRect(2, 3, 4, 5));
    background.fill(Qt::blue);
    QVERIFY(!hand.Lies(background, 30));
    QCOMPARE(Lay(hand, background, 30, QRect(0, 0, 1, 1)), QRegion(0, 0, 1, 1));
    QCOMPARE(background.pixel(0, 0), kHand);
    QCOMPARE(background.pixel(3, 4), qRgb(0, 0, 255));
}

QTEST_APPLESS_MAIN(TestRestingHand)
#include "test_resting_hand.moc"
