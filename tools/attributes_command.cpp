// tools/: clock_tool attributes: writes the attribute reference page from the attribute table.
#include "clock_attributes.h"
#include "commands.h"
#include "lint/value_checks.h"
#include "output.h"
#include "tool_arguments.h"

#include "happconfig.h"

#include <QColor>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

QString KindName(ValueRole role)
{
    switch (role) {
    case ValueRole::Number:
        return QStringLiteral("number");
    case ValueRole::Code:
        return QStringLiteral("code");
    case ValueRole::Flag:
        return QStringLiteral("flag");
    case ValueRole::Size:
        return QStringLiteral("size");
    case ValueRole::Colour:
        return QStringLiteral("colour");
    case ValueRole::Text:
        return QStringLiteral("text");
    case ValueRole::Family:
        return QStringLiteral("font");
    case ValueRole::Zone:
        return QStringLiteral("zone");
    case ValueRole::Adjustment:
        return QStringLiteral("adjustment");
    case ValueRole::Rule:
        return QStringLiteral("rule");
    }
    return {};
}

QString ClocksName(ClockKinds clocks)
{
    switch (clocks) {
    case ClockKinds::All:
        return QStringLiteral("all");
    case ClockKinds::Analog:
        return QStringLiteral("analog");
    case ClockKinds::Digital:
        return QStringLiteral("digital");
    case ClockKinds::Picture:
        return QStringLiteral("picture");
    }
    return {};
}

QString StoredDefault(const AttributeRow &row)
{
    switch (row.kind) {
    case ValueKind::Integer:
    case ValueKind::Flag:
        return QString::number(row.number);
    case ValueKind::Colour: {
        const QColor colour(static_cast<QRgb>(row.number));
        return QStringLiteral("%1 (%2)").arg(Lw::HAppConfig::ColorToInt(colour)).arg(colour.name());
    }
    case ValueKind::Text:
        return *row.text ? QStringLiteral("\"%1\"").arg(QLatin1String(row.text))
                         : QStringLiteral("empty");
    }
    return {};
}

QString DefaultOf(const AttributeRow &row)
{
    switch (row.origin) {
    case Default::Stored:
        return StoredDefault(row);
    case Default::Translated:
        return StoredDefault(row) + QStringLiteral(", translated");
    case Default::Computed:
        return QStringLiteral("computed");
    case Default::Absent:
        return QStringLiteral("absent");
    }
    return {};
}

/// Empty for a flag: its values are described above the table.
QString ValuesText(const AttributeRow &row)
{
    if (row.role == ValueRole::Flag)
        return {};
    return row.range.names ? NamedCodes(row.range) : RangeText(row.range);
}

QString TableLine(const AttributeRow &row)
{
    return QStringLiteral("| `%1` | %2 | %3 | %4 | %5 | %6 | %7 |\n")
        .arg(QLatin1String(row.key), ClocksName(row.clocks), KindName(row.role), ValuesText(row),
             DefaultOf(row),
             row.redraw == Redraw::Yes ? QStringLiteral("yes") : QStringLiteral("no"),
             QString::fromUtf8(row.meaning).replace(QLatin1Char('|'), QLatin1String("\\|")));
}

QString ReferencePage()
{
    QString page = QStringLiteral(
        "# Attributes of a clock\n"
        "\n"
        "Made by `clock_tool attributes` from the table in `clock_plugin/clock_attributes.h`; a\n"
        "test keeps the two equal. A program sets an attribute of a clock with a child\n"
        "`<attribute key=\"...\" value=\"...\"/>`, the value as it is stored:\n"
        "\n"
        "- a number, a code and a size are decimals, and anything else counts as 0; sizes are in\n"
        "  points, spaces in pixels;\n"
        "- a flag is 1 (on, shown) or 0 (off, hidden);\n"
        "- a colour is the number red + 256 * green + 65536 * blue;\n"
        "- a font is the name of a family; empty is the application's default font.\n"
        "\n"
        "\"Clocks\" are those that the attribute means something to. \"Values\" are the numbers\n"
        "that mean something; where none are given, any number does. \"Redraw\" tells whether a\n"
        "write has the glyph images made again.\n"
        "\n"
        "| Key | Clocks | Kind | Values | Default | Redraw | Meaning |\n"
        "|---|---|---|---|---|---|---|\n");
    for (const AttributeRow &row : kAttributeTable)
        page += TableLine(row);
    return page;
}

} // namespace

CommandResult RunAttributes(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("attributes"),
                       QStringLiteral("Writes the reference table of the clock's attributes as "
                                      "Markdown."));
    tool.AddOutput();
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    return Deliver(tool.Output(), ReferencePage().toUtf8());
}

} // namespace ClockTool
