#include "glyph/draw_source_image.h"

#include "glyph/fresh_ink.h"
#include "glyph/glyph_check.h"
#include "glyph/glyph_drawing.h"
#include "glyph/glyph_file.h"
#include "glyph/glyph_picture.h"
#include "glyph/guarded_node.h"
#include "glyph/hmd5.h"

#include "happconfig.h"

#include <QFileInfo>
#include <QFont>
#include <QPainter>

#include <functional>
#include <utility>

namespace Lw::HNodeClock {

/// A font and the settings it was made from.
struct GlyphFace
{
    QString family;
    int size;
    QFont font;
    QByteArray description;
};

struct GlyphRequest
{
    GlyphShape shape;
    QString text;
    QString family;
    int size; // points
    int colour;
    QString path;
    bool isTopText;                 ///< if there is nothing to draw, the file is removed
    std::function<bool()> isNeeded; ///< for the first frame; called if the image is drawn
};

namespace {

bool Holds(const QString &path, const DrawnGlyph &glyph)
{
    return glyph.file.isNull() ? FileHolds(path, glyph.facts.size, glyph.facts.digest)
                               : FileHolds(path, glyph.file);
}

bool CanBeDrawn(const GlyphRequest &request)
{
    return !request.text.isEmpty() && request.size <= kLargestFontSize;
}

GlyphContent ContentOf(const GlyphRequest &request, const GlyphFace &face)
{
    return {request.shape, request.text, face.description, request.colour};
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
    const GuardedNode guarded(node);
    m_clockType = guarded.ClockType();
    if (!guarded.Node())
        return;
    if (m_clockType == AnalogClock) {
        m_typePrefix = QLatin1String(kAnalogPrefix);
        m_topText = TopTextOf(*node);
        for (GlyphFont font : kAnalogFonts)
            ReadFont(guarded, font);
    } else if (m_clockType == DigitalClock) {
        m_typePrefix = QLatin1String(kDigitalPrefix);
        m_topText = TopTextOf(*node);
        for (GlyphFont font : kDigitalFonts)
            ReadFont(guarded, font);
    }
}

void DrwSourceIMage::ReadFont(const GuardedNode &node, GlyphFont font)
{
    const GlyphFontAttributes attributes = FontAttributes(font, m_clockType);
    m_fonts[static_cast<int>(font)] = {node.Text(attributes.family), node.Number(attributes.size),
                                       node.Number(attributes.colour)};
}

void DrwSourceIMage::DrawClockSourceImage(HClockNode *node, bool calcMD5, bool isTempUpdate)
{
    if (!node)
        return;
    m_isTempUpdate = isTempUpdate;
    const GuardedNode guarded(node);
    if (guarded.ClockType() == PictureClock)
        return;
    m_calcMd5 = calcMD5;
    InitParameters(guarded.Node());
    const QString id = QString::number(guarded.Number(Attribute::Id));
    if (!guarded.Node())
        return;
    QVector<Lw::GlyphFault> faults;
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, m_clockType)) {
        const GlyphOutcome outcome = DrawGlyph(node, image, id);
        if (!guarded.Node())
            return;
        if (const auto fault = FaultOf(image, outcome, *node))
            faults.append(*fault);
        if (!guarded.Node())
            return;
    }
    Lw::SetGlyphFaults(*node, faults);
}

GlyphRequest DrwSourceIMage::RequestFor(const GlyphImage &image, const QString &id) const
{
    const FontSettings &font = m_fonts[static_cast<int>(image.row->font)];
    const QString path = PathOf(image.row->shape, id, image.Key() + QLatin1String(kGlyphSuffix));
    return {image.row->shape,
            GlyphText(image, m_topText),
            font.family,
            font.size,
            font.colour,
            path,
            image.row->glyph == Glyph::TopText,
            {}};
}

GlyphOutcome DrwSourceIMage::DrawGlyph(HClockNode *node, const GlyphImage &image, const QString &id)
{
    GlyphRequest request = RequestFor(image, id);
    request.isNeeded = [node, &image] { return node && IsNeeded(image, *node); };
    return Make(node, image.Key(), request);
}

std::optional<UnencodedGlyph> DrwSourceIMage::DrawUnencoded(const GlyphImage &image,
                                                            const QString &id)
{
    const GlyphRequest request = RequestFor(image, id);
    if (!CanBeDrawn(request))
        return std::nullopt;
    const GlyphFace &face = FaceFor(request.family, request.size);
    const GlyphContent content = ContentOf(request, face);
    const DrawnGlyph known = GlyphCache::Shared().Find(content);
    const bool isThere =
        known.state == GlyphState::Drawn && (!known.file.isNull() || Holds(request.path, known));
    if (isThere)
        return std::nullopt;
    UnencodedPicture picture = DrawGlyphPicture(*m_painter, content, face.font);
    if (picture.state != GlyphState::Drawn)
        return std::nullopt;
    return UnencodedGlyph {content, std::move(picture)};
}

void DrwSourceIMage::DrawImage(HClockNode *node, QString key, QString text, QString id,
                               QString family, int size, int colour, QString fileSuffix)
{
    const QString path = PathOf(GlyphShape::Text, id, fileSuffix);
    Make(node, key,
         {GlyphShape::Text, text, family, size, colour, path, IsTopTextFile(key, fileSuffix), {}});
}

void DrwSourceIMage::DrawNumberImage(HClockNode *node, QString key, QString id, QString family,
                                     int size, int colour, QString fileSuffix)
{
    const QString path = PathOf(GlyphShape::DigitStrip, id, fileSuffix);
    Make(node, key,
         {GlyphShape::DigitStrip, QLatin1String(kDigits), family, size, colour, path, false, {}});
}

// Digit strips are always in the regular directory, shared by a program and its temporary updates.
QString DrwSourceIMage::PathOf(GlyphShape shape, const QString &id, const QString &suffix) const
{
    const bool isTemporary = m_isTempUpdate && shape == GlyphShape::Text;
    return (isTemporary ? HAppConfig::TempProgramImagePath() : HAppConfig::ClockOutputPath())
        + m_typePrefix + id + suffix;
}

// If the top text is empty, its file is removed; otherwise the previous text would stay on the
// wall.
GlyphOutcome DrwSourceIMage::Make(HClockNode *node, const QString &key, const GlyphRequest &request)
{
    const GuardedNode guarded(node);
    GlyphOutcome outcome = DrawAndWrite(request);
    outcome.path = request.path;
    outcome.text = request.text;
    if (outcome.state == GlyphState::Nothing && request.isTopText)
        RemoveImageFile(request.path);
    Record(guarded.Node(), key, request.path);
    return outcome;
}

/// Draws the image unless it is cached, and writes it unless the file already has it.
GlyphOutcome DrwSourceIMage::DrawAndWrite(const GlyphRequest &request)
{
    GlyphOutcome outcome;
    if (request.text.isEmpty())
        outcome.state = GlyphState::Nothing;
    if (!CanBeDrawn(request))
        return outcome;
    const GlyphFace &face = FaceFor(request.family, request.size);
    const GlyphContent content = ContentOf(request, face);
    GlyphCache &cache = GlyphCache::Shared();
    DrawnGlyph glyph = cache.Find(content);
    bool isThere = glyph.state == GlyphState::Drawn && Holds(request.path, glyph);
    if (!isThere && glyph.file.isNull()) {
        const UnencodedPicture picture = DrawGlyphPicture(*m_painter, content, face.font);
        glyph = EncodeGlyphPicture(picture);
        cache.Keep(content, glyph);
        isThere = Holds(request.path, glyph);
        if (glyph.state == GlyphState::Drawn && request.isNeeded && request.isNeeded())
            FreshInk::OfThread().Keep(glyph.file, picture.image);
    }
    if (!isThere && glyph.state == GlyphState::Drawn)
        // A file under its digest's name is never written again, so it must be complete on disk.
        outcome.error = WriteImageFile(request.path, glyph.file,
                                       m_calcMd5 ? Durability::Synced : Durability::Ordinary);
    outcome.state = glyph.state;
    outcome.facts = glyph.facts;
    return outcome;
}

// Looking up a font costs as much as drawing with it, and up to twelve consecutive images use the
// same one.
const GlyphFace &DrwSourceIMage::FaceFor(const QString &family, int size)
{
    if (!m_face || m_face->family != family || m_face->size != size) {
        const QFont font = GlyphTypeface(family, size);
        m_face.reset(new GlyphFace {family, size, font, FontIdentity(font)});
    }
    return *m_face;
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
    return ColourOf(colour);
}

} // namespace Lw::HNodeClock
