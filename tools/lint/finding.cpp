#include "finding.h"

#include <algorithm>
#include <tuple>

namespace ClockTool {

void Findings::Warn(int line, const QString &text)
{
    Add({line, Severity::Warning, text});
}

void Findings::Note(int line, const QString &text)
{
    Add({line, Severity::Note, text});
}

void Findings::Add(const Finding &finding)
{
    m_all.append(finding);
    m_lines.insert(finding.line);
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
    // Attributes have no order of their own, so the texts give them one.
    std::sort(sorted.begin(), sorted.end(), [](const Finding &one, const Finding &other) {
        return std::tie(one.line, one.text) < std::tie(other.line, other.text);
    });
    const auto same = [](const Finding &one, const Finding &other) {
        return one.line == other.line && one.text == other.text;
    };
    sorted.erase(std::unique(sorted.begin(), sorted.end(), same), sorted.end());
    return sorted;
}

} // namespace ClockTool
