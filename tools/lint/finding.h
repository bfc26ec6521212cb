// lint/: findings of a check of a program.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace ClockTool {

enum class Severity {
    Warning, ///< ignored or misinterpreted by the clock
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
    QString text;       ///< the message, with what would be accepted
    QString suggestion; ///< what to write instead of the attribute's value, or of the name where
                        ///< that is what is wrong; empty for none
};

/// Translates texts of findings by the catalogues that the program installed; otherwise they are
/// English.
class FindingWords
{
    Q_DECLARE_TR_FUNCTIONS(ClockTool::FindingWords)
};

/// One JSON object on one line, with a newline; docs/fit.md lists the keys.
QByteArray FindingJson(const Finding &finding, const QString &file);

class Findings
{
public:
    void Warn(const Place &place, const QString &text, const QString &suggestion = {});
    void Note(const Place &place, const QString &text, const QString &suggestion = {});
    void Add(const Finding &finding);
    /// Adds the findings of one clock, setting its number.
    void AddOfClock(int clock, const Findings &findings);

    bool HasWarning(int line) const { return m_lines.contains(line); }
    int Warnings() const;
    QVector<Finding> ByLine() const; ///< in file order, without duplicates

private:
    QVector<Finding> m_all;
    QSet<int> m_lines; // of warnings
};

} // namespace ClockTool
