// compose/: the glyph images of one clock, loaded within bounds of memory.
#pragma once

#include "clock_node.h"
#include "compose/glyph_strip.h"
#include "glyph/glyph_set.h"

#include "glyph_faults.h"

#include <QVector>

#include <functional>
#include <optional>

namespace Lw::HNodeClock {

/// Gives a glyph image; the number counts within a series from 1, and is 0 for a single image.
using GlyphSource = std::function<GlyphStrip(Glyph glyph, int number)>;

/// One image that is looked up while the clock plays: loaded again only when its recorded path or
/// the file's size or time of change differ from the last time.
class LiveGlyph
{
public:
    /// The file is loaded by the source, which is given its path.
    const GlyphStrip &Load(const QString &path,
                           const std::function<GlyphStrip(const QString &)> &source);
    const GlyphStrip &Image() const { return m_image; } ///< as loaded last

private:
    QString m_path;
    qint64 m_bytes = -1;
    qint64 m_changed = 0; ///< nanoseconds since 1970
    GlyphStrip m_image;
};

/// Strips without pixels stand for files that are not recorded, missing, damaged or too large.
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
    LiveGlyph morningMark;
    LiveGlyph afternoonMark;

    /// Loads what a clock of that type shows; the rest stays. A week code outside 0 to 3 leaves
    /// the week images as they were.
    void Load(const GlyphSource &source, int clockType, int weekType);

    /// The image in a file; one without pixels where this clock or the process would then keep more
    /// than the bounds for all their glyph images (image_bounds.h). That is known from the file's
    /// size and kind, before it is decoded.
    GlyphStrip LoadFile(const QString &path) const;
    /// The files recorded on a node, loaded in this way; those that the bounds leave out are added
    /// to the list, if there is one. All of them must outlive the source.
    GlyphSource RecordedFiles(HClockNode &node, QVector<Lw::GlyphFault> *lost = nullptr) const;

private:
    /// Nothing where there is no room.
    std::optional<GlyphStrip> LoadWithinBounds(const QString &path) const;
    QVector<const GlyphStrip *> All() const;
    qint64 Bytes() const;
    bool Has(const GlyphStrip &strip) const;
    bool HasRoom(const GlyphStrip &loaded, qint64 bytes) const;
    GlyphStrip &Strip(Glyph glyph, int number);
};

} // namespace Lw::HNodeClock
