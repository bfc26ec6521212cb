#include "finding.h"

#include <QDomElement>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <tuple>

namespace ClockTool {

Place At(const QDomElement &element, const QString &attribute)
{
    return {element.lineNumber(), element.tagName(), attribute, 0};
}

QByteArray FindingJson(const Finding &finding, const QString &file)
{
    const bool isNote = finding.severity == Severity::Note;
    const QJsonObject object = {
        {QStringLiteral("file"), file},
        {QStringLiteral("line"), finding.place.line},
        {QStringLiteral("clock"), finding.place.clock},
        {QStringLiteral("element"), finding.place.element},
        {QStringLiteral("attribute"), finding.place.attribute},
        {QStringLiteral("severity"), isNote ? QStringLiteral("note") : QStringLiteral("warning")},
        {QStringLiteral("text"), finding.text},
        {QStringLiteral("suggestion"), finding.suggestion},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

void Findings::Warn(const Place &place, const QString &text, const QString &suggestion)
{
    Add({place, Severity::Warning, text, suggestion});
}

void Findings::Note(const Place &place, const QString &text, const QString &suggestion)
{
    Add({place, Severity::Note, text, suggestion});
}

void Findings::Add(const Finding &finding)
{
    m_all.append(finding);
    if (finding.severity == Severity::Warning)
        m_lines.insert(finding.place.line);
}

void Findings::AddOfClock(int clock, const Findings &findings)
{
    for (Finding finding : findings.m_all) {
        finding.place.clock = clock;
        Add(finding);
    }
}

int Findings::Warnings() const
{
    return static_cast<int>(std::count_if(m_all.cbegin(), m_all.cend(), [](const Finding &finding) {
        return finding.severity == Severity::Warning;
    }));
}

QVector<Finding> Findings::ByLine() const
{
    QVector<Finding> sorted = m_all;
    // Attributes have no order in a DOM, so findings of one line are sorted by text.
    std::sort(sorted.begin(), sorted.end(), [](const Finding &one, const Finding &other) {
        return std::tie(one.place.line, one.text) < std::tie(other.place.line, other.text);
    });
    const auto same = [](const Finding &one, const Finding &other) {
        return one.place.line == other.place.line && one.text == other.text;
    };
    sorted.erase(std::unique(sorted.begin(), sorted.end(), same), sorted.end());
    return sorted;
}

} // namespace ClockTool
