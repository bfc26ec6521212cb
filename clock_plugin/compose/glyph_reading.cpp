#include "compose/glyph_reading.h"

#include "image_bounds.h"

#include <QFileInfo>
#include <QImageReader>

namespace Lw::HNodeClock {

QImage ReadImageFile(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return QImage();
    QImageReader reader(path);
    if (!WithinBounds(reader.size(), kGlyphBytes))
        return QImage();
    return reader.read();
}

QPixmap ReadGlyphFile(const QString &path)
{
    const QImage image = ReadImageFile(path);
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}

} // namespace Lw::HNodeClock
