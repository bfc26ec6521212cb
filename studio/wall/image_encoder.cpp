#include "image_encoder.h"

#include <QGuiApplication>
#include <QScopeGuard>

#include <chrono>
#include <new>
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
        // Also if there is no memory to encode it.
        const auto finished = qScopeGuard(
            [this] { QMetaObject::invokeMethod(this, &ImageEncoder::Take, Qt::QueuedConnection); });
        return EncodeGlyphPicture(picture);
    });
    // Deferred if the system has no thread left.
    if (m_encoded.wait_for(std::chrono::seconds(0)) == std::future_status::deferred)
        m_encoded.wait();
}

void ImageEncoder::Take()
{
    try {
        const DrawnGlyph encoded = m_encoded.get();
        if (!m_isOutdated)
            GlyphCache::Shared().Keep(m_content, encoded);
    } catch (const std::bad_alloc &) {
        // It is then not in the cache.
    }
    emit Encoded();
}

} // namespace ClockStudio
