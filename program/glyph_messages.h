// program/: messages about failed glyph images, one per reason.
#pragma once

#include "glyph_faults.h"

#include <QStringList>
#include <QVector>

namespace ClockProgram {

/// Each a sentence about one clock without its name, without a full stop.
struct GlyphMessages
{
    /// For exit code 1: images that are missing, outdated or blank.
    QStringList failures;
    /// The clock plays, but with boxes for some characters or without some images.
    QStringList warnings;
};

/// Why a clock without any font shows no texts.
QString NoFontText();

/// Empty for a clock without faults.
GlyphMessages DescribeGlyphFaults(const QVector<Lw::GlyphFault> &faults);

} // namespace ClockProgram
