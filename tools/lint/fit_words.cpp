#include "fit_words.h"

#include "finding.h"
#include "suggestion.h"

#include <QColor>
#include <QDateTime>

#include <cmath>
#include <utility>

namespace ClockTool {

using namespace ClockFit;

namespace {

constexpr int kMaxFamilies = 5;

QString InstantText(qint64 utc)
{
    return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC).toString(Qt::ISODate);
}

QString SideName(Side side)
{
    switch (side) {
    case Side::Left:
        return FindingWords::tr("left");
    case Side::Top:
        return FindingWords::tr("top");
    case Side::Right:
        return FindingWords::tr("right");
    case Side::Bottom:
        return FindingWords::tr("bottom");
    }
    return {};
}

QString Pixels(int count)
{
    return count == 1 ? FindingWords::tr("1 pixel") : FindingWords::tr("%1 pixels").arg(count);
}

// ` as "Wednesday"`; empty for parts without a text.
QString As(const QString &text)
{
    return text.isEmpty() ? QString() : FindingWords::tr(" as %1").arg(Quoted(text));
}

QString ColourText(QRgb colour)
{
    return QColor(colour).name();
}

QString QuotedList(const QStringList &names)
{
    QStringList quoted;
    for (const QString &name : names.mid(0, kMaxFamilies))
        quoted.append(QStringLiteral("\"%1\"").arg(name));
    if (names.size() > kMaxFamilies)
        quoted.append(FindingWords::tr("and %1 more").arg(names.size() - kMaxFamilies));
    return quoted.join(QStringLiteral(", "));
}

bool IsPlural(Part part)
{
    return part == Part::Numerals || part == Part::HourMarks || part == Part::MinuteMarks;
}

// "the date is", "the numerals are".
QString Subject(Part part)
{
    return (IsPlural(part) ? FindingWords::tr("the %1 are") : FindingWords::tr("the %1 is"))
        .arg(NameOf(part));
}

// Rounded down, so that the printed factor still fits.
QString FactorText(double factor)
{
    constexpr double kParts = 1000;
    return QString::number(std::floor(factor * kParts) / kParts);
}

QString SizeWords(Part part, int points, double factor)
{
    QString words;
    if (points > 0)
        words += FindingWords::tr("; %1 points would fit").arg(points);
    else if (points == 0)
        words += FindingWords::tr("; no size of the %1 fits by itself").arg(NameOf(part));
    if (factor > 0)
        words += FindingWords::tr("; all sizes would fit if scaled by %1").arg(FactorText(factor));
    return words;
}

} // namespace

QString CutWords(const QVector<Cut> &cuts, int points, double factor)
{
    QStringList sides;
    Moment first = cuts.first().first;
    bool isGone = false;
    for (const Cut &cut : cuts) {
        sides.append(FindingWords::tr("%1 at the %2").arg(Pixels(cut.pixels), SideName(cut.side)));
        first = cut.first.utc < first.utc ? cut.first : first;
        isGone = isGone || cut.isGone;
    }
    const Part part = cuts.first().part;
    return FindingWords::tr("%1 cut: %2%3; first at %4%5%6")
        .arg(Subject(part), sides.join(QStringLiteral(", ")),
             isGone ? FindingWords::tr(", completely hidden") : QString(), InstantText(first.utc),
             As(first.text), SizeWords(part, points, factor));
}

QString ClippedWords(const Clipped &clipped, int points)
{
    return FindingWords::tr("the images of the %1 are too small for the ink: %2 of %3 lost at the "
                            "%4; first %5%6")
        .arg(NameOf(clipped.part), Pixels(clipped.pixels), Quoted(clipped.worst.text),
             SideName(clipped.side), InstantText(clipped.first.utc),
             points > 0 ? FindingWords::tr("; none at %1 points").arg(points) : QString());
}

QString OverlapWords(const Overlap &overlap)
{
    if (overlap.lower == overlap.upper)
        return FindingWords::tr("the %1 overlap each other: %2")
            .arg(NameOf(overlap.lower), Pixels(overlap.pixels));
    return FindingWords::tr("%1 drawn over the %2: up to %3; first %4%5")
        .arg(Subject(overlap.upper), NameOf(overlap.lower), Pixels(overlap.pixels),
             InstantText(overlap.first.utc), As(overlap.first.text));
}

// Rounded down: 2.96 is not 3.
QString FaintWords(const Faint &faint)
{
    const QString part = NameOf(faint.part);
    if (faint.isKeyColour)
        return FindingWords::tr("the colour of the %1 is the key colour %2, which the host makes "
                                "transparent")
            .arg(part, ColourText(faint.ink));
    return FindingWords::tr(
               "the colour %1 of the %2 has a contrast of %3 against its background %4; "
               "3 or more is easy to see")
        .arg(ColourText(faint.ink), part)
        .arg(std::floor(faint.contrast * 10) / 10, 0, 'f', 1)
        .arg(ColourText(faint.background));
}

QString SameHandsWords(const SameHands &hands)
{
    return FindingWords::tr("the %1 and the %2 are both %3: where they overlap they cannot "
                            "be told apart")
        .arg(NameOf(hands.one), NameOf(hands.other), ColourText(hands.colour));
}

QString LostMarksWords(const LostMarks &marks)
{
    return FindingWords::tr("a dial with a radius of %1 pixels has no %2; they need at least %3")
        .arg(marks.radius)
        .arg(NameOf(marks.part))
        .arg(marks.minimumRadius);
}

QString MissingWords(const MissingCharacters &missing)
{
    const QString instead = missing.boxes.isEmpty()
        ? FindingWords::tr("another family is used for them")
        : FindingWords::tr("boxes appear for \"%1\"").arg(missing.boxes);
    const QString having = missing.families.isEmpty()
        ? FindingWords::tr("no installed family has all of them")
        : FindingWords::tr("families with all of them: %1").arg(QuotedList(missing.families));
    return FindingWords::tr("the family \"%1\" of the %2 lacks \"%3\": %4; %5")
        .arg(missing.family, NameOf(missing.part), missing.characters, instead, having);
}

QString TooLargeWords(const TooLarge &tooLarge)
{
    return FindingWords::tr("%1 not drawn: at %2 points its image would be empty or too large")
        .arg(Subject(tooLarge.part))
        .arg(tooLarge.points);
}

QString OffScreenWords(const OffScreen &off)
{
    if (off.isWholly)
        return FindingWords::tr("the area is off the screen");
    QStringList sides;
    for (const auto &[side, pixels] :
         {std::make_pair(Side::Left, off.left), std::make_pair(Side::Top, off.top),
          std::make_pair(Side::Right, off.right), std::make_pair(Side::Bottom, off.bottom)}) {
        if (pixels > 0)
            sides.append(FindingWords::tr("%1 at the %2").arg(Pixels(pixels), SideName(side)));
    }
    return FindingWords::tr("the area extends beyond the screen: %1")
        .arg(sides.join(QStringLiteral(", ")));
}

QString ClockOverlapWords(const ClockOverlap &overlap, int line)
{
    const QString what = overlap.isPicture
        ? FindingWords::tr("this clock is drawn over the clock in line %1").arg(line)
        : FindingWords::tr("%1 drawn over the %2 of the clock in line %3")
              .arg(Subject(overlap.upperPart), NameOf(overlap.lowerPart))
              .arg(line);
    return FindingWords::tr("%1: %2; first on the day starting at %3")
        .arg(what, Pixels(overlap.pixels), InstantText(overlap.firstDay));
}

} // namespace ClockTool
