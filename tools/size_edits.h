// tools/: changes font sizes in a program's text, and nothing else.
#pragma once

#include "commands.h"

#include "glyph/glyph_set.h"

#include <QByteArray>
#include <QVector>

namespace ClockTool {

/// One size of one clock.
struct SizeChange
{
    int area = 0; ///< counted from 0
    Lw::HNodeClock::Attribute attribute = Lw::HNodeClock::Attribute::AnalogDateFSize;
    int points = 0;
};

/// The program's bytes with these sizes. A size is changed where the program sets it; otherwise
/// the attribute is added to the element that can hold it, else an "attribute" child. Fails for
/// a text that cannot be edited.
Result<QByteArray> WithSizes(const QByteArray &contents, const QString &path,
                             const QVector<SizeChange> &changes);

} // namespace ClockTool
