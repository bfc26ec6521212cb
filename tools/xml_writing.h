// tools/: writes indented XML with sorted attributes, so that the same content is always the same
// text.
#pragma once

#include <QByteArray>
#include <QDomElement>

namespace ClockTool {

/// A document with this element and its content, without comments.
QByteArray WriteXml(const QDomElement &root);

} // namespace ClockTool
