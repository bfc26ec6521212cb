#include "hnode.h"

#include <QDomElement>

namespace Lw {

namespace {

bool IsWithin(const QObject *object, const QObject *tree)
{
    while (object && object != tree)
        object = object->parent();
    return object != nullptr;
}

} // namespace

class HNode::Private
{
public:
    QSize size {-1, -1};
    QPoint pos;
    bool takesPartInUpdate = false;
};

HNode::HNode(QObject *parent) : QObject(parent), d(new Private) { }

HNode::~HNode() = default;

QString HNode::Type()
{
    return QString();
}

int HNode::Level()
{
    return 0;
}

void HNode::GetAllFileList(QList<Lw::HSendFileInfo> &files)
{
    for (const FileRecord &record : FileRecords())
        files.append({record.path, record.name, record.kind, {}});
}

void HNode::SetGuid(QString guid)
{
    HData::SetGuid(guid);
}

QString HNode::GetGuid()
{
    return HData::GetGuid();
}

bool HNode::HaveSourcFile()
{
    return HData::HaveSourcFile();
}

bool HNode::NodeMatch(QDomElement &)
{
    return false;
}

bool HNode::UpdateNode(QDomElement, QList<Lw::FileInfo> &)
{
    return false;
}

void HNode::CoverToSDKFormate(QDomElement &, Lw::GetProgramModel) { }

void HNode::AfterUpdate(bool) { }

bool HNode::AddChild(Lw::HNode *child)
{
    if (!child || IsWithin(this, child))
        return false;
    child->setParent(this);
    return true;
}

bool HNode::InsertChild(int index, Lw::HNode *child)
{
    return index >= 0 && AddChild(child);
}

Lw::HNode *HNode::Copy()
{
    return nullptr;
}

void HNode::ReloadAttribute() { }

void HNode::Delete()
{
    deleteLater();
}

bool HNode::Close(bool)
{
    return true;
}

bool HNode::Generator(QString, QList<Lw::HSendFileInfo> &, int)
{
    return false;
}

bool HNode::Export(QList<Lw::HSendFileInfo> &)
{
    return false;
}

bool HNode::Import(QString)
{
    return false;
}

bool HNode::NodeAlready(int)
{
    return true;
}

bool HNode::UsbExport()
{
    return false;
}

bool HNode::AllFileExists()
{
    return true;
}

void HNode::ControllerChange() { }

void HNode::InitData() { }

bool HNode::SDKInitData(void *)
{
    return false;
}

void HNode::ReloadAttrbute(Lw::HNode *) { }

int HNode::Duration()
{
    return 0;
}

int HNode::TotalFile()
{
    return FileRecords().size();
}

void HNode::GeneratorFinish() { }

void HNode::RebuildNode() { }

void HNode::RebuildNode(Lw::HNode *) { }

QImage HNode::GetThumbnail()
{
    return QImage();
}

bool HNode::Editable()
{
    return false;
}

void HNode::GetSDKTempFile(QList<QFileInfo> &) { }

bool HNode::TranscodeFinish()
{
    return false;
}

QSize HNode::Size()
{
    return d->size;
}

int HNode::FrameHeight()
{
    return d->size.height();
}

QPoint HNode::Pos()
{
    return d->pos;
}

void HNode::ON_SizeChange(QSize size)
{
    SetSize(size);
}

bool HNode::UseInternalBorder()
{
    return false;
}

Lw::HNode *HNode::SourcNode()
{
    return nullptr;
}

bool HNode::TakesPartInUpdate()
{
    return d->takesPartInUpdate;
}

void HNode::SetSize(QSize size)
{
    d->size = size;
}

void HNode::SetPos(QPoint pos)
{
    d->pos = pos;
}

void HNode::SetTakesPartInUpdate(bool takesPart)
{
    d->takesPartInUpdate = takesPart;
}

} // namespace Lw
