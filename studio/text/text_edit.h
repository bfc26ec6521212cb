// studio/text: reversible replacements of text ranges.
#pragma once

#include <QString>
#include <QVector>

namespace ClockStudio {

/// A part of a text, in UTF-16 units.
struct TextRange
{
    int begin = 0;
    int end = 0; ///< exclusive

    int Size() const { return end - begin; }
    bool Contains(int position) const { return position >= begin && position < end; }
};

/// Replaces `removed` with `inserted` at `position` (UTF-16 units).
struct TextEdit
{
    int position = 0;
    QString removed;
    QString inserted;
};

/// Applied in order: each position refers to the text after the previous edits.
using TextEdits = QVector<TextEdit>;

/// The edit that puts a text in place of a range.
TextEdit Replacement(const QString &text, TextRange range, const QString &inserted);

/// The same change without the common prefix and suffix. Surrogate pairs and CR LF are not split.
TextEdit Smallest(const TextEdit &edit);

/// Converts non-overlapping edits with positions in the same text to a sequence of edits.
TextEdits InSequence(TextEdits edits);

void ApplyEdits(QString &text, const TextEdits &edits);
void RevertEdits(QString &text, const TextEdits &edits);

/// Maps a position before the edits to the one after them; a position within removed text maps to
/// the end of its replacement.
int MovedPosition(int position, const TextEdits &edits);

} // namespace ClockStudio
