// A second host: the declarations of host/ with other definitions behind them, only those that a
// plugin needs, and nothing of the stand-ins. What it keeps it keeps outside its objects, in maps,
// so that nothing a plugin gets right here is owed to the stand-ins' way of keeping it.
#pragma once

#include "lw_types.h"
#include "pictureplayer.h"

#include <QImage>
#include <QMap>
#include <QVariant>
#include <QVector>

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
};

Store &StoreOf(const Lw::HData *data);

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

} // namespace MinimalHost
