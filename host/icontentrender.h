// What plays a node in an area. Implemented by plugins, driven by the host.
#pragma once

#include <QObject>

namespace Lw {

/// The virtual operations stand in the order of their slots; see HNode.
class IContentRender : public QObject
{
public:
    virtual void Start(unsigned int playIdentifier, long long position) = 0;
    virtual void Pause() = 0;
    virtual void Stop() = 0;
    virtual void Remove() = 0;
    virtual void PlayNext() = 0;
    virtual int renderState() = 0;
    virtual void PrepareData() { }
    virtual void Seek(long long) { }
    virtual bool AreaFinish() { return false; }
    virtual void SetVideoNotClear(bool notClear) { videoNotClear = notClear; }

protected:
    explicit IContentRender(QObject *parent = nullptr) : QObject(parent) { }

    bool videoNotClear = false;
};

} // namespace Lw
