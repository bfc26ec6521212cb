// studio/files: files that are written whole or not at all.
#pragma once

#include <QString>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace ClockStudio {

/// Writes a file, or leaves the one that is there as it is. Why it could not be written, as a
/// sentence; nothing where it was. What writes tells whether it could.
std::optional<QString> WriteWhole(const QString &path,
                                  const std::function<bool(QIODevice &)> &write);
std::optional<QString> WriteWhole(const QString &path, const QByteArray &bytes);

} // namespace ClockStudio
