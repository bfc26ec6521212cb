// fit/: the public interface: which parts of a clock are cut, covered, invisible or missing from
// their font on any day of a year, and the sizes that fit. The answers come from the clock's own
// composer, layout and geometry; nothing is written and no frame is drawn. A QGuiApplication must
// exist.
#pragma once

#include "glyph_images.h"
#include "year_stretches.h"

#include <QRect>
#include <QRgb>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace ClockFit {

/// What a clock draws. The first five are texts; Time exists on digital clocks only, the parts from
/// Badge on exist on analog clocks only.
enum class Part {
    TopText,
    Date,
    Week,
    Time,
    Lunar,
    Badge,
    Numerals,
    HourMarks,
    MinuteMarks,
    HourHand,
    MinuteHand,
    SecondHand,
};

/// The name for messages: "title", "minute marks".
QString NameOf(Part part);
/// The attribute of a part's font family, font size or colour; nullopt for parts that have none.
std::optional<Lw::HNodeClock::Attribute> FamilyAttribute(Part part, int clockType);
std::optional<Lw::HNodeClock::Attribute> SizeAttribute(Part part, int clockType);
std::optional<Lw::HNodeClock::Attribute> ColourAttribute(Part part, int clockType);

enum class Side { Left, Top, Right, Bottom };

/// An instant and what a part shows then; the text is empty for parts that are not text.
struct Moment
{
    qint64 utc = 0; ///< milliseconds
    QString text;
};

/// Ink of a part outside what can be seen of the area.
struct Cut
{
    Part part = Part::TopText;
    Side side = Side::Left;
    int pixels = 0;      ///< how far it reaches beyond the edge in the worst case
    bool isGone = false; ///< whether a text is entirely outside in the worst case
    Moment first;        ///< when any ink is first cut
    Moment worst;        ///< when the worst cut first occurs
};

/// Ink of a part beyond the edge of its own images, which show less of the text than the font
/// draws; larger areas show no more of it. Texts have images of their advance width and the font's
/// line height, and some date and time formats have less room than their pieces take.
struct Clipped
{
    Part part = Part::TopText;
    Side side = Side::Left;
    int pixels = 0; ///< how far ink reaches beyond the edge in the worst case
    Moment first;   ///< when any ink is first lost; the text is the piece that loses most
    Moment worst;   ///< when the worst loss first occurs, likewise
};

/// Ink of one part over that of another.
struct Overlap
{
    Part lower = Part::TopText;
    Part upper = Part::TopText; ///< equal to `lower` where numerals overlap each other
    int pixels = 0;             ///< ink in common in the worst case
    Moment first;               ///< when any ink is first covered; the text is the upper part's
    Moment worst;               ///< when the worst overlap first occurs, likewise
};

/// A part with too little contrast against its background.
struct Faint
{
    Part part = Part::TopText;
    QRgb ink = 0;
    QRgb background = 0;      ///< the background colour on the wall
    double contrast = 1;      ///< as WCAG defines it, 1 to 21
    bool isKeyColour = false; ///< the ink has the key colour, which is transparent on the host
};

/// Two hands of the same colour.
struct SameHands
{
    Part one = Part::HourHand;
    Part other = Part::MinuteHand;
    QRgb colour = 0;
};

/// Marks that are set but not drawn because the dial is too small.
struct LostMarks
{
    Part part = Part::MinuteMarks;
    double radius = 0;        ///< of the dial, pixels
    double minimumRadius = 0; ///< the smallest radius with such marks, pixels
};

/// Characters that a part shows and its font family lacks.
struct MissingCharacters
{
    Part part = Part::TopText;
    QString family;       ///< the family Qt actually uses
    QString characters;   ///< each once
    QString boxes;        ///< those that no fallback font has either: shown as boxes
    QStringList families; ///< installed families that have all characters of the part
};

/// A text that cannot be drawn: its image would be too large.
struct TooLarge
{
    Part part = Part::TopText;
    int points = 0;
};

struct ClockFindings
{
    QVector<Cut> cuts;        ///< by part, then side
    QVector<Clipped> clipped; ///< one for each part at most
    QVector<Overlap> overlaps;
    QVector<Faint> faint;
    QVector<SameHands> sameHands;
    QVector<LostMarks> lostMarks;
    QVector<MissingCharacters> missing;
    QVector<TooLarge> tooLarge;

    bool IsEmpty() const;
};

/// The colour that hosts show in place of the key colour.
constexpr QRgb kBlackBackground = 0xff000000;

/// Checks clocks one by one; caches the glyph images that they share.
class ClockCheck
{
public:
    explicit ClockCheck(const Year &year, QRgb background = kBlackBackground)
        : m_year(year), m_background(background)
    { }

    /// All findings for one clock. `visible` is the visible part of its area, in pixels from the
    /// area's top left; by default all of it. The node is only read.
    ClockFindings Check(Lw::HNodeClock::HClockNode &node, const QRect &visible = {});

    /// The cuts and overlaps with other sizes than the node's. Moment::text stays empty.
    QVector<Cut> Cuts(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes,
                      const QRect &visible = {});
    QVector<Overlap> Overlaps(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes);
    QVector<Clipped> ClippedParts(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes);

    const Year &CheckedYear() const { return m_year; }
    GlyphImages &Images() { return m_images; }

private:
    Year m_year;
    QRgb m_background;
    GlyphImages m_images;
};

/// The files of a picture clock's style (any number) that cannot be read beside this program: the
/// dial's first, then those of the hands. By name, without the folder.
QStringList UnreadableStyleFiles(int style);

/// The largest size of one part at which it is not cut.
struct PartSize
{
    Part part = Part::TopText;
    int points = 0; ///< 0 if none was found
};

/// A scale factor and the resulting sizes, rounded down to whole points, at least 1.
struct CommonSizes
{
    double factor = 0; ///< 0 where none was found
    FontSizes sizes = {};
};

// Each search measures about ten sizes, assuming that what fits at one size fits at smaller ones.
// Parts without a font size, such as marks, are ignored.

/// For each cut part its largest size that fits, the others unchanged.
QVector<PartSize> SizesOfParts(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                               const QVector<Cut> &cuts, const QRect &visible = {});

/// The size closest to a part's own at which its images lose no ink and it is not cut; 0 if none
/// was found.
int SizeWithAllInk(ClockCheck &check, Lw::HNodeClock::HClockNode &node, Part part,
                   const QRect &visible = {});

/// For all parts together: the largest factor below 1 at which none is cut.
CommonSizes ShrunkSizes(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                        const QRect &visible = {});

/// Sizes no larger than the node's at which nothing is cut: only the one part that is cut is made
/// smaller, or all by one factor. The node's own sizes if nothing is cut; nullopt if no sizes were
/// found.
std::optional<FontSizes> SizesThatFit(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                                      const QRect &visible = {});

/// The largest factor, at least 1, at which no part is cut or newly covered; 0 if something is cut
/// at 1.
CommonSizes GrownSizes(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                       const QRect &visible = {});

} // namespace ClockFit
