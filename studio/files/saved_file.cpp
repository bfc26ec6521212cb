#include "saved_file.h"

#include "whole_file.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ClockStudio {

namespace {

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::WholeFile", text);
}

} // namespace

std::optional<QString> SaveFile(const QString &path, const QByteArray &bytes)
{
    // A device node would be replaced.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return Translated(
                   QT_TRANSLATE_NOOP("ClockStudio::WholeFile", "%1 is not an ordinary file."))
            .arg(path);
    const std::optional<QString> reason = ClockProgram::ReplaceFile(path, bytes);
    if (!reason)
        return std::nullopt;
    return Translated(QT_TRANSLATE_NOOP("ClockStudio::WholeFile", "%1 could not be saved: %2"))
        .arg(path, *reason);
}

} // namespace ClockStudio
