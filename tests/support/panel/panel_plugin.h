// A content plugin that stands in for any other than the clock: it shows a plain colour that tells
// what the player did with it.
#pragma once

#include "hcontentnode.h"
#include "icontentrender.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QPointer>

#ifndef PANEL_IID
#define PANEL_IID "Lw.interface.IControllerPlugin/1.0"
#endif

/// Found by name where the plugin is loaded.
extern "C" Q_DECL_EXPORT void clock_set_time_source(long long (*utcMilliseconds)());

/// Claims the element <panel>. Its attributes:
///   accept="no"     UpdateNode answers false
///   redraws="N"     at its third picture the node asks N times to be made ready again
///   images="N"      to be made ready takes N times ten milliseconds, with a file recorded after
///   each dies="yes"      at its third picture the node is deleted
class PanelNode : public Lw::HContentNode
{
    Q_OBJECT

public:
    bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files) override;
    bool NodeAlready(int reason) override;
    void InitData() override;

    int readied = 0; ///< times NodeAlready was called

Q_SIGNALS:
    void ReDrawSourceImage();
};

/// Each picture is filled with red = second of the time, green = times the node was made ready,
/// blue = 100 + the last digit of the node's identity; but its left column is the key colour.
class PanelRender : public Lw::IContentRender
{
    Q_OBJECT

public:
    explicit PanelRender(Lw::HNode *node);

    void Start(unsigned int playIdentifier, long long position) override;
    void Pause() override { }
    void Stop() override { m_player->Stop(); }
    void Remove() override { Stop(); }
    void PlayNext() override;
    int renderState() override { return 0; }

private:
    QImage Picture() const;

    QPointer<PanelNode> m_node;
    Lw::pictureplayer *m_player;
    int m_pictures = 0;
};

class PanelPlugin : public QObject, public Lw::INodePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PANEL_IID)
    Q_INTERFACES(Lw::INodePlugin)

public:
    bool PluginMatch(QDomElement &element) override;
    int level() override { return 1; }
    QString type() override { return QStringLiteral("panel"); }
    using Lw::INodePlugin::Create;
    Lw::HNode *Create() override { return new PanelNode; }
    Lw::IContentRender *CreateAreaRender(Lw::HNode *node) override { return new PanelRender(node); }
};
