#include "xml_positions.h"

#include "xml_document.h"

#include <algorithm>

namespace ClockStudio {

namespace {

bool IsSpace(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
        || c == QLatin1Char('\r');
}

bool EndsLine(const QString &text, int at)
{
    return text[at] == QLatin1Char('\n')
        || (text[at] == QLatin1Char('\r')
            && !ClockProgram::HasAt(text, at + 1, QLatin1String("\n")));
}

bool EndsName(QChar c)
{
    return IsSpace(c) || c == QLatin1Char('=') || c == QLatin1Char('/') || c == QLatin1Char('>')
        || c == QLatin1Char('<');
}

struct Entity
{
    const char *name;
    char character;
};

constexpr Entity kEntities[] = {
    {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''},
};

/// The text of a character or entity reference; empty for one that is not predefined.
QString Referenced(const QString &name)
{
    if (name.startsWith(QLatin1Char('#'))) {
        const bool isHex = name.startsWith(QLatin1String("#x"));
        const char32_t code = isHex ? name.mid(2).toUInt(nullptr, 16) : name.mid(1).toUInt();
        return code > 0 && code <= QChar::LastValidCodePoint ? QString::fromUcs4(&code, 1)
                                                             : QString();
    }
    for (const Entity &entity : kEntities) {
        if (name == QLatin1String(entity.name))
            return QString(QLatin1Char(entity.character));
    }
    return {};
}

QString ReadValue(const QString &text, TextRange range)
{
    QString value;
    for (int i = range.begin; i < range.end; ++i) {
        if (text[i] == QLatin1Char('&')) {
            const int end = text.indexOf(QLatin1Char(';'), i);
            if (end < 0 || end >= range.end)
                break;
            value += Referenced(text.mid(i + 1, end - i - 1));
            i = end;
        } else if (text[i] == QLatin1Char('\r')
                   && ClockProgram::HasAt(text, i + 1, QLatin1String("\n"))) {
            continue; // CR LF becomes one space
        } else {
            value += IsSpace(text[i]) ? QChar(QLatin1Char(' ')) : text[i];
        }
    }
    return value;
}

/// Scans the text once; stops at the first error.
class Finder
{
public:
    explicit Finder(const QString &text) : m_text(text) { }

    std::optional<XmlElements> Find()
    {
        while (m_ok && (m_at = m_text.indexOf(QLatin1Char('<'), m_at)) >= 0)
            Markup();
        if (!m_ok || m_elements.isEmpty() || !m_open.isEmpty())
            return std::nullopt;
        return m_elements;
    }

private:
    bool Begins(const char *word) const
    {
        return ClockProgram::HasAt(m_text, m_at, QLatin1String(word));
    }

    void Markup()
    {
        if (Begins("<!--"))
            SkipTo("-->");
        else if (Begins("<![CDATA["))
            SkipTo("]]>");
        else if (Begins("<?"))
            SkipTo("?>");
        else if (Begins("</"))
            CloseElement();
        else if (Begins("<!"))
            m_ok = false;
        else
            OpenElement();
    }

    void SkipTo(const char *end)
    {
        const int found = m_text.indexOf(QLatin1String(end), m_at);
        m_ok = found >= 0;
        m_at = found + static_cast<int>(qstrlen(end));
    }

    QString Name()
    {
        const int begin = m_at;
        while (m_at < m_text.size() && !EndsName(m_text[m_at]))
            ++m_at;
        m_ok = m_ok && m_at > begin && m_at < m_text.size();
        return m_text.mid(begin, m_at - begin);
    }

    void SkipSpace()
    {
        while (m_at < m_text.size() && IsSpace(m_text[m_at]))
            ++m_at;
    }

    void OpenElement()
    {
        XmlElement element;
        element.whole.begin = m_at++;
        element.name = Name();
        element.parent = m_open.isEmpty() ? -1 : m_open.last();
        m_ok = m_ok && m_open.size() < ClockProgram::kMaximumDepth
            && (element.parent >= 0 || m_elements.isEmpty());
        for (SkipSpace(); m_ok && !AtTagEnd(); SkipSpace())
            element.attributes.append(Attribute());
        if (!m_ok)
            return;
        element.isSelfClosing = m_text[m_at] == QLatin1Char('/');
        m_at += element.isSelfClosing ? 2 : 1;
        element.tag = {element.whole.begin, m_at};
        element.whole.end = m_at;
        Add(element);
    }

    void Add(const XmlElement &element)
    {
        const int index = m_elements.size();
        if (element.parent >= 0)
            m_elements[element.parent].children.append(index);
        m_elements.append(element);
        if (!element.isSelfClosing)
            m_open.append(index);
    }

    /// Whether the scanner is at ">" or "/>"; the end of the text inside a tag is an error.
    bool AtTagEnd()
    {
        m_ok = m_ok && m_at < m_text.size();
        return m_ok && (m_text[m_at] == QLatin1Char('>') || Begins("/>"));
    }

    XmlAttribute Attribute()
    {
        XmlAttribute attribute;
        attribute.whole.begin = m_at;
        attribute.name = Name();
        SkipSpace();
        m_ok = m_ok && Begins("=");
        ++m_at;
        SkipSpace();
        const bool isQuoted = m_at < m_text.size()
            && (m_text[m_at] == QLatin1Char('"') || m_text[m_at] == QLatin1Char('\''));
        const int end = isQuoted ? m_text.indexOf(m_text[m_at], m_at + 1) : -1;
        m_ok = m_ok && end >= 0;
        if (!m_ok)
            return attribute;
        attribute.value = {m_at + 1, end};
        attribute.text = ReadValue(m_text, attribute.value);
        m_at = attribute.whole.end = end + 1;
        return attribute;
    }

    void CloseElement()
    {
        m_at += 2;
        const QString name = Name();
        SkipSpace();
        m_ok = m_ok && !m_open.isEmpty() && m_elements[m_open.last()].name == name && Begins(">");
        if (m_ok)
            m_elements[m_open.takeLast()].whole.end = ++m_at;
    }

    const QString &m_text;
    int m_at = 0;
    bool m_ok = true;
    XmlElements m_elements;
    QVector<int> m_open;
};

} // namespace

const XmlAttribute *XmlElement::Find(const QString &attribute) const
{
    const auto found =
        std::find_if(attributes.cbegin(), attributes.cend(),
                     [&attribute](const XmlAttribute &one) { return one.name == attribute; });
    return found == attributes.cend() ? nullptr : &*found;
}

QString XmlElement::Value(const QString &attribute) const
{
    const XmlAttribute *const found = Find(attribute);
    return found ? found->text : QString();
}

std::optional<XmlElements> FindElements(const QString &text)
{
    return Finder(text).Find();
}

QVector<int> ChildrenNamed(const XmlElements &elements, int parent, const QString &name)
{
    QVector<int> found;
    for (const int child : elements[parent].children) {
        if (elements[child].name == name)
            found.append(child);
    }
    return found;
}

int LineOf(const QString &text, int position)
{
    int line = 1;
    for (int at = 0; at < position && at < text.size(); ++at)
        line += EndsLine(text, at) ? 1 : 0;
    return line;
}

int StartOfLine(const QString &text, int line)
{
    int at = 0;
    for (int number = 1; number < line && at < text.size(); ++at)
        number += EndsLine(text, at) ? 1 : 0;
    return at;
}

QString EscapedValue(const QString &value, QChar quote)
{
    QString escaped;
    for (const QChar c : value) {
        if (c == QLatin1Char('&'))
            escaped += QLatin1String("&amp;");
        else if (c == QLatin1Char('<'))
            escaped += QLatin1String("&lt;");
        else if (c == quote)
            escaped += c == QLatin1Char('"') ? QLatin1String("&quot;") : QLatin1String("&apos;");
        else if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t'))
            escaped += QStringLiteral("&#%1;").arg(c.unicode());
        else if (c >= QLatin1Char(' ') && c < QChar(0xfffe))
            escaped += c; // other control characters cannot be written in XML
    }
    return escaped;
}

} // namespace ClockStudio
