#include "pictureplayer.h"

#include "icontentrender.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QPointer>
#include <QTimer>

#include <cmath>
#include <limits>

namespace Lw {

namespace {

constexpr double kLongestWait = 1e12; // milliseconds; some thirty years

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
    void Wait(double milliseconds)
    {
        const double wait = std::ceil(qBound(0.0, milliseconds, kLongestWait));
        deadline = QDeadlineTimer(static_cast<qint64>(wait), Qt::PreciseTimer);
        WaitOn();
    }

    // A timer may fire a fraction of a millisecond early; the wait is over only at the deadline.
    void WaitOn()
    {
        const qint64 longest = std::numeric_limits<int>::max();
        timer.start(static_cast<int>(qBound<qint64>(0, deadline.remainingTime(), longest)));
    }

    SessionParameter parameter = {};
    QImage image;
    QTimer timer;
    QDeadlineTimer deadline;
};

pictureplayer::pictureplayer(QObject *parent) : QObject(parent), d(new Private)
{
    d->timer.setSingleShot(true);
    d->timer.setTimerType(Qt::PreciseTimer);
    connect(&d->timer, &QTimer::timeout, this, [this] {
        if (!d->deadline.hasExpired()) {
            d->WaitOn();
            return;
        }
        // The renderer may delete this player: nothing may follow the call.
        if (IContentRender *const render = Renderers().value(d->parameter.playIdentifier))
            render->PlayNext();
    });
}

pictureplayer::~pictureplayer()
{
    d->timer.stop();
}

void pictureplayer::Init(const SessionParameter *parameter)
{
    d->timer.stop();
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
    d->timer.stop();
    if (TimeScale() > 0)
        d->Wait(milliseconds / TimeScale());
    emit EffectUpdated(milliseconds);
}

void pictureplayer::Stop()
{
    d->timer.stop();
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
