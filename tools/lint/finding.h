// What a check of a program found, and where.
#pragma once

#include <QSet>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace ClockTool {

enum class Severity {
    Warning, ///< not read, or not as it was meant
    Note,    ///< worth knowing; does not affect the exit code
};

/// Where in a program something was found.
struct Place
{
    int line = 0;      ///< of the element; 0 for the file
    QString element;   ///< its name; empty for the file
    QString attribute; ///< the XML attribute, or the key of an "attribute" child; empty for neither
    int clock = 0;     ///< counted from 1 in the order of the areas; 0 outside all clocks
};

Place At(const QDomElement &element, const QString &attribute = {});

struct Finding
{
    Place place;
    Severity severity = Severity::Warning;
    QString text;       ///< a sentence for people, with what would be accepted
    QString suggestion; ///< what to write instead of the attribute's value, or of the name where
                        ///< that is what is wrong; empty for none
};

class Findings
{
public:
    void Warn(const Place &place, const QString &text, const QString &suggestion = {});
    void Note(const Place &place, const QString &text, const QString &suggestion = {});
    void Add(const Finding &finding);
    /// The findings within one clock, which does not know its number.
    void AddOfClock(int clock, const Findings &findings);

    bool HasWarning(int line) const { return m_lines.contains(line); }
    int Warnings() const;
    QVector<Finding> ByLine() const; ///< in the order of the file, each once

private:
    QVector<Finding> m_all;
    QSet<int> m_lines; // of warnings
};

} // namespace ClockTool
