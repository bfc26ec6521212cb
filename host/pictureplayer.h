// host/: the host's image player: shows the frames of a renderer and calls the renderer back when
// the next frame is due.
#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QScopedPointer>
#include <QSize>
#include <QString>
#include <QtGlobal>

#include <cstddef>

namespace Lw {

class IContentRender;

/// Transition effects between two frames.
enum EffectType {
    EffectNone = 0,
};

/// The start record. It has no padding on the 32-bit device; set fields by name. This player stores
/// all of it and uses only the identifier.
struct SessionParameter
{
    QString name;            ///< a clock has none
    quint32 playIdentifier;  ///< as given to IContentRender::Start
    QPoint position;         ///< of the area, pixels from the screen's top left
    QSize size;              ///< of the area, pixels
    quint32 reservedWord;    ///< reserved for the host; a clock leaves it uninitialised
    quint32 words[5];        ///< 0 for a clock
    quint16 timing;          ///< frame interval in milliseconds: 1000 for a clock
    quint8 reservedBytes[2]; ///< 0 for a clock
    quint8 effectBytes[4];   ///< 0 for a clock: no effects
    bool alphaBlend;         ///< HPluginManager::SuportAlphaBlend() of the node
    bool lastFlag;           ///< true for a clock
};

#if defined(__arm__) && QT_POINTER_SIZE == 4
static_assert(offsetof(SessionParameter, lastFlag) == 57, "the start record must have no padding");
#endif

class pictureplayer : public QObject
{
    Q_OBJECT

public:
    explicit pictureplayer(QObject *parent); ///< idle, without an image
    ~pictureplayer() override;

    /// Prepares output and cancels a pending PlayNext call. The record is copied; the caller keeps
    /// its own. Null only cancels.
    void Init(const SessionParameter *parameter);
    void UpdateImage(QImage image); ///< shown until the next one; may be null
    /// Schedules the renderer's next PlayNext() after this many milliseconds; with 0 or less, as
    /// soon as control returns to the event loop. The effect is ignored.
    void UpdateEffect(int milliseconds, EffectType effect);
    void Stop(); ///< cancels the pending call; the last image stays

    // Not called by plugins; for players and tests.
    SessionParameter Parameter(); ///< a copy of the last record; all 0 before Init
    QImage LastImage();           ///< the image last passed to UpdateImage(); null before the first
    /// Sets the renderer whose PlayNext the player with this identifier calls. Null unregisters.
    /// The renderer is held by a guarded pointer: once deleted, it is no longer called.
    static void Register(unsigned int playIdentifier, Lw::IContentRender *render);
    /// The player last initialised with this identifier; null if there is none.
    static pictureplayer *ForIdentifier(unsigned int playIdentifier);
    /// Divides all waits by the scale. With 0 or less no timer is started: the program calls
    /// PlayNext itself.
    static void SetTimeScale(double scale);

Q_SIGNALS:
    void ImageUpdated(QImage image);      ///< emitted by UpdateImage() after storing the image
    void EffectUpdated(int milliseconds); ///< emitted at the end of UpdateEffect()

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw

// Hosts and plugins also use these names without the namespace.
using Lw::EffectType;
using Lw::pictureplayer;
using Lw::SessionParameter;
