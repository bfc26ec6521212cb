// host/: small types shared by the host's interfaces: colours, file lists, program kinds.
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Lw {

class HModel;
class HVersion;

/// A packed colour: red in bits 0-7, green in bits 8-15, blue in bits 16-23 (0x00BBGGRR). The top
/// byte is unused.
using LWColor = quint32;

/// Packs three channels, 0 to 255 each; the functions below unpack them.
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

/// The kind of program being exported. Nodes pass it on unchanged.
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

/// The SDK's boolean words as an int: "true" is 1, any other text 0.
int BooleanToInt(QString text);

} // namespace Lw
