// program/: scans the text of an XML file before it is parsed: it must be within bounds, without a
// document type definition, and with matching tags. Its messages are written for the author of the
// file.
#pragma once

#include <QString>

#include <optional>

namespace ClockProgram {

// Bounds of an XML file. A file at any of them is read in under two seconds and 256 MiB.
constexpr qint64 kMaximumFileSize = 4LL << 20; ///< bytes
constexpr int kMaximumDepth = 64;              ///< nesting of elements
constexpr int kMaximumElements = 1 << 16;
constexpr int kMaximumAttributes = 1 << 17;   ///< of all elements together
constexpr int kMaximumTagAttributes = 1 << 8; ///< of one element

struct XmlFault
{
    int line; ///< from 1
    QString text;
};

/// The first error in a text; nothing if none is found. The text may still not be well-formed:
/// names and characters are left to the parser.
std::optional<XmlFault> ScanXml(const QString &text);

} // namespace ClockProgram
