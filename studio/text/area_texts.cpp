#include "area_texts.h"

#include "program_edits.h"

#include "node_keys.h"

#include <QSet>

namespace ClockStudio {

namespace {

constexpr int kFirstId = 1000; // the first of the plugin's random Ids

std::optional<ProgramReading> ReadFragment(const QString &areas)
{
    const QString whole =
        QStringLiteral("<program width=\"1\" height=\"1\">%1</program>").arg(areas);
    auto read = ReadProgramText(whole, TextForm());
    if (auto *const reading = std::get_if<ProgramReading>(&read))
        return *reading;
    return std::nullopt;
}

/// The "attribute" children of a clock that give its identity.
QVector<int> IdElements(const ProgramReading &reading, int area)
{
    QVector<int> found;
    const int clock = reading.ClockElement(area);
    for (const int child : ChildrenNamed(reading.elements, clock, ClockProgram::kAttributeTag)) {
        if (reading.elements[child].Value(QStringLiteral("key"))
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
    std::optional<ProgramReading> reading = ReadFragment(text.trimmed());
    if (!reading) {
        auto whole = ReadProgramText(text.trimmed(), TextForm());
        if (auto *const program = std::get_if<ProgramReading>(&whole))
            reading = *program;
    }
    QStringList areas;
    for (int area = 0; reading && area < reading->AreaCount(); ++area)
        areas.append(PortableAreaText(*reading, area));
    return areas;
}

QString AreaForProgram(const QString &areaText, QPoint offset, QSet<int> &takenIds)
{
    const std::optional<ProgramReading> reading = ReadFragment(areaText);
    if (!reading || reading->AreaCount() != 1)
        return areaText;
    const QRect moved = reading->Geometry(0).translated(offset);
    TextEdits edits = GeometryEdits(*reading, 0, moved);
    const QVector<int> ids = IdElements(*reading, 0);
    if (!ids.isEmpty()) {
        const int id = FreeId(takenIds);
        takenIds.insert(id);
        for (const int element : ids)
            edits.append(
                SetAttributeEdit(*reading, element, QStringLiteral("value"), QString::number(id)));
    }
    QString text = reading->text;
    const int end = text.size() - reading->elements[reading->AreaElement(0)].whole.end;
    const int begin = reading->elements[reading->AreaElement(0)].whole.begin;
    ApplyEdits(text, InSequence(edits));
    return text.mid(begin, text.size() - end - begin);
}

QSet<int> GivenIds(const ProgramReading &reading)
{
    QSet<int> ids;
    for (int area = 0; area < reading.AreaCount(); ++area) {
        for (const int element : IdElements(reading, area))
            ids.insert(reading.elements[element].Value(QStringLiteral("value")).toInt());
    }
    return ids;
}

} // namespace ClockStudio
