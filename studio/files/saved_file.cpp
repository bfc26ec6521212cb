#include "saved_file.h"

#include "whole_file.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ClockStudio {

namespace {

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::SavedFile", text);
}

} // namespace

std::optional<QString> SaveFile(const QString &path, const QByteArray &bytes)
{
    // A device node would be replaced.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::SavedFile", "%1 is not a regular file."))
            .arg(path);
    const std::optional<QString> reason = ClockProgram::ReplaceFile(path, bytes);
    if (!reason)
        return std::nullopt;
    return Translated(QT_TRANSLATE_NOOP("ClockStudio::SavedFile", "%1 could not be saved: %2"))
        .arg(path, *reason);
}

} // namespace ClockStudio
