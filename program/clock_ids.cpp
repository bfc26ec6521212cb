#include "clock_ids.h"

#include <QSet>

namespace ClockProgram {

namespace {

constexpr int kFirstDrawn = 1000;
constexpr int kLastDrawn = 1999;

int FreeNumber(const QSet<int> &taken, int number)
{
    constexpr int count = kLastDrawn - kFirstDrawn + 1;
    const int start = number >= kFirstDrawn && number <= kLastDrawn ? number - kFirstDrawn : 0;
    for (int step = 0; step < count; ++step) {
        const int candidate = kFirstDrawn + (start + step) % count;
        if (!taken.contains(candidate))
            return candidate;
    }
    int beyond = kLastDrawn + 1;
    while (taken.contains(beyond))
        ++beyond;
    return beyond;
}

} // namespace

QVector<int> DistinctIds(const QVector<ClockId> &ids)
{
    QVector<int> numbers(ids.size());
    QVector<int> open;
    QSet<int> taken;
    for (int i = 0; i < ids.size(); ++i) {
        if (ids[i].given && !taken.contains(ids[i].number)) {
            numbers[i] = ids[i].number;
            taken.insert(numbers[i]);
        } else {
            open.append(i);
        }
    }
    for (const int i : qAsConst(open)) {
        const bool keeps = !ids[i].given && !taken.contains(ids[i].number);
        numbers[i] = keeps ? ids[i].number : FreeNumber(taken, ids[i].number);
        taken.insert(numbers[i]);
    }
    return numbers;
}

} // namespace ClockProgram
