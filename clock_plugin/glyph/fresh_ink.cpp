#include "glyph/fresh_ink.h"

#include <memory>
#include <utility>

namespace Lw::HNodeClock {

namespace {

constexpr int kMaxBytes = 64 << 10;

} // namespace

FreshInk::FreshInk() : m_ink(kMaxBytes) { }

FreshInk &FreshInk::OfThread()
{
    thread_local FreshInk t_ink;
    return t_ink;
}

void FreshInk::Keep(const QByteArray &png, const QImage &image)
{
    constexpr int kOverhead = 250; // bytes per entry
    const qint64 bytes = kOverhead + png.size() + InkBytes(image.size());
    if (bytes > kMaxBytes)
        return;
    if (std::optional<Ink> ink = InkFrom(image))
        m_ink.insert(png, new Ink(std::move(*ink)), static_cast<int>(bytes));
}

std::optional<Ink> FreshInk::Take(const QByteArray &png)
{
    const std::unique_ptr<Ink> ink(m_ink.take(png));
    return ink ? std::make_optional(std::move(*ink)) : std::nullopt;
}

} // namespace Lw::HNodeClock
