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
///
/// A comment says what an operation is for and, after "here", what this class does, for kinds of
/// nodes that do not override it. Where it says only "here", hosts give the operation its meaning
/// and no plugin of ours relies on one. Lists are appended to, never cleared.
class HNode : public QObject, public HData
{
    Q_OBJECT

public:
    explicit HNode(QObject *parent = nullptr);
    ~HNode() override;

    virtual QString Type(); ///< the type of the plugin that makes such nodes; here empty
    virtual int Level();    ///< here 0
    /// Lists the recorded files, in order of first recording.
    virtual void GetAllFileList(QList<Lw::HSendFileInfo> &files);
    virtual void SetGuid(QString guid); ///< here as HData's, and so the next two
    virtual QString GetGuid();
    virtual bool HaveSourcFile();
    virtual bool NodeMatch(QDomElement &element); ///< whether it describes such a node; here false
    /// Takes over what an element says and lists its files. False where it describes no such node;
    /// here always, and nothing is taken.
    virtual bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files);
    /// Appends the node's element in the SDK's form to the parent; here nothing.
    virtual void CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model);
    /// Told when the node's program was updated, and whether that is a temporary one; here nothing.
    virtual void AfterUpdate(bool isTemp);
    /// Takes ownership. False for null, and for a node that this one lies within.
    virtual bool AddChild(Lw::HNode *child);
    /// The same; false for a negative index too. The stand-in keeps no order.
    virtual bool InsertChild(int index, Lw::HNode *child);
    virtual Lw::HNode *Copy();      ///< a new node, the caller's; here null
    virtual void ReloadAttribute(); ///< here nothing
    virtual void Delete();          ///< deleted when control is back in the event loop
    virtual bool Close(bool save);  ///< whether it may be closed; here true
    /// Makes the files to be sent in a directory and lists them; false on failure; here always.
    virtual bool Generator(QString directory, QList<Lw::HSendFileInfo> &files, int model);
    virtual bool Export(QList<Lw::HSendFileInfo> &files); ///< here false
    virtual bool Import(QString path);                    ///< here false
    /// Told that the node's attributes are complete; false where it cannot be shown; here true.
    virtual bool NodeAlready(int reason);
    virtual bool UsbExport();                      ///< here false
    virtual bool AllFileExists();                  ///< whether it lacks no file; here true
    virtual void ControllerChange();               ///< here nothing
    virtual void InitData();                       ///< fills a new node; here nothing
    virtual bool SDKInitData(void *data);          ///< here false
    virtual void ReloadAttrbute(Lw::HNode *other); ///< here nothing
    virtual int Duration();                        ///< of one showing, milliseconds; here 0
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

    // Beyond what plugins call, for players and tests.
    void SetSize(QSize size);
    void SetPos(QPoint pos);
    void SetTakesPartInUpdate(bool takesPart);

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw
