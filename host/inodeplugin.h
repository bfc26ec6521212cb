// host/: the interface of a content plugin's root object, through which the host uses it.
#pragma once

#include "icontentrender.h"
#include "lw_types.h"

#include <QIcon>
#include <QString>
#include <QStringList>
#include <QtPlugin>

QT_BEGIN_NAMESPACE
class QDomElement;
class QModelIndex;
QT_END_NAMESPACE

namespace Lw {

class HNode;

/// The order of the virtual functions is fixed; see HNode.
class INodePlugin
{
public:
    virtual ~INodePlugin() = default;
    virtual QString name() { return QString(); }        ///< display name; may be empty
    virtual bool PluginMatch(QDomElement &element) = 0; ///< whether the element is this plugin's
    virtual int level() = 0;    ///< plugins of lower levels are asked first; a clock's is 4
    virtual QString type() = 0; ///< equals HNode::Type() of its nodes
    virtual QIcon icon()
    {
        static QIcon none;
        return none;
    }
    virtual Lw::HNode *Create() = 0; ///< a new node without attributes; the caller owns it
    virtual Lw::HNode *Create(QString, Lw::HNode *) { return nullptr; }
    /// A new renderer for a node of this plugin; the caller owns it.
    virtual Lw::IContentRender *CreateAreaRender(Lw::HNode *node) = 0;
    virtual Lw::IContentRender *CreateFrameRender(Lw::HNode *) { return nullptr; }
    virtual bool AddFile(Lw::HModel *, QModelIndex &, int) { return false; }
    virtual bool OverrideNewFile() { return false; }
    virtual bool NewFile(Lw::HModel *, QModelIndex &, int) { return false; }
    virtual void AppQuit() { }
    virtual bool AddFileBasisSuffix(QString, Lw::HModel *, QModelIndex &, int) { return false; }
    virtual bool AddFileBasisSupport(QString, Lw::HModel *, QModelIndex &, int) { return false; }
    virtual QStringList SupportSuffix() { return QStringList(); }
    virtual bool SuportController(QString &) { return true; }
    virtual bool ConvertVersion(Lw::HNode *, Lw::HVersion &) { return true; }
    virtual void D3DLoseDevice() { }
};

} // namespace Lw

QT_BEGIN_NAMESPACE
Q_DECLARE_INTERFACE(Lw::INodePlugin, "Lw.interface.INodePlugin/1.0")
QT_END_NAMESPACE
