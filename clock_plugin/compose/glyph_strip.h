// compose/: one glyph image, stored compactly and shared by all clocks of a thread that use an
// identical file.
//
// Glyph images are drawn in one colour without antialiasing, so they are stored as ink, one bit per
// pixel. Images made by other programs are stored as pixmaps. A file of up to 64 KiB is read
// immediately but decoded lazily: a clock shows few of its images.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QVector>

#include <memory>

namespace Lw::HNodeClock {

class PictureFile;

/// Rows of a glyph image, from the top.
struct GlyphRows
{
    quint16 first = 0;
    quint16 count = 0;
};

/// The pixels of a glyph image. Its bytes count towards GlyphBytesInProcess().
class GlyphPixels
{
public:
    explicit GlyphPixels(const QImage &image);
    /// An undecoded PNG that takes at most this many bytes once decoded.
    GlyphPixels(const QByteArray &png, qint64 bytes);
    ~GlyphPixels();
    Q_DISABLE_COPY(GlyphPixels)
    static std::shared_ptr<GlyphPixels> Blank(const QSize &size);

    const QSize &Size()
    {
        Decode();
        return m_size;
    }
    bool IsInk()
    {
        Decode();
        return m_wordsPerRow > 0;
    }
    const QPixmap &Pixmap();
    qint64 Bytes() const { return m_bytes; }
    void CountExactly();
    /// Known only once it has been decoded.
    bool IsDamaged() const { return m_encoded.isNull() && m_size.isEmpty(); }

    /// One bit per pixel: that of column x is bit x % 32 of word x / 32. A spare word follows the
    /// last one.
    const quint32 *InkRow(int y) const { return m_ink.constData() + y * m_wordsPerRow; }
    QRgb InkColour() const { return m_colour; }
    /// All but the rows above and below that are known to be transparent.
    GlyphRows ShownRows()
    {
        Decode();
        return m_rows;
    }
    quint32 Key() const { return m_key; }

private:
    GlyphPixels();
    void Decode()
    {
        if (!m_encoded.isNull())
            DecodeNow();
    }
    void DecodeNow();
    void Take(QImage image);
    bool TakeInk(const QImage &image);
    void SetBytes(qint64 bytes);

    const quint32 m_key;
    QByteArray m_encoded; // null once it is decoded
    qint64 m_bytes = 0;
    bool m_isExact = false; // false while m_bytes is an upper bound for an undecoded image
    QSize m_size {0, 0};
    int m_wordsPerRow = 0; // of the ink; 0 where the image is not kept as ink
    QRgb m_colour = 0;
    GlyphRows m_rows;
    QVector<quint32> m_ink;
    QPixmap m_pixmap; // created on first use for ink
};

class GlyphStrip
{
public:
    GlyphStrip() = default; ///< null, like the strip of a missing or damaged file
    explicit GlyphStrip(const QImage &image);
    /// The content of the file at this moment; later changes to the file have no effect.
    static GlyphStrip OfFile(const QString &path);
    static GlyphStrip OfFile(PictureFile &file,
                             qint64 bytes);     ///< `bytes`: upper bound of its size in memory
    static GlyphStrip Blank(const QSize &size); ///< transparent; null for an empty size
    /// The strip of an already loaded file with this digest; null if there is none.
    static GlyphStrip Loaded(const QByteArray &digest);

    bool IsNull() const { return Width() == 0; }
    int Width() const { return Size().width(); }
    int Height() const { return Size().height(); }
    QSize Size() const { return m_pixels ? m_pixels->Size() : QSize(0, 0); }
    GlyphRows ShownRows() const { return m_pixels ? m_pixels->ShownRows() : GlyphRows(); }
    /// Identifies the pixels; strips that share them have the same key. 0 without pixels.
    quint32 Key() const { return m_pixels ? m_pixels->Key() : 0; }
    /// Bytes in memory, shared by copies; an upper bound for an undecoded image.
    qint64 Bytes() const { return m_pixels ? m_pixels->Bytes() : 0; }
    /// Makes Bytes() exact, if necessary by decoding.
    void CountExactly() const;

    bool IsInk() const { return m_pixels && m_pixels->IsInk(); }
    const GlyphPixels &Pixels() const { return *m_pixels; } ///< not for a null strip
    const quint32 *InkRow(int y) const { return m_pixels->InkRow(y); }

    /// The image as a pixmap, the same one at each call.
    QPixmap Pixmap() const { return m_pixels ? m_pixels->Pixmap() : QPixmap(); }

private:
    explicit GlyphStrip(std::shared_ptr<GlyphPixels> pixels) : m_pixels(std::move(pixels)) { }

    std::shared_ptr<GlyphPixels> m_pixels;
};

/// Bytes of all glyph images of the process; equal files of a thread count once.
qint64 GlyphBytesInProcess();
/// Replaces upper bounds in GlyphBytesInProcess() by exact sizes, for all images of this thread.
void CountLoadedGlyphsExactly();

} // namespace Lw::HNodeClock
