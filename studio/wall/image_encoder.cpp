#include "image_encoder.h"

#include <QGuiApplication>

#include <chrono>
#include <utility>

namespace ClockStudio {

using namespace Lw::HNodeClock;

ImageEncoder::ImageEncoder(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, [this] { m_isOutdated = true; });
}

void ImageEncoder::Encode(UnencodedGlyph glyph)
{
    m_content = glyph.content;
    m_isOutdated = false;
    m_encoded = std::async([this, picture = std::move(glyph.picture)] {
        DrawnGlyph encoded = EncodeGlyphPicture(picture);
        QMetaObject::invokeMethod(this, &ImageEncoder::Take, Qt::QueuedConnection);
        return encoded;
    });
    // Deferred if the system has no thread left.
    if (m_encoded.wait_for(std::chrono::seconds(0)) == std::future_status::deferred)
        m_encoded.wait();
}

void ImageEncoder::Take()
{
    const DrawnGlyph encoded = m_encoded.get();
    if (!m_isOutdated)
        GlyphCache::Shared().Keep(m_content, encoded);
    emit Encoded();
}

} // namespace ClockStudio
