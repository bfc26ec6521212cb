#include "xml_highlighter.h"

#include <QRegularExpression>

namespace ClockStudio {

namespace {

enum BlockState { Outside = 0, InComment = 1 };

QTextCharFormat Coloured(const QColor &colour)
{
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

} // namespace

XmlHighlighter::XmlHighlighter(QTextDocument *document, const QPalette &palette)
    : QSyntaxHighlighter(document)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    const auto colour = [isDark](const char *light, const char *dark) {
        return Coloured(QColor(QLatin1String(isDark ? dark : light)));
    };
    m_element = colour("#1a5fb4", "#7fb4ff");
    m_attribute = colour("#7a4a00", "#e0b070");
    m_value = colour("#1c7a3a", "#8fd6a0");
    m_comment = colour("#777777", "#909090");
}

/// Returns where the comment ends, or the end of the line if it continues.
int XmlHighlighter::HighlightComment(const QString &text, int begin)
{
    const int end = text.indexOf(QLatin1String("-->"), begin);
    const int past = end < 0 ? text.size() : end + 3;
    setFormat(begin, past - begin, m_comment);
    setCurrentBlockState(end < 0 ? InComment : Outside);
    return past;
}

void XmlHighlighter::highlightBlock(const QString &text)
{
    static const QRegularExpression words(
        QStringLiteral(R"((<!--)|(</?[\w.:-]+|/?>)|([\w.:-]+)(?=\s*=)|("[^"]*"|'[^']*'))"));
    setCurrentBlockState(Outside);
    int at = previousBlockState() == InComment ? HighlightComment(text, 0) : 0;
    while (at < text.size()) {
        const QRegularExpressionMatch match = words.match(text, at);
        if (!match.hasMatch())
            break;
        if (match.capturedLength(1) > 0) {
            at = HighlightComment(text, match.capturedStart());
            continue;
        }
        const QTextCharFormat &format = match.capturedLength(2) > 0 ? m_element
            : match.capturedLength(3) > 0                           ? m_attribute
                                                                    : m_value;
        setFormat(match.capturedStart(), match.capturedLength(), format);
        at = match.capturedEnd();
    }
}

} // namespace ClockStudio
