#include "glyph_export.h"

#include "export_directory.h"
#include "glyph_messages.h"
#include "output.h"
#include "whole_file.h"
#include "work_directory.h"

#include "clock_sdk_tables.h"
#include "compose/glyph_bounds.h"
#include "glyph/glyph_check.h"
#include "glyph/glyph_set.h"
#include "glyph/hmd5.h"
#include "happconfig.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

Failure ExportFailure(const QString &text)
{
    return {ExitCode::RuntimeFailure, text};
}

class Exporter
{
public:
    Exporter(const ProgramClocks &clocks, const QString &directory)
        : m_clocks(clocks), m_directory(directory), m_target(directory)
    { }

    MaybeFailure Run(const ExportProgress &progress)
    {
        if (const MaybeFailure failure = m_target.Prepare())
            return failure;
        // Within the directory, so that files are renamed and not copied.
        WorkDirectory work(m_directory.path(), m_target.LockPath());
        if (const MaybeFailure failure = work.Fault())
            return failure;
        if (!m_directory.mkpath(kExportedFiles))
            return ExportFailure(QStringLiteral("%1: cannot create this directory")
                                     .arg(m_directory.filePath(kExportedFiles)));
        Lw::HAppConfig::SetClockOutputPath(work.Path());
        BeginProgram();
        for (int i = 0; i < m_clocks.Count() && !m_failure; ++i) {
            progress(i + 1);
            AddArea(i);
        }
        if (!m_failure)
            WriteProgramAndList(work);
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

    /// Images that cannot be generated, such as that of an empty text, have no file.
    void AddFiles(QDomElement &element, HClockNode &clock)
    {
        const QString destination = m_directory.filePath(kExportedFiles) + QLatin1Char('/');
        {
            const QuietOutput quiet;
            clock.NodeAlready(0);
        }
        CheckMade(clock);
        if (m_failure)
            return;
        {
            const QuietOutput quiet;
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
            // The clock records an image even if it could not be moved.
            if (HMD5::FileDigest(path) != digest) {
                m_failure = ExportFailure(QStringLiteral("%1: cannot be written").arg(path));
                return;
            }
            AddFile(element, image.Key(), path, digest);
        }
        CheckMissing(clock, missing);
    }

    void CheckMade(HClockNode &clock)
    {
        const auto messages =
            ClockProgram::DescribeGlyphFaults(Lw::GlyphFaultsOf(clock) + m_account.AddFiles(clock));
        for (const QString &warning : messages.warnings)
            Say(OfClock(clock, QStringLiteral("warning: ") + warning));
        if (!messages.failures.isEmpty())
            m_failure = ExportFailure(OfClock(clock, messages.failures.join(QStringLiteral("; "))));
    }

    QString OfClock(HClockNode &clock, const QString &text) const
    {
        return QStringLiteral("%1: clock %2: %3")
            .arg(m_clocks.program.path)
            .arg(clock.GetAttributeToInt(Key(Attribute::Id)))
            .arg(text);
    }

    void CheckMissing(HClockNode &clock, QStringList missing)
    {
        if (TopTextOf(clock).isEmpty())
            missing.removeAll(GlyphKey(Glyph::TopText));
        if (missing.isEmpty())
            return;
        // These belong to hidden rows, which are exported as well.
        m_failure = ExportFailure(
            OfClock(clock,
                    QStringLiteral("no image can be generated for %1: the font is too large")
                        .arg(missing.join(QStringLiteral(", ")))));
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

    void WriteProgramAndList(WorkDirectory &work)
    {
        const QByteArray program = WriteXml(m_program);
        m_failure = CheckReadable(program);
        if (m_failure)
            return;
        const QByteArray digest = QCryptographicHash::hash(program, QCryptographicHash::Md5);
        m_files.insert(kExportedProgram, {QString::fromLatin1(digest.toHex()), program.size()});
        m_failure = Stage(work, kExportedProgram, program);
        if (!m_failure)
            m_failure = Stage(work, kExportedList, ListText(m_files));
        const auto held = work.HoldSignals();
        for (const char *const name : {kExportedList, kExportedProgram}) {
            if (!m_failure)
                m_failure = Publish(work, name);
        }
    }

    /// An export has one element per setting and image, so a program near the limits may exceed
    /// them.
    MaybeFailure CheckReadable(const QByteArray &program) const
    {
        const auto read = ClockProgram::ParseProgram(program, QLatin1String(kExportedProgram));
        if (read)
            return std::nullopt;
        return Failure {read.Error().code,
                        QStringLiteral("%1: the exported program would be too large to read: %2")
                            .arg(m_clocks.program.path, read.Error().text)};
    }

    static MaybeFailure Stage(const WorkDirectory &work, const char *name,
                              const QByteArray &contents)
    {
        return ClockProgram::WriteFile(work.FilePath(name), contents,
                                       ClockProgram::Targets::RegularFiles);
    }

    MaybeFailure Publish(const WorkDirectory &work, const char *name) const
    {
        const QString path = m_directory.filePath(name);
        if (std::rename(QFile::encodeName(work.FilePath(name)).constData(),
                        QFile::encodeName(path).constData())
            == 0)
            return std::nullopt;
        return ExportFailure(QStringLiteral("%1: %2").arg(path, qt_error_string(errno)));
    }

    const ProgramClocks &m_clocks;
    QDir m_directory;
    ExportDirectory m_target;
    QDomDocument m_document;
    QDomElement m_program;
    GlyphAccount m_account;
    SentFiles m_files;
    MaybeFailure m_failure;
};

} // namespace

MaybeFailure ExportProgram(const ProgramClocks &clocks, const QString &directory,
                           const ExportProgress &progress)
{
    return Exporter(clocks, directory).Run(progress);
}

} // namespace ClockTool
