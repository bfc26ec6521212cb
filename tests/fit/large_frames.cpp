#include "large_frames.h"

#include "chosen_time.h"

using namespace ClockFit;
using namespace Lw::HNodeClock;
using A = Attribute;

namespace {

constexpr int kSpread = 60; // more than rows are over each other

// Lines that end within a pixel may be blended onto the key colour, by a level.
bool IsNear(QRgb pixel, QRgb colour)
{
    constexpr int kLevels = 2;
    return qAbs(qRed(pixel) - qRed(colour)) <= kLevels
        && qAbs(qGreen(pixel) - qGreen(colour)) <= kLevels
        && qAbs(qBlue(pixel) - qBlue(colour)) <= kLevels;
}

int Count(const QImage &frame, QRgb colour)
{
    int pixels = 0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x)
            pixels += IsNear(frame.pixel(x, y), colour) ? 1 : 0;
    }
    return pixels;
}

// Sets attributes for as long as it lives.
class Changed
{
public:
    explicit Changed(HClockNode &node) : m_node(node) { }
    ~Changed()
    {
        for (auto it = m_before.cbegin(); it != m_before.cend(); ++it)
            m_node.SetAttribute(it.key(), it.value(), false);
    }
    Q_DISABLE_COPY(Changed)

    void Set(Attribute attribute, int value)
    {
        m_before.insert(Key(attribute), m_node.GetAttributeToInt(Key(attribute)));
        m_node.SetAttribute(Key(attribute), value, false);
    }

private:
    HClockNode &m_node;
    QMap<QString, int> m_before;
};

const QMap<Part, Attribute> kAnalogFlags = {{Part::TopText, A::Analog_TopTexy_d},
                                            {Part::Date, A::Analog_Date_d},
                                            {Part::Week, A::Analog_Week_d},
                                            {Part::Lunar, A::Analog_Lunar_d},
                                            {Part::Badge, A::Analog_AMPM_d}};

} // namespace

LargeFrames::LargeFrames(MadeUpClock &clock)
    : m_clock(clock), m_node(clock.node), m_area(clock.node.Size())
{
    if (m_node.ClockType() == AnalogClock) {
        m_dial = std::make_unique<PlainClock>(&m_node);
        m_margin = QSize(200, 200);
        return;
    }
    m_large = std::make_unique<DrawDisplayImage>(&m_node);
    m_own = std::make_unique<DrawDisplayImage>(&m_node);
    const bool onOneLine = m_node.GetAttributeToInt(Key(A::DigitalDisplayMode)) != 0;
    m_margin = onOneLine ? QSize(1000, 40) : QSize(320, 320);
}

QImage LargeFrames::Frame(qint64 utc)
{
    ChosenTime::Set(QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC));
    if (m_dial)
        return m_dial->Dial(m_margin.width());
    m_node.SetSize(m_area + 2 * m_margin);
    const QImage frame = m_large->DrawClockDisplayImage();
    m_node.SetSize(m_area);
    return frame;
}

QImage LargeFrames::OwnFrame(qint64 utc)
{
    ChosenTime::Set(QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC));
    return m_dial ? m_dial->Dial(0) : m_own->DrawClockDisplayImage();
}

// Turned marks that end half way through a pixel may be rounded otherwise where they are moved, and
// are left out.
QImage LargeFrames::WithoutMarks(QImage frame)
{
    for (int y = 0; m_dial && y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const QRgb pixel = frame.pixel(x, y);
            if (IsNear(pixel, ColourOf(Part::HourMarks))
                || IsNear(pixel, ColourOf(Part::MinuteMarks)))
                frame.setPixel(x, y, qRgb(1, 2, 1));
        }
    }
    return frame;
}

bool LargeFrames::AreaIsAPart(qint64 utc)
{
    const QPoint corner(m_margin.width(), m_margin.height());
    return WithoutMarks(OwnFrame(utc)) == WithoutMarks(Frame(utc).copy(QRect(corner, m_area)));
}

Inks LargeFrames::InkOfFrame(qint64 utc)
{
    Inks inks = InkOf(Frame(utc));
    for (FrameInk &ink : inks)
        ink.bounds.translate(-m_margin.width(), -m_margin.height());
    return inks;
}

Inks LargeFrames::At(qint64 utc)
{
    return InkOfFrame(utc);
}

// A digital clock's rows or elements further apart.
Inks LargeFrames::Spread(qint64 utc)
{
    Changed changed(m_node);
    changed.Set(A::DigitalSpace, m_node.GetAttributeToInt(Key(A::DigitalSpace)) + kSpread);
    return InkOfFrame(utc);
}

// What is not 0 or 1 counts in the layout and is not drawn. Marks are counted in the area's own
// frame, where they are whole.
int LargeFrames::Alone(Part part, qint64 utc)
{
    Changed changed(m_node);
    for (auto it = kAnalogFlags.cbegin(); it != kAnalogFlags.cend(); ++it) {
        if (it.key() != part && m_node.GetAttributeToInt(Key(it.value())) != 0)
            changed.Set(it.value(), 2);
    }
    if (kAnalogFlags.contains(part)) {
        changed.Set(A::HourScaleType, -1);
        changed.Set(A::MinuteScaleType, -1);
    }
    return Shown(part, utc);
}

int LargeFrames::Shown(Part part, qint64 utc)
{
    const QRgb colour = ColourOf(part);
    if (part == Part::MinuteMarks)
        return Count(OwnFrame(utc), colour);
    return InkOfFrame(utc).value(colour).pixels;
}

int LargeFrames::Uncovered(Part part, qint64 utc)
{
    return m_dial ? Alone(part, utc) : Spread(utc).value(ColourOf(part)).pixels;
}

QRgb LargeFrames::ColourOf(Part part)
{
    const int colour = m_node.GetAttributeToInt(Key(*ColourAttribute(part, m_node.ClockType())));
    return qRgb(colour & 255, colour >> 8 & 255, colour >> 16 & 255);
}
