// program/: reads untrusted XML files: within bounds, without a document type definition, and with
// matching tags. The messages are written for the author of the file.
#pragma once

#include "failure.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

#include <optional>

namespace ClockProgram {

// Bounds of an XML file. A file at any of them is read in under two seconds and 256 MiB.
constexpr qint64 kMaximumFileSize = 4LL << 20; ///< bytes
constexpr int kMaximumDepth = 64;              ///< nesting of elements
constexpr int kMaximumElements = 1 << 16;
constexpr int kMaximumAttributes = 1 << 17;   ///< of all elements together
constexpr int kMaximumTagAttributes = 1 << 8; ///< of one element

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

/// Whether a text has these characters at a position, which may be beyond its end.
bool HasAt(const QString &text, int position, QLatin1String characters);

struct XmlFault
{
    int line; ///< from 1
    QString text;
};

/// The first error in a text, found before it is parsed; nothing if none is found. The text may
/// still not be well-formed: names and characters are left to the parser.
std::optional<XmlFault> ScanXml(const QString &text);

} // namespace ClockProgram
