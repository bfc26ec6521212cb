#include "pictureplayer.h"

#include "icontentrender.h"
#include "play_schedule_p.h"

#include <QHash>
#include <QPointer>

namespace Lw {

namespace {

QHash<unsigned int, QPointer<IContentRender>> &Renderers()
{
    static QHash<unsigned int, QPointer<IContentRender>> renderers;
    return renderers;
}

QHash<unsigned int, QPointer<pictureplayer>> &Players()
{
    static QHash<unsigned int, QPointer<pictureplayer>> players;
    return players;
}

double &TimeScale()
{
    static double scale = 1.0;
    return scale;
}

} // namespace

class pictureplayer::Private
{
public:
    SessionParameter parameter = {};
    QImage image;
};

pictureplayer::pictureplayer(QObject *parent) : QObject(parent), d(new Private) { }

pictureplayer::~pictureplayer()
{
    Stop();
}

void pictureplayer::Init(const SessionParameter *parameter)
{
    Stop();
    if (!parameter)
        return;
    if (Players().value(d->parameter.playIdentifier) == this)
        Players().remove(d->parameter.playIdentifier);
    d->parameter = *parameter;
    Players().insert(parameter->playIdentifier, this);
}

void pictureplayer::UpdateImage(QImage image)
{
    d->image = image;
    emit ImageUpdated(image);
}

void pictureplayer::UpdateEffect(int milliseconds, EffectType)
{
    Stop();
    if (TimeScale() > 0) {
        // PlayNext() may delete this player, so it must be the last statement.
        const auto playNext = [this] {
            if (IContentRender *const render = Renderers().value(d->parameter.playIdentifier))
                render->PlayNext();
        };
        PlaySchedule::Instance().Wait(this, milliseconds / TimeScale(), playNext);
    }
    emit EffectUpdated(milliseconds);
}

void pictureplayer::Stop()
{
    PlaySchedule::Instance().Cancel(this);
}

SessionParameter pictureplayer::Parameter()
{
    return d->parameter;
}

QImage pictureplayer::LastImage()
{
    return d->image;
}

void pictureplayer::Register(unsigned int playIdentifier, Lw::IContentRender *render)
{
    if (render)
        Renderers().insert(playIdentifier, render);
    else
        Renderers().remove(playIdentifier);
}

pictureplayer *pictureplayer::ForIdentifier(unsigned int playIdentifier)
{
    return Players().value(playIdentifier);
}

void pictureplayer::SetTimeScale(double scale)
{
    TimeScale() = scale;
}

} // namespace Lw
