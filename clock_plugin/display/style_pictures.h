// The pictures of the picture clock: where they are, what they are called, and how many styles of
// dials there are.
#pragma once

#include "clock_attributes.h"

#include <QCoreApplication>
#include <QString>

namespace Lw::HNodeClock {

/// The styles that have a picture of their dial: 1 to this. image/CMakeLists.txt reads this line.
inline constexpr int kStyleCount = 10;
static_assert(RowOf(Attribute::PictrueClockType).range.last == kStyleCount,
              "the attribute table names the styles");

// Shared by all styles.
inline constexpr char kHourPicture[] = "hour.png";
inline constexpr char kMinutePicture[] = "minute.png";
inline constexpr char kSecondPicture[] = "second.png";
inline constexpr char kCentrePicture[] = "center.png";

/// The folder of all of them, with a separator at its end. It is beside the program's own folder
/// and cannot be chosen.
inline QString StyleFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../image/ClockType/");
}

/// The name of a dial's picture. Every number makes one; there need not be such a file.
inline QString DialPicture(int style)
{
    return QStringLiteral("picbutton%1.png").arg(style);
}

} // namespace Lw::HNodeClock
