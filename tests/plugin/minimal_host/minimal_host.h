// A second host: the declarations of host/ with other definitions behind them, only those that a
// plugin needs, and nothing of the stand-ins. What it keeps it keeps outside its objects, in maps,
// so that nothing a plugin gets right here is owed to the stand-ins' way of keeping it.
#pragma once

#include "lw_types.h"
#include "pictureplayer.h"

#include <QImage>
#include <QMap>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>

namespace Lw {
class HData;
}

namespace MinimalHost {

/// A node's geometry is a dynamic property of this name, a QRect.
extern const char kGeometry[];

/// What was stored on one node.
struct Store
{
    QMap<QString, QVariant> values;
    QMap<QString, Lw::HSendFileInfo> files;
    QString guid;
    QMap<QString, int> numbersRead; ///< how often a key was read as a number
    int writesWithTrue = 0;         ///< how many writes had true as the last argument
};

Store &StoreOf(const Lw::HData *data);

/// What the player and the plugin manager were asked, in order, with the arguments that count:
/// "Init 7", "UpdateImage", "UpdateEffect 750 0", "Stop", "~", "SuportAlphaBlend" and the object
/// name of the node.
QStringList &Calls();

/// What was played under one identifier: every frame and every wait in order.
struct Session
{
    SessionParameter record = {};
    QVector<QImage> frames;
    QVector<int> waits;
    int stops = 0;
    bool isOpen = false; ///< from Init until the player is gone
};

Session &SessionOf(unsigned int playIdentifier);

/// Called once, when a player is stopped next.
extern std::function<void()> whenStopped;
/// Called once, when a player has been initialised.
extern std::function<void()> whenInitialised;

} // namespace MinimalHost
