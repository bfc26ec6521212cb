// studio/panels: what is around the wall: source, findings, time, properties.
// The program's text, to be read and edited beside the wall.
#pragma once

#include "editing/wall_editor.h"

#include <QPlainTextEdit>

namespace ClockStudio {

/// Has no history of its own: every edit is one of the document.
class SourceView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SourceView(WallEditor &editor, QWidget *parent = nullptr);

    /// Puts the cursor into a line, from 1.
    void GoToLine(int line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void TakeText();
    void TakeEdits(const TextEdits &edits);
    void GiveEdit();
    void ChooseAtCursor();
    void MarkChosen();
    void PaintNumbers(QPaintEvent *event);
    void PlaceNumbers();

    WallEditor &m_editor;
    QWidget *m_numbers;
    bool m_isOwnEdit = false; ///< an edit that is on its way from or to the document
};

} // namespace ClockStudio
