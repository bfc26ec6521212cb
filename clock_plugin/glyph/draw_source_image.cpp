#include "glyph/draw_source_image.h"

#include "glyph/glyph_file.h"
#include "glyph/glyph_picture.h"
#include "glyph/hmd5.h"
#include "image_bounds.h"

#include "happconfig.h"

#include <QFileInfo>
#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace Lw::HNodeClock {

namespace {

constexpr int kTooWide = kImageSide + 1;

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
    return size <= kLargestFontSize ? GlyphTextWidth(QFontMetrics(Typeface(family, size)), text)
                                    : kTooWide;
}

void DrwSourceIMage::DrawText(const QString &text, int width, const QString &family, int size,
                              int colour, const QString &path)
{
    if (width >= kTooWide)
        return;
    const QFont &font = Typeface(family, size);
    QPixmap pixmap = EmptyPicture(font, width);
    if (pixmap.isNull())
        return;
    BeginText(*m_painter, pixmap, font, IntToQColor(colour), text);
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
        QPixmap pixmap = EmptyPicture(font, kDigitCells * WidestDigit(QFontMetrics(font)));
        if (!pixmap.isNull()) {
            BeginDigits(*m_painter, pixmap, font, IntToQColor(colour));
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
    return WidestDigit(metrics);
}

QColor DrwSourceIMage::IntToQColor(int colour)
{
    const auto packed = static_cast<LWColor>(colour);
    return QColor(RedOf(packed), GreenOf(packed), BlueOf(packed));
}

} // namespace Lw::HNodeClock
