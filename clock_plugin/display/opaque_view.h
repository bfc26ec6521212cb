// A second look at an opaque frame, for painting.
//
// Frames are ARGB32, onto which painters blend by converting every pixel there and back. Where all
// pixels are opaque, premultiplied ARGB32 has the same bytes, and blending a plain colour gives the
// same result several times faster. Not so for pictures that are turned smoothly.
#pragma once

#include <QImage>

namespace Lw::HNodeClock {

class OpaqueView
{
public:
    /// The pixels of a detached ARGB32 image, all of them opaque, as a premultiplied image. Counts
    /// as a write to the image; valid until the image is given other pixels or is gone.
    QImage &Of(QImage &image)
    {
        uchar *const pixels = image.bits();
        if (m_view.constBits() != pixels || m_view.size() != image.size()) {
            m_view = QImage(pixels, image.width(), image.height(), image.bytesPerLine(),
                            QImage::Format_ARGB32_Premultiplied);
        }
        return m_view;
    }

private:
    QImage m_view; // kept, for with it Qt keeps its paint engine
};

} // namespace Lw::HNodeClock
