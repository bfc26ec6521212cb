#include "xml_writing.h"

#include <QMap>
#include <QXmlStreamWriter>

namespace ClockTool {

namespace {

void WriteAttributes(QXmlStreamWriter &writer, const QDomElement &element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    QMap<QString, QString> sorted;
    for (int i = 0; i < attributes.count(); ++i)
        sorted.insert(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    for (auto attribute = sorted.cbegin(); attribute != sorted.cend(); ++attribute)
        writer.writeAttribute(attribute.key(), attribute.value());
}

void WriteElement(QXmlStreamWriter &writer, const QDomElement &element)
{
    writer.writeStartElement(element.tagName());
    WriteAttributes(writer, element);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement())
            WriteElement(writer, child.toElement());
        else if (child.isText() && !child.nodeValue().trimmed().isEmpty())
            writer.writeCharacters(child.nodeValue());
    }
    writer.writeEndElement();
}

} // namespace

QByteArray WriteXml(const QDomElement &root)
{
    QByteArray contents;
    QXmlStreamWriter writer(&contents);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    WriteElement(writer, root);
    writer.writeEndDocument();
    return contents;
}

} // namespace ClockTool
