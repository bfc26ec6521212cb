// lint/: reports picture clocks whose pictures cannot be read.
#include "clock_node.h"
#include "display/style_pictures.h"
#include "fit.h"
#include "program_lint.h"
#include "setting_place.h"

#include <QDir>
#include <QHash>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

/// The style's setting, whether or not the program has it.
Place StylePlace(const QDomElement &clock)
{
    const SettingPlace place = PlaceOf(clock, PictureClock, Attribute::PictrueClockType);
    return place.IsSet() ? FindingPlace(place) : At(clock, Key(Attribute::PictrueClockType));
}

QString Words(const QStringList &files)
{
    return FindingWords::tr(
               "cannot read %1 in %2, so the clock is drawn without; the pictures come "
               "with the player")
        .arg(files.join(QStringLiteral(", ")), QDir::cleanPath(StyleFolder()));
}

} // namespace

void LintStyles(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings)
{
    QHash<int, QStringList> known; // unreadable files by style
    for (int i = 0; i < program.areas.size(); ++i) {
        // Only the clock's own plugin made nodes.
        auto &node = static_cast<HClockNode &>(*made.nodes[static_cast<std::size_t>(i)].node);
        if (node.ClockType() != PictureClock)
            continue;
        const int style = node.GetAttributeToInt(Key(Attribute::PictrueClockType));
        if (style < 1 || style > kStyleCount)
            continue; // which LintClock() reports
        if (!known.contains(style))
            known.insert(style, ClockFit::UnreadableStyleFiles(style));
        if (known[style].isEmpty())
            continue;
        Findings found;
        found.Warn(StylePlace(program.areas[i].element), Words(known[style]));
        findings.AddOfClock(i + 1, found);
    }
}

} // namespace ClockTool
