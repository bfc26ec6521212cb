#include "glyph/hmd5.h"

#include <QByteArray>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

constexpr unsigned int kBlockBytes = 64;
constexpr unsigned int kDigestBytes = 16;
constexpr qint64 kReadBytes = 1024;

// The integer part of 2^32 times the absolute sine of 1 to 64 radians.
// clang-format off
constexpr std::uint32_t kSines[kBlockBytes] = {
    0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee,
    0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
    0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be,
    0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
    0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa,
    0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
    0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed,
    0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
    0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c,
    0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
    0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05,
    0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
    0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039,
    0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
    0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1,
    0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391,
};
// clang-format on

// By how many bits each step of a round rotates; the four values repeat.
constexpr unsigned int kRotations[4][4] = {
    {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

std::uint32_t RotateLeft(std::uint32_t value, unsigned int bits)
{
    return value << bits | value >> (32 - bits);
}

std::uint32_t Mix(unsigned int round, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    switch (round) {
    case 0:
        return (b & c) | (~b & d);
    case 1:
        return (b & d) | (c & ~d);
    case 2:
        return b ^ c ^ d;
    default:
        return c ^ (b | ~d);
    }
}

unsigned int WordOfStep(unsigned int round, unsigned int step)
{
    constexpr unsigned int kFactors[4] = {1, 5, 3, 7};
    constexpr unsigned int kOffsets[4] = {0, 1, 5, 0};
    return (kFactors[round] * step + kOffsets[round]) % 16;
}

std::uint32_t ReadLittleEndian(const unsigned char *bytes)
{
    std::uint32_t word = 0;
    for (unsigned int i = 0; i < 4; ++i)
        word |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
    return word;
}

void WriteLittleEndian(unsigned char *bytes, unsigned long word)
{
    for (unsigned int i = 0; i < 4; ++i)
        bytes[i] = static_cast<unsigned char>(word >> (8 * i) & 0xff);
}

bool OpenForReading(QFile &file, const QString &path)
{
    file.setFileName(path);
    file.unsetError();
    // A device or pipe may be endless. A directory passes, as open() gives the right error for it.
    const QFileInfo info(path);
    const bool endless = info.exists() && !info.isFile() && !info.isDir();
    return !endless && file.open(QFile::ReadOnly);
}

/// The digest of an open file in lowercase hexadecimal; empty if reading fails partway.
QString DigestOfOpenFile(QFile &file)
{
    HMD5 digest;
    char block[kReadBytes];
    qint64 length = 0;
    while ((length = file.read(block, kReadBytes)) > 0)
        digest.Update(reinterpret_cast<const unsigned char *>(block),
                      static_cast<unsigned int>(length));
    if (length < 0 || file.error() != QFile::NoError)
        return QString();
    unsigned char bytes[kDigestBytes];
    digest.Final(bytes);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(bytes), kDigestBytes).toHex());
}

} // namespace

HMD5::HMD5() : m_state {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476}, m_count {}, m_buffer {} { }

QString HMD5::GeneratorFile(QString path)
{
    static QFile file;
    const QString digest = OpenForReading(file, path) ? DigestOfOpenFile(file) : QString();
    const QString error = file.errorString();
    file.close();
    if (digest.isEmpty()) {
        qDebug().noquote() << QLatin1String("open [") + path + QLatin1String("]error") << error;
        return QString();
    }
    const QFileInfo old(path);
    const QString renamed =
        old.absolutePath() + QLatin1Char('/') + digest + QLatin1Char('.') + old.suffix();
    // An existing file is never replaced, so that a file reached through another spelling of its
    // own path is not lost. Qt treats a dangling link as no file, and then writes to its target.
    if (renamed != path && !QFileInfo(renamed).isSymLink())
        file.rename(renamed);
    return renamed;
}

QString HMD5::FileDigest(QString path)
{
    QFile file;
    return OpenForReading(file, path) ? DigestOfOpenFile(file) : QString();
}

void HMD5::MD5Transform(unsigned long *state, unsigned char *block)
{
    std::uint32_t words[16];
    for (unsigned int i = 0; i < 16; ++i)
        words[i] = ReadLittleEndian(block + 4 * i);
    std::uint32_t sums[4];
    std::transform(state, state + 4, sums,
                   [](unsigned long word) { return static_cast<std::uint32_t>(word); });
    auto [a, b, c, d] = sums;
    for (unsigned int step = 0; step < kBlockBytes; ++step) {
        const unsigned int round = step / 16;
        const std::uint32_t sum =
            a + Mix(round, b, c, d) + kSines[step] + words[WordOfStep(round, step)];
        a = d;
        d = c;
        c = b;
        b += RotateLeft(sum, kRotations[round][step % 4]);
    }
    const std::uint32_t result[4] = {sums[0] + a, sums[1] + b, sums[2] + c, sums[3] + d};
    std::copy(std::begin(result), std::end(result), state);
}

void HMD5::Update(const unsigned char *bytes, unsigned int length)
{
    const std::uint64_t before = static_cast<std::uint64_t>(m_count[1]) << 32 | m_count[0];
    const std::uint64_t after = before + std::uint64_t {length} * 8;
    m_count[0] = static_cast<unsigned int>(after & 0xffffffff);
    m_count[1] = static_cast<unsigned int>(after >> 32);
    auto filled = static_cast<unsigned int>(before / 8 % kBlockBytes);
    while (length > 0) {
        const unsigned int taken = std::min(length, kBlockBytes - filled);
        std::memcpy(m_buffer + filled, bytes, taken);
        bytes += taken;
        length -= taken;
        filled = (filled + taken) % kBlockBytes;
        if (filled == 0)
            MD5Transform(m_state, m_buffer);
    }
}

void HMD5::Final(unsigned char *digest)
{
    static constexpr unsigned char kPadding[kBlockBytes] = {0x80};
    unsigned char bits[8];
    WriteLittleEndian(bits, m_count[0]);
    WriteLittleEndian(bits + 4, m_count[1]);
    const unsigned int filled = m_count[0] / 8 % kBlockBytes;
    Update(kPadding, (filled < 56 ? 56 : 120) - filled);
    Update(bits, sizeof bits);
    for (unsigned int i = 0; i < 4; ++i)
        WriteLittleEndian(digest + 4 * i, m_state[i]);
}
