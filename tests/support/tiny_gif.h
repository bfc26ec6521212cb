// A few bytes that decode to a picture of 64 MiB.
#pragma once

#include <QByteArray>

/// A GIF of 4096 by 4096 pixels, of which it has one.
inline QByteArray TinyGif()
{
    return QByteArray::fromHex("474946383961"
                               "00100010"
                               "800000"
                               "ff00000000ff"
                               "2c0000000000100010"
                               "00"
                               "02"
                               "024401"
                               "00"
                               "3b");
}
