// host/: the renderer interface: plays a node in an area. Implemented by plugins, driven by the
// host.
#pragma once

#include <QObject>

namespace Lw {

/// Owned by the caller of CreateAreaRender(). The order of the virtual functions is fixed; see
/// HNode.
class IContentRender : public QObject
{
public:
    /// Starts playing. The identifier, which is not 0, selects the frame player to use. The
    /// position is the offset in the content at which to start, in the host's unit; a clock ignores
    /// it and shows the current time.
    virtual void Start(unsigned int playIdentifier, long long position) = 0;
    virtual void Pause() = 0;
    virtual void Stop() = 0;       ///< no further frames; the last one stays; Start() starts again
    virtual void Remove() = 0;     ///< stops for good and releases everything it owns
    virtual void PlayNext() = 0;   ///< shows one frame and asks its player for the next call
    virtual int renderState() = 0; ///< defined by the renderer; for clocks see HClockRender
    virtual void PrepareData() { } ///< before Start; here nothing
    virtual void Seek(long long) { } ///< continues from a position as in Start; here nothing
    virtual bool AreaFinish() { return false; } ///< whether there is nothing more to show
    /// For video renderers; not used here.
    virtual void SetVideoNotClear(bool notClear) { videoNotClear = notClear; }

protected:
    explicit IContentRender(QObject *parent = nullptr) : QObject(parent) { }

    bool videoNotClear = false;
};

} // namespace Lw
