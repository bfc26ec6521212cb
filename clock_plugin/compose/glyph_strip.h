// compose/: one glyph image, kept small and shared by the clocks of a thread that show equal files.
//
// Glyph images are drawn in one colour without antialiasing: such an image is kept as its ink, one
// bit per pixel. Any other, made by another program, is kept as a pixmap. A file of up to 64 KiB is
// read at once but decoded only when its size or pixels are needed: a clock shows few of its
// images.
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

/// The pixels of a glyph image. Counts what it takes against the process.
class GlyphPixels
{
public:
    explicit GlyphPixels(const QImage &image);
    /// An undecoded PNG, which takes that many bytes at most.
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
    bool IsDamaged() const
    {
        return m_encoded.isNull() && m_size.isEmpty();
    } ///< found when decoded

    /// One bit per pixel: that of column x is bit x % 32 of word x / 32. A spare word follows the
    /// last one.
    const quint32 *InkRow(int y) const { return m_ink.constData() + y * m_wordsPerRow; }
    QRgb InkColour() const { return m_colour; }
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
    bool m_isExact = false; // the bytes; else they are the most that an undecoded image takes
    QSize m_size {0, 0};
    int m_wordsPerRow = 0; // of the ink; 0 where the image is not kept as ink
    QRgb m_colour = 0;
    QVector<quint32> m_ink;
    QPixmap m_pixmap; // of ink made when it is first asked for
};

class GlyphStrip
{
public:
    GlyphStrip() = default; ///< null, as for a file that is missing or damaged
    explicit GlyphStrip(const QImage &image);
    /// The content of the file now; later changes of the file have no effect.
    static GlyphStrip OfFile(const QString &path);
    static GlyphStrip OfFile(PictureFile &file,
                             qint64 bytes);     ///< which takes at most so many bytes
    static GlyphStrip Blank(const QSize &size); ///< transparent; null for an empty size
    /// The strip of a file of this digest that is loaded already; one without pixels if there is
    /// none.
    static GlyphStrip Loaded(const QByteArray &digest);

    bool IsNull() const { return Width() == 0; }
    int Width() const { return Size().width(); }
    int Height() const { return Size().height(); }
    QSize Size() const { return m_pixels ? m_pixels->Size() : QSize(0, 0); }
    /// Equal for strips of the same pixels, and 0 for one without.
    quint32 Key() const { return m_pixels ? m_pixels->Key() : 0; }
    /// What the image takes in memory; of an undecoded one at most. Copies share it.
    qint64 Bytes() const { return m_pixels ? m_pixels->Bytes() : 0; }
    /// From now on Bytes() is exact.
    void CountExactly() const;

    bool IsInk() const { return m_pixels && m_pixels->IsInk(); }
    const GlyphPixels &Pixels() const { return *m_pixels; } ///< of one with pixels, decoded
    const quint32 *InkRow(int y) const { return m_pixels->InkRow(y); }

    /// The image as a pixmap, the same one at each call.
    QPixmap Pixmap() const { return m_pixels ? m_pixels->Pixmap() : QPixmap(); }

private:
    explicit GlyphStrip(std::shared_ptr<GlyphPixels> pixels) : m_pixels(std::move(pixels)) { }

    std::shared_ptr<GlyphPixels> m_pixels;
};

/// What all glyph images of the process take in memory, equal files of a thread once.
qint64 GlyphBytesInProcess();
/// From now on the images of this thread count exactly.
void CountLoadedGlyphsExactly();

} // namespace Lw::HNodeClock
