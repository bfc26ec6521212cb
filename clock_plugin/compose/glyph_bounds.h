// compose/: which glyph images a clock loads, and which of them it would lose to the bounds of
// memory.
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

/// The images that a clock of that type loads when it is set up, in that order. No week images for
/// a code outside 0 to 3.
QVector<LoadedGlyph> GlyphsLoaded(int clockType, int weekType);

/// The fault of an image that the bounds leave out.
Lw::GlyphFault NotKept(const QString &key, const QString &path);

/// Tells which glyph images the clocks of a program would lose, before they play: where those of a
/// clock exceed 64 MiB, or those of all clocks 256 MiB, the next ones are left out. Equal images
/// count once. No image is kept.
class GlyphAccount
{
public:
    // Each adds the images of one clock, in the order of the program, and tells those that it would
    // lose; nothing for a picture clock.

    /// As they are in the files recorded on it. Files that cannot be read at all are not reported;
    /// of the others only PNGs are decoded, one at a time.
    QVector<Lw::GlyphFault> AddFiles(HClockNode &clock);
    /// As they are planned; the faults have no path.
    QVector<Lw::GlyphFault> AddPlanned(HClockNode &clock,
                                       const QHash<QString, PlannedImage> &planned);

private:
    struct OfClock
    {
        QHash<QByteArray, qint64> bytes;
        qint64 total = 0;
    };

    bool Keep(OfClock &clock, const QByteArray &identity, const std::function<qint64()> &bytes);

    QHash<QByteArray, qint64> m_bytes; ///< of all clocks, by what distinguishes the images
    qint64 m_total = 0;
};

} // namespace Lw::HNodeClock
