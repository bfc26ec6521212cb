// Holds what is said of clocks that are made up against the ink of their frames, on every day of a
// year: what is missing in a frame of the area is there in one of a larger area or canvas.
//
// CLOCK_FIT_SEED and CLOCK_FIT_COUNT choose the clocks, CLOCK_FIT_FIRST the number of the first.
#include "clock_parts.h"
#include "large_frames.h"
#include "whole_texts.h"

#include <QtTest>

using namespace ClockFit;
using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kSecond = 1000;
constexpr qint64 kDay = 24 * 3600 * kSecond;
constexpr Side kSides[] = {Side::Left, Side::Top, Side::Right, Side::Bottom};

int Beyond(const QRect &ink, const QSize &area, Side side)
{
    if (ink.isEmpty())
        return 0;
    switch (side) {
    case Side::Left:
        return -ink.left();
    case Side::Top:
        return -ink.top();
    case Side::Right:
        return ink.right() - area.width() + 1;
    case Side::Bottom:
        return ink.bottom() - area.height() + 1;
    }
    return 0;
}

// Collects what differs between frames and findings.
class Proof
{
public:
    Proof(MadeUpClock &clock, const ClockFindings &findings, const Year &year)
        : m_clock(clock), m_findings(findings), m_year(year), m_frames(clock), m_whole(clock.node)
    { }

    QStringList Run()
    {
        int day = 0;
        for (qint64 utc = m_year.begin; utc < m_year.end && m_faults.size() < 5; ++day) {
            if (day % 7 == 0 && !m_frames.AreaIsAPart(utc))
                Fault("the area's frame differs from the large one's", utc);
            HoldInstant(utc, day % 7 == 0);
            if (day % 5 == 0)
                HoldWhole(utc);
            // Noon and midnight of each zone are passed, and every second of the day in time.
            utc += kDay / 2 + (day % 2 == 0 ? 1741 : -1741) * kSecond;
        }
        for (const Cut &cut : m_findings.cuts)
            HoldCut(cut);
        for (const Overlap &overlap : m_findings.overlaps)
            HoldOverlap(overlap);
        for (const Clipped &clipped : m_findings.clipped)
            HoldClipped(clipped);
        return m_faults;
    }

private:
    // Nothing is cut or covered but what was said.
    void HoldInstant(qint64 utc, bool alsoCovered)
    {
        const Inks inks = m_frames.At(utc);
        for (auto ink = inks.cbegin(); ink != inks.cend(); ++ink) {
            for (const Side side : kSides) {
                const int beyond = Beyond(ink->bounds, m_clock.node.Size(), side);
                if (beyond > MostSaid(ink.key(), side, utc))
                    Fault(QStringLiteral("%1 px of %2 beyond side %3")
                              .arg(beyond)
                              .arg(ink.key(), 0, 16)
                              .arg(int(side)),
                          utc);
            }
        }
        if (alsoCovered || m_clock.node.ClockType() == DigitalClock)
            HoldCovered(inks, utc);
    }

    int MostSaid(QRgb colour, Side side, qint64 utc)
    {
        int most = 0;
        for (const Cut &cut : m_findings.cuts) {
            if (m_frames.ColourOf(cut.part) == colour && cut.side == side && utc >= cut.first.utc)
                most = qMax(most, cut.pixels);
        }
        return most;
    }

    void HoldCovered(const Inks &inks, qint64 utc)
    {
        for (const Part part : {Part::TopText, Part::Date, Part::Week, Part::Time, Part::Lunar}) {
            if (part == Part::Time && m_clock.node.ClockType() == AnalogClock)
                continue;
            const int covered =
                m_frames.Uncovered(part, utc) - inks.value(m_frames.ColourOf(part)).pixels;
            int said = 0;
            for (const Overlap &overlap : m_findings.overlaps) {
                if (overlap.lower == part && utc >= overlap.first.utc)
                    said += overlap.pixels;
            }
            if (covered > said)
                Fault(QStringLiteral("%1 px of the %2 covered").arg(covered).arg(NameOf(part)),
                      utc);
        }
    }

    // What a font draws of a text is there but for what was said to be clipped.
    void HoldWhole(qint64 utc)
    {
        for (const Part part : PartsShown(m_clock.node)) {
            if (!WholeTexts::Tells(part))
                continue;
            const int lost = LostAt(part, utc);
            const auto said = [&](const Clipped &clipped) {
                return clipped.part == part && utc >= clipped.first.utc;
            };
            const auto &all = m_findings.clipped;
            const int unsteady = m_whole.Unsteadiness(part, utc);
            if (lost < -unsteady
                || (lost > unsteady && std::none_of(all.cbegin(), all.cend(), said)))
                Fault(QStringLiteral("%1 px of the %2 are not in its images")
                          .arg(lost)
                          .arg(NameOf(part)),
                      utc);
        }
    }

    int LostAt(Part part, qint64 utc)
    {
        return m_whole.Ink(part, utc) - m_frames.Uncovered(part, utc);
    }

    void HoldClipped(const Clipped &clipped)
    {
        if (!WholeTexts::Tells(clipped.part))
            return;
        for (const qint64 utc : {clipped.first.utc, clipped.worst.utc}) {
            if (LostAt(clipped.part, utc) + m_whole.Unsteadiness(clipped.part, utc) <= 0)
                Fault(NameOf(clipped.part) + " is not clipped", utc);
        }
        const qint64 before = clipped.first.utc - kSecond;
        if (before >= m_year.begin
            && LostAt(clipped.part, before) > m_whole.Unsteadiness(clipped.part, before))
            Fault(NameOf(clipped.part) + " is clipped before", before);
    }

    // Whether other ink may be over that of a part, or has its colour.
    bool IsClear(Part part)
    {
        const auto &overlaps = m_findings.overlaps;
        return part != Part::Numerals && part != Part::HourMarks
            && std::none_of(overlaps.cbegin(), overlaps.cend(),
                            [part](const Overlap &overlap) { return overlap.lower == part; });
    }

    int BeyondAt(const Cut &cut, qint64 utc)
    {
        return Beyond(m_frames.At(utc).value(m_frames.ColourOf(cut.part)).bounds,
                      m_clock.node.Size(), cut.side);
    }

    void HoldCut(const Cut &cut)
    {
        if (!IsClear(cut.part))
            return;
        if (BeyondAt(cut, cut.worst.utc) != cut.pixels)
            Fault(QStringLiteral("%1 is beyond side %2 by %3 px, not %4")
                      .arg(NameOf(cut.part))
                      .arg(int(cut.side))
                      .arg(BeyondAt(cut, cut.worst.utc))
                      .arg(cut.pixels),
                  cut.worst.utc);
        if (BeyondAt(cut, cut.first.utc) <= 0)
            Fault(NameOf(cut.part) + " is not yet cut", cut.first.utc);
        const qint64 before = cut.first.utc - kSecond;
        if (before >= m_year.begin && BeyondAt(cut, before) > 0)
            Fault(NameOf(cut.part) + " is cut before", before);
    }

    int CoveredAt(Part part, qint64 utc)
    {
        return m_frames.Uncovered(part, utc) - m_frames.Shown(part, utc);
    }

    void HoldOverlap(const Overlap &overlap)
    {
        // What covers marks and numerals, whose colours are not their own, is held by the texts.
        if (overlap.lower == Part::Numerals || overlap.lower == Part::HourMarks)
            return;
        const auto &all = m_findings.overlaps;
        const bool isOnly =
            std::count_if(all.cbegin(), all.cend(),
                          [&](const Overlap &one) { return one.lower == overlap.lower; })
            == 1;
        const int covered = CoveredAt(overlap.lower, overlap.worst.utc);
        if (covered < overlap.pixels || (isOnly && covered > overlap.pixels))
            Fault(QStringLiteral("%1 over %2: %3 px, not %4")
                      .arg(NameOf(overlap.upper), NameOf(overlap.lower))
                      .arg(covered)
                      .arg(overlap.pixels),
                  overlap.worst.utc);
        if (CoveredAt(overlap.lower, overlap.first.utc) <= 0)
            Fault(NameOf(overlap.lower) + " is not yet covered", overlap.first.utc);
        const qint64 before = overlap.first.utc - kSecond;
        if (isOnly && before >= m_year.begin && CoveredAt(overlap.lower, before) > 0)
            Fault(NameOf(overlap.lower) + " is covered before", before);
    }

    void Fault(const QString &text, qint64 utc)
    {
        m_faults.append(
            QStringLiteral("%1 at %2")
                .arg(text, QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC).toString(Qt::ISODate)));
    }

    MadeUpClock &m_clock;
    const ClockFindings &m_findings;
    const Year m_year;
    LargeFrames m_frames;
    WholeTexts m_whole;
    QStringList m_faults;
};

} // namespace

class TestFitFrames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void MissingInkIsWhatIsSaid_data();
    void MissingInkIsWhatIsSaid();
    void cleanupTestCase();

private:
    quint32 m_seed = 1;
    int m_clean = 0;
    int m_cut = 0;
    int m_covered = 0;
};

void TestFitFrames::initTestCase()
{
    if (qEnvironmentVariableIsSet("CLOCK_FIT_SEED"))
        m_seed = qEnvironmentVariable("CLOCK_FIT_SEED").toUInt();
    qInfo("seed %u", m_seed);
}

void TestFitFrames::MissingInkIsWhatIsSaid_data()
{
    QTest::addColumn<int>("number");
    constexpr int kUsualCount = 20;
    const int first = qEnvironmentVariableIntValue("CLOCK_FIT_FIRST");
    const int given = qEnvironmentVariableIntValue("CLOCK_FIT_COUNT");
    for (int number = first; number < first + (given > 0 ? given : kUsualCount); ++number)
        QTest::addRow("clock %d", number) << number;
}

void TestFitFrames::MissingInkIsWhatIsSaid()
{
    QFETCH(int, number);
    MadeUpClock clock(m_seed, static_cast<quint32>(number));
    ClockCheck check(YearFrom(clock.begin));
    const ClockFindings findings = check.Check(clock.node);
    m_cut += findings.cuts.isEmpty() ? 0 : 1;
    m_covered += findings.overlaps.isEmpty() ? 0 : 1;
    m_clean += findings.cuts.isEmpty() && findings.overlaps.isEmpty() ? 1 : 0;
    const QStringList faults = Proof(clock, findings, check.CheckedYear()).Run();
    QVERIFY2(faults.isEmpty(),
             qPrintable(clock.Description() + ": " + faults.join(QStringLiteral("; "))));
}

// The made-up clocks are of all kinds.
void TestFitFrames::cleanupTestCase()
{
    qInfo("%d clean, %d cut, %d with covered ink", m_clean, m_cut, m_covered);
    QVERIFY(m_clean > 0 && m_cut > 0 && m_covered > 0);
}

QTEST_MAIN(TestFitFrames)

#include "test_fit_frames.moc"
