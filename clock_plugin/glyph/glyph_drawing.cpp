#include "glyph/glyph_drawing.h"

#include "glyph/glyph_picture.h"
#include "glyph/ink.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <optional>

namespace Lw::HNodeClock {

namespace {

QByteArray EncodePng(const QImage &image)
{
    QByteArray png;
    QBuffer buffer(&png);
    const bool encoded = buffer.open(QBuffer::WriteOnly) && image.save(&buffer, "png");
    return encoded ? png : QByteArray();
}

// In one colour without soft edges, both formats have the same pixels; Qt need not convert ARGB32.
// Shares the image's pixels. They are only read, but Qt's setters would copy constant ones.
QImage AsArgb32(const QImage &image)
{
    QImage same(const_cast<uchar *>(image.constBits()), image.width(), image.height(),
                image.bytesPerLine(), QImage::Format_ARGB32);
    same.setDotsPerMeterX(image.dotsPerMeterX());
    same.setDotsPerMeterY(image.dotsPerMeterY());
    return same;
}

// Pixels of soft edges are ink too, and so is an image without alpha.
bool HasInk(const QImage &image)
{
    if (image.depth() != 32)
        return true;
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; }))
            return true;
    }
    return false;
}

/// A null image if there is no memory for it.
UnencodedPicture Finished(QPainter &painter, const QPixmap &picture)
{
    painter.end();
    const QImage image = picture.toImage();
    return {image.isNull() ? GlyphState::TooLarge : GlyphState::Drawn, image, {}};
}

UnencodedPicture DrawText(QPainter &painter, const QFont &font, const QString &text,
                          const QColor &colour)
{
    const int width = GlyphTextWidth(QFontMetrics(font), text);
    if (width <= 0)
        return {GlyphState::Nothing, {}, {}};
    QPixmap picture = EmptyPicture(font, width);
    if (picture.isNull())
        return {};
    BeginText(painter, picture, font, colour, text);
    return Finished(painter, picture);
}

UnencodedPicture DrawStrip(QPainter &painter, const QFont &font, const QColor &colour)
{
    QPixmap picture = EmptyPicture(font, kDigitCells * WidestDigit(QFontMetrics(font)));
    if (picture.isNull())
        return {};
    BeginDigits(painter, picture, font, colour);
    return Finished(painter, picture);
}

/// Whether a character is visible, so that its absence matters.
bool IsSeen(uint letter)
{
    const QChar::Category category = QChar::category(letter);
    return !QChar::isSpace(letter) && category != QChar::Other_Control
        && category != QChar::Other_Format;
}

/// The distinct characters of a text that no installed font has; boxes are drawn for them.
QString CharactersWithoutGlyph(const QFontMetrics &metrics, const QString &text)
{
    QString lacking;
    for (const char32_t letter : text.toUcs4()) {
        const QString written = QString::fromUcs4(&letter, 1);
        if (IsSeen(letter) && !metrics.inFontUcs4(letter) && !lacking.contains(written))
            lacking += written;
    }
    return lacking;
}

} // namespace

UnencodedPicture DrawGlyphPicture(QPainter &painter, const GlyphContent &content, const QFont &font)
{
    const QColor colour = ColourOf(content.colour);
    UnencodedPicture drawn = content.shape == GlyphShape::DigitStrip
        ? DrawStrip(painter, font, colour)
        : DrawText(painter, font, content.text, colour);
    if (drawn.state == GlyphState::Drawn)
        drawn.charactersWithoutGlyph = CharactersWithoutGlyph(QFontMetrics(font), content.text);
    return drawn;
}

DrawnGlyph EncodeGlyphPicture(const UnencodedPicture &picture)
{
    DrawnGlyph glyph;
    glyph.state = picture.state;
    if (picture.state != GlyphState::Drawn)
        return glyph;
    const std::optional<QRgb> colour = InkColourOf(picture.image);
    glyph.file = EncodePng(colour ? AsArgb32(picture.image) : picture.image);
    if (glyph.file.isEmpty())
        return {};
    glyph.facts.size = glyph.file.size();
    glyph.facts.digest = QCryptographicHash::hash(glyph.file, QCryptographicHash::Sha1);
    glyph.facts.hasInk = colour ? *colour != 0 : HasInk(picture.image);
    glyph.facts.charactersWithoutGlyph = picture.charactersWithoutGlyph;
    return glyph;
}

} // namespace Lw::HNodeClock
