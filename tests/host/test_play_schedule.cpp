// The image players' timer in a process that had no file descriptor left when they began to wait.
#include "icontentrender.h"
#include "pictureplayer.h"

#include <QElapsedTimer>
#include <QtTest>

#include <memory>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace {

constexpr unsigned int kId = 7;

/// Waits again after each call, as a clock does.
class WaitingRender : public Lw::IContentRender
{
public:
    explicit WaitingRender(Lw::pictureplayer &player) : m_player(player) { }

    void Start(unsigned int, long long) override { }
    void Pause() override { }
    void Stop() override { }
    void Remove() override { }
    int renderState() override { return 0; }
    void PlayNext() override
    {
        ++m_calls;
        m_isEarly = m_isEarly || (m_wait.isValid() && m_wait.nsecsElapsed() < kWait * 1000000LL);
        m_wait.start();
        m_player.UpdateEffect(kWait, EffectType(0));
    }

    int Calls() const { return m_calls; }
    bool WasEarly() const { return m_isEarly; }

private:
    static constexpr int kWait = 20; // milliseconds

    Lw::pictureplayer &m_player;
    QElapsedTimer m_wait;
    int m_calls = 0;
    bool m_isEarly = false;
};

/// While it exists, the process can open nothing more.
class NoDescriptors
{
public:
    NoDescriptors()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const int lowestFree = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        ::close(lowestFree);
        rlimit none = m_before;
        none.rlim_cur = static_cast<rlim_t>(lowestFree);
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    Q_DISABLE_COPY(NoDescriptors)

private:
    rlimit m_before {};
};

} // namespace

class TestPlaySchedule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RenderersAreCalledWithoutATimerDescriptor();
};

// The timer is created by the first wait of the process.
void TestPlaySchedule::RenderersAreCalledWithoutATimerDescriptor()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer looks at objects through descriptors of its own");
#endif
    auto none = std::make_unique<NoDescriptors>();
    QCOMPARE(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC), -1);
    Lw::pictureplayer player(nullptr);
    WaitingRender render(player);
    Lw::pictureplayer::Register(kId, &render);
    SessionParameter record = {};
    record.playIdentifier = kId;
    player.Init(&record);
    render.PlayNext();
    none.reset();
    QTRY_VERIFY_WITH_TIMEOUT(render.Calls() >= 5, 5000);
    QVERIFY(!render.WasEarly());
    Lw::pictureplayer::Register(kId, nullptr);
}

QTEST_GUILESS_MAIN(TestPlaySchedule)
#include "test_play_schedule.moc"
