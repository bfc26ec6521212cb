// One area of the screen while it plays: the node, and the renderer that its plugin made for it.
#pragma once

#include "screen_composer.h"

#include "hnode.h"
#include "icontentrender.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QTimer>

#include <memory>

namespace Lw {
class INodePlugin;
class pictureplayer;
} // namespace Lw

namespace ClockStage {

/// Where the glyph images of the nodes come from.
enum class GlyphFiles {
    Made,    ///< the node has them made
    Carried, ///< they came with the program; nothing is made
};

/// Owns node and renderer; either may be deleted by its plugin, after which the area keeps showing
/// its last picture.
class Area : public QObject
{
    Q_OBJECT

public:
    /// The play identifier is the area's own among all that play, and not 0.
    Area(unsigned int playIdentifier, Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node,
         GlyphFiles glyphFiles);
    ~Area() override;

    Lw::HNode *Node() const { return m_node; }
    QRect Geometry() const { return m_geometry; }

    /// Has the glyph images made, unless they were carried, and shows the first picture.
    void Start();
    /// Has the next picture drawn now. Otherwise the host's player does so at its time.
    void PlayNext();
    /// What the area shows now.
    Layer Picture() const;

Q_SIGNALS:
    void PictureChanged(QRegion region); ///< of the screen; empty where the picture is the same
    void Restarted(Lw::HNode *node);     ///< on its request, with new glyph images

private:
    void ListenToNode();
    void StartRenderer();
    void RemoveRenderer();
    void Restart();
    void RestartOnRequest();
    void Show(const QImage &image);
    QRegion Damage() const;

    const unsigned int m_playIdentifier;
    Lw::INodePlugin *const m_plugin;
    const QRect m_geometry;
    const GlyphFiles m_glyphFiles;
    QPointer<Lw::HNode> m_node;
    QPointer<Lw::IContentRender> m_render;
    QPointer<QObject> m_damage; ///< the renderer's child that tells what changed; null: has none
    QImage m_image;
    // Gathers the redraw requests of one turn of the event loop: a change of many settings asks
    // once for each of them.
    QTimer m_redraw;
};

} // namespace ClockStage
