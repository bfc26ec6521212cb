#include "output.h"

#include "whole_file.h"

#include <QMap>
#include <QXmlStreamWriter>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

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

CommandResult Deliver(const QString &path, const QByteArray &contents)
{
    using namespace ClockProgram;
    const MaybeFailure failure =
        path.isEmpty() ? WriteStandardOutput(contents) : WriteFile(path, contents, Targets::Any);
    return failure ? Report(*failure) : ExitCode::Success;
}

QuietOutput::QuietOutput()
{
    std::fflush(stdout);
    m_kept = dup(STDOUT_FILENO);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (m_kept >= 0 && nowhere >= 0)
        dup2(nowhere, STDOUT_FILENO);
    if (nowhere >= 0)
        close(nowhere);
}

QuietOutput::~QuietOutput()
{
    std::fflush(stdout);
    if (m_kept < 0)
        return;
    dup2(m_kept, STDOUT_FILENO);
    close(m_kept);
}

} // namespace ClockTool
