// studio/text: the program's text and what replaces parts of it.
// Replacements of ranges of a text, which can be undone exactly.
#pragma once

#include <QString>
#include <QVector>

namespace ClockStudio {

/// A part of a text, in UTF-16 units.
struct TextRange
{
    int begin = 0;
    int end = 0; ///< not part of it

    int Size() const { return end - begin; }
    bool Contains(int position) const { return position >= begin && position < end; }
};

/// Replaces what is removed by what is inserted.
struct TextEdit
{
    int position = 0;
    QString removed;
    QString inserted;
};

/// Each position is in the text that the edits before it left.
using TextEdits = QVector<TextEdit>;

/// The edit that puts a text in place of a range.
TextEdit Replacement(const QString &text, TextRange range, const QString &inserted);

/// The same change without what both texts begin and end with. Surrogate pairs and line ends of two
/// characters stay whole.
TextEdit Smallest(const TextEdit &edit);

/// Edits whose positions are all in one text, none within another, as edits that follow each other.
TextEdits InSequence(TextEdits edits);

void ApplyEdits(QString &text, const TextEdits &edits);
void RevertEdits(QString &text, const TextEdits &edits);

/// Where a position of the text before the edits is after them; the end of what replaced it where
/// it was within something removed.
int MovedPosition(int position, const TextEdits &edits);

} // namespace ClockStudio
