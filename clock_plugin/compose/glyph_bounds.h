// compose/: which glyph images a clock loads, and which of them it would lose to the bounds of
// memory.
#pragma once

#include "glyph/glyph_set.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

namespace Lw {
class HNode;
}

namespace Lw::HNodeClock {

struct LoadedGlyph
{
    Glyph glyph;
    int number; ///< within a series from 1; 0 for a single image
};

/// The images that a clock of that type loads when it is set up, in that order. No week images for
/// a code outside 0 to 3.
QVector<LoadedGlyph> GlyphsLoaded(int clockType, int weekType);

struct LostGlyph
{
    QString key;  ///< of the image, as "_timeNumber"
    QString path; ///< of its file
    QString why;  ///< "is 4096 x 4096 pixels, 64 MiB; with it ...", for a message after the path
};

/// Tells which glyph images the clocks of a program would lose, before they play: where those of a
/// clock exceed 64 MiB, or those of all clocks 256 MiB, the next ones are left out. Equal files
/// count once. No image is kept, and of the files only PNGs are decoded, one at a time.
class GlyphAccount
{
public:
    /// Adds the files recorded on a clock, in the order of the program, and tells those that it
    /// would lose; nothing for a picture clock. Files that cannot be read at all are not reported.
    QVector<LostGlyph> Add(Lw::HNode &clock);

private:
    QHash<QByteArray, qint64> m_bytes; ///< of all clocks, by digest
    qint64 m_total = 0;
};

} // namespace Lw::HNodeClock
