#include "minimal_host.h"

#include "hcontentnode.h"

#include <QDomElement>
#include <QRect>

using MinimalHost::kGeometry;
using MinimalHost::StoreOf;

const char MinimalHost::kGeometry[] = "geometry";

namespace Lw {

class HNode::Private
{ };

HNode::HNode(QObject *parent) : QObject(parent) { }

HNode::~HNode() = default;

HContentNode::HContentNode(QObject *parent) : HNode(parent) { }

HContentNode::~HContentNode() = default;

// What this host knows of its nodes.

QSize HNode::Size()
{
    const QVariant geometry = property(kGeometry);
    return geometry.isValid() ? geometry.toRect().size() : QSize(-1, -1);
}

QPoint HNode::Pos()
{
    return property(kGeometry).toRect().topLeft();
}

int HNode::FrameHeight()
{
    return Size().height();
}

void HNode::GetAllFileList(QList<Lw::HSendFileInfo> &files)
{
    files += StoreOf(this).files.values();
}

int HNode::TotalFile()
{
    return StoreOf(this).files.size();
}

bool HNode::HaveSourcFile()
{
    return TotalFile() > 0;
}

void HNode::SetGuid(QString guid)
{
    StoreOf(this).guid = guid;
}

QString HNode::GetGuid()
{
    return StoreOf(this).guid;
}

bool HNode::TakesPartInUpdate()
{
    return false;
}

// What it leaves to its plugins, or does not do.

// clang-format off
QString HNode::Type() { return QStringLiteral("node of another host"); }
int HNode::Level() { return 1; }
bool HNode::NodeMatch(QDomElement &) { return false; }
bool HNode::UpdateNode(QDomElement, QList<Lw::FileInfo> &) { return false; }
void HNode::CoverToSDKFormate(QDomElement &, Lw::GetProgramModel) { }
void HNode::AfterUpdate(bool) { }
bool HNode::AddChild(Lw::HNode *) { return false; }
bool HNode::InsertChild(int, Lw::HNode *) { return false; }
Lw::HNode *HNode::Copy() { return nullptr; }
void HNode::ReloadAttribute() { }
void HNode::Delete() { }
bool HNode::Close(bool) { return false; }
bool HNode::Generator(QString, QList<Lw::HSendFileInfo> &, int) { return false; }
bool HNode::Export(QList<Lw::HSendFileInfo> &) { return false; }
bool HNode::Import(QString) { return false; }
bool HNode::NodeAlready(int) { return false; }
bool HNode::UsbExport() { return false; }
bool HNode::AllFileExists() { return false; }
void HNode::ControllerChange() { }
void HNode::InitData() { }
bool HNode::SDKInitData(void *) { return false; }
void HNode::ReloadAttrbute(Lw::HNode *) { }
int HNode::Duration() { return -1; }
void HNode::GeneratorFinish() { }
void HNode::RebuildNode() { }
void HNode::RebuildNode(Lw::HNode *) { }
QImage HNode::GetThumbnail() { return QImage(); }
bool HNode::Editable() { return false; }
void HNode::GetSDKTempFile(QList<QFileInfo> &) { }
bool HNode::TranscodeFinish() { return false; }
void HNode::ON_SizeChange(QSize) { }
bool HNode::UseInternalBorder() { return false; }
Lw::HNode *HNode::SourcNode() { return this; }
// clang-format on

} // namespace Lw
