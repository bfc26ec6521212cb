// studio/files: writes files atomically.
#pragma once

#include <QString>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace ClockStudio {

/// Writes a file atomically: on failure, the old one is unchanged. Returns an error message, or
/// nullopt on success. `write` returns whether it succeeded.
std::optional<QString> WriteWhole(const QString &path,
                                  const std::function<bool(QIODevice &)> &write);
std::optional<QString> WriteWhole(const QString &path, const QByteArray &bytes);

} // namespace ClockStudio
