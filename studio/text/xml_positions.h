// studio/text: the program's text and what replaces parts of it.
// Where the elements and attributes of an XML text stand.
#pragma once

#include "text_edit.h"

#include <optional>

namespace ClockStudio {

struct XmlAttribute
{
    QString name;
    QString text;    ///< the value as it is read: references resolved
    TextRange whole; ///< from the first letter of the name to the closing quote
    TextRange value; ///< between the quotes
};

struct XmlElement
{
    QString name;
    int parent = -1;
    QVector<int> children;
    QVector<XmlAttribute> attributes;
    TextRange whole;     ///< from "<" of the first tag to ">" of the last
    TextRange tag;       ///< the first tag
    bool closed = false; ///< <so/>

    const XmlAttribute *Find(const QString &attribute) const;
    /// Empty where there is no such attribute.
    QString Value(const QString &attribute) const;
};

/// The first is the root; children follow their parents.
using XmlElements = QVector<XmlElement>;

/// Reads a text that an XML parser accepts. Nothing for a document type declaration, which programs
/// have no use for, and for what is no XML: tags that do not match, attributes without quotes.
std::optional<XmlElements> FindElements(const QString &text);

/// The children of an element that have a name.
QVector<int> ChildrenNamed(const XmlElements &elements, int parent, const QString &name);

/// The innermost element around a position; -1 outside the root.
int ElementAt(const XmlElements &elements, int position);

/// Numbers from 1, as parsers count lines.
int LineOf(const QString &text, int position);
/// The first character of a line; the end of the text where there are fewer lines.
int StartOfLine(const QString &text, int line);

/// A text as the value of an attribute between double or single quotes.
QString EscapedValue(const QString &value, QChar quote);

} // namespace ClockStudio
