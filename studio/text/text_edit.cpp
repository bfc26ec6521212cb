#include "text_edit.h"

#include <algorithm>

namespace ClockStudio {

namespace {

/// Whether a text may be cut between these two characters.
bool IsBoundary(QChar before, QChar after)
{
    const bool isPair = before.isHighSurrogate() && after.isLowSurrogate();
    const bool isLineEnd = before == QLatin1Char('\r') && after == QLatin1Char('\n');
    return !isPair && !isLineEnd;
}

bool MayCut(const QString &text, int position)
{
    return position <= 0 || position >= text.size()
        || IsBoundary(text[position - 1], text[position]);
}

int CommonStart(const QString &one, const QString &other)
{
    const int most = std::min(one.size(), other.size());
    int common = 0;
    while (common < most && one[common] == other[common])
        ++common;
    while (common > 0 && !(MayCut(one, common) && MayCut(other, common)))
        --common;
    return common;
}

int CommonEnd(const QString &one, const QString &other, int start)
{
    const int most = std::min(one.size(), other.size()) - start;
    int common = 0;
    while (common < most && one[one.size() - 1 - common] == other[other.size() - 1 - common])
        ++common;
    while (common > 0
           && !(MayCut(one, one.size() - common) && MayCut(other, other.size() - common)))
        --common;
    return common;
}

} // namespace

TextEdit Replacement(const QString &text, TextRange range, const QString &inserted)
{
    return {range.begin, text.mid(range.begin, range.Size()), inserted};
}

TextEdit Smallest(const TextEdit &edit)
{
    const int start = CommonStart(edit.removed, edit.inserted);
    const int end = CommonEnd(edit.removed, edit.inserted, start);
    return {edit.position + start, edit.removed.mid(start, edit.removed.size() - start - end),
            edit.inserted.mid(start, edit.inserted.size() - start - end)};
}

TextEdits InSequence(TextEdits edits)
{
    // Last position first, so that no edit shifts the position of the next one.
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit &one, const TextEdit &other) {
        return one.position > other.position;
    });
    return edits;
}

void ApplyEdits(QString &text, const TextEdits &edits)
{
    for (const TextEdit &edit : edits)
        text.replace(edit.position, edit.removed.size(), edit.inserted);
}

void RevertEdits(QString &text, const TextEdits &edits)
{
    for (auto edit = edits.crbegin(); edit != edits.crend(); ++edit)
        text.replace(edit->position, edit->inserted.size(), edit->removed);
}

int MovedPosition(int position, const TextEdits &edits)
{
    for (const TextEdit &edit : edits) {
        if (position >= edit.position + edit.removed.size())
            position += edit.inserted.size() - edit.removed.size();
        else if (position > edit.position)
            position = edit.position + edit.inserted.size();
    }
    return position;
}

} // namespace ClockStudio
