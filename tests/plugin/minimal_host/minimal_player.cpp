// A player without a clock: it writes down what it is given, and whoever owns the renderer says
// when the next frame is due.
#include "minimal_host.h"

namespace MinimalHost {

Session &SessionOf(unsigned int playIdentifier)
{
    static QMap<unsigned int, Session> sessions;
    return sessions[playIdentifier];
}

} // namespace MinimalHost

namespace Lw {

using MinimalHost::Session;
using MinimalHost::SessionOf;

class pictureplayer::Private
{
public:
    unsigned int identifier = 0;
};

pictureplayer::pictureplayer(QObject *parent) : QObject(parent), d(new Private) { }

pictureplayer::~pictureplayer()
{
    SessionOf(d->identifier).isOpen = false;
}

void pictureplayer::Init(const SessionParameter *parameter)
{
    d->identifier = parameter->playIdentifier;
    Session &session = SessionOf(d->identifier);
    session.record = *parameter;
    session.isOpen = true;
}

void pictureplayer::UpdateImage(QImage image)
{
    SessionOf(d->identifier).frames.append(image);
}

void pictureplayer::UpdateEffect(int milliseconds, EffectType)
{
    SessionOf(d->identifier).waits.append(milliseconds);
}

void pictureplayer::Stop()
{
    ++SessionOf(d->identifier).stops;
}

} // namespace Lw
