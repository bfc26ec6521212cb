// The glyph images of a node, loaded.
#pragma once

#include "clock_node.h"
#include "compose/glyph_strip.h"
#include "glyph/glyph_set.h"

#include <QVector>

#include <functional>

namespace Lw::HNodeClock {

/// Gives a glyph image; the number counts within a series from 1, and is 0 for a single image.
using GlyphSource = std::function<GlyphStrip(Glyph glyph, int number)>;

/// The files recorded on a node, which must outlive the source.
GlyphSource RecordedFiles(HClockNode &node);

/// Null strips stand for files that are not recorded, missing or broken.
struct ClockGlyphs
{
    GlyphStrip lunar;
    QVector<GlyphStrip> weeks; ///< seven, Monday first; empty until a known week code was loaded
    GlyphStrip topText;
    GlyphStrip timeNumber;
    GlyphStrip timeCh;
    GlyphStrip timeChar;
    QVector<GlyphStrip> months; ///< thirteen: index 0 a transparent spacer of two digit cells
    GlyphStrip space;
    GlyphStrip dateNumber;
    GlyphStrip dateCh;
    GlyphStrip dateChar;
    GlyphStrip minus;

    /// Loads what a clock of that type shows; the rest stays. A week code outside 0 to 3 leaves
    /// the week images as they were.
    void Load(const GlyphSource &source, int clockType, int weekType);
};

/// One image, live: decoded again only when its recorded path or the file's size or time of change
/// differ from the last time.
class LiveGlyph
{
public:
    const GlyphStrip &Load(const QString &path);

private:
    QString m_path;
    qint64 m_bytes = -1;
    qint64 m_changed = 0; ///< nanoseconds since 1970
    GlyphStrip m_image;
};

} // namespace Lw::HNodeClock
