// compose/: the glyph images of one clock, loaded within memory limits.
#pragma once

#include "clock_node.h"
#include "compose/glyph_strip.h"
#include "glyph/glyph_set.h"

#include "glyph_faults.h"

#include <QVector>

#include <functional>
#include <optional>

namespace Lw::HNodeClock {

/// Returns a glyph image; `number` is the place in a series, from 1, or 0 for a single image.
using GlyphSource = std::function<GlyphStrip(Glyph glyph, int number)>;

/// An image that is checked during playback and reloaded only when its recorded path or the file's
/// size or modification time has changed.
class LiveGlyph
{
public:
    /// `source` loads a file by its path.
    const GlyphStrip &Load(const QString &path,
                           const std::function<GlyphStrip(const QString &)> &source);
    const GlyphStrip &Image() const { return m_image; } ///< as last loaded

private:
    QString m_path;
    qint64 m_bytes = -1;
    qint64 m_changed = 0; ///< nanoseconds since 1970
    GlyphStrip m_image;
};

/// A strip is null if its file is not recorded, missing, damaged or too large.
struct ClockGlyphs
{
    GlyphStrip lunar;
    QVector<GlyphStrip> weeks; ///< seven weekdays, Monday first; empty until a valid code is loaded
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

    /// Loads the images for a clock type; others are kept. A weekday code outside 0 to 3 leaves the
    /// weekday images as they were.
    void Load(const GlyphSource &source, int clockType, int weekType);

    /// The image in a file; null if the glyph images of this clock, or of the process,
    /// would then exceed their limits (image_bounds.h). This is decided from the file's size and
    /// kind, before it is decoded.
    GlyphStrip LoadFile(const QString &path) const;
    /// A source that loads the files recorded on a node with LoadFile(). Images that exceed the
    /// limits are appended to `lost`, if given. Node, glyphs and list must outlive the source.
    GlyphSource RecordedFiles(HClockNode &node, QVector<Lw::GlyphFault> *lost = nullptr) const;

private:
    /// The image; nullopt if it would exceed the limits.
    std::optional<GlyphStrip> LoadWithinBounds(const QString &path) const;
    QVector<const GlyphStrip *> All() const;
    qint64 Bytes() const;
    bool Has(const GlyphStrip &strip) const;
    bool HasRoom(const GlyphStrip &loaded, qint64 bytes) const;
    GlyphStrip &Strip(Glyph glyph, int number);
};

} // namespace Lw::HNodeClock
