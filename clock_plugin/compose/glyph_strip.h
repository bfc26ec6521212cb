// compose/: one glyph image, stored compactly and shared by all clocks of a thread that use an
// identical file.
//
// Glyph images are drawn in one colour without antialiasing, so they are stored as ink, one bit per
// pixel. Images made by other programs are stored as pixmaps. A file of up to 64 KiB is read
// immediately but decoded lazily: a clock shows few of its images.
#pragma once

#include "glyph/ink.h"

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QString>

#include <memory>

namespace Lw::HNodeClock {

class PictureFile;

/// The pixels of a glyph image. Its bytes count towards GlyphBytesInProcess().
class GlyphPixels
{
public:
    explicit GlyphPixels(const QImage &image);
    explicit GlyphPixels(Ink ink);
    /// An undecoded PNG that takes at most this many bytes once decoded.
    GlyphPixels(const QByteArray &png, qint64 bytes);
    ~GlyphPixels();
    Q_DISABLE_COPY(GlyphPixels)

    const QSize &Size()
    {
        Decode();
        return m_size;
    }
    bool IsInk()
    {
        Decode();
        return m_ink.wordsPerRow > 0;
    }
    const QPixmap &Pixmap();
    qint64 Bytes() const { return m_bytes; }
    void CountExactly();
    /// Known only once it has been decoded.
    bool IsDamaged() const { return m_encoded.isNull() && m_size.isEmpty(); }

    const quint32 *InkRow(int y) const { return m_ink.Row(y); }
    QRgb InkColour() const { return m_ink.colour; }
    /// All but the rows above and below that are known to be transparent.
    GlyphRows ShownRows()
    {
        Decode();
        return m_ink.rows;
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
    void TakeInk(Ink ink);
    void SetBytes(qint64 bytes);

    const quint32 m_key;
    QByteArray m_encoded; // null once it is decoded
    qint64 m_bytes = 0;
    bool m_isExact = false; // false while m_bytes is an upper bound for an undecoded image
    QSize m_size {0, 0};
    Ink m_ink;        // no words per row where the image is not kept as ink
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
