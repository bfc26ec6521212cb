// studio/properties: small pictures of clocks, drawn by the plugin.
#pragma once

#include "editing/value_edits.h"

#include <QPixmap>

namespace ClockStudio {

/// A picture of a new clock with these values, at a fixed time, in the morning in UTC.
QPixmap ClockPicture(const QVector<StoredValue> &values, QSize size,
                     const QString &zone = QStringLiteral("+00:00"));

/// A sample picture for a code of an attribute; null if there is none. Cached.
QPixmap CodePicture(Lw::HNodeClock::Attribute attribute, int code);

/// A picture of a kind of clock (see ClockTypeCode).
QPixmap KindPicture(int kind);

} // namespace ClockStudio
