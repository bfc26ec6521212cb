// clock_plugin/: HClockNode's glyph files: generating them, checking that they exist, exporting
// them.
#include "clock_node.h"

#include "glyph/draw_source_image.h"
#include "glyph/glyph_file.h"
#include "glyph/glyph_set.h"
#include "glyph/hmd5.h"

#include "happconfig.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <cstdio>

namespace Lw::HNodeClock {

QStringList fileList;
QStringList fileMd5List;

namespace {

// Host-side tools search the log for these lines, so file name and line numbers are fixed.
constexpr char kLogSource[] = "clock_node.cpp";
constexpr int kMissingFileLine = 790;
constexpr int kMovedFileLine = 839;
constexpr int kNotTemporaryLine = 827;

// Directories of temporary programs, on the controller and on the editor's machine.
constexpr char kControllerTempFolder[] = "/root/Box/project/temp/project/";
constexpr char kEditorTempFolder[] = "/tmp/lwTempProgram/";

bool IsTemporaryProgramFile(const QString &path)
{
    return path.contains(QLatin1String(kControllerTempFolder))
        || path.contains(QLatin1String(kEditorTempFolder));
}

} // namespace

bool HClockNode::NodeAlready(int)
{
    if (ClockType() != PictureClock)
        DrwSourceIMage().DrawClockSourceImage(this, false, false);
    return true;
}

void HClockNode::AfterUpdate(bool isTemp)
{
    if (ClockType() == PictureClock && !TakesPartInUpdate())
        return;
    QList<Lw::HSendFileInfo> files;
    GetAllFileList(files);
    if (!files.isEmpty())
        return;
    const QPointer<HClockNode> self(this); // which the host may delete meanwhile
    DrwSourceIMage().DrawClockSourceImage(this, true, isTemp);
    if (self)
        GetAllFileList(files); // some hosts update their file list here
}

bool HClockNode::AllFileExists()
{
    const int clockType = ClockType();
    if (clockType == PictureClock)
        return true;
    QStringList keys;
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Bookkeeping, clockType)) {
        if (image.row->required)
            keys.append(image.Key());
    }
    return CheckFileExists(keys);
}

bool HClockNode::CheckFileExists(QStringList keys)
{
    for (const QString &key : qAsConst(keys)) {
        const QString path = GetFirstFile(key);
        if (QFile::exists(path))
            continue;
        std::printf("[%s::%s::%d]\"File [%s] key[%s]not exists\"\n", kLogSource, "CheckFileExists",
                    kMissingFileLine, qUtf8Printable(path), qUtf8Printable(key));
        return false;
    }
    return true;
}

void HClockNode::ProcessFileName(QString destDir)
{
    const int clockType = ClockType();
    if (clockType == PictureClock)
        return;
    const char *const prefix = clockType == DigitalClock ? kDigitalPrefix : kAnalogPrefix;
    const QString name =
        QLatin1String(prefix) + QString::number(GetAttributeToInt(Key(Attribute::Id)));
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Bookkeeping, clockType)) {
        if (image.row->exported)
            SetFileInfo(name, image.Key(), destDir);
    }
}

void HClockNode::SetFileInfo(QString name, QString key, QString destDir)
{
    const QLatin1String suffix(kGlyphSuffix);
    const QString source = Lw::HAppConfig::ClockOutputPath() + name + key + suffix;
    const QString digest = HMD5::FileDigest(source);
    const QString dest = destDir + digest + suffix;
    std::printf("[%s::%s::%d]\"soucepath[%s], dest[%s]\"\n", kLogSource, "SetFileInfo",
                kMovedFileLine, qUtf8Printable(source), qUtf8Printable(dest));
    MoveToDigestName(source, dest, digest);
    fileList.append(dest);
    fileMd5List.append(digest);
    SetFilePath(key, dest, digest, -1, kImageFileKind);
}

void HClockNode::GetSDKTempFile(QList<QFileInfo> &out)
{
    QList<Lw::HSendFileInfo> files;
    GetAllFileList(files);
    for (const Lw::HSendFileInfo &file : qAsConst(files)) {
        if (IsTemporaryProgramFile(file.path)) {
            out.append(QFileInfo(file.path));
            continue;
        }
        std::printf("[%s::%s::%d]\"not in temp file[%s],md5[%s],exists:%d\"\n", kLogSource,
                    "GetSDKTempFile", kNotTemporaryLine, qUtf8Printable(file.path),
                    qUtf8Printable(file.md5), QFile::exists(file.path) ? 1 : 0);
    }
}

} // namespace Lw::HNodeClock
