#include "told_seconds.h"

#include "time_travel.h"

namespace bench::ToldSeconds {

namespace {

constexpr qint64 kFirstInstant = 1709632800000; // 2024-03-05T10:00:00Z: no date changes
constexpr qint64 kSecond = 1000;                // milliseconds

struct Second
{
    qint64 count = 0;
    double begin = 0; // of the steady clock, in milliseconds
    double speed = 1;
};

Second &Current()
{
    static Second second;
    return second;
}

} // namespace

// A call in the second half comes from an area that is early for the next second, which only the
// first area begins; it gets the start of the current one.
long long Tell()
{
    using namespace ClockStage;
    StageTime::TellPlugin(); // costs what it does in the player
    const Second &second = Current();
    const auto passed = static_cast<qint64>((StageTime::Steady() - second.begin) * second.speed);
    return kFirstInstant + second.count * kSecond + (passed < kSecond / 2 ? passed : 0);
}

void SetSpeed(double speed)
{
    Current().speed = speed;
}

void Advance()
{
    Second &second = Current();
    ++second.count;
    second.begin = ClockStage::StageTime::Steady();
}

qint64 Count()
{
    return Current().count;
}

} // namespace bench::ToldSeconds
