#include "value_sources.h"

#include "text/program_edits.h"

#include "clock_node.h"

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// The import tables for a kind of clock. (A node reads font, analog or digital, then time.)
QVector<const ImportElement *> ImportsOf(int kind)
{
    QVector<const ImportElement *> imports;
    const auto add = [&imports](const auto &table) {
        for (const ImportElement &element : table)
            imports.append(&element);
    };
    add(kTimeImport);
    if (kind != PictureClock) {
        add(kFontImport);
        kind == AnalogClock ? add(kAnalogImport) : add(kDigitalImport);
    }
    return imports;
}

/// The element that an import row reads: the clock itself, or its first child with the name, else
/// with the fallback name; -1 if none.
int ElementRead(const ParsedProgram &parsed, int clock, const ImportElement &import)
{
    if (!import.name)
        return clock;
    for (const char *const name : {import.name, import.fallback}) {
        const QVector<int> found =
            name ? ChildrenNamed(parsed.elements, clock, QLatin1String(name)) : QVector<int>();
        if (!found.isEmpty())
            return found.first();
    }
    return -1;
}

QVector<const ImportRow *> RowsFor(const ImportElement &import, Attribute target)
{
    QVector<const ImportRow *> rows;
    for (const ImportRow &row : import.rows) {
        if (row.source.attribute && row.target == target)
            rows.append(&row);
    }
    return rows;
}

} // namespace

ValueSource StoredSource(const ParsedProgram &parsed, int clock, Attribute attribute)
{
    ValueSource last;
    for (const int child : ChildrenNamed(parsed.elements, clock, ClockProgram::kAttributeTag)) {
        if (parsed.elements[child].Value(kKeyName) == Key(attribute))
            last = {child, kValueName, Conversion::Text, true};
    }
    return last;
}

ValueSource SourceOf(const ParsedProgram &parsed, int clock, int kind, Attribute attribute)
{
    ValueSource found = StoredSource(parsed, clock, attribute);
    if (!found.IsNothing())
        return found;
    for (const ImportElement *const import : ImportsOf(kind)) {
        const int element = ElementRead(parsed, clock, *import);
        for (const ImportRow *const row : RowsFor(*import, attribute)) {
            for (const ImportSource *const source : {&row->source, &row->fallback}) {
                if (element >= 0 && source->attribute
                    && parsed.elements[element].Find(QLatin1String(source->attribute))) {
                    found = {element, QLatin1String(source->attribute), source->conversion, false};
                    break;
                }
            }
        }
    }
    return found;
}

std::optional<NewValueSource> NewSourceOf(const ParsedProgram &parsed, int clock, int kind,
                                          Attribute attribute)
{
    for (const ImportElement *const import : ImportsOf(kind)) {
        const bool isShared = import->name
            && (qstrcmp(import->name, "font") == 0 || qstrcmp(import->name, Sdk::kClockCom) == 0);
        const QVector<const ImportRow *> rows = RowsFor(*import, attribute);
        if (isShared || rows.isEmpty())
            continue;
        const int element = ElementRead(parsed, clock, *import);
        const ImportSource &source = rows.first()->source;
        const ValueSource place {element, QLatin1String(source.attribute), source.conversion,
                                 false};
        if (element >= 0)
            return NewValueSource {{}, place};
        return NewValueSource {QLatin1String(import->fallback ? import->fallback : import->name),
                               place};
    }
    return std::nullopt;
}

} // namespace ClockStudio
