#include "glyph/draw_source_image.h"

#include "glyph/glyph_file.h"
#include "glyph/hmd5.h"
#include "image_bounds.h"

#include "happconfig.h"

#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

constexpr int kDefaultPoints = 12;

constexpr int kTooWide = kImageSide + 1;
// Qt's text widths overflow at 2^25 pixels: so many characters stay below it at every size.
constexpr int kMeasuredAtOnce = 256;

/// Without antialiasing, so that every pixel is either background or stroke.
QFont GlyphTypeface(const QString &family, int size)
{
    QFont font = QGuiApplication::font();
    if (!family.isEmpty())
        font = QFont(family);
    font.setPointSize(size > 0 ? size : kDefaultPoints);
    font.setWeight(QFont::Normal);
    font.setItalic(false);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

int AdvanceWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// The advance width of a text; for one that is far too wide for an image, a width that is.
int TextWidth(const QFontMetrics &metrics, const QString &text)
{
    if (text.size() > kMeasuredAtOnce) {
        qint64 estimate = 0;
        for (int at = 0; at < text.size() && estimate <= 2 * kImageSide; at += kMeasuredAtOnce)
            estimate += AdvanceWidth(metrics, text.mid(at, kMeasuredAtOnce));
        if (estimate > 2 * kImageSide)
            return kTooWide;
    }
    return AdvanceWidth(metrics, text);
}

/// Null for a size that is empty or beyond the bounds.
QPixmap TransparentPixmap(int width, int height)
{
    if (!WithinBounds({width, height}, kGlyphBytes))
        return QPixmap();
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

bool IsTopTextFile(const QString &key, const QString &fileSuffix)
{
    return key == GlyphKey(Glyph::TopText) && fileSuffix == key + QLatin1String(kGlyphSuffix);
}

constexpr GlyphFont kAnalogFonts[] = {GlyphFont::TopText, GlyphFont::AmPm,  GlyphFont::Date,
                                      GlyphFont::Week,    GlyphFont::Lunar, GlyphFont::HourScale};
constexpr GlyphFont kDigitalFonts[] = {GlyphFont::TopText, GlyphFont::Date, GlyphFont::Week,
                                       GlyphFont::Lunar, GlyphFont::Time};

} // namespace

DrwSourceIMage::DrwSourceIMage() : m_painter(new QPainter) { }

DrwSourceIMage::~DrwSourceIMage() = default;

void DrwSourceIMage::InitParameters(HClockNode *node)
{
    if (!node)
        return;
    m_clockType = node->GetAttributeToInt(Key(Attribute::ClockType));
    if (m_clockType == AnalogClock) {
        m_typePrefix = QLatin1String(kAnalogPrefix);
        m_topText = node->GetAttribute(Key(Attribute::AnalogTopText));
        for (GlyphFont font : kAnalogFonts)
            ReadFont(node, font);
    } else if (m_clockType == DigitalClock) {
        m_typePrefix = QLatin1String(kDigitalPrefix);
        m_topText = node->GetAttribute(Key(Attribute::DigitalTopText));
        for (GlyphFont font : kDigitalFonts)
            ReadFont(node, font);
    }
}

void DrwSourceIMage::ReadFont(HClockNode *node, GlyphFont font)
{
    const GlyphFontAttributes attributes = FontAttributes(font, m_clockType);
    m_fonts[static_cast<int>(font)] = {node->GetAttribute(Key(attributes.family)),
                                       node->GetAttributeToInt(Key(attributes.size)),
                                       node->GetAttributeToInt(Key(attributes.colour))};
}

void DrwSourceIMage::DrawClockSourceImage(HClockNode *node, bool calcMD5, bool isTempUpdate)
{
    if (!node)
        return;
    m_isTempUpdate = isTempUpdate;
    if (node->ClockType() == PictureClock)
        return;
    m_calcMd5 = calcMD5;
    InitParameters(node);
    const QString id = QString::number(node->GetAttributeToInt(Key(Attribute::Id)));
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, m_clockType))
        DrawGlyph(node, image, id);
}

void DrwSourceIMage::DrawGlyph(HClockNode *node, const GlyphImage &image, const QString &id)
{
    const FontSettings &font = m_fonts[static_cast<int>(image.row->font)];
    const QString &key = image.Key();
    const QString fileSuffix = key + QLatin1String(kGlyphSuffix);
    if (image.row->shape == GlyphShape::DigitStrip)
        DrawNumberImage(node, key, id, font.family, font.size, font.colour, fileSuffix);
    else
        DrawImage(node, key, TextOf(image), id, font.family, font.size, font.colour, fileSuffix);
}

QString DrwSourceIMage::TextOf(const GlyphImage &image) const
{
    switch (image.row->wording) {
    case GlyphWording::TopText:
        return m_topText;
    case GlyphWording::Translated:
        return tr(image.Text());
    case GlyphWording::Verbatim:
        break;
    }
    return QString::fromLatin1(image.Text());
}

// An empty top text has to clear the wall: without a removal the text before it would stay there.
void DrwSourceIMage::DrawImage(HClockNode *node, QString key, QString text, QString id,
                               QString family, int size, int colour, QString fileSuffix)
{
    const QString directory =
        m_isTempUpdate ? HAppConfig::TempProgramImagePath() : HAppConfig::ClockOutputPath();
    const QString path = directory + m_typePrefix + id + fileSuffix;
    const int width = WidthOf(text, family, size);
    if (width > 0)
        DrawText(text, width, family, size, colour, path);
    else if (IsTopTextFile(key, fileSuffix))
        RemovePng(path);
    Record(node, key, path);
}

int DrwSourceIMage::WidthOf(const QString &text, const QString &family, int size)
{
    if (text.isEmpty())
        return 0;
    return size <= kLargestFontSize ? TextWidth(QFontMetrics(Typeface(family, size)), text) : kTooWide;
}

void DrwSourceIMage::DrawText(const QString &text, int width, const QString &family, int size,
                              int colour, const QString &path)
{
    if (width >= kTooWide)
        return;
    const QFont &font = Typeface(family, size);
    QPixmap pixmap = TransparentPixmap(width, QFontMetrics(font).height());
    if (pixmap.isNull())
        return;
    BeginGlyphs(&pixmap, font, colour);
    m_painter->drawText(pixmap.rect(), Qt::AlignCenter, text);
    // Saved while the painter is still at work on it; a strip, after it has ended.
    Save(pixmap, path);
    m_painter->end();
}

void DrwSourceIMage::DrawNumberImage(HClockNode *node, QString key, QString id, QString family,
                                     int size, int colour, QString fileSuffix)
{
    // Always the regular directory: strips are shared by a program and its temporary updates.
    const QString path = HAppConfig::ClockOutputPath() + m_typePrefix + id + fileSuffix;
    if (size <= kLargestFontSize) {
        const QFont &font = Typeface(family, size);
        const QFontMetrics metrics(font);
        const int cell = GetNumberMaxWidth(metrics);
        QPixmap pixmap = TransparentPixmap(kDigitCells * cell, metrics.height());
        if (!pixmap.isNull()) {
            BeginGlyphs(&pixmap, font, colour);
            for (int digit = 0; digit < kDigitCells; ++digit)
                m_painter->drawText(QRect(digit * cell, 0, cell, pixmap.height()), Qt::AlignCenter,
                                    QString::number(digit));
            m_painter->end();
            Save(pixmap, path);
        }
    }
    Record(node, key, path);
}

// Looking a font up costs as much as drawing with it, and up to twelve images in turn use one.
const QFont &DrwSourceIMage::Typeface(const QString &family, int size)
{
    if (!m_typeface || m_typefaceFamily != family || m_typefaceSize != size) {
        m_typeface.reset(new QFont(GlyphTypeface(family, size)));
        m_typefaceFamily = family;
        m_typefaceSize = size;
    }
    return *m_typeface;
}

void DrwSourceIMage::BeginGlyphs(QPixmap *pixmap, const QFont &font, int colour)
{
    m_painter->begin(pixmap);
    m_painter->setFont(font);
    m_painter->setPen(IntToQColor(colour));
}

void DrwSourceIMage::Save(const QPixmap &pixmap, const QString &path)
{
    // A file under its digest's name is taken for good and never replaced, so it had better be.
    SavePng(pixmap, path, m_calcMd5 ? Durability::Forced : Durability::Ordinary);
}

void DrwSourceIMage::Record(HClockNode *node, const QString &key, const QString &path)
{
    if (!node)
        return;
    if (!m_calcMd5) {
        node->SetFilePath(key, path, QString(), -1, kImageFileKind);
        return;
    }
    const QString digested = HMD5::GeneratorFile(path);
    const QFileInfo file(digested);
    const bool readable = !digested.isEmpty();
    node->SetFilePath(key, digested, readable ? file.baseName() : QString(),
                      readable ? file.size() : 0, kImageFileKind);
}

int DrwSourceIMage::GetNumberMaxWidth(QFontMetrics metrics)
{
    int widest = 0;
    for (int digit = 0; digit < kDigitCells; ++digit)
        widest = std::max(widest, AdvanceWidth(metrics, QString::number(digit)));
    return widest;
}

QColor DrwSourceIMage::IntToQColor(int colour)
{
    const auto packed = static_cast<LWColor>(colour);
    return QColor(RedOf(packed), GreenOf(packed), BlueOf(packed));
}

} // namespace Lw::HNodeClock
