#include "source_view.h"

#include "view_positions.h"
#include "xml_highlighter.h"

#include "text/program_edits.h"

#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>

namespace ClockStudio {

namespace {

constexpr int kNumberMargin = 8; // pixels

/// The line-number margin; the view paints it.
class NumberStrip : public QWidget
{
public:
    NumberStrip(QWidget *parent, std::function<void(QPaintEvent *)> paint)
        : QWidget(parent), m_paint(std::move(paint))
    { }

protected:
    void paintEvent(QPaintEvent *event) override { m_paint(event); }

private:
    std::function<void(QPaintEvent *)> m_paint;
};

QTextEdit::ExtraSelection Marked(const QTextCursor &cursor, const QColor &colour, bool isLine)
{
    QTextEdit::ExtraSelection mark;
    mark.cursor = cursor;
    mark.format.setBackground(colour);
    mark.format.setProperty(QTextFormat::FullWidthSelection, isLine);
    return mark;
}

} // namespace

SourceView::SourceView(WallEditor &editor, QWidget *parent)
    : QPlainTextEdit(parent), m_editor(editor)
{
    m_numbers = new NumberStrip(this, [this](QPaintEvent *event) { PaintNumbers(event); });
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(NoWrap);
    setLayoutDirection(Qt::LeftToRight); // also in right-to-left languages: XML is left to right
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setAccessibleName(tr("Program text"));
    setAccessibleDescription(tr("The XML of the program. Changes appear on the wall immediately."));
    new XmlHighlighter(document(), palette());
    connect(&editor.Document(), &StudioDocument::Loaded, this, &SourceView::LoadText);
    connect(&editor.Document(), &StudioDocument::Edited, this, &SourceView::ApplyDocumentEdits);
    connect(&editor.Document(), &StudioDocument::Read, this, &SourceView::MarkSelected);
    connect(&editor, &WallEditor::SelectionChanged, this, &SourceView::MarkSelected);
    connect(document(), &QTextDocument::contentsChanged, this, &SourceView::SendEditToDocument);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &SourceView::SelectAtCursor);
    connect(this, &QPlainTextEdit::updateRequest, m_numbers, QOverload<>::of(&QWidget::update));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &SourceView::PlaceNumbers);
    PlaceNumbers();
}

void SourceView::LoadText()
{
    const QScopedValueRollback<bool> guard(m_isOwnEdit, true);
    setPlainText(m_editor.Document().Text());
}

/// Each edit's position refers to the text before it; these texts are reconstructed by reverting
/// the edits.
void SourceView::ApplyDocumentEdits(const TextEdits &edits)
{
    if (m_isOwnEdit)
        return;
    const QScopedValueRollback<bool> guard(m_isOwnEdit, true);
    QString text = m_editor.Document().Text();
    RevertEdits(text, edits);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const TextEdit &edit : edits) {
        cursor.setPosition(ToEditor(text, edit.position));
        cursor.setPosition(ToEditor(text, edit.position + edit.removed.size()),
                           QTextCursor::KeepAnchor);
        cursor.insertText(edit.inserted);
        ApplyEdits(text, {edit});
    }
    cursor.endEditBlock();
}

void SourceView::SendEditToDocument()
{
    if (m_isOwnEdit)
        return;
    const QScopedValueRollback<bool> guard(m_isOwnEdit, true);
    // QTextDocument may report more than what changed, so the texts are compared.
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    const QString before = m_editor.Document().Text();
    const TextEdit edit = Smallest({0, InEditor(before), InEditor(all.selectedText())});
    QString inserted = edit.inserted;
    const TextRange range {FromEditor(before, edit.position),
                           FromEditor(before, edit.position + edit.removed.size())};
    m_editor.Document().Change(
        {Replacement(before, range, inserted.replace(QLatin1Char('\n'), LineEndOf(before)))},
        tr("Typing"), QStringLiteral("typing"));
}

void SourceView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo))
        m_editor.Document().History().undo();
    else if (event->matches(QKeySequence::Redo))
        m_editor.Document().History().redo();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void SourceView::contextMenuEvent(QContextMenuEvent *event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    menu->exec(event->globalPos());
}

void SourceView::SelectAtCursor()
{
    const ParsedProgram *const parsed = m_editor.Document().Parsed();
    if (m_isOwnEdit || !parsed || !hasFocus())
        return;
    const int area =
        parsed->AreaAt(FromEditor(m_editor.Document().Text(), textCursor().position()));
    if (area >= 0 && m_editor.Selected() != QVector<int> {area})
        m_editor.Select({area});
}

void SourceView::MarkSelected()
{
    QList<QTextEdit::ExtraSelection> marks;
    const QString &text = m_editor.Document().Text();
    const auto cursorOver = [this, &text](TextRange range) {
        QTextCursor cursor(document());
        cursor.setPosition(qMin(ToEditor(text, range.begin), document()->characterCount() - 1));
        cursor.setPosition(qMin(ToEditor(text, range.end), document()->characterCount() - 1),
                           QTextCursor::KeepAnchor);
        return cursor;
    };
    if (const ParsedProgram *const parsed = m_editor.Document().Parsed()) {
        QColor shade = palette().color(QPalette::Highlight);
        shade.setAlpha(36);
        for (const int area : m_editor.Selected()) {
            const TextRange range = parsed->elements[parsed->AreaElement(area)].whole;
            marks.append(Marked(cursorOver(range), shade, false));
        }
        if (!marks.isEmpty() && !hasFocus() && !m_isOwnEdit) {
            QTextCursor cursor = marks.first().cursor;
            cursor.setPosition(cursor.selectionStart());
            const QScopedValueRollback<bool> guard(m_isOwnEdit, true);
            setTextCursor(cursor);
            centerCursor();
        }
    } else if (const auto &fault = m_editor.Document().Fault()) {
        const int begin = StartOfLine(text, fault->line);
        QColor shade(Qt::red);
        shade.setAlpha(60);
        marks.append(Marked(cursorOver({begin, begin}), shade, true));
    }
    setExtraSelections(marks);
}

void SourceView::GoToLine(int line)
{
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (!block.isValid())
        return;
    setTextCursor(QTextCursor(block));
    centerCursor();
}

void SourceView::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    PlaceNumbers();
}

void SourceView::PlaceNumbers()
{
    const QString widest = QString::number(qMax(99, blockCount()));
    const int width = fontMetrics().horizontalAdvance(widest) + 2 * kNumberMargin;
    setViewportMargins(width, 0, 0, 0);
    const QRect room = contentsRect();
    m_numbers->setGeometry(room.left(), room.top(), width, room.height());
}

void SourceView::PaintNumbers(QPaintEvent *event)
{
    QPainter painter(m_numbers);
    painter.fillRect(event->rect(), palette().color(QPalette::AlternateBase));
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.setFont(font());
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF line = blockBoundingGeometry(block).translated(contentOffset());
        if (line.top() > event->rect().bottom())
            break;
        painter.drawText(QRectF(0, line.top(), m_numbers->width() - kNumberMargin, line.height()),
                         Qt::AlignRight, QString::number(block.blockNumber() + 1));
    }
}

} // namespace ClockStudio
