// tools/: clock_tool fonts, which lists the sizes at which the digits of a font are legible.
#include "commands.h"
#include "font_check.h"
#include "legibility/legible_sizes.h"
#include "output.h"
#include "suggestion.h"
#include "tool_arguments.h"

namespace ClockTool {

namespace {

constexpr char kDescription[] = "Writes a Markdown table of the sizes at which the digits and the "
                                "colon of fonts are legible.\n"
                                "Glyph images have one bit per pixel: small sizes lose strokes, or "
                                "the holes that distinguish\n"
                                "3 from 8. Without a name, every installed font is listed.";

/// The legible sizes below `from`, as "6, 8, 9".
QString SizesBelow(const QVector<int> &sizes, int from)
{
    QStringList below;
    for (const int size : sizes) {
        if (size < from)
            below.append(QString::number(size));
    }
    return below.isEmpty() ? QStringLiteral("none") : below.join(QStringLiteral(", "));
}

/// The smallest size from which all larger ones are legible; 0 if the largest is not.
int LegibleFrom(const QVector<int> &sizes)
{
    int from = kLargestChecked + 1;
    while (from > 1 && sizes.contains(from - 1))
        --from;
    return from > kLargestChecked ? 0 : from;
}

QString TableOf(const QStringList &families)
{
    QString table =
        QStringLiteral("| Font | Legible from (points) | Also legible at |\n|---|---|---|\n");
    for (const QString &family : families) {
        const QVector<int> sizes = LegibleSizes(family, QStringLiteral(":"));
        const int from = LegibleFrom(sizes);
        table += QStringLiteral("| %1 | %2 | %3 |\n")
                     .arg(family, from > 0 ? QString::number(from) : QStringLiteral("none"),
                          SizesBelow(sizes, from > 0 ? from : kLargestChecked + 1));
    }
    return table;
}

} // namespace

CommandResult RunFonts(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("fonts"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("[FAMILY]..."), QStringLiteral("The fonts to check."));
    tool.AddOutput();
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    const QStringList installed = ClockFit::InstalledFamilies();
    const QStringList given = tool.Positionals();
    for (const QString &family : given) {
        if (!installed.contains(family))
            return Report({ExitCode::ProgramError,
                           QStringLiteral("the font %1 is not installed%2")
                               .arg(Quoted(family), DidYouMean(family, installed))});
    }
    return Deliver(tool.Output(), TableOf(given.isEmpty() ? installed : given).toUtf8());
}

} // namespace ClockTool
