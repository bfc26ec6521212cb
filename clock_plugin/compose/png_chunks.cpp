#include "compose/png_chunks.h"

#include "image_bounds.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

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

// Those that bear on the pixels, of the chunks that a reader may leave out.
constexpr const char *kKept[] = {"tRNS", "bKGD", "sBIT", "gAMA", "cHRM", "sRGB"};

constexpr const char *kCritical[] = {"IHDR", "PLTE", "IDAT", "IEND"};

template<std::size_t count>
bool IsAmong(const char *const (&names)[count], const char *name)
{
    return std::any_of(std::begin(names), std::end(names), [name](const char *known) {
        return std::equal(known, known + kNameLength, name);
    });
}

// Names are of letters. One that begins with a small letter says that the picture is the same
// without the chunk; a reader that does not know any other must not show the picture.
bool IsAncillary(const char *name)
{
    const auto isLetter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
    return (*name & 0x20) != 0 && std::all_of(name, name + kNameLength, isLetter);
}

// The cyclic redundancy check of ISO 3309, which PNG takes over the name and content of a chunk:
// four bits at a time.
constexpr quint32 RemainderOf(quint32 bits)
{
    for (int bit = 0; bit < 4; ++bit)
        bits = bits >> 1 ^ ((bits & 1) != 0 ? 0xedb88320u : 0u);
    return bits;
}

template<quint32... Bits>
constexpr std::array<quint32, sizeof...(Bits)> Remainders(std::integer_sequence<quint32, Bits...>)
{
    return {RemainderOf(Bits)...};
}

constexpr std::array<quint32, 16> kRemainders =
    Remainders(std::make_integer_sequence<quint32, 16>());

quint32 Checksum(const char *bytes, qint64 count)
{
    quint32 sum = 0xffffffff;
    for (qint64 i = 0; i < count; ++i) {
        sum ^= static_cast<uchar>(bytes[i]);
        sum = sum >> 4 ^ kRemainders[sum & 15];
        sum = sum >> 4 ^ kRemainders[sum & 15];
    }
    return ~sum;
}

bool IsNamed(const char *chunk, const char *name)
{
    return std::equal(name, name + kNameLength, chunk + kNameAt);
}

// The content of a header of 8-bit colours with transparency: width and height, and this.
constexpr char kAsGlyphsAre[] = {8, 6, 0, 0, 0};
constexpr qint64 kHeaderLength = 8 + sizeof kAsGlyphsAre;

} // namespace

QSize SizeOfIntactPng(const QByteArray &png)
{
    if (!png.startsWith(kPngSignature))
        return QSize();
    QSize size;
    bool hasPixels = false;
    for (qint64 at = kSignatureLength; png.size() - at >= kHeadLength + kChecksumLength;) {
        const char *const chunk = png.constData() + at;
        const qint64 length = qFromBigEndian<quint32>(chunk);
        const qint64 end = at + kHeadLength + length + kChecksumLength;
        const bool isHeader = IsNamed(chunk, "IHDR");
        if (end > png.size() || isHeader != (at == kSignatureLength)
            || Checksum(chunk + kNameAt, kNameLength + length)
                != qFromBigEndian<quint32>(chunk + kHeadLength + length))
            return QSize();
        const char *const name = chunk + kNameAt;
        if (!IsAncillary(name) && !IsAmong(kCritical, name))
            return QSize();
        if (isHeader) {
            const char *const content = chunk + kHeadLength;
            if (length != kHeaderLength
                || !std::equal(std::begin(kAsGlyphsAre), std::end(kAsGlyphsAre), content + 8))
                return QSize();
            size = QSize(qFromBigEndian<qint32>(content), qFromBigEndian<qint32>(content + 4));
        }
        if (IsNamed(chunk, "IEND"))
            return hasPixels && WithinBounds(size, kGlyphBytes) ? size : QSize();
        hasPixels = hasPixels || IsNamed(chunk, "IDAT");
        at = end;
    }
    return QSize();
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
