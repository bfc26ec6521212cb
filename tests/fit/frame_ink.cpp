#include "frame_ink.h"

#include <cstring>
#include <vector>

QMap<QRgb, FrameInk> InkOf(const QImage &frame)
{
    const QRgb key = qRgb(1, 2, 1);
    const std::vector<QRgb> empty(static_cast<std::size_t>(frame.width()), key);
    QMap<QRgb, FrameInk> ink;
    QRgb colour = key;
    FrameInk *found = nullptr;
    for (int y = 0; y < frame.height(); ++y) {
        const auto *const row = reinterpret_cast<const QRgb *>(frame.constScanLine(y));
        if (std::memcmp(row, empty.data(), empty.size() * sizeof(QRgb)) == 0)
            continue;
        for (int x = 0; x < frame.width(); ++x) {
            if (row[x] == key)
                continue;
            if (row[x] != colour || !found) {
                colour = row[x];
                found = &ink[colour];
            }
            found->bounds |= QRect(x, y, 1, 1);
            ++found->pixels;
        }
    }
    return ink;
}
