// clock_plugin/: plays one clock: draws a frame each second and passes it to the host's player.
#pragma once

#include "clock_export.h"
#include "clock_node.h"

#include "icontentrender.h"

#include <QPointer>

#include <memory>

namespace Lw {
class pictureplayer;
}

namespace Lw::HNodeClock {

class DrawDisplayImage;

/// Owns the frame drawer and the player; holds the node in a QPointer. The renderer has no timer:
/// the player calls PlayNext() again after the delay given to UpdateEffect().
class CLOCK_EXPORT HClockRender : public Lw::IContentRender
{
    Q_OBJECT

public:
    explicit HClockRender(HClockNode *node);
    ~HClockRender() override;

    /// Shows the first frame at once. Refused (state 2) if the node is gone, the identifier is 0,
    /// or the renderer was removed.
    void Start(unsigned int playIdentifier, long long position) override;
    void Pause() override; ///< does nothing
    void Stop() override;
    void Remove() override; ///< stops, then releases drawer and player
    void PlayNext() override;
    /// 0 idle or running steadily, 1 within the first frames after Start, 2 Start was refused.
    int renderState() override;

    void CleanResources(); ///< may be called twice

private:
    void CountTick();

    QPointer<HClockNode> m_node;
    int m_state;
    unsigned int m_playIdentifier = 0;
    int m_tickCounter = 0;
    std::unique_ptr<DrawDisplayImage> m_drawer; // like the player, null once removed
    std::unique_ptr<Lw::pictureplayer> m_player;
};

} // namespace Lw::HNodeClock
