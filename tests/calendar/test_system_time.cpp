// The system's clock by a kernel of this test's own, which takes the place of the C library's.
#include "calendar/device_clock.h"
#include "calendar/system_time.h"

#include <QTest>

#include <cerrno>
#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kNotSet = -1;
qint64 s_kernelSeconds = kNotSet;
long s_kernelNanoseconds = 0;

// The kernel's record has 64 bits for the seconds everywhere.
#ifdef SYS_clock_gettime64
constexpr long kClockCall = SYS_clock_gettime64;
#else
constexpr long kClockCall = SYS_clock_gettime;
#endif

struct KernelTime
{
    qint64 seconds;
    qint64 nanoseconds;
};

} // namespace

extern "C" int clock_gettime(clockid_t clock, std::timespec *time) noexcept
{
    KernelTime now {};
    if (clock != CLOCK_REALTIME || s_kernelSeconds == kNotSet) {
        if (syscall(kClockCall, clock, &now) != 0)
            return -1;
    } else {
        now = {s_kernelSeconds, s_kernelNanoseconds};
    }
    time->tv_sec = static_cast<std::time_t>(now.seconds);
    time->tv_nsec = static_cast<long>(now.nanoseconds);
    return 0;
}

class TestSystemTime : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { s_kernelSeconds = kNotSet; }
    void Milliseconds_data();
    void Milliseconds();
    void ClocksReadIt();
};

void TestSystemTime::Milliseconds_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<int>("nanoseconds");
    QTest::addColumn<QString>("iso");
    QTest::newRow("1970") << Q_INT64_C(0) << 0 << "1970-01-01T00:00:00.000Z";
    QTest::newRow("2026") << Q_INT64_C(1782907200) << 250999999 << "2026-07-01T12:00:00.250Z";
    QTest::newRow("last of 31 bits")
        << Q_INT64_C(2147483647) << 999999999 << "2038-01-19T03:14:07.999Z";
    QTest::newRow("first of 32 bits") << Q_INT64_C(2147483648) << 0 << "2038-01-19T03:14:08.000Z";
    QTest::newRow("last of 32 bits")
        << Q_INT64_C(4294967295) << 1000000 << "2106-02-07T06:28:15.001Z";
    QTest::newRow("first of 33 bits") << Q_INT64_C(4294967296) << 0 << "2106-02-07T06:28:16.000Z";
}

void TestSystemTime::Milliseconds()
{
    QFETCH(qint64, seconds);
    QFETCH(int, nanoseconds);
    QFETCH(QString, iso);
    s_kernelSeconds = seconds;
    s_kernelNanoseconds = nanoseconds;
    const QDateTime shown = QDateTime::fromMSecsSinceEpoch(SystemMilliseconds(), Qt::UTC);
    QCOMPARE(shown.toString(Qt::ISODateWithMs), iso);
}

// 2040-03-26T22:30:00Z.
void TestSystemTime::ClocksReadIt()
{
    s_kernelSeconds = Q_INT64_C(2216413800);
    s_kernelNanoseconds = 123000000;
    QCOMPARE(SystemDate(), QDate(2040, 3, 26));
    QCOMPARE(UtcMilliseconds(), Q_INT64_C(2216413800123));
    QCOMPARE(LocalMillisecond(), 123);
    QCOMPARE(LocalDate(), QDate(2040, 3, 26));
    const HeldInstant held;
    s_kernelSeconds += 1;
    QCOMPARE(UtcMilliseconds(), Q_INT64_C(2216413800123));
}

QTEST_GUILESS_MAIN(TestSystemTime)
#include "test_system_time.moc"
