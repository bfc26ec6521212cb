// What ink of which colour is in a frame.
#pragma once

#include <QImage>
#include <QMap>
#include <QRect>

struct FrameInk
{
    QRect bounds;
    int pixels = 0;
};

/// By colour; pixels of the key colour are no ink.
QMap<QRgb, FrameInk> InkOf(const QImage &frame);
