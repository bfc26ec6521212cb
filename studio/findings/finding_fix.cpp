#include "finding_fix.h"

#include "editing/new_clock.h"
#include "editing/value_edits.h"
#include "text/program_edits.h"

#include "clock_attributes.h"
#include "clock_finder.h"
#include "clock_node.h"
#include "lint/clock_words.h"
#include "lint/program_lint.h"

#include <algorithm>
#include <iterator>

namespace ClockStudio {

namespace {

using ClockTool::Finding;

bool HasFinding(const QString &text, const TextForm &form, const QString &sentence, qint64 instant,
                const QString &path)
{
    const auto read = ReadProgramText(text, form);
    const auto *const parsed = std::get_if<ParsedProgram>(&read);
    if (!parsed)
        return true;
    const QVector<Finding> findings = FindingsIn(*parsed, instant, path);
    return std::any_of(findings.cbegin(), findings.cend(),
                       [&sentence](const Finding &finding) { return finding.text == sentence; });
}

/// The checks that are quick enough for the thread of the window.
void LintClocks(const ClockProgram::Program &program, qint64 instant, ClockTool::Findings &findings)
{
    ClockTool::LintAreas(program, findings);
    const auto made = ClockProgram::MakeNodes(program, ClockTool::FindClockPlugin);
    if (!made)
        return;
    ClockTool::LintStyles(program, *made, findings);
    ClockTool::LintValidity(program, *made, instant, findings);
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
        const auto nameLength = static_cast<int>(attribute->name.size());
        ranges.append({attribute->whole.begin, attribute->whole.begin + nameLength});
    }
    return ranges;
}

/// Whether the suggestion is a text size at which digits are hard to read.
bool IsTooSmallText(const ParsedProgram &parsed, const Finding &finding)
{
    using namespace Lw::HNodeClock;
    const int area = finding.place.clock - 1;
    const auto clock = area >= 0 && area < parsed.AreaCount() ? ClockOf(parsed, area) : nullptr;
    const QString key = clock ? KeyOf(finding, clock->ClockType()) : QString();
    return std::any_of(std::begin(kAttributeTable), std::end(kAttributeTable),
                       [&](const AttributeRow &row) {
                           return key == QLatin1String(row.key) && row.role == ValueRole::Size
                               && finding.suggestion.toInt() < kSmallestTextSize;
                       });
}

} // namespace

QVector<Finding> FindingsIn(const ParsedProgram &parsed, qint64 instant, const QString &path)
{
    const std::optional<QByteArray> contents = EncodeText(parsed.text, parsed.form);
    if (!contents)
        return {};
    const QDomDocument &document = parsed.program.document;
    ClockTool::Findings findings = ClockTool::LintProgram(document, *contents, path, instant);
    if (const auto program = ClockProgram::InterpretProgram(document, path))
        LintClocks(*program, instant, findings);
    return findings.ByLine();
}

int ElementOf(const ParsedProgram &parsed, const Finding &finding)
{
    if (finding.place.line < 1)
        return -1;
    // The parser reports the line on which a tag ends.
    const int begin = StartOfLine(parsed.text, finding.place.line);
    const int end = StartOfLine(parsed.text, finding.place.line + 1);
    for (int i = 0; i < parsed.elements.size(); ++i) {
        const XmlElement &element = parsed.elements[i];
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
    const auto settings = ClockTool::SettingsReadFrom(clockType, element, finding.place.attribute);
    if (!settings.isEmpty())
        return Key(settings.last().target);
    return RowNamed(finding.place.attribute) ? finding.place.attribute : QString();
}

std::optional<TextEdit> FixOf(const ParsedProgram &parsed, const Finding &finding, qint64 instant,
                              const QString &path)
{
    const int element = ElementOf(parsed, finding);
    if (finding.suggestion.isEmpty() || element < 0 || IsTooSmallText(parsed, finding))
        return std::nullopt;
    for (const TextRange range : Candidates(parsed.elements[element], finding)) {
        const TextEdit edit = Smallest(
            Replacement(parsed.text, range, EscapedValue(finding.suggestion, QLatin1Char('"'))));
        QString text = parsed.text;
        ApplyEdits(text, {edit});
        if (!HasFinding(text, parsed.form, finding.text, instant, path))
            return edit;
    }
    return std::nullopt;
}

} // namespace ClockStudio
