// What an export left in a directory.
#pragma once

#include "tool_process.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QMap>

inline constexpr char kListHead[] = "path\tmd5\tsize\n";

using Entries = QMap<QString, QByteArray>;

/// Every entry below a directory, relative to it, with the contents of ordinary files.
inline Entries EntriesIn(const QString &directory)
{
    Entries entries;
    QDirIterator walk(directory,
                      QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        entries.insert(QDir(directory).relativeFilePath(path), ReadText(path));
    }
    return entries;
}

inline QByteArray Md5(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
}

/// What is wrong with an export; empty where every file is as its list says.
inline QString FaultOf(const QString &directory)
{
    const Entries entries = EntriesIn(directory);
    const QByteArray list = entries.value("files.tsv");
    if (!list.startsWith(kListHead) || !list.contains("\nprogram.xml\t"))
        return QStringLiteral("no list");
    for (const QByteArray &line : list.mid(int(qstrlen(kListHead))).split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() == 3 && Md5(entries.value(fields[0])) != fields[1])
            return QString::fromUtf8(fields[0]);
    }
    for (const QString &path : entries.keys()) {
        if (path.contains("/.") || path.startsWith('.'))
            return path;
    }
    return QString();
}
