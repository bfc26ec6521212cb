#include "font_check.h"

#include "glyph/glyph_picture.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kAnyPoints = 12;

QVector<uint> CharactersOf(const QString &text)
{
    QVector<uint> characters = text.toUcs4();
    std::sort(characters.begin(), characters.end());
    characters.erase(std::unique(characters.begin(), characters.end()), characters.end());
    return characters;
}

QString TextOf(const QVector<uint> &characters)
{
    return QString::fromUcs4(characters.constData(), characters.size());
}

// Characters that show as nothing, or only change others, need no glyph.
bool NeedsGlyph(uint character)
{
    return QChar::isPrint(character) && !QChar::isSpace(character);
}

// The family itself, without those that Qt falls back on.
QVector<uint> Lacking(const QString &family, const QVector<uint> &characters)
{
    const QRawFont own = QRawFont::fromFont(GlyphTypeface(family, kAnyPoints));
    QVector<uint> lacking;
    std::copy_if(characters.begin(), characters.end(), std::back_inserter(lacking),
                 [&own](uint character) {
                     return NeedsGlyph(character) && !own.supportsCharacter(character);
                 });
    return lacking;
}

QVector<uint> Boxes(const QString &family, int points, const QVector<uint> &lacking)
{
    const QFontMetrics withFallbacks(GlyphTypeface(family, points));
    QVector<uint> boxes;
    std::copy_if(lacking.begin(), lacking.end(), std::back_inserter(boxes),
                 [&withFallbacks](uint character) { return !withFallbacks.inFontUcs4(character); });
    return boxes;
}

QStringList FamiliesWith(const QVector<uint> &characters)
{
    QStringList families;
    for (const QString &family : QFontDatabase().families()) {
        if (Lacking(family, characters).isEmpty())
            families.append(family);
    }
    return families;
}

} // namespace

QString FamilyUsed(const QString &family)
{
    return QFontInfo(GlyphTypeface(family, kAnyPoints)).family();
}

bool IsInstalled(const QString &family)
{
    return QFontDatabase().families().contains(family, Qt::CaseInsensitive);
}

std::optional<MissingCharacters> MissingOf(const QString &family, int points,
                                           const QString &characters)
{
    const QVector<uint> wanted = CharactersOf(characters);
    const QVector<uint> lacking = Lacking(family, wanted);
    if (lacking.isEmpty())
        return std::nullopt;
    MissingCharacters missing;
    missing.family = FamilyUsed(family);
    missing.characters = TextOf(lacking);
    missing.boxes = TextOf(Boxes(family, points, lacking));
    missing.families = FamiliesWith(wanted);
    return missing;
}

} // namespace ClockFit
