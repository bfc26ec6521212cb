// lint/: reports which parts of a program's clocks are cut, covered, invisible or missing from
// their font within a year.
#include "fit_words.h"
#include "program_lint.h"
#include "setting_place.h"

#include "clock_node.h"
#include "font_check.h"
#include "glyph/glyph_set.h"
#include "wall_check.h"

namespace ClockTool {

namespace {

using namespace ClockFit;
using Lw::HNodeClock::HClockNode;

constexpr double kMinContrast = 2; // lower contrasts are warnings

class FitLint
{
public:
    FitLint(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made, qint64 begin,
            Findings &findings)
        : m_program(program), m_check(YearFrom(begin)), m_all(findings)
    {
        for (int i = 0; i < program.areas.size(); ++i) {
            // Only the clock plugin makes nodes here.
            auto *node =
                static_cast<HClockNode *>(made.nodes[static_cast<std::size_t>(i)].node.get());
            m_clocks.append({node, program.areas[i].geometry});
        }
    }

    void Run()
    {
        for (m_index = 0; m_index < m_clocks.size(); ++m_index) {
            m_findings = Findings();
            CheckClock();
            m_all.AddOfClock(m_index + 1, m_findings);
        }
        CheckWall();
    }

private:
    HClockNode &Node() const { return *m_clocks[m_index].node; }
    const QDomElement &Element() const { return m_program.areas[m_index].element; }

    Place PlaceAt(std::optional<Lw::HNodeClock::Attribute> attribute) const
    {
        return attribute ? FindingPlace(PlaceOf(Element(), Node().ClockType(), *attribute))
                         : At(Element());
    }
    Place SizePlace(Part part) const { return PlaceAt(SizeAttribute(part, Node().ClockType())); }
    Place ColourPlace(Part part) const
    {
        return PlaceAt(ColourAttribute(part, Node().ClockType()));
    }
    Place FamilyPlace(Part part) const
    {
        return PlaceAt(FamilyAttribute(part, Node().ClockType()));
    }

    void CheckClock()
    {
        const QRect visible = VisibleOf(m_clocks[m_index].area, m_program.size);
        if (visible.isEmpty())
            return; // off the screen, which CheckWall() reports
        const ClockFindings found = m_check.Check(Node(), visible);
        if (HasFonts()) // Qt 6 draws frames for the characters otherwise
            ReportCuts(found.cuts, visible);
        ReportClipped(found.clipped, visible);
        for (const Overlap &overlap : found.overlaps)
            m_findings.Warn(SizePlace(overlap.upper), OverlapWords(overlap));
        for (const TooLarge &tooLarge : found.tooLarge)
            m_findings.Warn(SizePlace(tooLarge.part), TooLargeWords(tooLarge));
        ReportColours(found);
        for (const LostMarks &marks : found.lostMarks)
            m_findings.Note(At(Element()), LostMarksWords(marks));
        ReportMissing(found.missing);
    }

    void ReportCuts(const QVector<Cut> &cuts, const QRect &visible)
    {
        if (cuts.isEmpty())
            return;
        const double factor = ShrunkSizes(m_check, Node(), visible).factor;
        const QVector<PartSize> sizes = SizesOfParts(m_check, Node(), cuts, visible);
        for (int begin = 0, end = 0; begin < cuts.size(); begin = end) {
            const Part part = cuts[begin].part;
            while (end < cuts.size() && cuts[end].part == part)
                ++end;
            int points = -1; // for parts without a size
            for (const PartSize &size : sizes)
                points = size.part == part ? size.points : points;
            m_findings.Warn(SizePlace(part),
                            CutWords(cuts.mid(begin, end - begin), points, points < 0 ? 0 : factor),
                            points > 0 ? QString::number(points) : QString());
        }
    }

    // In most fonts "T" and "/" begin one pixel outside their image, which is not visible.
    void ReportClipped(const QVector<Clipped> &all, const QRect &visible)
    {
        for (const Clipped &clipped : all) {
            if (clipped.pixels <= 1)
                continue;
            const int points = SizeWithAllInk(m_check, Node(), clipped.part, visible);
            m_findings.Warn(SizePlace(clipped.part), ClippedWords(clipped, points),
                            points > 0 ? QString::number(points) : QString());
        }
    }

    void ReportColours(const ClockFindings &found)
    {
        for (const Faint &faint : found.faint) {
            const Place place = ColourPlace(faint.part);
            if (faint.contrast < kMinContrast)
                m_findings.Warn(place, FaintWords(faint));
            else
                m_findings.Note(place, FaintWords(faint));
        }
        for (const SameHands &hands : found.sameHands)
            m_findings.Note(ColourPlace(hands.other), SameHandsWords(hands));
    }

    void ReportMissing(const QVector<MissingCharacters> &all)
    {
        for (const MissingCharacters &missing : all) {
            const QString family = missing.families.value(0);
            if (missing.boxes.isEmpty())
                m_findings.Note(FamilyPlace(missing.part), MissingWords(missing), family);
            else
                m_findings.Warn(FamilyPlace(missing.part), MissingWords(missing), family);
        }
    }

    // The cut texts of a clock that is partly off the screen have been reported already.
    void CheckWall()
    {
        const WallFindings found = ClockFit::CheckWall(m_check, m_clocks, m_program.size);
        for (const OffScreen &off : found.offScreen) {
            m_index = off.clock;
            const bool isDigital = Node().ClockType() == Lw::HNodeClock::DigitalClock;
            AddOfClock({AreaPlace(off.clock),
                        off.isWholly || !isDigital ? Severity::Warning : Severity::Note,
                        OffScreenWords(off),
                        {}});
        }
        for (const ClockOverlap &overlap : found.overlaps) {
            m_index = overlap.upper;
            const int line = m_program.areas[overlap.lower].element.lineNumber();
            AddOfClock({At(Element()),
                        overlap.isOfHands ? Severity::Note : Severity::Warning,
                        ClockOverlapWords(overlap, line),
                        {}});
        }
    }

    Place AreaPlace(int clock) const
    {
        return At(m_program.areas[clock].element.parentNode().toElement());
    }

    void AddOfClock(const Finding &finding)
    {
        Findings one;
        one.Add(finding);
        m_all.AddOfClock(m_index + 1, one);
    }

    const ClockProgram::Program &m_program;
    ClockCheck m_check;
    Findings &m_all;
    QVector<WallClock> m_clocks;
    int m_index = 0;     ///< of the clock being checked
    Findings m_findings; ///< of this clock
};

} // namespace

void LintFit(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
             qint64 begin, Findings &findings)
{
    FitLint(program, made, begin, findings).Run();
}

} // namespace ClockTool
