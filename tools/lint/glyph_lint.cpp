// lint/: reports clocks whose glyph images have too many pixels to be drawn quickly or kept in
// memory.
#include "program_lint.h"

#include "carried_files.h"
#include "clock_node.h"
#include "compose/glyph_bounds.h"
#include "glyph/glyph_plan.h"
#include "glyph_messages.h"

#include <QSet>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;
using PlannedSet = QHash<QString, PlannedImage>;

constexpr qint64 kMaxPixels = 32'000'000; // of the images of a clock

/// Equal images are drawn once.
qint64 PixelsOf(const PlannedSet &images)
{
    qint64 pixels = 0;
    QSet<QByteArray> counted;
    for (const PlannedImage &image : images) {
        if (counted.contains(image.identity))
            continue;
        counted.insert(image.identity);
        pixels += qint64(image.size.width()) * image.size.height();
    }
    return pixels;
}

void ReportSlowDrawing(const QDomElement &clock, qint64 pixels, Findings &findings)
{
    if (pixels > kMaxPixels)
        findings.Warn(At(clock),
                      FindingWords::tr("the images of its texts have %1 megapixels, which a small "
                                       "device draws slowly; accepted: at most %2, with smaller "
                                       "font sizes or a shorter title")
                          .arg(pixels / 1'000'000)
                          .arg(kMaxPixels / 1'000'000));
}

void ReportLost(const QDomElement &clock, const QVector<Lw::GlyphFault> &lost, Findings &findings)
{
    for (const QString &warning : ClockProgram::DescribeGlyphFaults(lost).warnings)
        findings.Warn(At(clock), warning);
}

void ResolvePaths(const ClockProgram::CarriedFiles &files, HClockNode &node)
{
    for (const Lw::FileRecord &record : node.FileRecords())
        node.SetFilePath(record.key, files.PathOf(record), record.name, record.size, record.kind);
}

} // namespace

void LintGlyphs(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings)
{
    const ClockProgram::CarriedFiles files(program.path);
    GlyphAccount account;
    for (int i = 0; i < program.areas.size(); ++i) {
        // Only the clock plugin makes nodes here.
        auto &node = static_cast<HClockNode &>(*made.nodes[static_cast<std::size_t>(i)].node);
        const QDomElement &element = program.areas[i].element;
        Findings found;
        if (node.FileRecords().isEmpty()) {
            const PlannedSet planned = PlannedImages(node);
            ReportSlowDrawing(element, PixelsOf(planned), found);
            ReportLost(element, account.AddPlanned(node, planned), found);
        } else {
            ResolvePaths(files, node);
            ReportLost(element, account.AddFiles(node), found);
        }
        findings.AddOfClock(i + 1, found);
    }
}

} // namespace ClockTool
