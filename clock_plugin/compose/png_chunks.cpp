#include "compose/png_chunks.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

namespace Lw::HNodeClock {

namespace {

// A chunk: the length of its content, its name, the content, a checksum.
constexpr int kNameAt = 4;
constexpr int kNameLength = 4;
constexpr int kHeadLength = 8;
constexpr int kChecksumLength = 4;
constexpr int kSignatureLength = sizeof kPngSignature - 1;

// A PNG ends with this chunk, which is always the same.
constexpr char kLastChunk[] = "IEND\xae\x42\x60\x82";

// The ancillary chunks that affect the pixels.
constexpr const char *kKept[] = {"tRNS", "bKGD", "sBIT", "gAMA", "cHRM", "sRGB"};

template<std::size_t count>
bool IsAmong(const char *const (&names)[count], const char *name)
{
    return std::any_of(std::begin(names), std::end(names), [name](const char *known) {
        return std::equal(known, known + kNameLength, name);
    });
}

// Names consist of letters. A lower-case first letter marks an ancillary chunk, without which the
// picture can be shown; all others are critical.
bool IsAncillary(const char *name)
{
    const auto isLetter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
    return (*name & 0x20) != 0 && std::all_of(name, name + kNameLength, isLetter);
}

} // namespace

QSize SizeOfPng(const QByteArray &png)
{
    constexpr int kWidthAt = kSignatureLength + kHeadLength;
    if (png.size() < kPngHeaderEnd || !png.startsWith(kPngSignature)
        || std::memcmp(png.constData() + kSignatureLength + kNameAt, "IHDR", kNameLength) != 0)
        return QSize(0, 0);
    return {qFromBigEndian<qint32>(png.constData() + kWidthAt),
            qFromBigEndian<qint32>(png.constData() + kWidthAt + 4)};
}

bool HasGlyphFormat(const QByteArray &png)
{
    constexpr char kKind[] = {8, 6, 0, 0, 0}; // bits, colour with alpha, and not interlaced
    constexpr int kKindAt = kPngHeaderEnd - sizeof kKind;
    return png.size() >= kPngHeaderEnd && !SizeOfPng(png).isEmpty()
        && std::memcmp(png.constData() + kKindAt, kKind, sizeof kKind) == 0;
}

QByteArray PixelChunks(QIODevice &png)
{
    QByteArray chunks = png.read(kSignatureLength);
    for (;;) {
        const QByteArray head = png.read(kHeadLength);
        if (head.size() < kHeadLength)
            return chunks;
        const qint64 rest = qFromBigEndian<quint32>(head.constData()) + qint64(kChecksumLength);
        const char *const name = head.constData() + kNameAt;
        if (IsAncillary(name) && !IsAmong(kKept, name)) {
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
