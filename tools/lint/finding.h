// What a check of a program found.
#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace ClockTool {

enum class Severity {
    Warning, ///< not read, or not as it was meant
    Note,    ///< worth knowing
};

struct Finding
{
    int line = 0; ///< of the element that it is about; 0 for the file
    Severity severity = Severity::Warning;
    QString text;
};

class Findings
{
public:
    void Warn(int line, const QString &text);
    void Note(int line, const QString &text);

    bool HasLine(int line) const { return m_lines.contains(line); }
    int Warnings() const;
    QVector<Finding> ByLine() const; ///< in the order of the file, each once

private:
    void Add(const Finding &finding);

    QVector<Finding> m_all;
    QSet<int> m_lines;
};

} // namespace ClockTool
