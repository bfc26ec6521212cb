#include "clock_ids.h"

#include <QSet>

namespace ClockProgram {

namespace {

constexpr int kFirstRandomId = 1000;
constexpr int kLastRandomId = 1999;

int FreeNumber(const QSet<int> &taken, int number)
{
    constexpr int count = kLastRandomId - kFirstRandomId + 1;
    const int start =
        number >= kFirstRandomId && number <= kLastRandomId ? number - kFirstRandomId : 0;
    for (int step = 0; step < count; ++step) {
        const int candidate = kFirstRandomId + (start + step) % count;
        if (!taken.contains(candidate))
            return candidate;
    }
    int beyond = kLastRandomId + 1;
    while (taken.contains(beyond))
        ++beyond;
    return beyond;
}

} // namespace

int DefaultIdAt(int index)
{
    return kFirstRandomId + index % (kLastRandomId - kFirstRandomId + 1);
}

QVector<int> DistinctIds(const QVector<ClockId> &ids)
{
    QVector<int> numbers(ids.size());
    QVector<bool> hasNumber(ids.size());
    QSet<int> taken;
    for (const bool given : {true, false}) {
        for (int i = 0; i < ids.size(); ++i) {
            if (ids[i].given != given || taken.contains(ids[i].number))
                continue;
            numbers[i] = ids[i].number;
            hasNumber[i] = true;
            taken.insert(numbers[i]);
        }
    }
    for (int i = 0; i < ids.size(); ++i) {
        if (hasNumber[i])
            continue;
        numbers[i] = FreeNumber(taken, ids[i].number);
        taken.insert(numbers[i]);
    }
    return numbers;
}

} // namespace ClockProgram
