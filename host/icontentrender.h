// What plays a node in an area. Implemented by plugins, driven by the host.
#pragma once

#include <QObject>

namespace Lw {

/// Owned by whoever had it made. The virtual operations stand in the order of their slots; see
/// HNode.
class IContentRender : public QObject
{
public:
    /// Begins to play. The identifier, which is not 0, names the player of frames it is to use. The
    /// position is where to begin within the content, 0 at its start, in the host's unit; a clock
    /// shows the present whatever it is.
    virtual void Start(unsigned int playIdentifier, long long position) = 0;
    virtual void Pause() = 0;
    virtual void Stop() = 0;         ///< no further frames; the last one stays, Start begins anew
    virtual void Remove() = 0;       ///< stops for good and lets go of everything but itself
    virtual void PlayNext() = 0;     ///< shows one frame and asks its player for the next call
    virtual int renderState() = 0;   ///< the renderer's own number; a clock's are in HClockRender
    virtual void PrepareData() { }   ///< before Start; here nothing
    virtual void Seek(long long) { } ///< goes on from a position as in Start; here nothing
    virtual bool AreaFinish() { return false; } ///< whether there is nothing more to show
    /// Kept for renderers of videos; nothing of ours reads it.
    virtual void SetVideoNotClear(bool notClear) { videoNotClear = notClear; }

protected:
    explicit IContentRender(QObject *parent = nullptr) : QObject(parent) { }

    bool videoNotClear = false;
};

} // namespace Lw
