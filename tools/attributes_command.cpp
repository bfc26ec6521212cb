// clock_tool attributes: the reference table, from the table in the code.
#include "clock_attributes.h"
#include "commands.h"
#include "lint/value_checks.h"
#include "output.h"
#include "tool_arguments.h"

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

QString KindName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return QStringLiteral("number");
    case ValueKind::Flag:
        return QStringLiteral("flag");
    case ValueKind::Text:
        return QStringLiteral("text");
    case ValueKind::Colour:
        return QStringLiteral("colour");
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
        const QString rgb = QStringLiteral("%1").arg(row.number, 6, 16, QLatin1Char('0'));
        const int stored = (row.number & 0xff) << 16 | (row.number & 0xff00) | row.number >> 16;
        return QStringLiteral("%1 (#%2)").arg(stored).arg(rgb);
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

/// What a flag takes is told above the table.
QString CodesText(const AttributeRow &row)
{
    const std::optional<CodeRange> codes = CodesOf(row.attribute);
    if (!codes || row.kind == ValueKind::Flag)
        return {};
    return QStringLiteral("%1 to %2").arg(codes->first).arg(codes->last);
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
        "- a number is a decimal, and anything else counts as 0;\n"
        "- a flag is 1 (shown) or 0 (hidden);\n"
        "- a colour is the number red + 256 * green + 65536 * blue.\n"
        "\n"
        "\"Values\" are the numbers that mean something; where none are given, any number does.\n"
        "\"Redraw\" tells whether a write has the glyph images made again.\n"
        "\n"
        "| Key | Kind | Values | Default | Redraw | Meaning |\n"
        "|---|---|---|---|---|---|\n");
    for (const AttributeRow &row : kAttributeTable)
        page +=
            QStringLiteral("| `%1` | %2 | %3 | %4 | %5 | %6 |\n")
                .arg(
                    QLatin1String(row.key), KindName(row.kind), CodesText(row), DefaultOf(row),
                    row.redraw == Redraw::Yes ? QStringLiteral("yes") : QStringLiteral("no"),
                    QString::fromUtf8(row.meaning).replace(QLatin1Char('|'), QLatin1String("\\|")));
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
