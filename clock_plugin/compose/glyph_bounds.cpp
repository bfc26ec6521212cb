#include "compose/glyph_bounds.h"

#include "compose/picture_file.h"
#include "hnode.h"
#include "image_bounds.h"

#include <iterator>

namespace Lw::HNodeClock {

namespace {

// Indexed by the week code.
constexpr Glyph kWeekFamilies[] = {Glyph::ChWeek, Glyph::EnWeek, Glyph::EnWeekSim,
                                   Glyph::PersiaWeek};

// As the setting is read: the text of an attribute that may be missing.
int Number(Lw::HNode &clock, Attribute attribute)
{
    return clock.GetAttributeToInt(Key(attribute));
}

// The marks of the twelve-hour display are loaded when they are first shown.
QVector<LoadedGlyph> GlyphsOf(Lw::HNode &clock)
{
    const int type = Number(clock, Attribute::ClockType);
    const bool analog = type == AnalogClock;
    QVector<LoadedGlyph> glyphs = GlyphsLoaded(
        type, Number(clock, analog ? Attribute::AnalogWeekType : Attribute::DigitalWeekType));
    if (type == DigitalClock && Number(clock, Attribute::DigitalMode) == 1)
        glyphs += {{Glyph::TimeAM, 0}, {Glyph::TimePM, 0}};
    return glyphs;
}

QString Mebibytes(qint64 bytes)
{
    return QStringLiteral("%1 MiB").arg((bytes + (1 << 20) - 1) >> 20);
}

QString WhyLost(const QSize &size, qint64 bytes, bool isOfClock)
{
    return QStringLiteral("is %1 x %2 pixels, %3; with it the glyph images of %4 would take more "
                          "than %5")
        .arg(size.width())
        .arg(size.height())
        .arg(Mebibytes(bytes),
             isOfClock ? QStringLiteral("the clock") : QStringLiteral("all clocks"),
             Mebibytes(isOfClock ? kClockGlyphBytes : kProcessGlyphBytes));
}

} // namespace

QVector<LoadedGlyph> GlyphsLoaded(int clockType, int weekType)
{
    QVector<LoadedGlyph> glyphs;
    if (clockType == PictureClock)
        return glyphs;
    glyphs += {{Glyph::TopText, 0}, {Glyph::Lunar, 0}};
    const bool isKnownWeek = weekType >= 0 && weekType < int(std::size(kWeekFamilies));
    for (int day = 1; isKnownWeek && day <= 7; ++day)
        glyphs.append({kWeekFamilies[weekType], day});
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

QVector<LostGlyph> GlyphAccount::Add(Lw::HNode &clock)
{
    QVector<LostGlyph> lost;
    QHash<QByteArray, qint64> ofClock;
    qint64 clockTotal = 0;
    for (const LoadedGlyph &glyph : GlyphsOf(clock)) {
        const QString &key = GlyphKey(glyph.glyph, glyph.number);
        PictureFile file(clock.GetFirstFile(key));
        const QByteArray digest = file.Digest();
        if (file.IsNull() || ofClock.contains(digest))
            continue;
        const bool isLoaded = m_bytes.contains(digest);
        const qint64 bytes = isLoaded ? m_bytes.value(digest) : file.GlyphBytes();
        const bool fitsClock = clockTotal + bytes <= kClockGlyphBytes;
        if (!fitsClock || (!isLoaded && m_total + bytes > kProcessGlyphBytes)) {
            lost.append({key, clock.GetFirstFile(key), WhyLost(file.Size(), bytes, !fitsClock)});
            continue;
        }
        ofClock.insert(digest, bytes);
        clockTotal += bytes;
        m_total += isLoaded ? 0 : bytes;
        m_bytes.insert(digest, bytes);
    }
    return lost;
}

} // namespace Lw::HNodeClock
