// studio/panels: syntax highlighting of XML in the source view.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>

namespace ClockStudio {

class XmlHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// The palette decides between light and dark colours.
    XmlHighlighter(QTextDocument *document, const QPalette &palette);

protected:
    void highlightBlock(const QString &text) override;

private:
    int HighlightComment(const QString &text, int begin);

    QTextCharFormat m_element;
    QTextCharFormat m_attribute;
    QTextCharFormat m_value;
    QTextCharFormat m_comment;
};

} // namespace ClockStudio
