// The damage that a renderer tells beside each frame: outside of it every pixel is the one of the
// frame handed over before.
#include "chosen_time.h"
#include "clock_render.h"
#include "clock_under_test.h"

#include "pictureplayer.h"

#include <QRegion>
#include <QTest>

#include <cstring>
#include <memory>
#include <random>

using namespace Lw::HNodeClock;

namespace {

constexpr unsigned int kId = 41;
constexpr QSize kSize(120, 90);

/// A started clock, and what its player was handed last and before that.
class PlayedClock
{
public:
    explicit PlayedClock(int type) : m_clock(type, kSize)
    {
        for (const char *const key : {"Analog_AMPM_d", "Analog_TopTexy_d", "Analog_Date_d",
                                      "Analog_Week_d", "Analog_Lunar_d", "Digital_Lunar_d"})
            m_clock.Set(key, 1);
        m_clock.MakeGlyphs();
        m_render = std::make_unique<HClockRender>(&m_clock.node);
        Start();
    }
    void Start()
    {
        m_render->Start(kId, 0);
        Take();
    }
    void PlayNext()
    {
        m_render->PlayNext();
        Take();
    }
    void PlaySecond()
    {
        ChosenTime::Advance(1000);
        PlayNext();
    }
    void SwitchTo(int type)
    {
        m_clock.Set("ClockType", type);
        m_clock.MakeGlyphs();
    }

    ClockUnderTest &Clock() { return m_clock; }
    const QImage &Frame() const { return m_frame; }
    QObject *Child() const { return m_render->findChild<QObject *>("frameDamage"); }
    QRegion Damage() const { return Child()->property("region").value<QRegion>(); }
    int DamagedPixels() const;
    /// "" or what is wrong with the damage of the last frame.
    QString Fault() const;

private:
    void Take()
    {
        m_before = m_frame;
        m_frame = pictureplayer::ForIdentifier(kId)->LastImage();
    }

    ClockUnderTest m_clock;
    std::unique_ptr<HClockRender> m_render;
    QImage m_frame;
    QImage m_before;
};

int PlayedClock::DamagedPixels() const
{
    int pixels = 0;
    for (const QRect &rect : Damage())
        pixels += rect.width() * rect.height();
    return pixels;
}

QString PlayedClock::Fault() const
{
    const QRegion damage = Damage();
    if (!(damage - QRegion(m_frame.rect())).isEmpty())
        return QStringLiteral("damage outside the frame");
    if (m_before.size() != m_frame.size())
        return damage == QRegion(m_frame.rect()) ? QString() : QStringLiteral("not all of it");
    QImage patched = m_before.copy();
    for (const QRect &rect : damage) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x)
                patched.setPixel(x, y, m_frame.pixel(x, y));
        }
    }
    return patched == m_frame ? QString() : QStringLiteral("pixels changed outside the damage");
}

void AddKinds()
{
    QTest::addColumn<int>("type");
    QTest::newRow("analog") << int(AnalogClock);
    QTest::newRow("digital") << int(DigitalClock);
    QTest::newRow("picture") << int(PictureClock);
}

} // namespace

class TestFrameDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { pictureplayer::SetTimeScale(0); }
    void init() { ChosenTime::Set("2024-03-05T23:56:58"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void HoursAroundMidnight_data();
    void HoursAroundMidnight();
    void SteadySecondsDamageLittle_data() { AddKinds(); }
    void SteadySecondsDamageLittle();
    void RowsWithoutInkAreNotDamaged();
    void FirstFrames_data() { AddKinds(); }
    void FirstFrames();
    void TheSameFrameAgain();
    void FramesThatAreHeld_data() { AddKinds(); }
    void FramesThatAreHeld();
    void ChangingSettings_data();
    void ChangingSettings();
    void NothingToTell();
};

void TestFrameDamage::HoursAroundMidnight_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("settings"); // that are 1
    const auto row = [](const char *name, int type, const char *settings) {
        QTest::newRow(name) << type << QString(settings);
    };
    row("analog", AnalogClock, "");
    row("analog, arrows", AnalogClock, "HourRectType MinuteRectType SecondRectType");
    row("digital, rows", DigitalClock, "");
    row("digital, one line", DigitalClock, "DigitalDisplayMode");
    row("picture", PictureClock, "");
}

// Every second of six minutes around midnight, and then every fifth minute.
void TestFrameDamage::HoursAroundMidnight()
{
    QFETCH(int, type);
    QFETCH(QString, settings);
    PlayedClock clock(type);
    for (const QString &key : settings.split(' ', Qt::SkipEmptyParts))
        clock.Clock().Set(qPrintable(key), 1);
    for (int frame = 0; frame < 700; ++frame) {
        if (frame >= 400)
            ChosenTime::Advance(5 * 60 * 1000);
        clock.PlaySecond();
        QCOMPARE(clock.Fault(), QString());
    }
}

void TestFrameDamage::SteadySecondsDamageLittle()
{
    QFETCH(int, type);
    ChosenTime::Set("2024-03-05T13:07:00");
    PlayedClock clock(type);
    for (int second = 1; second < 60; ++second) {
        clock.PlaySecond();
        QVERIFY(clock.DamagedPixels() > 0);
        if (second > 5) // texts with soft edges grow denser first
            QVERIFY(clock.DamagedPixels() < kSize.width() * kSize.height() / 2);
    }
}

// Glyph images are as high as their font, digits are not. In a minute each digit changes.
void TestFrameDamage::RowsWithoutInkAreNotDamaged()
{
    ChosenTime::Set("2024-03-05T13:07:00");
    PlayedClock clock(DigitalClock);
    QRegion changed;
    QRegion damaged;
    for (int second = 1; second < 60; ++second) {
        const QImage before = clock.Frame();
        clock.PlaySecond();
        damaged += clock.Damage();
        for (int y = 0; y < kSize.height(); ++y) {
            if (std::memcmp(before.constScanLine(y), clock.Frame().constScanLine(y),
                            std::size_t(before.bytesPerLine()))
                != 0)
                changed += QRect(0, y, kSize.width(), 1);
        }
    }
    QCOMPARE(damaged.boundingRect().top(), changed.boundingRect().top());
    QCOMPARE(damaged.boundingRect().bottom(), changed.boundingRect().bottom());
}

void TestFrameDamage::FirstFrames()
{
    QFETCH(int, type);
    PlayedClock clock(type);
    const QRegion whole(QRect({0, 0}, kSize));
    QCOMPARE(clock.Damage(), whole);
    clock.PlaySecond();
    QVERIFY(clock.Damage() != whole);
    clock.Start();
    QCOMPARE(clock.Damage(), whole);
    clock.PlaySecond();
    QVERIFY(clock.Damage() != whole);
    clock.Clock().node.SetSize({60, 100});
    clock.PlaySecond();
    QCOMPARE(clock.Damage(), QRegion(0, 0, 60, 100));
}

void TestFrameDamage::TheSameFrameAgain()
{
    PlayedClock clock(DigitalClock);
    clock.PlaySecond();
    clock.PlayNext();
    QVERIFY(clock.Damage().isEmpty());
    clock.Clock().Set("ClockType", 3); // no kind of clock: the last frame stays
    clock.PlaySecond();
    QVERIFY(clock.Damage().isEmpty());
    clock.Clock().Set("ClockType", DigitalClock);
    clock.PlaySecond();
    QVERIFY(!clock.Damage().isEmpty());
    QCOMPARE(clock.Fault(), QString());
}

void TestFrameDamage::FramesThatAreHeld()
{
    QFETCH(int, type);
    PlayedClock clock(type);
    std::mt19937 generator(7);
    QList<QImage> held;
    for (int second = 0; second < 300; ++second) {
        clock.PlaySecond();
        QCOMPARE(clock.Fault(), QString());
        if (generator() % 3 == 0)
            held.append(clock.Frame());
        if (held.size() > 3)
            held.removeAt(static_cast<int>(generator() % 3));
    }
}

void TestFrameDamage::ChangingSettings_data()
{
    QTest::addColumn<unsigned int>("seed");
    for (const unsigned int seed : {1u, 2u, 3u, 4u})
        QTest::addRow("seed %u", seed) << seed;
}

void TestFrameDamage::ChangingSettings()
{
    QFETCH(unsigned int, seed);
    std::mt19937 generator(seed);
    const auto random = [&generator](int below) {
        return static_cast<int>(generator() % static_cast<unsigned int>(below));
    };
    PlayedClock clock(AnalogClock);
    const QStringList keys = clock.Clock().node.AttributeKeys().filter(
        QRegularExpression(QStringLiteral("_d$|Color$|RectType$|Space$|SwapArea$|Mode$")));
    QVERIFY(keys.size() > 20);
    for (int frame = 0; frame < 300; ++frame) {
        const int chance = random(12);
        if (chance == 0)
            clock.SwitchTo(random(3));
        else if (chance == 1)
            clock.Clock().node.SetSize({90 + random(2) * 30, 90});
        else if (chance < 6)
            clock.Clock().Set(qPrintable(keys.at(random(keys.size()))), random(2));
        ChosenTime::Advance(random(5) == 0 ? 7200000 : 0);
        clock.PlaySecond();
        QCOMPARE(clock.Fault(), QString());
    }
}

void TestFrameDamage::NothingToTell()
{
    HClockRender render(nullptr);
    auto *const damage = render.findChild<QObject *>("frameDamage");
    QVERIFY(damage->property("region").value<QRegion>().isEmpty());
    render.Remove();
    QVERIFY(damage->property("region").value<QRegion>().isEmpty());
}

QTEST_MAIN(TestFrameDamage)

#include "test_frame_damage.moc"
