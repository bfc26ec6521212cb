// studio/panels: the XML editor beside the wall.
#pragma once

#include "editing/wall_editor.h"

#include <QPlainTextEdit>

namespace ClockStudio {

/// Has no undo history of its own: every edit goes through the document.
class SourceView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SourceView(WallEditor &editor, QWidget *parent = nullptr);

    /// Moves the cursor to a line, counted from 1.
    void GoToLine(int line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void LoadText();
    void ApplyDocumentEdits(const TextEdits &edits);
    void SendEditToDocument();
    void SelectAtCursor();
    void MarkSelected();
    void PaintNumbers(QPaintEvent *event);
    void PlaceNumbers();

    WallEditor &m_editor;
    QWidget *m_numbers;
    bool m_isOwnEdit = false; ///< an edit is being copied between the view and the document
};

} // namespace ClockStudio
