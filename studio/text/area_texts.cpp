#include "area_texts.h"

#include "program_edits.h"

#include "node_keys.h"
#include "number_text.h"

#include <QSet>

namespace ClockStudio {

namespace {

constexpr int kFirstId = 1000; // the first of the plugin's random Ids

std::optional<ParsedProgram> ReadFragment(const QString &areas)
{
    const QString whole =
        QStringLiteral("<program width=\"1\" height=\"1\">%1</program>").arg(areas);
    auto read = ReadProgramText(whole, TextForm());
    if (auto *const parsed = std::get_if<ParsedProgram>(&read))
        return *parsed;
    return std::nullopt;
}

/// The "attribute" children of a clock that give its identity.
QVector<int> IdElements(const ParsedProgram &parsed, int area)
{
    QVector<int> found;
    const int clock = parsed.ClockElement(area);
    for (const int child : ChildrenNamed(parsed.elements, clock, ClockProgram::kAttributeTag)) {
        if (parsed.elements[child].Value(QStringLiteral("key"))
            == QLatin1String(ClockProgram::kIdKey))
            found.append(child);
    }
    return found;
}

int FreeId(const QSet<int> &taken)
{
    int id = kFirstId;
    while (taken.contains(id))
        ++id;
    return id;
}

} // namespace

QStringList AreasInText(const QString &text)
{
    std::optional<ParsedProgram> parsed = ReadFragment(text.trimmed());
    if (!parsed) {
        auto whole = ReadProgramText(text.trimmed(), TextForm());
        if (auto *const program = std::get_if<ParsedProgram>(&whole))
            parsed = *program;
    }
    QStringList areas;
    for (int area = 0; parsed && area < parsed->AreaCount(); ++area)
        areas.append(PortableAreaText(*parsed, area));
    return areas;
}

QString AreaForProgram(const QString &areaText, QPoint offset, QSet<int> &takenIds)
{
    const std::optional<ParsedProgram> parsed = ReadFragment(areaText);
    if (!parsed || parsed->AreaCount() != 1)
        return areaText;
    const QRect moved = parsed->Geometry(0).translated(offset);
    TextEdits edits = GeometryEdits(*parsed, 0, moved);
    const QVector<int> ids = IdElements(*parsed, 0);
    if (!ids.isEmpty()) {
        const int id = FreeId(takenIds);
        takenIds.insert(id);
        for (const int element : ids)
            edits.append(
                SetAttributeEdit(*parsed, element, QStringLiteral("value"), QString::number(id)));
    }
    QString text = parsed->text;
    const int end = text.size() - parsed->elements[parsed->AreaElement(0)].whole.end;
    const int begin = parsed->elements[parsed->AreaElement(0)].whole.begin;
    ApplyEdits(text, InSequence(edits));
    return text.mid(begin, text.size() - end - begin);
}

QSet<int> GivenIds(const ParsedProgram &parsed)
{
    QSet<int> ids;
    for (int area = 0; area < parsed.AreaCount(); ++area) {
        for (const int element : IdElements(parsed, area))
            ids.insert(Lw::NumberIn(parsed.elements[element].Value(QStringLiteral("value"))));
    }
    return ids;
}

} // namespace ClockStudio
