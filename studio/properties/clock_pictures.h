// studio/properties: what can be set of the chosen clocks.
// Small pictures of clocks, drawn by the plugin.
#pragma once

#include "editing/value_edits.h"

#include <QPixmap>

namespace ClockStudio {

/// A new clock with these values, and nothing else shown that it would not need, at a fixed time.
QPixmap ClockPicture(const QVector<StoredValue> &values, QSize size);

/// What a code of an attribute looks like; null where that cannot be shown. Pictures are kept.
QPixmap CodePicture(Lw::HNodeClock::Attribute attribute, int code);

/// A kind of clock (see ClockTypeCode).
QPixmap KindPicture(int kind);

} // namespace ClockStudio
