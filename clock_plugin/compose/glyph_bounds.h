// compose/: which glyph images a clock loads, and which of them would exceed the memory limits.
#pragma once

#include "glyph/glyph_plan.h"
#include "glyph/glyph_set.h"

#include "glyph_faults.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

#include <functional>

namespace Lw::HNodeClock {

struct LoadedGlyph
{
    Glyph glyph;
    int number; ///< within a series from 1; 0 for a single image
};

/// The images that a clock of this type loads when it is set up, in loading order. No weekday
/// images for a code outside 0 to 3.
QVector<LoadedGlyph> GlyphsLoaded(int clockType, int weekType);

/// The fault of an image that exceeds the limits.
Lw::GlyphFault NotKept(const QString &key, const QString &path);

/// Reports in advance which glyph images the clocks of a program cannot load: if those of a clock
/// exceed kClockGlyphBytes, or those of all clocks kProcessGlyphBytes (image_bounds.h), further
/// images are not loaded. Equal images count once. No image is kept.
class GlyphAccount
{
public:
    // Each adds the images of one clock, in program order, and returns those that it would drop;
    // none for a picture clock.

    /// The images in the files recorded on the clock. Unreadable files are not reported. Only PNGs
    /// are decoded, one at a time.
    QVector<Lw::GlyphFault> AddFiles(HClockNode &clock);
    /// The images as planned; the faults have no path.
    QVector<Lw::GlyphFault> AddPlanned(HClockNode &clock,
                                       const QHash<QString, PlannedImage> &planned);

private:
    struct ClockImages
    {
        QHash<QByteArray, qint64> bytes;
        qint64 total = 0;
    };

    bool Keep(ClockImages &clock, const QByteArray &identity, const std::function<qint64()> &bytes);

    QHash<QByteArray, qint64> m_bytes; ///< of all clocks, by file digest or planned identity
    qint64 m_total = 0;
};

} // namespace Lw::HNodeClock
