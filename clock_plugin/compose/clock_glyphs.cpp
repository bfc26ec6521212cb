#include "compose/clock_glyphs.h"

#include "compose/glyph_bounds.h"
#include "compose/picture_file.h"
#include "image_bounds.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <numeric>

#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

GlyphStrip BlankMonth(const GlyphStrip &digits)
{
    return GlyphStrip::Blank({digits.Width() / kDigitCells * 2, digits.Height()});
}

} // namespace

GlyphStrip &ClockGlyphs::Strip(Glyph glyph, int number)
{
    switch (glyph) {
    case Glyph::TopText:
        return topText;
    case Glyph::Lunar:
        return lunar;
    case Glyph::EnMonth:
        return months[number];
    case Glyph::TimeNumber:
        return timeNumber;
    case Glyph::TimeCh:
        return timeCh;
    case Glyph::TimeChar:
        return timeChar;
    case Glyph::DateNumber:
        return dateNumber;
    case Glyph::DateCh:
        return dateCh;
    case Glyph::DateChar:
        return dateChar;
    case Glyph::Minus:
        return minus;
    case Glyph::Space:
        return space;
    default: // a day of one of the weekday series
        weeks.resize(7);
        return weeks[number - 1];
    }
}

void ClockGlyphs::Load(const GlyphSource &source, int clockType, int weekType)
{
    months = QVector<GlyphStrip>(13);
    const QVector<LoadedGlyph> glyphs = GlyphsLoaded(clockType, weekType);
    // Release all old images first, so that the new ones fit within the limits.
    for (const LoadedGlyph &each : glyphs)
        Strip(each.glyph, each.number) = GlyphStrip();
    for (const LoadedGlyph &each : glyphs)
        Strip(each.glyph, each.number) = source(each.glyph, each.number);
    months[0] = BlankMonth(dateNumber);
}

QVector<const GlyphStrip *> ClockGlyphs::All() const
{
    QVector<const GlyphStrip *> strips {
        &lunar,    &topText, &timeNumber,          &timeCh,
        &timeChar, &space,   &dateNumber,          &dateCh,
        &dateChar, &minus,   &morningMark.Image(), &afternoonMark.Image()};
    for (const QVector<GlyphStrip> *const series : {&weeks, &months}) {
        for (const GlyphStrip &strip : *series)
            strips.append(&strip);
    }
    return strips;
}

// Shared images are counted once.
qint64 ClockGlyphs::Bytes() const
{
    QHash<quint32, qint64> kept;
    for (const GlyphStrip *const strip : All())
        kept.insert(strip->Key(), strip->Bytes());
    return std::accumulate(kept.cbegin(), kept.cend(), qint64(0));
}

bool ClockGlyphs::Has(const GlyphStrip &strip) const
{
    const QVector<const GlyphStrip *> strips = All();
    return std::any_of(strips.cbegin(), strips.cend(),
                       [&](const GlyphStrip *each) { return each->Key() == strip.Key(); });
}

// Whether one more image fits within the limits. `loaded` is its strip if it is already loaded,
// else null; `bytes` is its size.
bool ClockGlyphs::HasRoom(const GlyphStrip &loaded, qint64 bytes) const
{
    const bool isLoaded = loaded.Key() != 0;
    const qint64 process = GlyphBytesInProcess() + (isLoaded ? 0 : bytes);
    // Shortcut: all clocks together are usually within the limit for one.
    return process <= kClockGlyphBytes || (isLoaded && Has(loaded))
        || (process <= kProcessGlyphBytes && Bytes() + bytes <= kClockGlyphBytes);
}

std::optional<GlyphStrip> ClockGlyphs::LoadWithinBounds(const QString &path) const
{
    PictureFile file(path);
    if (file.IsNull())
        return GlyphStrip();
    const GlyphStrip loaded = GlyphStrip::Loaded(file.Digest());
    const bool isLoaded = loaded.Key() != 0;
    qint64 bytes = isLoaded ? loaded.Bytes() : file.MaxBytes();
    if (!HasRoom(loaded, bytes)) {
        CountLoadedGlyphsExactly();
        bytes = isLoaded ? loaded.Bytes() : file.GlyphBytes();
        if (!HasRoom(loaded, bytes))
            return std::nullopt;
    }
    return isLoaded ? loaded : GlyphStrip::OfFile(file, bytes);
}

GlyphStrip ClockGlyphs::LoadFile(const QString &path) const
{
    return LoadWithinBounds(path).value_or(GlyphStrip());
}

GlyphSource ClockGlyphs::RecordedFiles(HClockNode &node, QVector<Lw::GlyphFault> *lost) const
{
    return [this, &node, lost](Glyph glyph, int number) {
        const QString &key = GlyphKey(glyph, number);
        const QString path = node.GetFirstFile(key);
        const std::optional<GlyphStrip> strip = LoadWithinBounds(path);
        if (!strip && lost)
            lost->append(NotKept(key, path));
        return strip.value_or(GlyphStrip());
    };
}

const GlyphStrip &LiveGlyph::Load(const QString &path,
                                  const std::function<GlyphStrip(const QString &)> &source)
{
    struct stat file
    { };
    const bool exists = !path.isEmpty() && stat(QFile::encodeName(path).constData(), &file) == 0;
    const qint64 bytes = exists ? qint64(file.st_size) : -1;
    const qint64 changed =
        exists ? file.st_mtim.tv_sec * Q_INT64_C(1000000000) + file.st_mtim.tv_nsec : 0;
    if (path != m_path || bytes != m_bytes || changed != m_changed) {
        m_path = path;
        m_bytes = bytes;
        m_changed = changed;
        m_image = GlyphStrip();
        m_image = source(path);
    }
    return m_image;
}

} // namespace Lw::HNodeClock
