// XML files from outside, read within limits of size and depth.
#pragma once

#include "failure.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

namespace ClockProgram {

constexpr qint64 kMaximumFileSize = 16LL << 20; ///< bytes
constexpr int kMaximumDepth = 64;               ///< of elements in elements

/// The bytes of a file; a failure names the file.
Result<QByteArray> ReadContents(const QString &path);

/// The document in a file's contents. A failure names the path, the line and the column.
Result<QDomDocument> ParseDocument(const QByteArray &contents, const QString &path);

/// "path:line: text", for failures and warnings about an element of a document.
QString AtElement(const QString &path, const QDomElement &element, const QString &text);

} // namespace ClockProgram
