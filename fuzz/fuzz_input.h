// fuzz/: splits an input into choices, numbers and texts. Every sequence of bytes is valid; zeros
// follow its end.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace Fuzz {

class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size) : m_at(data), m_end(data + size) { }

    bool AtEnd() const { return m_at == m_end; }
    int Byte();
    int Choice(int count) { return Byte() % count; } ///< 0 to count - 1; at most 256
    int Number();           ///< any int; small and extreme ones are more likely
    long long LongNumber(); ///< likewise
    QString Text();         ///< up to 80 000 characters, some of them invalid
    QByteArray Rest();

private:
    long long Bytes(int count);

    const std::uint8_t *m_at;
    const std::uint8_t *m_end;
};

} // namespace Fuzz
