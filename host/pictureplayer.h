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

/// The start record. Its fields lie without holes on the 32-bit device; fill it by name.
struct SessionParameter
{
    QString name;
    quint32 playIdentifier;
    QPoint position;
    QSize size;
    quint32 reservedWord;
    quint32 words[5];
    quint16 timing;
    quint8 reservedBytes[2];
    quint8 effectBytes[4];
    bool alphaBlend;
    bool lastFlag;
};

#if defined(__arm__) && QT_POINTER_SIZE == 4
static_assert(offsetof(SessionParameter, lastFlag) == 57, "the start record must have no holes");
#endif

class pictureplayer : public QObject
{
    Q_OBJECT

public:
    explicit pictureplayer(QObject *parent);
    ~pictureplayer() override;

    /// Prepares output. The record is copied; the caller keeps its own.
    void Init(const SessionParameter *parameter);
    void UpdateImage(QImage image);
    /// The next call of the renderer's PlayNext comes after that many milliseconds.
    void UpdateEffect(int milliseconds, EffectType effect);
    void Stop();

    // Beyond what plugins call, for players and tests.
    SessionParameter Parameter();
    QImage LastImage();
    /// Whose PlayNext the player of this identifier calls. Null unregisters. The renderer is held
    /// guarded: one that is deleted is simply no longer called.
    static void Register(unsigned int playIdentifier, Lw::IContentRender *render);
    /// The player that was last initialised with this identifier; null when none lives.
    static pictureplayer *ForIdentifier(unsigned int playIdentifier);
    /// Divides all waits by the scale. With 0 nothing is waited for: the program calls PlayNext.
    static void SetTimeScale(double scale);

Q_SIGNALS:
    void ImageUpdated(QImage image);
    void EffectUpdated(int milliseconds);

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw

using Lw::EffectType;
using Lw::pictureplayer;
using Lw::SessionParameter;
