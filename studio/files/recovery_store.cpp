#include "recovery_store.h"

#include "whole_file.h"

#include <QDataStream>
#include <QDir>
#include <QUuid>

namespace ClockStudio {

namespace {

const QString kSuffix = QStringLiteral(".work");
constexpr quint32 kMagic = 0x434c4b31; // file signature, "CLK1"

QString LockOf(const QString &file)
{
    return file + QStringLiteral(".lock");
}

std::optional<UnsavedWork> ReadWork(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return std::nullopt;
    QDataStream stream(&file);
    quint32 magic = 0;
    UnsavedWork work;
    work.file = path;
    stream >> magic;
    if (magic != kMagic)
        return std::nullopt;
    stream >> work.path >> work.bytes;
    return stream.status() == QDataStream::Ok ? std::optional<UnsavedWork>(work) : std::nullopt;
}

} // namespace

RecoveryStore::RecoveryStore(const QString &directory) : m_directory(directory)
{
    QDir().mkpath(directory);
    m_file = QDir(directory).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + kSuffix);
    m_lock = std::make_unique<QLockFile>(LockOf(m_file));
    m_lock->setStaleLockTime(0); // never stale by age, however long the studio runs
    m_lock->tryLock(0);
}

RecoveryStore::~RecoveryStore()
{
    Forget();
}

bool RecoveryStore::Keep(const QString &path, const QByteArray &bytes)
{
    QByteArray work;
    QDataStream(&work, QIODevice::WriteOnly) << kMagic << path << bytes;
    return !ClockProgram::ReplaceFile(m_file, work);
}

void RecoveryStore::Forget()
{
    QFile::remove(m_file);
}

QVector<UnsavedWork> RecoveryStore::Recoverable() const
{
    QVector<UnsavedWork> works;
    const QDir directory(m_directory);
    for (const QString &name : directory.entryList({QLatin1Char('*') + kSuffix}, QDir::Files)) {
        const QString path = directory.filePath(name);
        QLockFile lock(LockOf(path));
        lock.setStaleLockTime(0);
        if (path == m_file || !lock.tryLock(0))
            continue;
        if (const auto work = ReadWork(path))
            works.append(*work);
    }
    return works;
}

void RecoveryStore::Remove(const UnsavedWork &work)
{
    QFile::remove(work.file);
    QFile::remove(LockOf(work.file));
}

} // namespace ClockStudio
