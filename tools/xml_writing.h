// Indented XML with attributes in alphabetical order, so that the same content is always the same
// text.
#pragma once

#include <QByteArray>
#include <QDomElement>

namespace ClockTool {

/// A document of the element and all that is in it, without comments.
QByteArray WriteXml(const QDomElement &root);

} // namespace ClockTool
