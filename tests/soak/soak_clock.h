// A clock of the loaded plugin, played as a host plays it, one frame at a time.
#pragma once

#include "hnode.h"
#include "icontentrender.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QImage>

#include <memory>

namespace Soak {

enum Kind { Analog, Digital, Picture };

/// The plugin's time from now on.
void SetInstant(qint64 utcMilliseconds);

/// Loads the plugin; null where it cannot be.
Lw::INodePlugin *LoadPlugin(const QString &file);

/// A clock of that kind in Berlin, with all that it can show, and its glyph images.
std::unique_ptr<Lw::HNode> NewNode(Lw::INodePlugin *plugin, Kind kind);

/// One renderer. It is started by its first frame.
class Play
{
public:
    Play(Lw::INodePlugin *plugin, Lw::HNode *node, unsigned int playIdentifier);
    ~Play();
    Q_DISABLE_COPY(Play)

    QImage Frame(qint64 instant);
    /// Whether each frame so far asked for the next one within a second.
    bool DelaysAreRight() const { return m_delaysAreRight; }

private:
    void TakeDelay(int milliseconds);

    std::unique_ptr<Lw::IContentRender> m_render;
    unsigned int m_identifier;
    pictureplayer *m_player = nullptr;
    bool m_delaysAreRight = true;
};

} // namespace Soak
