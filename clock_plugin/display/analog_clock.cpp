#include "display/analog_clock.h"

#include "calendar/device_clock.h"
#include "compose/picture_file.h"
#include "display/draw_display_image.h"
#include "display/row_placement.h"

#include "happconfig.h"

#include <algorithm>

namespace Lw::HNodeClock {

QPoint hourHand[3];
QPoint minuteHand[3];
QPoint secondHand[3];

namespace {

struct HandRow
{
    Hand hand;
    Attribute type;
    Attribute colour;
};

// In the order of painting: the second hand is above the others.
constexpr HandRow kHandRows[] = {
    {Hand::Hour, Attribute::HourRectType, Attribute::HourHandColor},
    {Hand::Minute, Attribute::MinuteRectType, Attribute::MinuteHandColor},
    {Hand::Second, Attribute::SecondRectType, Attribute::SecondHandColor},
};

// The host asks for antialiased hands by its image format.
bool Antialiasing()
{
    return HAppConfig::instance()->RenderImageFormat() == QImage::Format_ARGB32;
}

// The outline as the rasteriser sees it, rounded to 1/64 pixel. In most seconds the hour hand moves
// less than that.
void AppendRasterised(HandCache::CacheKey &key, const QPolygonF &outline)
{
    constexpr int kGrid = 64;
    for (const QPointF &point : outline) {
        key.append(qRound(point.x() * kGrid));
        key.append(qRound(point.y() * kGrid));
    }
}

} // namespace

void FillHandTriangles(int size)
{
    const HandTriangles triangles = TrianglesFor(size);
    std::copy(triangles.hour.begin(), triangles.hour.end(), hourHand);
    std::copy(triangles.minute.begin(), triangles.minute.end(), minuteHand);
    std::copy(triangles.second.begin(), triangles.second.end(), secondHand);
}

void AnalogFace::Draw()
{
    const QSize size = m_shared.Size();
    if (!m_shared.node)
        return;
    QImage &frame = m_shared.frames.TakeNext(size);
    RefreshDial(size);
    if (!m_dial.isNull())
        m_memory.Restore(frame, m_dial);
    else if (!frame.isNull())
        frame.fill(FramePair::KeyColour());
    DrawHands();
    DrawTexts();
}

void AnalogFace::RefreshDial(const QSize &size)
{
    if (!m_dial.isNull() && m_dialDate == LocalDate() && m_dial.size() == size
        && m_dialHalf == m_shared.composer.GetTimeAP())
        return;
    m_dial = FramePair::NewImage(size);
    DrawDial();
    DrawBadge();
    // A copy has no paint engine; this releases the engine's memory.
    const QImage copy = m_dial.copy();
    if (!copy.isNull())
        m_dial = copy;
    m_dialDate = LocalDate();
}

void AnalogFace::DrawDial()
{
    if (m_dial.isNull())
        return;
    MarkStyle style;
    style.hourScale = m_shared.Number(Attribute::HourScaleType);
    style.minuteScale = m_shared.Number(Attribute::MinuteScaleType);
    style.hourColour = m_shared.Colour(Attribute::HourScaleColor);
    style.minuteColour = m_shared.Colour(Attribute::MinuteScaleColor);
    const bool numerals = style.hourScale == TwelveNumerals || style.hourScale == FourNumerals;
    const QPixmap strip =
        numerals ? ReadPixmapFile(m_shared.File(Glyph::HourhandNumber)) : QPixmap();
    const double radius = DialRadius(m_dial.size());

    QPainter &painter = m_shared.painter;
    painter.begin(&m_dial);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.translate(Centre(m_dial.size()));
    PaintMarks(painter, radius, style);
    PaintNumerals(painter, style.hourScale, radius, strip, FramePair::KeyColour());
    painter.end();
}

void AnalogFace::DrawBadge()
{
    m_dialHalf = m_shared.composer.GetTimeAP();
    if (m_shared.Number(Attribute::Analog_AMPM_d) != 1 || m_dial.isNull())
        return;
    const Glyph glyph = m_dialHalf == QLatin1String("AM") ? Glyph::AnalogAM : Glyph::AnalogPM;
    const QPixmap badge = ReadPixmapFile(m_shared.File(glyph));
    const QSize size = m_shared.Size();
    if (badge.isNull())
        return;
    m_shared.painter.begin(&m_dial);
    m_shared.painter.drawPixmap(BadgePlace(size, badge.size()), badge);
    m_shared.painter.end();
}

void AnalogFace::CountRepeatedSecond()
{
    if (m_shared.now.second == m_lastSecond)
        ++m_repeatedSeconds;
    m_lastSecond = m_shared.now.second;
}

void AnalogFace::DrawHands()
{
    const QSize size = m_shared.Size();
    FillHandTriangles(std::min(size.width(), size.height()));
    CountRepeatedSecond();
    QImage &frame = m_shared.frames.Frame();
    if (frame.isNull())
        return;
    m_smooth = Antialiasing();
    const double radius = HandRadius(frame.size());
    FrameMemory::Painting painting(m_memory, frame);
    bool anyArrow = false;
    for (int i = 0; i < kHands; ++i)
        anyArrow = DrawHand(i, radius, painting) == ArrowHand || anyArrow;
    FlatShape cap;
    cap.disc = CentreCap(radius, anyArrow);
    cap.colour = m_shared.Colour(Attribute::SecondHandColor);
    PutShape(cap, m_cap, 0, painting);
    if (m_shared.painter.isActive())
        m_shared.painter.end();
}

// Returns the hand's type.
int AnalogFace::DrawHand(int index, double radius, FrameMemory::Painting &painting)
{
    const HandRow &row = kHandRows[index];
    const DisplayedFields &now = m_shared.now;
    const int type = m_shared.Number(row.type);
    const HandShape shape = ShapeOf(row.hand, type, radius);
    FlatShape flat;
    flat.outline = shape.outline;
    flat.degrees = HandAngle(row.hand, now.hour, now.minute, now.second);
    flat.colour = m_shared.Colour(row.colour);
    PutShape(flat, m_hands[index], row.hand == Hand::Second ? now.second : 0, painting);
    // A thin pen paints some pixels of a ring twice, so the ring cannot be cached.
    if (shape.ring.radius > 0)
        painting.RecordPainted(PaintRing(Painter(), shape.ring, flat.degrees, flat.colour));
    return type;
}

void AnalogFace::PutShape(const FlatShape &shape, HandCache &cache, int position,
                          FrameMemory::Painting &painting)
{
    if (shape.IsEmpty())
        return;
    const QSize size = m_shared.frames.Frame().size();
    const QPoint centre = Centre(size);
    const bool isTurned = !cache.HasPositions() && shape.disc.isEmpty();
    HandCache::CacheKey key;
    key.append(size.width());
    key.append(size.height());
    key.append(shape.colour.rgb());
    key.append(m_smooth);
    key.append(shape.disc.width());
    AppendRasterised(key, isTurned ? OutlineOn(centre, shape) : shape.outline);
    const CachedShape *const cached = cache.At(key, position, CacheLimit(size), [&] {
        const QPolygonF outline = OutlineOn(centre, shape);
        return m_canvas.Cache(outline, shape.colour, m_smooth, size,
                              [&](QPainter &painter, const QPoint &place) {
                                  PaintFlatFrom(painter, place, centre, shape, outline);
                              });
    });
    if (cached) {
        painting.Blend(*cached);
    } else {
        PaintFlat(Painter(), shape);
        painting.RecordPainted(OutlineOn(centre, shape));
    }
}

// Begins painting on first use; DrawHands() ends it.
QPainter &AnalogFace::Painter()
{
    QPainter &painter = m_shared.painter;
    if (!painter.isActive()) {
        QImage &frame = m_shared.frames.Frame();
        painter.begin(&frame);
        painter.setRenderHint(QPainter::Antialiasing, m_smooth);
        painter.translate(Centre(frame.size()));
    }
    return painter;
}

void AnalogFace::PlaceRows()
{
    LayOutAnalog(*m_shared.node, m_shared.Elements(), m_shared.tops);
}

void AnalogFace::DrawTexts()
{
    if (m_dial.isNull() || !m_shared.node)
        return;
    const Placements rows = PlaceAnalog(*m_shared.node, m_shared.Elements(), m_shared.tops);
    const qint64 keyBefore = m_dial.cacheKey();
    const QRegion changed = m_texts.Paint(m_dial, rows);
    m_memory.BackgroundChanged(keyBefore, m_dial, changed);
}

} // namespace Lw::HNodeClock
