// stage/: one area of the screen during playback: its node and renderer.
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
    Made,    ///< the node generates them
    Carried, ///< they came with the program; none are generated
};

/// Owns node and renderer; either may be deleted by its plugin, after which the area keeps showing
/// its last picture.
class Area : public QObject
{
    Q_OBJECT

public:
    /// The play identifier is unique among all playing areas, and not 0.
    Area(unsigned int playIdentifier, Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node,
         GlyphFiles glyphFiles);
    ~Area() override;

    Lw::HNode *Node() const { return m_node; }
    QRect Geometry() const { return m_geometry; }

    /// Generates the glyph images, unless they were carried, and shows the first picture.
    void Start();
    /// Draws the next picture now instead of waiting for the host's player.
    void PlayNext();
    /// The current picture and its place on the screen.
    Layer Picture() const;

Q_SIGNALS:
    void PictureChanged(QRegion region); ///< in screen pixels; empty if the picture is the same
    void Restarted(Lw::HNode *node);     ///< as the node requested, with new glyph images

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
    QPointer<QObject> m_damage; ///< the renderer's frameDamage child; null if it has none
    QImage m_image;
    // Merges the redraw requests of one turn of the event loop: changing many settings emits
    // one request for each.
    QTimer m_redraw;
};

} // namespace ClockStage
