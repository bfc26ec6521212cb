// studio/files: writes files atomically.
#pragma once

#include <QString>

#include <optional>

namespace ClockStudio {

/// Writes a regular file atomically: on failure, the old one is unchanged. Returns an error
/// message, or nullopt on success.
std::optional<QString> SaveFile(const QString &path, const QByteArray &bytes);

} // namespace ClockStudio
