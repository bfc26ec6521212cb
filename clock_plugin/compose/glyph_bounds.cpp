#include "compose/glyph_bounds.h"

#include "clock_node.h"
#include "compose/picture_file.h"
#include "glyph/ink.h"
#include "image_bounds.h"

#include <iterator>

namespace Lw::HNodeClock {

namespace {

// Indexed by the week code.
constexpr Glyph kWeekdaySeries[] = {Glyph::ChWeek, Glyph::EnWeek, Glyph::EnWeekSim,
                                    Glyph::PersiaWeek};

// 0 for an attribute that is missing.
int Number(HClockNode &clock, Attribute attribute)
{
    return clock.GetAttributeToInt(Key(attribute));
}

// The AM/PM marks, which are loaded lazily, are counted as well, even if they are hidden.
QVector<LoadedGlyph> GlyphsOf(HClockNode &clock)
{
    const int type = Number(clock, Attribute::ClockType);
    const bool analog = type == AnalogClock;
    QVector<LoadedGlyph> glyphs = GlyphsLoaded(
        type, Number(clock, analog ? Attribute::AnalogWeekType : Attribute::DigitalWeekType));
    if (type == DigitalClock && Number(clock, Attribute::DigitalMode) == 1)
        glyphs += {{Glyph::TimeAM, 0}, {Glyph::TimePM, 0}};
    return glyphs;
}

} // namespace

QVector<LoadedGlyph> GlyphsLoaded(int clockType, int weekType)
{
    QVector<LoadedGlyph> glyphs;
    if (clockType == PictureClock)
        return glyphs;
    glyphs += {{Glyph::TopText, 0}, {Glyph::Lunar, 0}};
    const bool isKnownWeek = weekType >= 0 && weekType < int(std::size(kWeekdaySeries));
    for (int day = 1; isKnownWeek && day <= 7; ++day)
        glyphs.append({kWeekdaySeries[weekType], day});
    if (clockType == DigitalClock)
        glyphs += {{Glyph::TimeNumber, 0}, {Glyph::TimeCh, 0}, {Glyph::TimeChar, 0}};
    glyphs += {{Glyph::DateNumber, 0},
               {Glyph::DateCh, 0},
               {Glyph::DateChar, 0},
               {Glyph::Minus, 0},
               {Glyph::Space, 0}};
    for (int month = 1; month <= 12; ++month)
        glyphs.append({Glyph::EnMonth, month});
    return glyphs;
}

Lw::GlyphFault NotKept(const QString &key, const QString &path)
{
    Lw::GlyphFault fault;
    fault.kind = Lw::GlyphFault::NotKept;
    fault.key = key;
    fault.path = path;
    return fault;
}

QVector<Lw::GlyphFault> GlyphAccount::AddFiles(HClockNode &clock)
{
    QVector<Lw::GlyphFault> lost;
    ClockImages kept;
    for (const LoadedGlyph &glyph : GlyphsOf(clock)) {
        const QString &key = GlyphKey(glyph.glyph, glyph.number);
        const QString path = clock.GetFirstFile(key);
        PictureFile file(path);
        if (!file.IsNull() && !Keep(kept, file.Digest(), [&file] { return file.GlyphBytes(); }))
            lost.append(NotKept(key, path));
    }
    return lost;
}

QVector<Lw::GlyphFault> GlyphAccount::AddPlanned(HClockNode &clock,
                                                 const QHash<QString, PlannedImage> &planned)
{
    QVector<Lw::GlyphFault> lost;
    ClockImages kept;
    for (const LoadedGlyph &glyph : GlyphsOf(clock)) {
        const QString &key = GlyphKey(glyph.glyph, glyph.number);
        const auto image = planned.constFind(key);
        if (image != planned.constEnd()
            && !Keep(kept, image->identity, [&image] { return InkBytes(image->size); }))
            lost.append(NotKept(key, QString()));
    }
    return lost;
}

bool GlyphAccount::Keep(ClockImages &clock, const QByteArray &identity,
                        const std::function<qint64()> &bytes)
{
    if (clock.bytes.contains(identity))
        return true;
    const bool isLoaded = m_bytes.contains(identity);
    const qint64 size = isLoaded ? m_bytes.value(identity) : bytes();
    if (clock.total + size > kClockGlyphBytes || (!isLoaded && m_total + size > kProcessGlyphBytes))
        return false;
    clock.bytes.insert(identity, size);
    clock.total += size;
    m_total += isLoaded ? 0 : size;
    m_bytes.insert(identity, size);
    return true;
}

} // namespace Lw::HNodeClock
