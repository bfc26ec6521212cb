#include "minimal_host.h"

#include "hdata.h"

namespace MinimalHost {

namespace {

QMap<const Lw::HData *, Store> &Stores()
{
    static QMap<const Lw::HData *, Store> stores;
    return stores;
}

} // namespace

Store &StoreOf(const Lw::HData *data)
{
    return Stores()[data];
}

} // namespace MinimalHost

namespace Lw {

using MinimalHost::StoreOf;

class HData::Private
{ };

HData::HData() = default;

HData::~HData()
{
    MinimalHost::Stores().remove(this);
}

QString HData::GetAttribute(QString key)
{
    return StoreOf(this).values.value(key).toString();
}

int HData::GetAttributeToInt(QString key)
{
    ++StoreOf(this).numbersRead[key];
    return StoreOf(this).values.value(key).toInt();
}

void HData::SetAttribute(QString key, int value, bool last)
{
    StoreOf(this).writesWithTrue += last;
    StoreOf(this).values[key] = value;
}

void HData::SetAttribute(QString key, QString value, bool last)
{
    StoreOf(this).writesWithTrue += last;
    StoreOf(this).values[key] = value;
}

bool HData::HaveAttribute(QString key)
{
    return StoreOf(this).values.contains(key);
}

QString HData::GetFirstFile(QString key)
{
    return StoreOf(this).files.value(key).path;
}

void HData::SetFilePath(QString key, QString path, QString name, long long, int kind)
{
    StoreOf(this).files[key] = {path, name, kind, {}};
}

} // namespace Lw
