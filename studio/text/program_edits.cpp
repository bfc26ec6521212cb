#include "program_edits.h"

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

QString IndentOf(const ProgramReading &reading, int element)
{
    return IndentAt(reading.text, reading.elements[element].whole.begin).value_or(QString());
}

/// The indentation for a new child; nullopt if the program is on one line.
std::optional<QString> ChildIndent(const ProgramReading &reading, int parent)
{
    const XmlElement &element = reading.elements[parent];
    if (!element.children.isEmpty())
        return IndentAt(reading.text, reading.elements[element.children.last()].whole.begin);
    if (const auto own = IndentAt(reading.text, element.whole.begin))
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

TextEdit SetAttributeEdit(const ProgramReading &reading, int element, const QString &name,
                          const QString &value)
{
    const XmlElement &owner = reading.elements[element];
    if (const XmlAttribute *const attribute = owner.Find(name)) {
        const QChar quote = reading.text[attribute->value.begin - 1];
        return Smallest(Replacement(reading.text, attribute->value, EscapedValue(value, quote)));
    }
    const int place = owner.attributes.isEmpty() ? owner.tag.begin + 1 + owner.name.size()
                                                 : owner.attributes.last().whole.end;
    return {place, QString(),
            QStringLiteral(" %1=\"%2\"").arg(name, EscapedValue(value, QLatin1Char('"')))};
}

TextEdit RemoveAttributeEdit(const ProgramReading &reading, int element, const QString &name)
{
    const XmlAttribute *const attribute = reading.elements[element].Find(name);
    if (!attribute)
        return {};
    TextRange range = attribute->whole;
    while (IsBlank(reading.text[range.begin - 1]) || IsLineEnd(reading.text[range.begin - 1]))
        --range.begin;
    return Replacement(reading.text, range, QString());
}

TextEdit AppendChildEdit(const ProgramReading &reading, int parent, const QString &xml)
{
    const XmlElement &element = reading.elements[parent];
    const QString lineEnd = LineEndOf(reading.text);
    const std::optional<QString> indent = ChildIndent(reading, parent);
    const QString child =
        indent ? lineEnd + *indent + Indented(xml, lineEnd, *indent) : Indented(xml, lineEnd, {});
    const QString after = indent ? lineEnd + IndentOf(reading, parent) : QString();
    if (element.closed) {
        const TextRange end {element.tag.end - 2, element.tag.end};
        return Replacement(reading.text, end,
                           QStringLiteral(">") + child + after + ClosingTag(element));
    }
    if (!element.children.isEmpty())
        return {reading.elements[element.children.last()].whole.end, QString(), child};
    const bool isEmpty = reading.text[element.tag.end] == QLatin1Char('<');
    return {element.tag.end, QString(), isEmpty ? child + after : child};
}

TextEdit RemoveElementEdit(const ProgramReading &reading, int element)
{
    TextRange range = reading.elements[element].whole;
    int lineEnd = range.end;
    while (lineEnd < reading.text.size() && IsBlank(reading.text[lineEnd]))
        ++lineEnd;
    const std::optional<QString> indent = IndentAt(reading.text, range.begin);
    const bool hasLine = indent && range.begin > indent->size() && lineEnd < reading.text.size()
        && IsLineEnd(reading.text[lineEnd]);
    if (hasLine) {
        range = {range.begin - indent->size() - 1, lineEnd};
        if (range.begin > 0 && reading.text.midRef(range.begin - 1, 2) == QLatin1String("\r\n"))
            --range.begin;
    }
    return Replacement(reading.text, range, QString());
}

TextEdits GeometryEdits(const ProgramReading &reading, int area, const QRect &geometry)
{
    struct Side
    {
        const char *name;
        int value;
        int before;
    };
    const QRect old = reading.Geometry(area);
    const Side sides[] = {{"x", geometry.x(), old.x()},
                          {"y", geometry.y(), old.y()},
                          {"width", geometry.width(), old.width()},
                          {"height", geometry.height(), old.height()}};
    TextEdits edits;
    for (const Side &side : sides) {
        if (side.value != side.before)
            edits.append(SetAttributeEdit(reading, reading.AreaElement(area),
                                          QLatin1String(side.name), QString::number(side.value)));
    }
    return edits;
}

TextEdits ScreenSizeEdits(const ProgramReading &reading, QSize size)
{
    TextEdits edits;
    if (size.width() != reading.program.size.width())
        edits.append(
            SetAttributeEdit(reading, 0, QStringLiteral("width"), QString::number(size.width())));
    if (size.height() != reading.program.size.height())
        edits.append(
            SetAttributeEdit(reading, 0, QStringLiteral("height"), QString::number(size.height())));
    return edits;
}

QString PortableAreaText(const ProgramReading &reading, int area)
{
    const QString indent = IndentOf(reading, reading.AreaElement(area));
    QString text = reading.AreaText(area);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QLatin1Char('\n') + indent, QLatin1String("\n"));
}

} // namespace ClockStudio
