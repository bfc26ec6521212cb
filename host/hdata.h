// host/: the base class of every node: a store of settings by key and of files by file key.
#pragma once

#include "lw_types.h"

#include <QList>
#include <QScopedPointer>

namespace Lw {

/// One file recorded on a node with HData::SetFilePath.
struct FileRecord
{
    QString key;
    QString path;
    QString name;
    long long size = -1; ///< bytes; -1 if unknown
    int kind = 0;
};

/// Attributes and file records are separate namespaces: the same key may be used in both.
class HData
{
public:
    HData();

    QString GetAttribute(QString key);  ///< the value as text; empty when absent
    int GetAttributeToInt(QString key); ///< the value as int; 0 when absent or not a number
    /// Creates or replaces. `notify` asks the host to tell its listeners; this stand-in ignores it.
    void SetAttribute(QString key, int value, bool notify);
    void SetAttribute(QString key, QString value, bool notify);
    bool HaveAttribute(QString key);

    QString GetFirstFile(QString key); ///< the path recorded under a file key; empty when none
    /// Records a file. An existing record with the same key is replaced and keeps its position.
    void SetFilePath(QString key, QString path, QString name, long long size, int kind);

    QString GetGuid(); ///< the node's identifier; empty until it is set
    void SetGuid(QString guid);
    bool HaveSourcFile(); ///< whether any file is recorded

    // Not called by plugins; for players and tests.
    QStringList AttributeKeys();     ///< in order of first writing
    QList<FileRecord> FileRecords(); ///< in order of first recording
    /// Sets a function called after each SetFilePath of any node; null for none. A plugin records
    /// each glyph image once it is written, so a program can check for signals between two images.
    static void SetRecordObserver(void (*observer)());

protected:
    ~HData();

private:
    Q_DISABLE_COPY(HData)
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw
