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

Second &Present()
{
    static Second second;
    return second;
}

} // namespace

// Who asks in the second half is early for the next second, which begins with its first area.
long long Tell()
{
    using namespace ClockStage;
    StageTime::TellPlugin(); // costs what it does in the player
    const Second &second = Present();
    const auto passed = static_cast<qint64>((StageTime::Steady() - second.begin) * second.speed);
    return kFirstInstant + second.count * kSecond + (passed < kSecond / 2 ? passed : 0);
}

void SetSpeed(double speed)
{
    Present().speed = speed;
}

void Advance()
{
    Second &second = Present();
    ++second.count;
    second.begin = ClockStage::StageTime::Steady();
}

qint64 Count()
{
    return Present().count;
}

} // namespace bench::ToldSeconds
