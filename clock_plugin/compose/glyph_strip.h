// One glyph image, kept small.
//
// Glyph images are drawn in one colour without antialiasing: such an image is kept as its ink, one
// bit a pixel. Any other, made by another program, is kept as a pixmap. The bytes of a file are
// taken at once, but decoded only when they are needed: a clock shows few of its images, and of
// some needs no more than the size.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QVector>

namespace Lw::HNodeClock {

class GlyphStrip
{
public:
    GlyphStrip() = default; ///< null, as for a file that is missing or broken
    explicit GlyphStrip(const QImage &image);
    /// What stands in the file now, whatever becomes of the file.
    static GlyphStrip OfFile(const QString &path);
    static GlyphStrip Blank(const QSize &size); ///< transparent; null for an empty size

    bool IsNull() const { return Width() == 0; }
    int Width() const { return Size().width(); }
    int Height() const { return Size().height(); }
    const QSize &Size() const
    {
        if (m_isEncoded && !m_size.isValid())
            FindSize();
        return m_size;
    }
    /// Tells the contents of two strips apart; copies have the same.
    quint32 Key() const { return m_key; }

    /// Whether the image is kept as ink. Then one pixel a bit: of row y, that of column x is bit
    /// x % 32 of word x / 32; a word follows the last one.
    bool IsInk() const
    {
        Decode();
        return m_wordsPerRow > 0;
    }
    const quint32 *InkRow(int y) const { return m_ink.constData() + y * m_wordsPerRow; }
    QRgb InkColour() const { return m_colour; }

    /// The image as a pixmap, the same one at each call.
    const QPixmap &Pixmap() const;

private:
    void Decode() const
    {
        if (m_isEncoded)
            DecodeNow();
    }
    void DecodeNow() const;
    void FindSize() const;
    void Take(const QImage &image) const;
    bool TakeInk(const QImage &image) const;

    quint32 m_key = 0;
    // Filled by the first question.
    mutable bool m_isEncoded = false;
    mutable QByteArray m_encoded;
    mutable QSize m_size {0, 0};   // invalid where nobody asked for it yet
    mutable int m_wordsPerRow = 0; // of the ink; 0 where the image is no ink
    mutable QRgb m_colour = 0;
    mutable QVector<quint32> m_ink;
    mutable QPixmap m_pixmap; // of ink only once it was asked for
};

} // namespace Lw::HNodeClock
