// A node of the program tree.
#pragma once

#include "hdata.h"

#include <QFileInfo>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QScopedPointer>
#include <QSize>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace Lw {

/// The virtual operations stand in the order of their slots, which plugins built elsewhere rely
/// on: never reorder them, add only at the end.
class HNode : public QObject, public HData
{
    Q_OBJECT

public:
    explicit HNode(QObject *parent = nullptr);
    ~HNode() override;

    virtual QString Type();
    virtual int Level();
    virtual void GetAllFileList(QList<Lw::HSendFileInfo> &files); ///< appends the recorded files
    virtual void SetGuid(QString guid);
    virtual QString GetGuid();
    virtual bool HaveSourcFile();
    virtual bool NodeMatch(QDomElement &element);
    virtual bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files);
    virtual void CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model);
    virtual void AfterUpdate(bool isTemp);
    /// Takes ownership. False for null, and for a node that this one lies within.
    virtual bool AddChild(Lw::HNode *child);
    virtual bool InsertChild(int index, Lw::HNode *child); ///< the stand-in keeps no order
    virtual Lw::HNode *Copy();
    virtual void ReloadAttribute();
    virtual void Delete();
    virtual bool Close(bool save);
    virtual bool Generator(QString directory, QList<Lw::HSendFileInfo> &files, int model);
    virtual bool Export(QList<Lw::HSendFileInfo> &files);
    virtual bool Import(QString path);
    virtual bool NodeAlready(int reason);
    virtual bool UsbExport();
    virtual bool AllFileExists();
    virtual void ControllerChange();
    virtual void InitData();
    virtual bool SDKInitData(void *data);
    virtual void ReloadAttrbute(Lw::HNode *other);
    virtual int Duration(); ///< milliseconds
    virtual int TotalFile();
    virtual void GeneratorFinish();
    virtual void RebuildNode();
    virtual void RebuildNode(Lw::HNode *other);
    virtual QImage GetThumbnail();
    virtual bool Editable();
    virtual void GetSDKTempFile(QList<QFileInfo> &out);
    virtual bool TranscodeFinish();
    virtual QSize Size(); ///< pixels; (-1, -1) before layout
    virtual int FrameHeight();
    virtual QPoint Pos(); ///< pixels from the screen's top left
    virtual void ON_SizeChange(QSize size);
    virtual bool UseInternalBorder();
    virtual Lw::HNode *SourcNode();

    /// Whether the node takes part in a running update of the program.
    bool TakesPartInUpdate();

    // Beyond what plugins call, for players and tests.
    void SetSize(QSize size);
    void SetPos(QPoint pos);
    void SetTakesPartInUpdate(bool takesPart);

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw
