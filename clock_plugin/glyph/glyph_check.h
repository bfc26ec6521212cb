// glyph/: which glyph images a clock shows, and the faults of generated ones: no font, too large,
// missing characters, no ink, not written.
#pragma once

#include "glyph/glyph_drawing.h"

#include "glyph_faults.h"

#include <optional>

namespace Lw::HNodeClock {

class HClockNode;

/// The result of generating one image.
struct GlyphOutcome
{
    QString path; ///< under its plain name
    QString text;
    GlyphState state = GlyphState::TooLarge;
    int error = 0;    ///< errno of writing it, or 0
    GlyphFacts facts; ///< valid if it was drawn
};

/// Whether the clock ever shows the image with its settings. False for an image that its kind of
/// clock does not have. The host may delete the node within this call and the following ones.
bool IsShown(const GlyphImage &image, HClockNode &node);

/// Whether the clock needs the ink of the image as soon as it is set up, if only to measure it: the
/// label strips set the height of all formats, and the digits of the date the width of the blank
/// among the months.
bool IsNeeded(const GlyphImage &image, HClockNode &node);

/// What is wrong with a generated image; nullopt if nothing is. For an image that the clock does
/// not show, only a failure to write it is reported.
std::optional<Lw::GlyphFault> FaultOf(const GlyphImage &image, const GlyphOutcome &outcome,
                                      HClockNode &node);

/// The node's top text; empty for a clock that is neither analog nor digital.
QString TopTextOf(HClockNode &node);

/// The text of an image: the node's own, that of the table or its translation, or the ten digits.
QString GlyphText(const GlyphImage &image, const QString &topText);

} // namespace Lw::HNodeClock
