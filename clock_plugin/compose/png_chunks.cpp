#include "compose/png_chunks.h"

#include "image_bounds.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace Lw::HNodeClock {

namespace {

// A chunk: the length of its content, its name, the content, a checksum.
constexpr int kNameAt = 4;
constexpr int kHeadLength = 8;
constexpr int kChecksumLength = 4;
constexpr int kSignatureLength = sizeof kPngSignature - 1;

// 64 bits a pixel, uncompressed, with room to spare for what stands between the pixels.
constexpr qint64 kLongest = 2 * kGlyphBytes + kGlyphBytes / 8;

constexpr const char *kKept[] = {"IHDR", "PLTE", "IDAT", "IEND", "tRNS",
                                 "bKGD", "sBIT", "gAMA", "cHRM", "sRGB"};

bool IsKept(const char *name)
{
    return std::any_of(std::begin(kKept), std::end(kKept),
                       [name](const char *kept) { return std::equal(kept, kept + kNameAt, name); });
}

} // namespace

QByteArray PixelChunks(QIODevice &png)
{
    QByteArray chunks = png.read(kSignatureLength);
    for (;;) {
        const QByteArray head = png.read(kHeadLength);
        if (head.size() < kHeadLength)
            return chunks;
        const qint64 rest = qFromBigEndian<quint32>(head.constData()) + qint64(kChecksumLength);
        if (!IsKept(head.constData() + kNameAt)) {
            if (!png.seek(png.pos() + rest))
                return chunks;
            continue;
        }
        if (chunks.size() + rest > kLongest)
            return chunks;
        chunks += head;
        chunks += png.read(std::min(rest, png.bytesAvailable()));
    }
}

} // namespace Lw::HNodeClock
