// host/: a node of the program tree.
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

/// The order of the virtual functions is the vtable layout, which plugins built elsewhere rely on:
/// never reorder them, add only at the end.
///
/// Comments say what a function is for and, after "here", what this base class does if a subclass
/// does not override it. If a comment has only the "here" part, the meaning is defined by the host
/// and our plugin does not depend on it. Lists are appended to, never cleared.
class HNode : public QObject, public HData
{
    Q_OBJECT

public:
    explicit HNode(QObject *parent = nullptr);
    ~HNode() override;

    virtual QString Type(); ///< INodePlugin::type() of its plugin; here empty
    virtual int Level();    ///< here 0
    /// Lists the recorded files, in order of first recording.
    virtual void GetAllFileList(QList<Lw::HSendFileInfo> &files);
    virtual void SetGuid(QString guid); ///< here calls HData's, like the next two
    virtual QString GetGuid();
    virtual bool HaveSourcFile();
    /// Whether the element describes a node of this type; here false.
    virtual bool NodeMatch(QDomElement &element);
    /// Reads the element's settings and appends its files. False if it does not describe a node of
    /// this type; here always false.
    virtual bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files);
    /// Appends the node's element in the SDK's form to the parent; here nothing.
    virtual void CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model);
    /// Called after the node's program was updated; isTemp if it is a temporary one. Here nothing.
    virtual void AfterUpdate(bool isTemp);
    /// Takes ownership. False for null, for this node itself and for its ancestors.
    virtual bool AddChild(Lw::HNode *child);
    /// The same; also false for a negative index. Here children are appended; the index is
    /// otherwise ignored.
    virtual bool InsertChild(int index, Lw::HNode *child);
    virtual Lw::HNode *Copy();      ///< a new node owned by the caller; here null
    virtual void ReloadAttribute(); ///< here nothing
    virtual void Delete();          ///< deletes the node later, from the event loop
    virtual bool Close(bool save);  ///< whether it may be closed; here true
    /// Generates the files to be sent in a directory and appends them; false on failure; here
    /// always false.
    virtual bool Generator(QString directory, QList<Lw::HSendFileInfo> &files, int model);
    virtual bool Export(QList<Lw::HSendFileInfo> &files); ///< here false
    virtual bool Import(QString path);                    ///< here false
    /// Called when the node's attributes are complete; false if it cannot be shown; here true.
    virtual bool NodeAlready(int reason);
    virtual bool UsbExport();                      ///< here false
    virtual bool AllFileExists();                  ///< whether all its files exist; here true
    virtual void ControllerChange();               ///< here nothing
    virtual void InitData();                       ///< fills a new node; here nothing
    virtual bool SDKInitData(void *data);          ///< here false
    virtual void ReloadAttrbute(Lw::HNode *other); ///< here nothing
    virtual int Duration();                        ///< of one presentation, in milliseconds; here 0
    virtual int TotalFile();                       ///< how many files are recorded
    virtual void GeneratorFinish();                ///< here nothing
    virtual void RebuildNode();                    ///< here nothing
    virtual void RebuildNode(Lw::HNode *other);    ///< here nothing
    virtual QImage GetThumbnail();                 ///< here null
    virtual bool Editable();                       ///< here false
    /// Lists those of the node's files that belong to a temporary program; here none.
    virtual void GetSDKTempFile(QList<QFileInfo> &out);
    virtual bool TranscodeFinish();         ///< here false
    virtual QSize Size();                   ///< pixels; (-1, -1) before layout
    virtual int FrameHeight();              ///< pixels; the height of Size
    virtual QPoint Pos();                   ///< pixels from the screen's top left
    virtual void ON_SizeChange(QSize size); ///< the new Size, in pixels
    virtual bool UseInternalBorder();       ///< here false
    virtual Lw::HNode *SourcNode();         ///< here null

    /// Whether the node takes part in a running update of the program; false until set.
    bool TakesPartInUpdate();

    // Not called by plugins; for players and tests.
    void SetSize(QSize size);
    void SetPos(QPoint pos);
    void SetTakesPartInUpdate(bool takesPart);

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw
