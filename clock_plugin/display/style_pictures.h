// display/: the files of the picture clock: folder, names, and the number of dial styles.
#pragma once

#include "clock_attributes.h"

#include <QCoreApplication>
#include <QString>

namespace Lw::HNodeClock {

/// Styles 1 to kStyleCount have a dial picture. image/CMakeLists.txt and scripts/sheet parse this
/// line.
inline constexpr int kStyleCount = 10;
static_assert(RowOf(Attribute::PictrueClockType).range.last == kStyleCount,
              "the attribute table names the styles");

// Shared by all styles.
inline constexpr char kHourPicture[] = "hour.png";
inline constexpr char kMinutePicture[] = "minute.png";
inline constexpr char kSecondPicture[] = "second.png";
inline constexpr char kCentrePicture[] = "center.png";

/// The folder of all of them, with a separator at its end. It is next to the folder of the
/// executable and cannot be configured.
inline QString StyleFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../image/ClockType/");
}

/// The file name of a dial's picture, for any number; the file may not exist.
inline QString DialPicture(int style)
{
    return QStringLiteral("picbutton%1.png").arg(style);
}

} // namespace Lw::HNodeClock
