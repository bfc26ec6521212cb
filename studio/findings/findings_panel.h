// studio/findings: the list of findings: a click selects the clock and property, a button applies
// the fix.
#pragma once

#include "editing/wall_editor.h"
#include "finding_fix.h"
#include "fit_check.h"

#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QListWidget;
class QPushButton;
QT_END_NAMESPACE

namespace ClockStudio {

class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(WallEditor &editor, QWidget *parent = nullptr);

    const QVector<ClockTool::Finding> &Findings() const { return m_findings; }
    /// The program's file, beside which its glyph files are; empty while it was never saved.
    void SetProgramPath(const QString &path);
    /// Checks immediately instead of after the delay. Slower findings are listed when they arrive.
    void Check();
    /// Like Check(), but also waits for the slower findings; meanwhile user input is not handled.
    void CheckAll();
    /// As listed: with the number of the clock, and times as it shows them.
    QString TextOf(const ClockTool::Finding &finding) const;

Q_SIGNALS:
    void CountChanged(int count); ///< of warnings
    void PropertyWanted(const QString &key);
    void LineWanted(int line);

private:
    void List(const QVector<ClockTool::Finding> &findings);
    void Add(const ClockTool::Finding &finding);
    void SayUnchecked(const QString &reason);
    void Select(int row);
    std::optional<TextEdit> FixFor(int row) const;
    void UpdateFix();
    void Fix();

    WallEditor &m_editor;
    QListWidget *m_list;
    QPushButton *m_fix;
    QLabel *m_none;
    QLabel *m_unchecked; ///< why the list lacks the findings of a year
    QString m_path;
    QTimer m_delay;
    FitCheck m_fit;
    QVector<ClockTool::Finding> m_findings;
};

} // namespace ClockStudio
