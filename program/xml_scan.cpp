// program/: scans the text of an XML file before it is parsed.
#include "xml_document.h"

#include <QVector>

#include <algorithm>

namespace ClockProgram {

namespace {

constexpr int kLongestName = 60; // of a name in a message

struct Tag
{
    QStringView name;
    int line = 0;
};

QString Shown(QStringView name)
{
    return name.toString().left(kLongestName);
}

/// What is wrong with "&" and these characters up to a semicolon; empty without one.
QString ReferenceFault(QStringView name)
{
    const bool isName = !name.isEmpty()
        && std::all_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); });
    return isName
        ? QStringLiteral("&%1; is not defined in XML; write the character itself").arg(name)
        : QStringLiteral("\"&\" in text must be written as &amp;");
}

bool EndsName(QChar c)
{
    switch (c.unicode()) {
    case '/':
    case '>':
    case '=':
    case '<':
    case '"':
    case '\'':
        return true;
    default:
        return c.isSpace();
    }
}

class Scanner
{
public:
    explicit Scanner(const QString &text) : m_text(text) { }

    std::optional<XmlFault> Run()
    {
        while (!m_fault && m_at < m_text.size())
            Current() == QLatin1Char('<') ? Markup() : Text();
        if (!m_fault && !m_open.isEmpty())
            Fail(m_line,
                 QStringLiteral("the <%1> in line %2 is never closed")
                     .arg(Shown(m_open.last().name))
                     .arg(m_open.last().line));
        if (!m_fault && m_elements == 0)
            Fail(m_line, QStringLiteral("is not XML: it has no element"));
        return m_fault;
    }

private:
    QChar Current() const { return m_at < m_text.size() ? m_text[m_at] : QChar(); }
    bool StartsWith(const char *word) const { return HasAt(m_text, m_at, QLatin1String(word)); }

    void Fail(int line, const QString &text)
    {
        if (!m_fault)
            m_fault = XmlFault {line, text};
    }

    void MoveTo(int position)
    {
        m_line += static_cast<int>(
            std::count(m_text.cbegin() + m_at, m_text.cbegin() + position, QLatin1Char('\n')));
        m_at = position;
    }

    void SkipSpace()
    {
        int end = m_at;
        while (end < m_text.size() && m_text[end].isSpace())
            ++end;
        MoveTo(end);
    }

    QStringView Between(int begin, int end) const
    {
        return QStringView(m_text).mid(begin, end - begin);
    }

    QStringView Name()
    {
        const int begin = m_at;
        while (m_at < m_text.size() && !EndsName(m_text[m_at]))
            ++m_at;
        return Between(begin, m_at);
    }

    int End() const { return static_cast<int>(m_text.size()); }

    /// The first position of a character in a part of the text; the part's end without it.
    int Find(QChar character, int begin, int end) const
    {
        const auto *const text = m_text.constData();
        return static_cast<int>(std::find(text + begin, text + end, character) - text);
    }

    void Text()
    {
        const int end = Find(QLatin1Char('<'), m_at, End());
        if (m_open.isEmpty() && !Between(m_at, end).trimmed().isEmpty()) {
            SkipSpace();
            return Fail(m_line,
                        m_elements == 0 ? QStringLiteral("is not XML: it begins with text")
                                        : QStringLiteral("there is text after the last element"));
        }
        CheckReferences(end);
        MoveTo(end);
    }

    /// Checks the references up to a position. Without a document type definition only the five
    /// predefined entities and character numbers exist.
    void CheckReferences(int end)
    {
        constexpr int kLongest = 11; // of a name in a message
        int after = end;
        for (int i = Find(QLatin1Char('&'), m_at, end); i < end; i = after) {
            after = Find(QLatin1Char('&'), i + 1, end);
            const int close = Find(QLatin1Char(';'), i, after);
            const QStringView name = close < after ? Between(i + 1, close) : QStringView();
            const auto is = [&name](const char *word) { return name == QLatin1String(word); };
            const bool isKnown = name.startsWith(QLatin1Char('#')) || is("amp") || is("lt")
                || is("gt") || is("quot") || is("apos");
            if (isKnown)
                continue;
            MoveTo(i);
            return Fail(m_line, ReferenceFault(name.size() <= kLongest ? name : QStringView()));
        }
    }

    void Markup()
    {
        if (StartsWith("<!--"))
            return SkipPast(4, "-->", "a comment");
        if (StartsWith("<![CDATA["))
            return SkipPast(9, "]]>", "a CDATA section");
        if (StartsWith("<?"))
            return SkipPast(2, "?>", "a processing instruction");
        if (StartsWith("<!"))
            return Fail(m_line,
                        QStringLiteral("document type definitions (<!DOCTYPE>) are not accepted"));
        StartsWith("</") ? EndTag() : StartTag();
    }

    void SkipPast(int begin, const char *end, const char *what)
    {
        const auto found = m_text.indexOf(QLatin1String(end), m_at + begin);
        if (found < 0)
            return Fail(m_line, QStringLiteral("%1 is never closed").arg(QLatin1String(what)));
        MoveTo(static_cast<int>(found) + static_cast<int>(qstrlen(end)));
    }

    void EndTag()
    {
        m_at += 2;
        const QStringView name = Name();
        SkipSpace();
        if (Current() != QLatin1Char('>'))
            return Fail(m_line, QStringLiteral("\"</%1\" has no \">\"").arg(Shown(name)));
        ++m_at;
        if (m_open.isEmpty())
            return Fail(m_line, QStringLiteral("</%1> has no start tag").arg(Shown(name)));
        const Tag open = m_open.takeLast();
        if (open.name != name)
            Fail(m_line,
                 QStringLiteral("</%1> does not match the <%2> in line %3")
                     .arg(Shown(name), Shown(open.name))
                     .arg(open.line));
    }

    void StartTag()
    {
        const int line = m_line;
        ++m_at;
        const Tag tag {Name(), line};
        if (tag.name.isEmpty())
            return Fail(line, QStringLiteral("\"<\" in text must be written as &lt;"));
        if (m_open.isEmpty() && m_elements > 0)
            return Fail(line,
                        QStringLiteral("<%1> follows the end of the outermost element")
                            .arg(Shown(tag.name)));
        if (++m_elements > kMaximumElements)
            return Fail(line, QStringLiteral("more than %1 elements").arg(kMaximumElements));
        Attributes(tag);
    }

    void Attributes(const Tag &tag)
    {
        QVector<QStringView> names;
        while (!m_fault) {
            const bool isApart = Current().isSpace();
            SkipSpace();
            if (Current() == QLatin1Char('>') || StartsWith("/>"))
                return Close(tag);
            if (m_at >= m_text.size() || Current() == QLatin1Char('<'))
                return Fail(m_line,
                            QStringLiteral("the tag <%1> has no \">\"").arg(Shown(tag.name)));
            if (!isApart)
                return Fail(m_line,
                            QStringLiteral("a space or a quotation mark is missing in <%1>")
                                .arg(Shown(tag.name)));
            Attribute(tag, names);
        }
    }

    void Close(const Tag &tag)
    {
        const bool isEmpty = Current() == QLatin1Char('/');
        m_at += isEmpty ? 2 : 1;
        if (isEmpty)
            return;
        m_open.append(tag);
        if (m_open.size() > kMaximumDepth)
            Fail(tag.line,
                 QStringLiteral("elements are nested more than %1 levels deep").arg(kMaximumDepth));
    }

    void Attribute(const Tag &tag, QVector<QStringView> &names)
    {
        const QStringView name = Name();
        if (names.contains(name))
            return Fail(
                m_line,
                QStringLiteral("<%1> has two attributes %2").arg(Shown(tag.name), Shown(name)));
        names.append(name);
        if (names.size() > kMaximumTagAttributes)
            return Fail(m_line,
                        QStringLiteral("<%1> has more than %2 attributes")
                            .arg(Shown(tag.name))
                            .arg(kMaximumTagAttributes));
        if (++m_attributes > kMaximumAttributes)
            return Fail(m_line, QStringLiteral("more than %1 attributes").arg(kMaximumAttributes));
        SkipSpace();
        const bool hasValue = Current() == QLatin1Char('=');
        m_at += hasValue ? 1 : 0;
        SkipSpace();
        const QChar quote = Current();
        if (!hasValue || (quote != QLatin1Char('"') && quote != QLatin1Char('\'')))
            return Fail(m_line,
                        QStringLiteral("the attribute %1 of <%2> needs a value in quotation marks")
                            .arg(Shown(name), Shown(tag.name)));
        Value(tag, name, quote);
    }

    void Value(const Tag &tag, QStringView name, QChar quote)
    {
        const int begin = m_at + 1;
        const int end = Find(quote, begin, End());
        if (end == End() || Find(QLatin1Char('<'), begin, end) < end)
            return Fail(m_line,
                        QStringLiteral("the value of %1 of <%2> has no closing quotation mark, or "
                                       "a \"<\" that must be written as &lt;")
                            .arg(Shown(name), Shown(tag.name)));
        MoveTo(begin);
        CheckReferences(end);
        MoveTo(end + 1);
    }

    const QString &m_text;
    int m_at = 0;
    int m_line = 1;
    int m_elements = 0;
    int m_attributes = 0;
    QVector<Tag> m_open;
    std::optional<XmlFault> m_fault;
};

} // namespace

bool HasAt(const QString &text, int position, QLatin1String characters)
{
    return position <= text.size() && QStringView(text).mid(position).startsWith(characters);
}

std::optional<XmlFault> ScanXml(const QString &text)
{
    return Scanner(text).Run();
}

} // namespace ClockProgram
