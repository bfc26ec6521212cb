#include "carried_files.h"

#include "node_keys.h"

#include "hnode.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace ClockProgram {

namespace {

// The largest image within the plugin's bounds at 64 bits per pixel, plus chunk overhead.
constexpr qint64 kLargestFile = 136LL << 20; // bytes

/// The MD5 digest of the first `size` bytes; empty if there are fewer or reading fails.
QString DigestOf(QFile &file, qint64 size)
{
    constexpr qint64 kBlock = 64 << 10;
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (qint64 left = size; left > 0;) {
        const QByteArray block = file.read(std::min(left, kBlock));
        if (block.isEmpty())
            return {};
        hash.addData(block);
        left -= block.size();
    }
    return QString::fromLatin1(hash.result().toHex());
}

bool IsRegular(const struct stat &status)
{
    return S_ISREG(status.st_mode);
}

/// Opens a regular file; otherwise returns what is wrong. Devices are not opened at all. The path
/// may change between stat() and open(), so the open must not block on a FIFO, and the file is
/// checked again.
QString Open(QFile &file, const QString &path, struct stat &status)
{
    const QByteArray name = QFile::encodeName(path);
    if (name.contains('\0') || stat(name.constData(), &status) != 0)
        return QStringLiteral("is missing");
    const QString notRegular = QStringLiteral("is not a regular file");
    if (!IsRegular(status))
        return notRegular;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return QStringLiteral("cannot be read");
    const bool isOpen =
        file.open(descriptor, QFile::ReadOnly | QFile::Unbuffered, QFile::AutoCloseHandle);
    const bool isStillRegular = isOpen && fstat(descriptor, &status) == 0 && IsRegular(status);
    return isStillRegular ? QString() : notRegular;
}

/// Picture clocks have no glyph images, and other elements need none that we know of.
bool NeedsFiles(Lw::HNode &node)
{
    return node.HaveAttribute(kClockTypeKey)
        && node.GetAttributeToInt(kClockTypeKey) != kPictureClock;
}

} // namespace

CarriedFiles::CarriedFiles(const QString &programPath)
    : m_directory(QFileInfo(programPath).absoluteDir())
{ }

QString CarriedFiles::Fault(const Lw::FileRecord &record)
{
    const QString path = PathOf(record);
    QFile file;
    struct stat status
    { };
    const QString fault = Open(file, path, status);
    if (!fault.isEmpty())
        return fault;
    if (record.size >= 0 && status.st_size != record.size)
        return QStringLiteral("has %1 bytes, expected %2").arg(status.st_size).arg(record.size);
    if (status.st_size > kLargestFile)
        return QStringLiteral("is larger than %1 bytes").arg(kLargestFile);
    auto digest = m_digests.constFind(path);
    if (digest == m_digests.constEnd())
        digest = m_digests.insert(path, DigestOf(file, status.st_size));
    if (digest->isEmpty())
        return QStringLiteral("cannot be read");
    if (*digest != record.name)
        return QStringLiteral("has the digest %1, expected %2").arg(*digest, record.name);
    return {};
}

QStringList ResolveCarriedFiles(const Program &program, MadeNodes &made)
{
    CarriedFiles files(program.path);
    QStringList warnings;
    for (int i = 0; i < program.areas.size(); ++i) {
        Lw::HNode &node = *made.nodes[static_cast<std::size_t>(i)].node;
        const auto warn = [&](const QString &text) {
            warnings.append(AtElement(program.path, program.areas[i].element, text));
        };
        const QList<Lw::FileRecord> records = node.FileRecords();
        if (records.isEmpty() && NeedsFiles(node))
            warn(QStringLiteral(
                "the clock has no <file> elements, and --use-files generates no images"));
        for (const Lw::FileRecord &record : records) {
            const QString path = files.PathOf(record);
            node.SetFilePath(record.key, path, record.name, record.size, record.kind);
            const QString fault = files.Fault(record);
            if (!fault.isEmpty())
                warn(QStringLiteral("the file %1 of %2 %3").arg(path, record.key, fault));
        }
    }
    return warnings;
}

} // namespace ClockProgram
