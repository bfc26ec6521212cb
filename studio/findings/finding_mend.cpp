#include "finding_mend.h"

#include "text/program_edits.h"

#include "clock_attributes.h"
#include "lint/clock_words.h"
#include "lint/program_lint.h"

#include <algorithm>

namespace ClockStudio {

namespace {

using ClockTool::Finding;

bool HasFinding(const QString &text, const TextForm &form, const QString &sentence)
{
    const auto read = ReadProgramText(text, form);
    const auto *const reading = std::get_if<ProgramReading>(&read);
    if (!reading)
        return true;
    const QVector<Finding> findings = FindingsIn(*reading);
    return std::any_of(findings.cbegin(), findings.cend(),
                       [&sentence](const Finding &finding) { return finding.text == sentence; });
}

/// The ranges that the suggestion may replace: a value, an attribute's name, or a key.
QVector<TextRange> Candidates(const XmlElement &element, const Finding &finding)
{
    QVector<TextRange> ranges;
    const bool isSetting = element.name == ClockProgram::kAttributeTag;
    if (isSetting) {
        for (const char *const name : {"value", "key"}) {
            if (const XmlAttribute *const attribute = element.Find(QLatin1String(name)))
                ranges.append(attribute->value);
        }
    } else if (const XmlAttribute *const attribute = element.Find(finding.place.attribute)) {
        ranges.append(attribute->value);
        ranges.append({attribute->whole.begin, attribute->whole.begin + attribute->name.size()});
    }
    return ranges;
}

} // namespace

QVector<Finding> FindingsIn(const ProgramReading &reading)
{
    const std::optional<QByteArray> contents = EncodeText(reading.text, reading.form);
    if (!contents)
        return {};
    const QDomDocument &document = reading.program.document;
    ClockTool::Findings findings = ClockTool::LintProgram(document, *contents, QString());
    if (const auto program = ClockProgram::InterpretProgram(document, QString()))
        ClockTool::LintAreas(*program, findings);
    return findings.ByLine();
}

int ElementOf(const ProgramReading &reading, const Finding &finding)
{
    if (finding.place.line < 1)
        return -1;
    // The parser reports the line on which a tag ends.
    const int begin = StartOfLine(reading.text, finding.place.line);
    const int end = StartOfLine(reading.text, finding.place.line + 1);
    for (int i = 0; i < reading.elements.size(); ++i) {
        const XmlElement &element = reading.elements[i];
        const bool isThere = element.tag.begin < end && element.tag.end > begin;
        if (isThere && (finding.place.element.isEmpty() || element.name == finding.place.element)
            && (finding.place.attribute.isEmpty() || element.Find(finding.place.attribute)
                || element.Value(QStringLiteral("key")) == finding.place.attribute))
            return i;
    }
    return -1;
}

QString KeyOf(const Finding &finding, int clockType)
{
    using namespace Lw::HNodeClock;
    if (finding.place.element == ClockProgram::kAttributeTag)
        return finding.place.attribute;
    const QString element =
        finding.place.element == QLatin1String("clock") ? QString() : finding.place.element;
    const auto readings = ClockTool::ReadingsOf(clockType, element, finding.place.attribute);
    return readings.isEmpty() ? QString() : Key(readings.last().target);
}

std::optional<TextEdit> MendOf(const ProgramReading &reading, const Finding &finding)
{
    const int element = ElementOf(reading, finding);
    if (finding.suggestion.isEmpty() || element < 0)
        return std::nullopt;
    for (const TextRange range : Candidates(reading.elements[element], finding)) {
        const TextEdit edit = Smallest(
            Replacement(reading.text, range, EscapedValue(finding.suggestion, QLatin1Char('"'))));
        QString text = reading.text;
        ApplyEdits(text, {edit});
        if (!HasFinding(text, reading.form, finding.text))
            return edit;
    }
    return std::nullopt;
}

} // namespace ClockStudio
