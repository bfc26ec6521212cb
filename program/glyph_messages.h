// What to tell a person of glyph images that went wrong, in as few sentences as there are reasons.
#pragma once

#include "glyph_faults.h"

#include <QStringList>
#include <QVector>

namespace ClockProgram {

/// Each a sentence about one clock without its name, without a full stop.
struct GlyphMessages
{
    /// For exit code 1: images that are missing, older than what they should show, or blank.
    QStringList failures;
    /// The clock plays, with boxes for some letters or without some images.
    QStringList warnings;
};

/// Nothing at all for a clock without faults.
GlyphMessages DescribeGlyphFaults(const QVector<Lw::GlyphFault> &faults);

} // namespace ClockProgram
