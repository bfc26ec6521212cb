#include "program_edits.h"

#include "xml_document.h"

#include <algorithm>

namespace ClockStudio {

namespace {

const QString kStep = QStringLiteral("  ");

bool IsBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

bool IsLineEnd(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

/// The indentation before a position; nullopt if anything else precedes it on its line.
std::optional<QString> IndentAt(const QString &text, int position)
{
    int begin = position;
    while (begin > 0 && IsBlank(text[begin - 1]))
        --begin;
    if (begin > 0 && !IsLineEnd(text[begin - 1]))
        return std::nullopt;
    return text.mid(begin, position - begin);
}

QString IndentOf(const ParsedProgram &parsed, int element)
{
    return IndentAt(parsed.text, parsed.elements[element].whole.begin).value_or(QString());
}

/// The indentation for a new child; nullopt if the program is on one line.
std::optional<QString> ChildIndent(const ParsedProgram &parsed, int parent)
{
    const XmlElement &element = parsed.elements[parent];
    if (!element.children.isEmpty())
        return IndentAt(parsed.text, parsed.elements[element.children.last()].whole.begin);
    if (const auto own = IndentAt(parsed.text, element.whole.begin))
        return *own + kStep;
    return std::nullopt;
}

QString Indented(const QString &xml, const QString &lineEnd, const QString &indent)
{
    return QString(xml).replace(QLatin1Char('\n'), lineEnd + indent);
}

QString ClosingTag(const XmlElement &element)
{
    return QStringLiteral("</%1>").arg(element.name);
}

} // namespace

QString LineEndOf(const QString &text)
{
    const auto end = std::find_if(text.cbegin(), text.cend(), IsLineEnd);
    if (end == text.cend())
        return QStringLiteral("\n");
    const bool isPair =
        *end == QLatin1Char('\r') && end + 1 != text.cend() && *(end + 1) == QLatin1Char('\n');
    return isPair ? QStringLiteral("\r\n") : QString(*end);
}

TextEdit SetAttributeEdit(const ParsedProgram &parsed, int element, const QString &name,
                          const QString &value)
{
    const XmlElement &owner = parsed.elements[element];
    if (const XmlAttribute *const attribute = owner.Find(name)) {
        const QChar quote = parsed.text[attribute->value.begin - 1];
        return Smallest(Replacement(parsed.text, attribute->value, EscapedValue(value, quote)));
    }
    const int place = owner.attributes.isEmpty() ? owner.tag.begin + 1 + owner.name.size()
                                                 : owner.attributes.last().whole.end;
    return {place, QString(),
            QStringLiteral(" %1=\"%2\"").arg(name, EscapedValue(value, QLatin1Char('"')))};
}

TextEdit RemoveAttributeEdit(const ParsedProgram &parsed, int element, const QString &name)
{
    const XmlAttribute *const attribute = parsed.elements[element].Find(name);
    if (!attribute)
        return {};
    TextRange range = attribute->whole;
    while (IsBlank(parsed.text[range.begin - 1]) || IsLineEnd(parsed.text[range.begin - 1]))
        --range.begin;
    return Replacement(parsed.text, range, QString());
}

TextEdit AppendChildEdit(const ParsedProgram &parsed, int parent, const QString &xml)
{
    const XmlElement &element = parsed.elements[parent];
    const QString lineEnd = LineEndOf(parsed.text);
    const std::optional<QString> indent = ChildIndent(parsed, parent);
    const QString child =
        indent ? lineEnd + *indent + Indented(xml, lineEnd, *indent) : Indented(xml, lineEnd, {});
    const QString after = indent ? lineEnd + IndentOf(parsed, parent) : QString();
    if (element.isSelfClosing) {
        const TextRange end {element.tag.end - 2, element.tag.end};
        return Replacement(parsed.text, end,
                           QStringLiteral(">") + child + after + ClosingTag(element));
    }
    if (!element.children.isEmpty())
        return {parsed.elements[element.children.last()].whole.end, QString(), child};
    const bool isEmpty = parsed.text[element.tag.end] == QLatin1Char('<');
    return {element.tag.end, QString(), isEmpty ? child + after : child};
}

TextEdit RemoveElementEdit(const ParsedProgram &parsed, int element)
{
    TextRange range = parsed.elements[element].whole;
    int lineEnd = range.end;
    while (lineEnd < parsed.text.size() && IsBlank(parsed.text[lineEnd]))
        ++lineEnd;
    const std::optional<QString> indent = IndentAt(parsed.text, range.begin);
    const bool hasLine = indent && range.begin > indent->size() && lineEnd < parsed.text.size()
        && IsLineEnd(parsed.text[lineEnd]);
    if (hasLine) {
        range.begin -= static_cast<int>(indent->size()) + 1;
        range.end = lineEnd;
        if (range.begin > 0
            && ClockProgram::HasAt(parsed.text, range.begin - 1, QLatin1String("\r\n")))
            --range.begin;
    }
    return Replacement(parsed.text, range, QString());
}

TextEdits GeometryEdits(const ParsedProgram &parsed, int area, const QRect &geometry)
{
    struct Side
    {
        const char *name;
        int value;
        int before;
    };
    const QRect old = parsed.Geometry(area);
    const Side sides[] = {{"x", geometry.x(), old.x()},
                          {"y", geometry.y(), old.y()},
                          {"width", geometry.width(), old.width()},
                          {"height", geometry.height(), old.height()}};
    TextEdits edits;
    for (const Side &side : sides) {
        if (side.value != side.before)
            edits.append(SetAttributeEdit(parsed, parsed.AreaElement(area),
                                          QLatin1String(side.name), QString::number(side.value)));
    }
    return edits;
}

TextEdits ScreenSizeEdits(const ParsedProgram &parsed, QSize size)
{
    TextEdits edits;
    if (size.width() != parsed.program.size.width())
        edits.append(
            SetAttributeEdit(parsed, 0, QStringLiteral("width"), QString::number(size.width())));
    if (size.height() != parsed.program.size.height())
        edits.append(
            SetAttributeEdit(parsed, 0, QStringLiteral("height"), QString::number(size.height())));
    return edits;
}

QString PortableAreaText(const ParsedProgram &parsed, int area)
{
    const QString indent = IndentOf(parsed, parsed.AreaElement(area));
    QString text = parsed.AreaText(area);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QLatin1Char('\n') + indent, QLatin1String("\n"));
}

} // namespace ClockStudio
