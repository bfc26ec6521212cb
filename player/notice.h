// player/: the notices that a kiosk shows instead of a program, drawn without fonts or files.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace ClockPlayer {

/// Why no program plays. The codes are documented, so that a photograph of the screen is enough to
/// identify the cause.
enum class Notice {
    NoProgram,  ///< P1: there is no program file
    BadProgram, ///< P2: the program cannot be played
    NoPlugin,   ///< P3: no plugin could be loaded, or no directory for the glyph images
    NoGlyphs,   ///< G1: glyph images are missing, and the clocks would lack texts
    TimeNotSet, ///< T1: the device's clock is not set
};

/// Such as "P1".
QString NoticeCode(Notice notice);
/// Such as "NO PROGRAM".
QString NoticeText(Notice notice);

/// The code, as large as the picture allows, above the text; light on dark. The picture has 32-bit
/// pixels.
QImage NoticePicture(Notice notice, QSize size);

} // namespace ClockPlayer
