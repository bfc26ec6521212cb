// The stand-in player: what it keeps, what it tells, and when it calls its renderer again.
#include "icontentrender.h"
#include "pictureplayer.h"

#include <QElapsedTimer>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

namespace {

/// Counts the calls and does with each what the test asks for.
class CountingRender : public Lw::IContentRender
{
public:
    void Start(unsigned int, long long) override { }
    void Pause() override { }
    void Stop() override { }
    void Remove() override { }
    void PlayNext() override
    {
        ++calls;
        if (onPlayNext)
            onPlayNext();
    }
    int renderState() override { return 0; }
    bool NotClear() const { return videoNotClear; }

    int calls = 0;
    std::function<void()> onPlayNext;
};

SessionParameter Record(unsigned int playIdentifier)
{
    SessionParameter record = {};
    record.playIdentifier = playIdentifier;
    return record;
}

constexpr unsigned int kId = 7;

} // namespace

class TestPicturePlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void InterfaceDefaults();
    void RecordIsCopied();
    void NullRecordIsNothing();
    void LastImageIsKeptAndTold();
    void EffectIsToldInMilliseconds();
    void PlayerIsFoundByIdentifier();
    void NewIdentifierReplacesTheOldOne();
    void RendererIsCalledOnceAndNeverEarly();
    void LaterEffectReplacesTheWait();
    void TimeScaleDividesTheWait();
    void TimeScaleZeroCallsNobody();
    void WaitIsCancelled_data();
    void WaitIsCancelled();
    void UnregisteredRendererIsNotCalled();
    void DeletedRendererIsNotCalled();
    void RendererMayDeleteThePlayer();
    void ExtremeWaits_data();
    void ExtremeWaits();

private:
    std::unique_ptr<CountingRender> m_render;
    std::unique_ptr<pictureplayer> m_player;
};

void TestPicturePlayer::init()
{
    pictureplayer::SetTimeScale(1.0);
    m_render.reset(new CountingRender);
    m_player.reset(new pictureplayer(nullptr));
    pictureplayer::Register(kId, m_render.get());
    const SessionParameter record = Record(kId);
    m_player->Init(&record);
}

void TestPicturePlayer::cleanup()
{
    pictureplayer::Register(kId, nullptr);
    m_player.reset();
    m_render.reset();
}

void TestPicturePlayer::InterfaceDefaults()
{
    Lw::IContentRender &interface = *m_render;
    interface.PrepareData();
    interface.Seek(1000);
    QVERIFY(!interface.AreaFinish());
    QVERIFY(!m_render->NotClear());
    interface.SetVideoNotClear(true);
    QVERIFY(m_render->NotClear());
}

void TestPicturePlayer::RecordIsCopied()
{
    std::unique_ptr<SessionParameter> record(new SessionParameter(Record(11)));
    record->name = "area";
    record->position = QPoint(3, 4);
    record->size = QSize(64, 32);
    record->timing = 1000;
    record->alphaBlend = true;
    record->lastFlag = true;
    m_player->Init(record.get());
    record.reset();
    const SessionParameter kept = m_player->Parameter();
    QCOMPARE(kept.name, QString("area"));
    QCOMPARE(kept.playIdentifier, 11u);
    QCOMPARE(kept.position, QPoint(3, 4));
    QCOMPARE(kept.size, QSize(64, 32));
    QCOMPARE(int(kept.timing), 1000);
    QVERIFY(kept.alphaBlend);
    QVERIFY(kept.lastFlag);
}

void TestPicturePlayer::NullRecordIsNothing()
{
    m_player->Init(nullptr);
    QCOMPARE(m_player->Parameter().playIdentifier, kId);
}

void TestPicturePlayer::LastImageIsKeptAndTold()
{
    QVERIFY(m_player->LastImage().isNull());
    QSignalSpy told(m_player.get(), &pictureplayer::ImageUpdated);
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    m_player->UpdateImage(image);
    QCOMPARE(m_player->LastImage(), image);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).value<QImage>(), image);
    m_player->UpdateImage(QImage());
    QVERIFY(m_player->LastImage().isNull());
    QCOMPARE(told.size(), 2);
}

void TestPicturePlayer::EffectIsToldInMilliseconds()
{
    pictureplayer::SetTimeScale(0);
    QSignalSpy told(m_player.get(), &pictureplayer::EffectUpdated);
    m_player->UpdateEffect(417, EffectType(0));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toInt(), 417);
}

void TestPicturePlayer::PlayerIsFoundByIdentifier()
{
    QCOMPARE(pictureplayer::ForIdentifier(kId), m_player.get());
    QVERIFY(!pictureplayer::ForIdentifier(kId + 1));
    m_player.reset();
    QVERIFY(!pictureplayer::ForIdentifier(kId));
}

void TestPicturePlayer::NewIdentifierReplacesTheOldOne()
{
    const SessionParameter record = Record(kId + 1);
    m_player->Init(&record);
    QVERIFY(!pictureplayer::ForIdentifier(kId));
    QCOMPARE(pictureplayer::ForIdentifier(kId + 1), m_player.get());
}

void TestPicturePlayer::RendererIsCalledOnceAndNeverEarly()
{
    for (const int wait : {1, 7, 20, 33, 60}) {
        QElapsedTimer elapsed;
        qint64 calledAfter = -1; // nanoseconds
        m_render->calls = 0;
        m_render->onPlayNext = [&] { calledAfter = elapsed.nsecsElapsed(); };
        elapsed.start();
        m_player->UpdateEffect(wait, EffectType(0));
        QTRY_COMPARE_WITH_TIMEOUT(m_render->calls, 1, 5000);
        QVERIFY2(calledAfter >= wait * 1000000LL, qPrintable(QString::number(calledAfter)));
        QTest::qWait(wait + 10);
        QCOMPARE(m_render->calls, 1);
    }
}

void TestPicturePlayer::LaterEffectReplacesTheWait()
{
    m_player->UpdateEffect(10, EffectType(0));
    m_player->UpdateEffect(100000, EffectType(0));
    QTest::qWait(60);
    QCOMPARE(m_render->calls, 0);
}

void TestPicturePlayer::TimeScaleDividesTheWait()
{
    pictureplayer::SetTimeScale(1000);
    m_player->UpdateEffect(10000, EffectType(0));
    QTRY_COMPARE_WITH_TIMEOUT(m_render->calls, 1, 5000);
}

void TestPicturePlayer::TimeScaleZeroCallsNobody()
{
    m_player->UpdateEffect(20, EffectType(0));
    pictureplayer::SetTimeScale(0);
    m_player->UpdateEffect(1, EffectType(0));
    QTest::qWait(60);
    QCOMPARE(m_render->calls, 0);
}

void TestPicturePlayer::WaitIsCancelled_data()
{
    QTest::addColumn<int>("by");
    QTest::newRow("Stop") << 0;
    QTest::newRow("Init") << 1;
    QTest::newRow("destruction") << 2;
}

void TestPicturePlayer::WaitIsCancelled()
{
    QFETCH(int, by);
    m_player->UpdateEffect(10, EffectType(0));
    const SessionParameter record = Record(kId);
    if (by == 0)
        m_player->Stop();
    else if (by == 1)
        m_player->Init(&record);
    else
        m_player.reset();
    QTest::qWait(60);
    QCOMPARE(m_render->calls, 0);
}

void TestPicturePlayer::UnregisteredRendererIsNotCalled()
{
    m_player->UpdateEffect(5, EffectType(0));
    pictureplayer::Register(kId, nullptr);
    QTest::qWait(40);
    QCOMPARE(m_render->calls, 0);
}

void TestPicturePlayer::DeletedRendererIsNotCalled()
{
    m_player->UpdateEffect(5, EffectType(0));
    m_render.reset();
    QTest::qWait(40);
    QVERIFY(pictureplayer::ForIdentifier(kId));
}

void TestPicturePlayer::RendererMayDeleteThePlayer()
{
    m_render->onPlayNext = [this] { m_player.reset(); };
    m_player->UpdateEffect(5, EffectType(0));
    QTRY_COMPARE_WITH_TIMEOUT(m_render->calls, 1, 5000);
    QTest::qWait(20);
    QVERIFY(!m_player);
    QCOMPARE(m_render->calls, 1);
}

void TestPicturePlayer::ExtremeWaits_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("calls");
    QTest::newRow("negative is at once") << -5 << 1.0 << 1;
    QTest::newRow("zero is at once") << 0 << 1.0 << 1;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 1.0 << 0;
    QTest::newRow("largest, slowed down") << std::numeric_limits<int>::max() << 1e-9 << 0;
    QTest::newRow("scale too small for a number") << 1 << 1e-320 << 0;
    QTest::newRow("negative scale does not wait") << 1 << -1.0 << 0;
}

void TestPicturePlayer::ExtremeWaits()
{
    QFETCH(int, milliseconds);
    QFETCH(double, scale);
    QFETCH(int, calls);
    pictureplayer::SetTimeScale(scale);
    m_player->UpdateEffect(milliseconds, EffectType(0));
    QTest::qWait(40);
    QCOMPARE(m_render->calls, calls);
}

QTEST_GUILESS_MAIN(TestPicturePlayer)
#include "test_pictureplayer.moc"
