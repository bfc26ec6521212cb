// studio/wall: encodes glyph images in a thread of its own, because that takes several times as
// long as drawing them.
#pragma once

#include "glyph/glyph_drawing.h"

#include <QObject>

#include <future>

namespace ClockStudio {

/// Encodes one image at a time and puts it into the plugin's cache of images, if there is memory.
class ImageEncoder : public QObject
{
    Q_OBJECT

public:
    explicit ImageEncoder(QObject *parent = nullptr);

    bool IsBusy() const { return m_encoded.valid(); }
    /// The encoder must not be busy.
    void Encode(Lw::HNodeClock::UnencodedGlyph glyph);

Q_SIGNALS:
    void Encoded(); ///< the encoder is free again

private:
    void Take();

    Lw::HNodeClock::GlyphContent m_content;
    bool m_isOutdated = false; ///< fonts were added or removed since the image was drawn
    std::future<Lw::HNodeClock::DrawnGlyph> m_encoded; ///< its destructor waits for the thread
};

} // namespace ClockStudio
