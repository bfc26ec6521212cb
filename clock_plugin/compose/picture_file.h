// compose/: reads picture files made by others: bounded, and never anything but an ordinary file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QFile;
class QImageReader;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// A picture file, opened and identified; its pixels are decoded when asked for.
///
/// Null for a path that is empty or does not name an ordinary file (a device or a pipe could block
/// for ever), for an unknown format, and for a picture of more than 32767 pixels a side or 64 MiB
/// by its header. Only formats whose headers can be trusted are read: PNG, BMP, GIF, JPEG, the PBM
/// family, XBM and XPM.
class PictureFile
{
public:
    explicit PictureFile(const QString &path);
    ~PictureFile();
    Q_DISABLE_COPY(PictureFile)

    bool IsNull() const { return m_size.isEmpty(); }
    /// By the header. The pixels may turn out to be damaged, which makes a null image.
    const QSize &Size() const { return m_size; }
    /// Equal for files of equal content, and for no others in practice.
    QByteArray Digest();

    /// What the image takes at most as a glyph: 32 bits per pixel.
    qint64 MostBytes() const;
    /// What it takes: one bit per pixel for a PNG that has one colour, else the same. Only a PNG
    /// that may have one is decoded for it, and dropped again.
    qint64 GlyphBytes();

    /// The content of a file of at most 64 KiB that is a PNG; null for any other.
    const QByteArray &SmallPng() const { return m_png; }
    /// Decodes the picture; null for a damaged one.
    QImage Read();

private:
    void Open(const QString &path);

    QByteArray m_png;
    std::unique_ptr<QFile> m_file; ///< null where the content was read at once
    bool m_isPng = false;
    std::unique_ptr<QImageReader> m_reader; ///< of other formats
    QSize m_size {0, 0};
};

/// The picture in a file; null as PictureFile says.
QImage ReadImageFile(const QString &path);
QPixmap ReadPixmapFile(const QString &path);

/// The picture in the content of a PNG; null as for the file.
QImage DecodePng(const QByteArray &png);

/// What a PNG takes as a glyph, from its content; see PictureFile::GlyphBytes().
qint64 GlyphBytesOfPng(const QByteArray &png);

/// Whether every pixel is transparent or of one opaque colour; false without alpha.
bool HasOneColour(const QImage &image);

/// What a glyph image that is kept as ink takes, one bit per pixel.
qint64 InkBytes(const QSize &size);

} // namespace Lw::HNodeClock
