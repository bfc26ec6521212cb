// The host's image player: shows the frames that a renderer hands it, and calls the renderer back
// when the time for the next one has come.
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

/// The start record. Its fields lie without holes on the 32-bit device; fill it by name. This
/// player keeps it whole and reads only the identifier.
struct SessionParameter
{
    QString name;            ///< a clock has none
    quint32 playIdentifier;  ///< as given to IContentRender::Start
    QPoint position;         ///< of the area, pixels from the screen's top left
    QSize size;              ///< of the area, pixels
    quint32 reservedWord;    ///< the host's own: a clock leaves it unwritten
    quint32 words[5];        ///< 0 for a clock
    quint16 timing;          ///< 1000 for a clock, which has a frame every thousand milliseconds
    quint8 reservedBytes[2]; ///< 0 for a clock
    quint8 effectBytes[4];   ///< 0 for a clock: no effects
    bool alphaBlend;         ///< whether the output can blend this node; HPluginManager says it
    bool lastFlag;           ///< true for a clock
};

#if defined(__arm__) && QT_POINTER_SIZE == 4
static_assert(offsetof(SessionParameter, lastFlag) == 57, "the start record must have no holes");
#endif

class pictureplayer : public QObject
{
    Q_OBJECT

public:
    explicit pictureplayer(QObject *parent); ///< idle, without an image
    ~pictureplayer() override;

    /// Prepares output and ends the wait for PlayNext. The record is copied; the caller keeps its
    /// own. Null only ends the wait.
    void Init(const SessionParameter *parameter);
    void UpdateImage(QImage image); ///< shows it until the next one; a null one too
    /// The next call of the renderer's PlayNext comes after that many milliseconds; with 0 or less
    /// when control returns to the event loop. The effect is not shown.
    void UpdateEffect(int milliseconds, EffectType effect);
    void Stop(); ///< ends the wait; the last image stays

    // Beyond what plugins call, for players and tests.
    SessionParameter Parameter(); ///< a copy of the last record; all 0 before Init
    QImage LastImage();           ///< the one given last to UpdateImage; null before
    /// Whose PlayNext the player of this identifier calls. Null unregisters. The renderer is held
    /// guarded: one that is deleted is simply no longer called.
    static void Register(unsigned int playIdentifier, Lw::IContentRender *render);
    /// The player that was last initialised with this identifier; null when none lives.
    static pictureplayer *ForIdentifier(unsigned int playIdentifier);
    /// Divides all waits by the scale. With 0 nothing is waited for: the program calls PlayNext.
    static void SetTimeScale(double scale);

Q_SIGNALS:
    void ImageUpdated(QImage image);      ///< within UpdateImage, once the image is kept
    void EffectUpdated(int milliseconds); ///< within UpdateEffect, at its end

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw

using Lw::EffectType;
using Lw::pictureplayer;
using Lw::SessionParameter;
