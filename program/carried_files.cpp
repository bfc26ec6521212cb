#include "carried_files.h"

#include "node_keys.h"

#include "hnode.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace ClockProgram {

namespace {

QString DigestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return QString::fromLatin1(hash.result().toHex());
}

/// Clocks share many of their files; each file is read once.
class FileCheck
{
public:
    /// What is wrong with a file; empty when nothing is.
    QString Fault(const QString &path, const Lw::FileRecord &record)
    {
        const QFileInfo info(path);
        if (!info.exists())
            return QStringLiteral("is missing");
        if (!info.isFile())
            return QStringLiteral("is not an ordinary file");
        if (record.size >= 0 && info.size() != record.size)
            return QStringLiteral("has %1 bytes, expected %2").arg(info.size()).arg(record.size);
        const QString digest = Digest(path);
        if (digest.isEmpty())
            return QStringLiteral("cannot be read");
        if (digest != record.name)
            return QStringLiteral("has the digest %1, expected %2").arg(digest, record.name);
        return {};
    }

private:
    QString Digest(const QString &path)
    {
        const auto known = m_digests.constFind(path);
        return known != m_digests.constEnd() ? *known : *m_digests.insert(path, DigestOf(path));
    }

    QHash<QString, QString> m_digests;
};

/// Picture clocks have no glyph images; what other elements need is not known here.
bool NeedsFiles(Lw::HNode &node)
{
    return node.HaveAttribute(kClockTypeKey)
        && node.GetAttributeToInt(kClockTypeKey) != kPictureClock;
}

} // namespace

QStringList ResolveCarriedFiles(const Program &program, MadeNodes &made)
{
    const QDir directory = QFileInfo(program.path).absoluteDir();
    FileCheck check;
    QStringList warnings;
    for (int i = 0; i < program.areas.size(); ++i) {
        Lw::HNode &node = *made.nodes[static_cast<std::size_t>(i)].node;
        const auto warn = [&](const QString &text) {
            warnings.append(AtElement(program.path, program.areas[i].element, text));
        };
        const QList<Lw::FileRecord> records = node.FileRecords();
        if (records.isEmpty() && NeedsFiles(node))
            warn(QStringLiteral("the clock has no <file> elements; --use-files makes no images"));
        for (const Lw::FileRecord &record : records) {
            const QString path = directory.absoluteFilePath(record.path);
            node.SetFilePath(record.key, path, record.name, record.size, record.kind);
            const QString fault = check.Fault(path, record);
            if (!fault.isEmpty())
                warn(QStringLiteral("the file %1 of %2 %3").arg(path, record.key, fault));
        }
    }
    return warnings;
}

} // namespace ClockProgram
