#include "glyph/glyph_check.h"

#include "glyph/draw_source_image.h"
#include "glyph/guarded_node.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

bool IsInkExpected(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar letter) { return letter.isPrint() && !letter.isSpace(); });
}

Lw::GlyphFault Fault(Lw::GlyphFault::Kind kind, const GlyphImage &image)
{
    Lw::GlyphFault fault;
    fault.kind = kind;
    fault.key = image.Key();
    return fault;
}

std::optional<Lw::GlyphFault> FontFault(const GlyphImage &image,
                                        const QString &charactersWithoutGlyph)
{
    if (!GlyphCache::Shared().HasFonts())
        return Fault(Lw::GlyphFault::NoFont, image);
    if (charactersWithoutGlyph.isEmpty())
        return std::nullopt;
    Lw::GlyphFault fault = Fault(Lw::GlyphFault::MissingCharacters, image);
    fault.characters = charactersWithoutGlyph;
    return fault;
}

/// For an image that is shown and not empty.
std::optional<Lw::GlyphFault> PictureFault(const GlyphImage &image, const GlyphOutcome &outcome)
{
    if (outcome.state == GlyphState::TooLarge)
        return Fault(Lw::GlyphFault::TooLarge, image);
    if (outcome.state == GlyphState::Nothing)
        return std::nullopt;
    if (auto fault = FontFault(image, outcome.facts.charactersWithoutGlyph))
        return fault;
    if (!outcome.facts.hasInk && IsInkExpected(outcome.text))
        return Fault(Lw::GlyphFault::NoInk, image);
    return std::nullopt;
}

} // namespace

std::optional<Lw::GlyphFault> FaultOf(const GlyphImage &image, const GlyphOutcome &outcome,
                                      HClockNode &node)
{
    std::optional<Lw::GlyphFault> fault;
    if (outcome.error != 0) {
        fault = Fault(Lw::GlyphFault::NotWritten, image);
        fault->error = outcome.error;
    } else if (IsShown(image, node)) {
        fault = PictureFault(image, outcome);
    }
    if (fault)
        fault->path = outcome.path;
    return fault;
}

QString TopTextOf(HClockNode &node)
{
    const GuardedNode guarded(&node);
    switch (guarded.ClockType()) {
    case AnalogClock:
        return guarded.Text(Attribute::AnalogTopText);
    case DigitalClock:
        return guarded.Text(Attribute::DigitalTopText);
    default:
        return {};
    }
}

QString GlyphText(const GlyphImage &image, const QString &topText)
{
    if (image.row->shape == GlyphShape::DigitStrip)
        return QLatin1String(kDigits);
    switch (image.row->wording) {
    case GlyphWording::TopText:
        return topText;
    case GlyphWording::Translated:
        return DrwSourceIMage::tr(image.Text());
    case GlyphWording::Verbatim:
        break;
    }
    return QString::fromLatin1(image.Text());
}

} // namespace Lw::HNodeClock
