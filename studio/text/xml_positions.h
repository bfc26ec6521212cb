// studio/text: finds the positions of elements and attributes in an XML text.
#pragma once

#include "text_edit.h"

#include <optional>

namespace ClockStudio {

struct XmlAttribute
{
    QString name;
    QString text;    ///< the value with character and entity references resolved
    TextRange whole; ///< from the first letter of the name to the closing quote
    TextRange value; ///< between the quotes
};

struct XmlElement
{
    QString name;
    int parent = -1;
    QVector<int> children;
    QVector<XmlAttribute> attributes;
    TextRange whole;            ///< from "<" of the start tag to ">" of the end tag
    TextRange tag;              ///< the start tag
    bool isSelfClosing = false; ///< written <name/>

    const XmlAttribute *Find(const QString &attribute) const;
    /// Empty where there is no such attribute.
    QString Value(const QString &attribute) const;
};

/// The first is the root; children follow their parents.
using XmlElements = QVector<XmlElement>;

/// Reads a text that an XML parser accepts. nullopt for a document type declaration, which programs
/// must not have, and for malformed XML: mismatched tags, attributes without quotes.
std::optional<XmlElements> FindElements(const QString &text);

/// The children of an element with the given name.
QVector<int> ChildrenNamed(const XmlElements &elements, int parent, const QString &name);

/// The line of a position, from 1. CR, LF and CR LF end a line.
int LineOf(const QString &text, int position);
/// The position of a line's first character; the end of the text if there are fewer lines.
int StartOfLine(const QString &text, int line);

/// Escapes a text for an attribute value in these quotes; characters not allowed in XML are
/// dropped.
QString EscapedValue(const QString &value, QChar quote);

} // namespace ClockStudio
