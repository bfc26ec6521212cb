// Writing the file of a glyph image.
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QPixmap;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// How a file that is written bears a power failure just after.
enum class Durability {
    Ordinary, ///< it may come out damaged; for names that are written again and so repaired
    Forced,   ///< it is on the disk on return; for names whose file is never written again
};

/// Writes a pixmap as PNG. The file changes as a whole or not at all: no half-written image ever
/// stands under the name, and what cannot be written leaves an older file as it was. A file that
/// holds the same bytes already is not touched. Nothing is reported.
void SavePng(const QPixmap &pixmap, const QString &path, Durability durability);

} // namespace Lw::HNodeClock
