// program/: reads untrusted XML files within the limits of xml_scan.h.
#pragma once

#include "failure.h"
#include "xml_scan.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

namespace ClockProgram {

/// The bytes of a file; a failure names the file.
Result<QByteArray> ReadContents(const QString &path);

constexpr int kDeclarationReach = 256; ///< characters in which an XML declaration must end

/// The encoding that the XML declaration at the beginning of a text names; empty if it names none.
QByteArray DeclaredEncoding(const QString &text);

/// Decodes a file's contents by its declared encoding and checks that it is XML
/// within the bounds and without a document type definition. A failure names the path and the line.
Result<QString> CheckedText(const QByteArray &contents, const QString &path);

/// The document in a file's contents; a failure likewise.
Result<QDomDocument> ParseDocument(const QByteArray &contents, const QString &path);

/// "path:line: text", for failures and warnings about an element of a document.
QString AtElement(const QString &path, const QDomElement &element, const QString &text);

} // namespace ClockProgram
