// Looks over the text of an XML file before any parser does: within bounds, without a document type
// definition, tags that match. What it says of a fault is written for the person who typed it.
#pragma once

#include <QString>

#include <optional>

namespace ClockProgram {

// Bounds of an XML file. At each of them reading ends within two seconds and 256 MiB.
constexpr qint64 kMaximumFileSize = 4LL << 20; ///< bytes
constexpr int kMaximumDepth = 64;              ///< of elements in elements
constexpr int kMaximumElements = 1 << 16;
constexpr int kMaximumAttributes = 1 << 17;   ///< of all elements together
constexpr int kMaximumTagAttributes = 1 << 8; ///< of one element

struct XmlFault
{
    int line; ///< from 1
    QString text;
};

/// The first fault of a text; nothing where none is seen. A text without one may still not be XML:
/// names and characters are left to the parser.
std::optional<XmlFault> ScanXml(const QString &text);

} // namespace ClockProgram
