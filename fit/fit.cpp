#include "fit.h"

#include "clock_checks.h"
#include "clock_parts.h"
#include "clock_year.h"
#include "font_check.h"

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

// What a part shows at an instant.
QString Showing(ClockYear &clock, const GlyphImages &images, Part part, qint64 utc)
{
    const Element *const element = clock.Scene().TextAt(utc, part);
    return element ? images.TextOf(*element) : QString();
}

bool IsDrawable(HClockNode &node)
{
    const int type = node.ClockType();
    return !node.Size().isEmpty() && (type == AnalogClock || type == DigitalClock);
}

QRect VisibleOf(HClockNode &node, const QRect &visible)
{
    return visible.isNull() ? QRect(QPoint(0, 0), node.Size()) : visible;
}

} // namespace

bool ClockFindings::IsEmpty() const
{
    return cuts.isEmpty() && clipped.isEmpty() && overlaps.isEmpty() && faint.isEmpty()
        && sameHands.isEmpty() && lostMarks.isEmpty() && missing.isEmpty() && tooLarge.isEmpty();
}

ClockFindings ClockCheck::Check(HClockNode &node, const QRect &visible)
{
    ClockFindings findings;
    if (!IsDrawable(node))
        return findings;
    ClockYear clock(node, m_images.SourceFor(node, SizesOf(node)), m_year);
    findings.cuts = CutsOf(clock, VisibleOf(node, visible));
    for (Cut &cut : findings.cuts) {
        cut.first.text = Showing(clock, m_images, cut.part, cut.first.utc);
        cut.worst.text = Showing(clock, m_images, cut.part, cut.worst.utc);
    }
    findings.clipped = ClippedOf(clock, node, m_images);
    findings.overlaps = OverlapsOf(clock);
    for (Overlap &overlap : findings.overlaps) {
        overlap.first.text = Showing(clock, m_images, overlap.upper, overlap.first.utc);
        overlap.worst.text = Showing(clock, m_images, overlap.upper, overlap.worst.utc);
    }
    findings.missing = MissingOf(clock, node, m_images);
    findings.tooLarge = TooLargeOf(node, m_images);
    findings.faint = FaintParts(node, m_background);
    findings.sameHands = SameHandsOf(node);
    findings.lostMarks = LostMarksOf(node);
    return findings;
}

QVector<Cut> ClockCheck::Cuts(HClockNode &node, const FontSizes &sizes, const QRect &visible)
{
    if (!IsDrawable(node))
        return {};
    ClockYear clock(node, m_images.SourceFor(node, sizes), m_year);
    return CutsOf(clock, VisibleOf(node, visible));
}

QVector<Overlap> ClockCheck::Overlaps(HClockNode &node, const FontSizes &sizes)
{
    if (!IsDrawable(node))
        return {};
    ClockYear clock(node, m_images.SourceFor(node, sizes), m_year);
    return OverlapsOf(clock);
}

QVector<Clipped> ClockCheck::ClippedParts(HClockNode &node, const FontSizes &sizes)
{
    if (!IsDrawable(node))
        return {};
    ClockYear clock(node, m_images.SourceFor(node, sizes), m_year);
    return ClippedOf(clock, node, m_images);
}

} // namespace ClockFit
