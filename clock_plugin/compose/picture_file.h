// compose/: reads untrusted picture files: only regular files, within bounds.
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

/// A picture file, opened and identified; its pixels are decoded on demand.
///
/// Null for a path that is empty or does not name a regular file (a device or a pipe could block
/// forever), for an unknown format, and for a picture of more than 32767 pixels per side or 64 MiB
/// by its header. Only formats whose headers can be trusted are read: PNG, BMP, GIF, JPEG, the PBM
/// family, XBM and XPM.
class PictureFile
{
public:
    explicit PictureFile(const QString &path);
    ~PictureFile();
    Q_DISABLE_COPY(PictureFile)

    bool IsNull() const { return m_size.isEmpty(); }
    /// The size in the header. Damaged pixels give a null image in Read().
    const QSize &Size() const { return m_size; }
    /// MD5 of the content; empty if reading fails.
    QByteArray Digest();

    /// Upper bound on the bytes that the image takes in memory as a glyph: 32 bits per pixel.
    qint64 MaxBytes() const;
    /// The exact bytes: one bit per pixel for a PNG with one colour, else MaxBytes(). Only a PNG
    /// that may have one colour is decoded for this, temporarily.
    qint64 GlyphBytes();

    /// The content of a file of at most 64 KiB that is a PNG; null for any other.
    const QByteArray &SmallPng() const { return m_png; }
    /// Decodes the picture; null for a damaged one.
    QImage Read();

private:
    void Open(const QString &path);

    QByteArray m_png;
    std::unique_ptr<QFile> m_file; ///< null if the whole content is in m_png
    bool m_isPng = false;
    std::unique_ptr<QImageReader> m_reader; ///< of other formats
    QSize m_size {0, 0};
};

/// The picture in a file; null under the conditions described at PictureFile, or if it is damaged.
QImage ReadImageFile(const QString &path);
QPixmap ReadPixmapFile(const QString &path);

/// Decodes a PNG in memory; null for a damaged one or one beyond the bounds.
QImage DecodePng(const QByteArray &png);

/// The memory a PNG takes as a glyph, in bytes; see PictureFile::GlyphBytes().
qint64 GlyphBytesOfPng(const QByteArray &png);

} // namespace Lw::HNodeClock
