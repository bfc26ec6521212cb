// What of a clock is cut, covered, invisible or not in its font on any day of a year, and the
// sizes that fit. The answers come from the clock's own composer, layout and geometry; nothing is
// written and no frame is drawn. A QGuiApplication must exist.
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

/// What a clock draws. The first five are texts of both kinds of clock, Time of digital ones only.
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

/// As people call it: "title", "minute marks".
QString NameOf(Part part);
/// The attribute of its family, its size or its colour; nothing for parts that have none.
std::optional<Lw::HNodeClock::Attribute> FamilyAttribute(Part part, int clockType);
std::optional<Lw::HNodeClock::Attribute> SizeAttribute(Part part, int clockType);
std::optional<Lw::HNodeClock::Attribute> ColourAttribute(Part part, int clockType);

enum class Side { Left, Top, Right, Bottom };

/// An instant and what a part shows then; empty for parts that are no text.
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
    int pixels = 0;      ///< how far it reaches beyond the edge, at the worst
    bool isGone = false; ///< whether nothing of the part is seen at the worst
    Moment first;        ///< when any ink is first cut
    Moment worst;        ///< when so much is first cut
};

/// Ink of one part over that of another.
struct Overlap
{
    Part lower = Part::TopText;
    Part upper = Part::TopText; ///< the same for numerals over each other
    int pixels = 0;             ///< of ink that both have, at the worst
    Moment first;               ///< when any is first covered, and what the upper part shows
    Moment worst;               ///< when so much is first covered, likewise
};

/// A part that can hardly be told from what it is drawn on.
struct Faint
{
    Part part = Part::TopText;
    QRgb ink = 0;
    QRgb ground = 0;          ///< as it shows on the wall
    double contrast = 1;      ///< as WCAG defines it, 1 to 21
    bool isKeyColour = false; ///< the colour itself is the one that the host shows through
};

/// Two hands that cannot be told apart where one is over the other.
struct SameHands
{
    Part one = Part::HourHand;
    Part other = Part::MinuteHand;
    QRgb colour = 0;
};

/// Marks that the settings ask for and a dial of this size does not have.
struct LostMarks
{
    Part part = Part::MinuteMarks;
    double radius = 0; ///< of the dial, pixels
    double enough = 0; ///< the smallest radius with such marks; 0 where none was found
};

/// Characters that a part shows and its family does not have.
struct MissingCharacters
{
    Part part = Part::TopText;
    QString family;       ///< the one that is used
    QString characters;   ///< each once
    QString boxes;        ///< those of them that no family has: they appear as boxes
    QStringList families; ///< installed ones that have all characters of the part
};

/// A text that cannot be drawn: its image would be too large.
struct Undrawn
{
    Part part = Part::TopText;
    int points = 0;
};

struct ClockFindings
{
    QVector<Cut> cuts; ///< by part, then side
    QVector<Overlap> overlaps;
    QVector<Faint> faint;
    QVector<SameHands> sameHands;
    QVector<LostMarks> lostMarks;
    QVector<MissingCharacters> missing;
    QVector<Undrawn> undrawn;

    bool IsEmpty() const;
};

/// How a host shows the colour that nothing is drawn on.
constexpr QRgb kBlackGround = 0xff000000;

/// Looks at clocks one by one; keeps the glyph images that they share.
class ClockCheck
{
public:
    explicit ClockCheck(const Year &year, QRgb ground = kBlackGround)
        : m_year(year), m_ground(ground)
    { }

    /// All that there is to find of one clock. The visible part of its area is in pixels from the
    /// area's top left; by default all of it. The node is only read.
    ClockFindings Look(Lw::HNodeClock::HClockNode &node, const QRect &visible = {});

    /// What is cut and what is covered with other sizes than the node's. No text is told.
    QVector<Cut> Cuts(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes,
                      const QRect &visible = {});
    QVector<Overlap> Overlaps(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes);

    const Year &Years() const { return m_year; }
    GlyphImages &Images() { return m_images; }

private:
    Year m_year;
    QRgb m_ground;
    GlyphImages m_images;
};

/// The largest size of one part at which it is not cut.
struct PartSize
{
    Part part = Part::TopText;
    int points = 0; ///< 0 where none was found
};

/// A factor and the whole sizes that it gives, rounded down and at least 1.
struct CommonSizes
{
    double factor = 0; ///< 0 where none was found
    FontSizes sizes = {};
};

// Each size that is tried is measured, about ten in all, on the understanding that what fits at one
// size fits at smaller ones. Parts that have no size, such as marks, do not count.

/// Of each part that is cut, the others as they are.
QVector<PartSize> SizesOfParts(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                               const QVector<Cut> &cuts, const QRect &visible = {});

/// Of all parts together: the largest factor below 1 at which none is cut.
CommonSizes ShrunkSizes(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                        const QRect &visible = {});

/// Sizes at which nothing is cut, no larger than the node's: one part smaller where it alone is
/// cut, else all by one factor. The node's own where nothing is cut; nothing where no sizes were
/// found.
std::optional<FontSizes> SizesThatFit(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                                      const QRect &visible = {});

/// The largest factor from 1 on at which none is cut and no ink is covered that was not before; 0
/// where something is cut at 1.
CommonSizes GrownSizes(ClockCheck &check, Lw::HNodeClock::HClockNode &node,
                       const QRect &visible = {});

} // namespace ClockFit
