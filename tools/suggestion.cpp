#include "suggestion.h"

#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace ClockTool {

namespace {

constexpr int kLongestShown = 60;
constexpr int kLongestCompared = 64;

/// The Levenshtein distance: letters to insert, remove or replace.
int EditDistance(const QString &one, const QString &other)
{
    QVector<int> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < one.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < other.size(); ++j) {
            const int replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.last();
}

} // namespace

QString Nearest(const QString &word, const QStringList &candidates)
{
    const QString folded = word.left(kLongestCompared).toCaseFolded();
    int least = std::min(3, static_cast<int>(folded.size()) / 2) + 1;
    QString nearest;
    for (const QString &candidate : candidates) {
        // The difference in length alone takes at least that many changes.
        if (std::abs(candidate.size() - folded.size()) >= least)
            continue;
        const int distance = EditDistance(folded, candidate.left(kLongestCompared).toCaseFolded());
        if (distance >= least)
            continue;
        least = distance;
        nearest = candidate;
    }
    return nearest;
}

QString DidYouMean(const QString &word, const QStringList &candidates)
{
    const QString nearest = Nearest(word, candidates);
    return nearest.isEmpty() ? nearest : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
}

QString Suggestion(const QString &word, const QStringList &candidates)
{
    const QString meant = DidYouMean(word, candidates);
    if (!meant.isEmpty())
        return meant;
    return QStringLiteral("; accepted: ") + candidates.join(QStringLiteral(", "));
}

QString Quoted(const QString &text)
{
    const QString line = text.simplified();
    const bool isLong = line.size() > kLongestShown;
    return QLatin1Char('"') + line.left(kLongestShown) + QLatin1String(isLong ? "...\"" : "\"");
}

} // namespace ClockTool
