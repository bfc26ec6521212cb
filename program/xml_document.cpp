#include "xml_document.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace ClockProgram {

namespace {

Failure FileFailure(const QString &path, const QString &reason)
{
    return {ExitCode::ProgramError, QStringLiteral("%1: %2").arg(path, reason)};
}

Failure SyntaxFailure(const QString &path, qint64 line, qint64 column, const QString &reason)
{
    return {ExitCode::ProgramError,
            QStringLiteral("%1:%2:%3: %4")
                .arg(path, QString::number(line), QString::number(column), reason)};
}

/// A document is walked and freed by recursion, so its depth is checked before it is built.
MaybeFailure CheckSyntax(const QByteArray &contents, const QString &path)
{
    QXmlStreamReader reader(contents);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && ++depth > kMaximumDepth)
            reader.raiseError(
                QStringLiteral("elements are nested more than %1 deep").arg(kMaximumDepth));
        else if (reader.isEndElement())
            --depth;
    }
    if (!reader.hasError())
        return std::nullopt;
    return SyntaxFailure(path, reader.lineNumber(), reader.columnNumber(), reader.errorString());
}

} // namespace

Result<QByteArray> ReadContents(const QString &path)
{
    if (QFileInfo(path).isDir())
        return FileFailure(path, QStringLiteral("is a directory, not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileFailure(path, file.errorString());
    const QByteArray contents = file.read(kMaximumFileSize + 1);
    if (contents.size() > kMaximumFileSize)
        return FileFailure(path, QStringLiteral("larger than %1 bytes").arg(kMaximumFileSize));
    return contents;
}

Result<QDomDocument> ParseDocument(const QByteArray &contents, const QString &path)
{
    if (const MaybeFailure failure = CheckSyntax(contents, path))
        return *failure;
    QDomDocument document;
    QString reason;
    int line = 0;
    int column = 0;
    if (!document.setContent(contents, false, &reason, &line, &column))
        return SyntaxFailure(path, line, column, reason);
    return document;
}

QString AtElement(const QString &path, const QDomElement &element, const QString &text)
{
    return QStringLiteral("%1:%2: %3").arg(path, QString::number(element.lineNumber()), text);
}

} // namespace ClockProgram
