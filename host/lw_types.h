// The host's small shared types: what travels through its lists and calls.
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Lw {

class HModel;
class HVersion;

/// A packed colour: red in bits 0-7, green in bits 8-15, blue in bits 16-23 (0x00BBGGRR).
/// The top byte carries nothing.
using LWColor = quint32;

/// The packed colour of three channels from 0 to 255, and the channels of one.
constexpr LWColor PackedColor(int red, int green, int blue)
{
    return static_cast<LWColor>(red | green << 8 | blue << 16);
}
constexpr int RedOf(LWColor color)
{
    return static_cast<int>(color & 0xff);
}
constexpr int GreenOf(LWColor color)
{
    return static_cast<int>(color >> 8 & 0xff);
}
constexpr int BlueOf(LWColor color)
{
    return static_cast<int>(color >> 16 & 0xff);
}

/// The kind of program being exported. Nodes hand it on without looking at it.
enum GetProgramModel {
    ProgramForController = 0,
    ProgramForPreview = 1,
};

/// One source file of a node, as a program lists it.
struct FileInfo
{
    QString md5;      ///< 32 lowercase hexadecimal digits, or empty
    quint64 size = 0; ///< bytes
    QString path;
};

/// One file to send to the display.
struct HSendFileInfo
{
    QString path;
    QString md5;
    int kind = 0;
    QStringList companions; ///< files that must travel with this one
};

/// The boolean words of SDK XML: "true" is 1; "false" and every other text are 0.
int BooleanToInt(QString text);

} // namespace Lw
