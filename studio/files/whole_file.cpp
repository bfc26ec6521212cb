#include "whole_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace ClockStudio {

namespace {

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::WholeFile", text);
}

} // namespace

std::optional<QString> WriteWhole(const QString &path,
                                  const std::function<bool(QIODevice &)> &write)
{
    // Saving renames a new file over the old one, which would replace a device node.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return Translated(
                   QT_TRANSLATE_NOOP("ClockStudio::WholeFile", "%1 is not an ordinary file."))
            .arg(path);
    QSaveFile file(path);
    // Closing alone does not report a full disk.
    if (file.open(QFile::WriteOnly) && write(file) && file.flush() && file.commit())
        return std::nullopt;
    return Translated(QT_TRANSLATE_NOOP("ClockStudio::WholeFile", "%1 could not be saved: %2"))
        .arg(path, file.errorString());
}

std::optional<QString> WriteWhole(const QString &path, const QByteArray &bytes)
{
    return WriteWhole(path,
                      [&bytes](QIODevice &file) { return file.write(bytes) == bytes.size(); });
}

} // namespace ClockStudio
