#include "hdata.h"

#include "number_text.h"

#include <QHash>

namespace Lw {

namespace {

using Observer = void (*)();

Observer &RecordObserver()
{
    static Observer observer = nullptr;
    return observer;
}

} // namespace

class HData::Private
{
public:
    struct Value
    {
        QString text;
        int number = 0;
    };

    void Store(const QString &key, const Value &value)
    {
        const auto found = values.find(key);
        if (found != values.end()) {
            *found = value;
            return;
        }
        keys.append(key);
        values.insert(key, value);
    }

    QHash<QString, Value> values;
    QStringList keys;
    QList<FileRecord> files;
    QHash<QString, int> fileIndex;
    QString guid;
};

HData::HData() : d(new Private) { }

HData::~HData() = default;

QString HData::GetAttribute(QString key)
{
    const auto found = d->values.constFind(key);
    return found == d->values.constEnd() ? QString() : found->text;
}

int HData::GetAttributeToInt(QString key)
{
    const auto found = d->values.constFind(key);
    return found == d->values.constEnd() ? 0 : found->number;
}

void HData::SetAttribute(QString key, int value, bool)
{
    d->Store(key, {QString::number(value), value});
}

void HData::SetAttribute(QString key, QString value, bool)
{
    d->Store(key, {value, NumberIn(value)});
}

bool HData::HaveAttribute(QString key)
{
    return d->values.contains(key);
}

QString HData::GetFirstFile(QString key)
{
    const auto found = d->fileIndex.constFind(key);
    return found == d->fileIndex.constEnd() ? QString() : d->files.at(*found).path;
}

void HData::SetFilePath(QString key, QString path, QString name, long long size, int kind)
{
    const FileRecord record {key, path, name, size, kind};
    const auto found = d->fileIndex.constFind(key);
    if (found != d->fileIndex.constEnd()) {
        d->files[*found] = record;
    } else {
        d->fileIndex.insert(key, d->files.size());
        d->files.append(record);
    }
    if (RecordObserver())
        RecordObserver()();
}

void HData::SetRecordObserver(void (*observer)())
{
    RecordObserver() = observer;
}

QString HData::GetGuid()
{
    return d->guid;
}

void HData::SetGuid(QString guid)
{
    d->guid = guid;
}

bool HData::HaveSourcFile()
{
    return !d->files.isEmpty();
}

QStringList HData::AttributeKeys()
{
    return d->keys;
}

QList<FileRecord> HData::FileRecords()
{
    return d->files;
}

} // namespace Lw
