#include "glyph_export.h"

#include "output.h"
#include "xml_writing.h"

#include "clock_sdk_tables.h"
#include "glyph/glyph_set.h"
#include "glyph/hmd5.h"
#include "happconfig.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

/// A file to send.
struct SentFile
{
    QString digest;
    qint64 size = 0; // bytes
};

Failure ExportFailure(const QString &text)
{
    return {ExitCode::RuntimeFailure, text};
}

class Exporter
{
public:
    Exporter(const ProgramClocks &clocks, const QString &directory)
        : m_clocks(clocks), m_directory(directory)
    { }

    MaybeFailure Run(const ExportProgress &progress)
    {
        // Within the directory, so that images are moved and not copied.
        const QTemporaryDir work(m_directory.filePath(QStringLiteral(".glyphs-XXXXXX")));
        if (!work.isValid() || !m_directory.mkpath(kExportedFiles))
            return ExportFailure(
                QStringLiteral("%1: cannot write to this directory").arg(m_directory.path()));
        Lw::HAppConfig::SetClockOutputPath(work.path());
        BeginProgram();
        for (int i = 0; i < m_clocks.Count() && !m_failure; ++i) {
            progress(i + 1);
            AddArea(i);
        }
        if (!m_failure)
            WriteProgramAndList();
        return m_failure;
    }

private:
    void BeginProgram()
    {
        m_program = m_document.createElement(ClockProgram::kProgramTag);
        m_program.setAttribute(QStringLiteral("width"), m_clocks.program.size.width());
        m_program.setAttribute(QStringLiteral("height"), m_clocks.program.size.height());
    }

    void AddArea(int index)
    {
        const QRect geometry = m_clocks.program.areas[index].geometry;
        QDomElement area = AppendElement(m_program, ClockProgram::kAreaTag);
        area.setAttribute(QStringLiteral("x"), geometry.x());
        area.setAttribute(QStringLiteral("y"), geometry.y());
        area.setAttribute(QStringLiteral("width"), geometry.width());
        area.setAttribute(QStringLiteral("height"), geometry.height());
        HClockNode &clock = m_clocks.Clock(index);
        QDomElement element = AppendElement(area, QLatin1String(Sdk::kClock));
        const int type = clock.ClockType();
        if (type >= AnalogClock && type <= PictureClock)
            element.setAttribute(QLatin1String(Sdk::kType), QLatin1String(Sdk::kTypeNames[type]));
        AddSettings(element, clock);
        if (type != PictureClock)
            AddFiles(element, clock);
    }

    void AddSettings(QDomElement &element, HClockNode &clock)
    {
        for (const QString &key : clock.AttributeKeys()) {
            QDomElement setting = AppendElement(element, ClockProgram::kAttributeTag);
            setting.setAttribute(QStringLiteral("key"), key);
            setting.setAttribute(QStringLiteral("value"), clock.GetAttribute(key));
        }
    }

    /// Images that could not be made, such as that of an empty text, have no file to send.
    void AddFiles(QDomElement &element, HClockNode &clock)
    {
        const QString destination = m_directory.filePath(kExportedFiles) + QLatin1Char('/');
        {
            const QuietOutput quiet;
            clock.NodeAlready(0);
            clock.ProcessFileName(destination);
        }
        QStringList missing;
        for (const GlyphImage &image : GlyphImages(GlyphOrder::Bookkeeping, clock.ClockType())) {
            const QString path = clock.GetFirstFile(image.Key());
            const QString digest = QFileInfo(path).completeBaseName();
            if (image.row->exported && digest.isEmpty())
                missing.append(image.Key());
            if (!image.row->exported || digest.isEmpty())
                continue;
            // The clock records an image also where it could not be moved.
            if (HMD5::FileDigest(path) != digest) {
                m_failure = ExportFailure(QStringLiteral("%1: cannot be written").arg(path));
                return;
            }
            AddFile(element, image.Key(), path, digest);
        }
        SayMissing(clock, missing);
    }

    void SayMissing(HClockNode &clock, QStringList missing)
    {
        if (clock.GetAttribute(TopTextKey(clock)).isEmpty())
            missing.removeAll(GlyphKey(Glyph::TopText));
        if (missing.isEmpty())
            return;
        if (!HasRoom())
            m_failure =
                ExportFailure(QStringLiteral("%1: no room for the images").arg(m_directory.path()));
        else
            Say(QStringLiteral("%1: clock %2: no image could be made for %3")
                    .arg(m_clocks.program.path)
                    .arg(clock.GetAttributeToInt(Key(Attribute::Id)))
                    .arg(missing.join(QStringLiteral(", "))));
    }

    /// The clock does not tell an image that cannot be made from one that could not be written.
    bool HasRoom() const
    {
        constexpr int kProbe = 1 << 20; // bytes
        const QString path = m_directory.filePath(QStringLiteral(".room"));
        const bool isWritten = !WriteFile(path, QByteArray(kProbe, ' '));
        QFile::remove(path);
        return isWritten;
    }

    static QString TopTextKey(HClockNode &clock)
    {
        return Key(clock.ClockType() == DigitalClock ? Attribute::DigitalTopText
                                                     : Attribute::AnalogTopText);
    }

    void AddFile(QDomElement &element, const QString &key, const QString &path,
                 const QString &digest)
    {
        const QString relative = m_directory.relativeFilePath(path);
        const qint64 size = QFileInfo(path).size();
        QDomElement file = AppendElement(element, QLatin1String(Sdk::kFile));
        file.setAttribute(QStringLiteral("key"), key);
        file.setAttribute(QStringLiteral("md5"), digest);
        file.setAttribute(QStringLiteral("size"), size);
        file.setAttribute(QStringLiteral("path"), relative);
        m_files.insert(relative, {digest, size});
    }

    QDomElement AppendElement(QDomElement &parent, const QString &tag)
    {
        QDomElement element = m_document.createElement(tag);
        parent.appendChild(element);
        return element;
    }

    void WriteProgramAndList()
    {
        const QByteArray program = WriteXml(m_program);
        const QByteArray digest = QCryptographicHash::hash(program, QCryptographicHash::Md5);
        m_files.insert(kExportedProgram, {QString::fromLatin1(digest.toHex()), program.size()});
        QString list = QStringLiteral("path\tmd5\tsize\n");
        for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
            list += QStringLiteral("%1\t%2\t%3\n").arg(file.key(), file->digest).arg(file->size);
        m_failure = WriteFile(m_directory.filePath(kExportedList), list.toUtf8());
        if (!m_failure)
            m_failure = WriteFile(m_directory.filePath(kExportedProgram), program);
    }

    const ProgramClocks &m_clocks;
    QDir m_directory;
    QDomDocument m_document;
    QDomElement m_program;
    QMap<QString, SentFile> m_files; // by path, relative to the directory
    MaybeFailure m_failure;
};

} // namespace

MaybeFailure ExportProgram(const ProgramClocks &clocks, const QString &directory,
                           const ExportProgress &progress)
{
    return Exporter(clocks, directory).Run(progress);
}

} // namespace ClockTool
