// A player without a clock: it records what it is given, and the owner of the renderer says
// when the next frame is due.
#include "minimal_host.h"

#include <utility>

namespace MinimalHost {

std::function<void()> whenStopped;
std::function<void()> whenInitialised;

Session &SessionOf(unsigned int playIdentifier)
{
    static QMap<unsigned int, Session> sessions;
    return sessions[playIdentifier];
}

QStringList &Calls()
{
    static QStringList calls;
    return calls;
}

} // namespace MinimalHost

namespace Lw {

using MinimalHost::Calls;
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
    Calls() << QStringLiteral("~");
    SessionOf(d->identifier).isOpen = false;
}

void pictureplayer::Init(const SessionParameter *parameter)
{
    d->identifier = parameter->playIdentifier;
    Calls() << QStringLiteral("Init %1").arg(d->identifier);
    Session &session = SessionOf(d->identifier);
    session.record = *parameter;
    session.isOpen = true;
    if (MinimalHost::whenInitialised)
        std::exchange(MinimalHost::whenInitialised, {})();
}

void pictureplayer::UpdateImage(QImage image)
{
    Calls() << QStringLiteral("UpdateImage");
    SessionOf(d->identifier).frames.append(image);
}

void pictureplayer::UpdateEffect(int milliseconds, EffectType effect)
{
    Calls() << QStringLiteral("UpdateEffect %1 %2").arg(milliseconds).arg(int(effect));
    SessionOf(d->identifier).waits.append(milliseconds);
}

void pictureplayer::Stop()
{
    Calls() << QStringLiteral("Stop");
    ++SessionOf(d->identifier).stops;
    if (MinimalHost::whenStopped)
        std::exchange(MinimalHost::whenStopped, {})();
}

} // namespace Lw
