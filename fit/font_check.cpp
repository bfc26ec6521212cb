#include "font_check.h"

#include "clock_parts.h"

#include "glyph/glyph_cache.h"
#include "glyph/glyph_picture.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kAnyPoints = 12; // any size will do to look up a family

QVector<uint> CharactersOf(const QString &text)
{
    QVector<uint> characters = text.toUcs4();
    std::sort(characters.begin(), characters.end());
    characters.erase(std::unique(characters.begin(), characters.end()), characters.end());
    return characters;
}

QString TextOf(const QVector<uint> &characters)
{
    return QString::fromStdU32String({characters.cbegin(), characters.cend()});
}

bool IsVariationSelector(uint character)
{
    return (character >= 0xFE00 && character <= 0xFE0F)
        || (character >= 0xE0100 && character <= 0xE01EF);
}

// Invisible characters need no glyph. Those for private use do: fonts of symbols have them.
bool NeedsGlyph(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
        return false;
    default:
        return !QChar::isSpace(character) && !IsVariationSelector(character);
    }
}

// Checks the family itself, without Qt's fallback families. Without any font nothing is looked up:
// Qt 6 has no raw font then.
QVector<uint> MissingIn(const QString &family, const QVector<uint> &characters)
{
    if (!HasFonts())
        return {};
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
    for (const QString &family : InstalledFamilies()) {
        if (MissingIn(family, characters).isEmpty())
            families.append(family);
    }
    return families;
}

} // namespace

bool HasFonts()
{
    return Lw::HNodeClock::GlyphCache::Shared().HasFonts();
}

QString FamilyUsed(const QString &family)
{
    return QFontInfo(GlyphTypeface(family, kAnyPoints)).family();
}

const QStringList &InstalledFamilies()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    static const QStringList families = QFontDatabase::families();
#else
    static const QStringList families = QFontDatabase().families();
#endif
    return families;
}

bool IsInstalled(const QString &family)
{
    return InstalledFamilies().contains(family, Qt::CaseInsensitive);
}

namespace {

// The distinct characters of each part.
using Characters = std::map<Part, QString>;

void AddNew(QString &characters, const QString &text)
{
    for (const QChar character : text) {
        if (character.isSurrogate() || !characters.contains(character))
            characters += character;
    }
}

Characters CharactersShown(ClockYear &clock, HClockNode &node, const GlyphImages &images)
{
    Characters shown;
    std::map<Part, Element> last;
    clock.ForEachState([&](const ClockYear::State &state) {
        for (const PlacedPart &text : state.texts) {
            if (last[text.part] == *text.element)
                continue;
            last[text.part] = *text.element;
            AddNew(shown[text.part], images.TextOf(*text.element));
        }
    });
    for (const Part part : PartsShown(node)) {
        if (part == Part::Time || part == Part::Numerals)
            AddNew(shown[part], QStringLiteral("0123456789"));
        else if (part == Part::Badge)
            AddNew(shown[part], QStringLiteral("AMP")); // of "AM" and "PM"
    }
    return shown;
}

std::optional<MissingCharacters> MissingOf(const QString &family, int points,
                                           const QString &characters)
{
    const QVector<uint> wanted = CharactersOf(characters);
    const QVector<uint> lacking = MissingIn(family, wanted);
    if (lacking.isEmpty())
        return std::nullopt;
    MissingCharacters missing;
    missing.family = FamilyUsed(family);
    missing.characters = TextOf(lacking);
    missing.boxes = TextOf(Boxes(family, points, lacking));
    missing.families = FamiliesWith(wanted);
    return missing;
}

} // namespace

QVector<MissingCharacters> MissingOf(ClockYear &clock, HClockNode &node, const GlyphImages &images)
{
    QVector<MissingCharacters> all;
    for (const auto &[part, characters] : CharactersShown(clock, node, images)) {
        const GlyphFontAttributes font = FontAttributes(*FontOf(part), node.ClockType());
        std::optional<MissingCharacters> missing =
            MissingOf(node.GetAttribute(Key(font.family)), NumberOf(node, font.size), characters);
        if (!missing)
            continue;
        missing->part = part;
        all.append(*missing);
    }
    return all;
}

QVector<TooLarge> TooLargeOf(HClockNode &node, GlyphImages &images)
{
    const FontSizes sizes = SizesOf(node);
    QVector<TooLarge> tooLarge;
    for (const Part part : PartsShown(node)) {
        const std::optional<GlyphFont> font = FontOf(part);
        if (font && images.LacksImages(node, sizes, *font))
            tooLarge.append({part, sizes[static_cast<std::size_t>(*font)]});
    }
    return tooLarge;
}

} // namespace ClockFit
