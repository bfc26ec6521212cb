#include "compose/png_chunks.h"

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

// A PNG ends with this chunk, which is always the same.
constexpr char kLastChunk[] = "IEND\xae\x42\x60\x82";

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
        chunks += head;
        chunks += png.read(std::min(rest, png.bytesAvailable()));
        if (chunks.endsWith(kLastChunk))
            return chunks;
    }
}

} // namespace Lw::HNodeClock
