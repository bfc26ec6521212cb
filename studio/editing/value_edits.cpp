#include "value_edits.h"

#include "value_sources.h"

#include "clock_finder.h"
#include "clock_node.h"
#include "clock_sdk_tables.h"
#include "happconfig.h"
#include "node_maker.h"
#include "number_text.h"

#include <QColor>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

QString ColourName(int stored)
{
    return Lw::HAppConfig::IntToColor(stored).name();
}

/// The text that the importer converts to this stored value; nullopt if there is none.
std::optional<QString> ImportText(Conversion conversion, const QString &stored)
{
    switch (conversion) {
    case Conversion::Text:
    case Conversion::Number:
        return stored;
    case Conversion::InvertedNumber:
        return QLatin1String(Lw::NumberIn(stored) == 0 ? "1" : "0");
    case Conversion::Flag:
        return QLatin1String(Lw::NumberIn(stored) != 0 ? "true" : "false");
    case Conversion::Colour:
    case Conversion::ParsedColour:
        return ColourName(Lw::NumberIn(stored));
    case Conversion::AdjustSeconds:
    case Conversion::AdjustTime:
        break;
    }
    return std::nullopt;
}

TextEdit StoredElementEdit(const ParsedProgram &parsed, int clock, const StoredValue &value)
{
    return AppendChildEdit(
        parsed, clock,
        QStringLiteral("<attribute key=\"%1\" value=\"%2\"/>")
            .arg(Key(value.attribute), EscapedValue(value.text, QLatin1Char('"'))));
}

/// The preferred edit; nullopt if only an "attribute" child can set the value.
std::optional<TextEdit> BestEdit(const ParsedProgram &parsed, int area, int kind,
                                 const StoredValue &value)
{
    const int clock = parsed.ClockElement(area);
    ValueSource source = SourceOf(parsed, clock, kind, value.attribute);
    QString element;
    if (source.IsNothing()) {
        const auto made = NewSourceOf(parsed, clock, kind, value.attribute);
        if (!made)
            return std::nullopt;
        source = made->source;
        element = made->element;
    }
    const std::optional<QString> text =
        source.isStored ? value.text : ImportText(source.conversion, value.text);
    if (!text)
        return std::nullopt;
    if (!element.isEmpty())
        return AppendChildEdit(
            parsed, clock,
            QStringLiteral("<%1 %2=\"%3\"/>")
                .arg(element, source.attribute, EscapedValue(*text, QLatin1Char('"'))));
    return SetAttributeEdit(parsed, source.element, source.attribute, *text);
}

std::optional<ParsedProgram> ReadAfter(const ParsedProgram &parsed, const TextEdits &edits)
{
    QString text = parsed.text;
    ApplyEdits(text, edits);
    auto read = ReadProgramText(text, FormAfterEdits(text, parsed.form));
    if (auto *const after = std::get_if<ParsedProgram>(&read))
        return *after;
    return std::nullopt;
}

/// Whether exactly this value has changed, to the wanted one.
bool ChangesOnly(HClockNode &before, HClockNode &after, const StoredValue &value)
{
    for (const AttributeRow &row : kAttributeTable) {
        const QString &key = Key(row.attribute);
        const bool isWanted = row.attribute == value.attribute;
        if (row.attribute != Attribute::Id
            && after.GetAttribute(key) != (isWanted ? value.text : before.GetAttribute(key)))
            return false;
    }
    return true;
}

/// Verifies an edit with the plugin itself.
bool IsReadAsMeant(const ParsedProgram &parsed, int area, const std::optional<ParsedProgram> &after,
                   const StoredValue &value)
{
    const auto nodeBefore = ClockOf(parsed, area);
    const auto nodeAfter = after ? ClockOf(*after, area) : nullptr;
    return nodeBefore && nodeAfter && ChangesOnly(*nodeBefore, *nodeAfter, value);
}

struct ReadEdit
{
    TextEdit edit;
    std::optional<ParsedProgram> after; ///< nothing if the text is then no program
};

ReadEdit EditOf(const ParsedProgram &parsed, int area, int kind, const StoredValue &value)
{
    if (const std::optional<TextEdit> best = BestEdit(parsed, area, kind, value)) {
        auto after = ReadAfter(parsed, {*best});
        if (IsReadAsMeant(parsed, area, after, value))
            return {*best, std::move(after)};
    }
    const int clock = parsed.ClockElement(area);
    const ValueSource stored = StoredSource(parsed, clock, value.attribute);
    const TextEdit edit = stored.IsNothing()
        ? StoredElementEdit(parsed, clock, value)
        : SetAttributeEdit(parsed, stored.element, kValueName, value.text);
    return {edit, ReadAfter(parsed, {edit})};
}

int KindOf(const ParsedProgram &parsed, int area)
{
    const auto node = ClockOf(parsed, area);
    return node ? node->ClockType() : DigitalClock;
}

} // namespace

std::unique_ptr<HClockNode> ClockOf(const ParsedProgram &parsed, int area)
{
    ClockProgram::Program alone = parsed.program;
    alone.areas = {parsed.program.areas[area]};
    auto made = ClockProgram::MakeNodes(alone, ClockTool::FindClockPlugin);
    if (!made)
        return nullptr;
    Lw::HNode *const node = made->nodes.front().node.release();
    return std::unique_ptr<HClockNode>(static_cast<HClockNode *>(node)); // only clocks are made
}

/// Each edit is computed for the text after the previous ones, as one may add an element that the
/// next one uses.
TextEdits ValueEdits(const ParsedProgram &parsed, int area, const QVector<StoredValue> &values)
{
    TextEdits edits;
    ParsedProgram current = parsed;
    const int kind = KindOf(parsed, area);
    for (const StoredValue &value : values) {
        const auto node = ClockOf(current, area);
        if (node && node->GetAttribute(Key(value.attribute)) == value.text
            && node->HaveAttribute(Key(value.attribute)))
            continue;
        const ReadEdit made = EditOf(current, area, kind, value);
        if (!made.after)
            continue;
        edits.append(made.edit);
        current = *made.after;
    }
    return edits;
}

TextEdits ResetEdits(const ParsedProgram &parsed, int area, Attribute attribute)
{
    const StoredValue value {attribute, DefaultValue(attribute)};
    const ValueSource source =
        SourceOf(parsed, parsed.ClockElement(area), KindOf(parsed, area), attribute);
    if (!source.IsNothing()) {
        const TextEdit removal = source.isStored
            ? RemoveElementEdit(parsed, source.element)
            : RemoveAttributeEdit(parsed, source.element, source.attribute);
        if (IsReadAsMeant(parsed, area, ReadAfter(parsed, {removal}), value))
            return {removal};
    }
    return ValueEdits(parsed, area, {value});
}

TextEdits KindEdits(const ParsedProgram &parsed, int area, int kind)
{
    const int clock = parsed.ClockElement(area);
    // The older form stores the kind as a number in a child element.
    const QVector<int> older = ChildrenNamed(parsed.elements, clock, QLatin1String(Sdk::kClockCom));
    TextEdits edits {older.isEmpty()
                         ? SetAttributeEdit(parsed, clock, QLatin1String(Sdk::kType),
                                            QLatin1String(Sdk::kTypeNames[kind]))
                         : SetAttributeEdit(parsed, older.first(), QLatin1String(Sdk::kClockType),
                                            QString::number(kind))};
    for (const int child : ChildrenNamed(parsed.elements, clock, ClockProgram::kAttributeTag)) {
        if (parsed.elements[child].Value(kKeyName) == Key(Attribute::ClockType))
            edits.append(RemoveElementEdit(parsed, child));
    }
    edits = InSequence(edits);
    const auto after = ReadAfter(parsed, edits);
    const auto node = after ? ClockOf(*after, area) : nullptr;
    if (node && node->ClockType() == kind)
        return edits;
    return {StoredElementEdit(parsed, clock, {Attribute::ClockType, QString::number(kind)})};
}

QString DefaultValue(Attribute attribute)
{
    HClockNode fresh;
    fresh.InitData();
    return fresh.GetAttribute(Key(attribute));
}

TextRange PlaceOf(const ParsedProgram &parsed, int area, Attribute attribute)
{
    const int clock = parsed.ClockElement(area);
    const ValueSource source = SourceOf(parsed, clock, KindOf(parsed, area), attribute);
    return source.IsNothing() ? parsed.elements[clock].tag : parsed.elements[source.element].whole;
}

} // namespace ClockStudio
