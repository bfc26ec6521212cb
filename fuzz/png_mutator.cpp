// fuzz/: mutates inputs, and mostly repairs the checksums of a PNG in them, so that it is decoded.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

extern "C" {
std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned int seed);
}

namespace {

constexpr std::uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::ptrdiff_t kLengthBytes = 4;
constexpr std::ptrdiff_t kNameBytes = 4;
constexpr std::ptrdiff_t kChecksumBytes = 4;

// The CRC-32 that PNG computes over the name and the content of a chunk.
std::uint32_t Checksum(const std::uint8_t *at, const std::uint8_t *end)
{
    std::uint32_t sum = 0xffffffff;
    for (; at != end; ++at) {
        sum ^= *at;
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320 : 0);
    }
    return ~sum;
}

std::uint32_t Number(const std::uint8_t *at)
{
    return std::uint32_t(at[0]) << 24 | std::uint32_t(at[1]) << 16 | std::uint32_t(at[2]) << 8
        | at[3];
}

// Rewrites the checksum of every complete chunk.
void RepairChecksums(std::uint8_t *at, std::uint8_t *end)
{
    while (end - at >= kLengthBytes + kNameBytes + kChecksumBytes) {
        const std::ptrdiff_t length = Number(at);
        std::uint8_t *const name = at + kLengthBytes;
        if (length > end - name - kNameBytes - kChecksumBytes)
            return;
        std::uint8_t *const sumAt = name + kNameBytes + length;
        const std::uint32_t sum = Checksum(name, sumAt);
        for (int i = 0; i < kChecksumBytes; ++i)
            sumAt[i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
        at = sumAt + kChecksumBytes;
    }
}

} // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned int seed)
{
    const std::size_t changed = LLVMFuzzerMutate(data, size, maxSize);
    std::uint8_t *const end = data + changed;
    std::uint8_t *const png = std::search(data, end, std::begin(kSignature), std::end(kSignature));
    if (png != end && seed % 8 != 0)
        RepairChecksums(png + std::size(kSignature), end);
    return changed;
}
