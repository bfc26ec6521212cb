#include "fuzz_input.h"

#include <algorithm>
#include <limits>

namespace Fuzz {

namespace {

constexpr int kMaxTextBytes = 250; // of a text that is not repeated
constexpr int kRepeats = 64;

} // namespace

int Input::Byte()
{
    return m_at == m_end ? 0 : *m_at++;
}

long long Input::Bytes(int count)
{
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i)
        value = value << 8 | static_cast<std::uint64_t>(Byte());
    return static_cast<long long>(value);
}

// A first byte up to 247 encodes the number plus eight.
int Input::Number()
{
    using Limits = std::numeric_limits<int>;
    const int first = Byte();
    switch (first) {
    case 248:
    case 249:
        return static_cast<std::int16_t>(Bytes(2));
    case 250:
    case 251:
        return static_cast<std::int32_t>(Bytes(4));
    case 252:
        return Limits::min() + Byte();
    case 253:
        return Limits::max() - Byte();
    case 254:
        return 32767 - 8 + Byte();
    case 255:
        return static_cast<int>(Bytes(2));
    default:
        return first - 8;
    }
}

long long Input::LongNumber()
{
    const int first = Byte();
    switch (first) {
    case 255:
        return Bytes(8);
    case 254:
        return std::numeric_limits<long long>::max() - Byte();
    case 253:
        return std::numeric_limits<long long>::min() + Byte();
    default:
        return Bytes(first % 8);
    }
}

QString Input::Text()
{
    const int length = Byte();
    const auto left = static_cast<int>(std::min<std::ptrdiff_t>(m_end - m_at, kMaxTextBytes));
    const QByteArray bytes(reinterpret_cast<const char *>(m_at), std::min(length, left));
    m_at += bytes.size();
    const QString text = QString::fromUtf8(bytes);
    return length > kMaxTextBytes ? text.repeated(kRepeats * (length - kMaxTextBytes)) : text;
}

QByteArray Input::Rest()
{
    const QByteArray rest(reinterpret_cast<const char *>(m_at), static_cast<int>(m_end - m_at));
    m_at = m_end;
    return rest;
}

} // namespace Fuzz
