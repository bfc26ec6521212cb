// fuzz/: target: a clock plays while everything about it changes: attributes of any key and value,
// its size, the time, its glyph images and held frames; every operation of its drawer is called.
#include "fuzz_input.h"
#include "fuzz_scene.h"
#include "fuzz_target.h"

#include "clock_attributes.h"
#include "compose/draw_clock_classify_image.h"
#include "display/draw_display_image.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"

#include "happconfig.h"

#include <QImage>
#include <QScopedPointer>

#include <array>

using namespace Lw::HNodeClock;

namespace {

constexpr int kMaxSteps = 64;
constexpr int kMaxSets = 1; // of glyph images, which take longer than everything else together

/// Inputs of the corpus select these by index, so new ones are appended.
using DrawerOperation = void (*)(DrawDisplayImage &drawer, int space);
constexpr std::array<DrawerOperation, 13> kDrawerOperations = {
    [](DrawDisplayImage &drawer, int) { drawer.GetAngDisplayArea(); },
    [](DrawDisplayImage &drawer, int) { drawer.DrawAnalogClock(); },
    [](DrawDisplayImage &drawer, int) { drawer.DrawAnalogClockDial(); },
    [](DrawDisplayImage &drawer, int space) { drawer.SetHandSize(space); },
    [](DrawDisplayImage &drawer, int) { drawer.GetDigitalDisplayArea(); },
    [](DrawDisplayImage &drawer, int) { drawer.Computations1Count(); },
    [](DrawDisplayImage &drawer, int space) { drawer.Computations2Count(space); },
    [](DrawDisplayImage &drawer, int space) { drawer.Computations3Count(space); },
    [](DrawDisplayImage &drawer, int space) { drawer.Computations4Count(space); },
    [](DrawDisplayImage &drawer, int space) { drawer.Computations5Count(space); },
    [](DrawDisplayImage &drawer, int) { drawer.DrawDigitalClock(); },
    [](DrawDisplayImage &drawer, int) { drawer.InitClockTypePixmap(); },
    [](DrawDisplayImage &drawer, int) { drawer.DrawPixmapClock(); },
};

class Player
{
public:
    explicit Player(Fuzz::Input input) : m_input(input), m_node(new HClockNode)
    {
        Lw::HAppConfig::SetRenderImageFormat(QImage::Format_RGB32);
        Fuzz::SetTime(1709644062000); // 2024-03-05T13:07:42Z
        Fuzz::MakeScene(*m_node, m_input.Choice(4) - 1);
        m_drawer.reset(new DrawDisplayImage(m_node.data()));
    }

    void Play()
    {
        for (int step = 0; step < kMaxSteps && !m_input.AtEnd(); ++step)
            Step();
        Draw();
        CompareWithFreshDrawer();
    }

private:
    void Step()
    {
        using Action = void (Player::*)();
        static constexpr std::array<Action, 16> kActions = {
            &Player::SetNumber, &Player::SetNumber,   &Player::SetText,    &Player::SetSize,
            &Player::SetTime,   &Player::AdvanceTime, &Player::Draw,       &Player::Draw,
            &Player::SetUp,     &Player::MakeGlyphs,  &Player::SwapGlyphs, &Player::LoseGlyph,
            &Player::HoldFrame, &Player::SetFormat,   &Player::CallDrawer, &Player::DeleteNode,
        };
        (this->*kActions[static_cast<std::size_t>(m_input.Choice(kActions.size()))])();
    }

    Attribute AnyAttribute() { return static_cast<Attribute>(m_input.Choice(kAttributeCount)); }

    void SetNumber()
    {
        const Attribute attribute = AnyAttribute();
        const int value = m_input.Number();
        if (m_node)
            m_node->SetAttribute(Key(attribute), value, false);
    }

    void SetText()
    {
        const Attribute attribute = AnyAttribute();
        const QString value = m_input.Text();
        if (m_node)
            m_node->SetAttribute(Key(attribute), value, false);
    }

    // Most sizes are small: a large frame takes as long as a hundred others.
    void SetSize()
    {
        const bool isAny = m_input.Choice(16) == 1;
        const int width = isAny ? m_input.Number() : m_input.Byte();
        const int height = isAny ? m_input.Number() : m_input.Byte();
        if (m_node)
            m_node->SetSize(QSize(width, height));
    }

    void SetTime() { Fuzz::SetTime(m_input.LongNumber()); }
    void AdvanceTime() { Fuzz::AdvanceTime(m_input.Byte() * 100); }

    void Draw()
    {
        const QImage frame = m_drawer->DrawClockDisplayImage();
        if (!m_node || frame.isNull())
            return;
        const int type = m_node->ClockType();
        if (type == AnalogClock || type == DigitalClock || type == PictureClock)
            Fuzz::Expect(frame.size() == m_node->Size(), "a frame has the node's size");
    }

    void SetUp() { m_drawer->ReLoadSourceFile(m_node.data()); }

    void MakeGlyphs()
    {
        if (m_input.Choice(8) != 1 || !m_node || m_sets++ == kMaxSets)
            return;
        m_node->NodeAlready(0);
        SetUp();
    }

    void SwapGlyphs()
    {
        const QString key = AnyGlyph();
        const QString other = AnyGlyph();
        if (m_node)
            m_node->SetFilePath(key, m_node->GetFirstFile(other), QString(), -1, kImageFileKind);
    }

    void LoseGlyph()
    {
        const QString key = AnyGlyph();
        if (m_node)
            m_node->SetFilePath(key, Fuzz::Directory(), QString(), -1, kImageFileKind);
    }

    QString AnyGlyph()
    {
        static const QVector<GlyphImage> glyphs = GlyphImages(GlyphOrder::Generation, DigitalClock);
        return glyphs[m_input.Choice(glyphs.size())].Key();
    }

    void HoldFrame()
    {
        m_held = m_input.Choice(2) ? m_drawer->DrawClockDisplayImage() : QImage();
        if (m_input.Choice(4) == 1 && !m_held.isNull())
            m_held.fill(Qt::red); // detaches the held copy
    }

    void SetFormat()
    {
        Lw::HAppConfig::SetRenderImageFormat(m_input.Choice(QImage::NImageFormats));
    }

    void CallDrawer()
    {
        const int space = m_input.Number();
        const auto choice = static_cast<std::size_t>(m_input.Choice(kDrawerOperations.size() + 1));
        if (choice < kDrawerOperations.size())
            kDrawerOperations[choice](*m_drawer, space);
        else
            ComposeElements();
    }

    void ComposeElements()
    {
        DrawClockClassifyImage composer;
        composer.InitParameters(m_node.data());
        QDateTime reading;
        composer.CalculateTimeZone(reading);
        composer.GetDatePixmap();
        composer.GetTimePixmap();
        composer.GetTimeAP();
        composer.GetWeeKPixmap();
        composer.GetLunarPixmap();
        composer.GetTopTextPixmap();
    }

    void DeleteNode() { m_node.reset(); }

    // A digital frame depends only on the settings, not on what the drawer has cached.
    // An invalid week code is left out: it keeps the images of the code before, which a fresh
    // drawer does not have.
    void CompareWithFreshDrawer()
    {
        if (!m_node || m_node->ClockType() != DigitalClock)
            return;
        const int week = m_node->GetAttributeToInt(Key(Attribute::DigitalWeekType));
        if (week < 0 || week > 3)
            return;
        SetUp();
        const QImage kept = m_drawer->DrawClockDisplayImage();
        DrawDisplayImage fresh(m_node.data());
        Fuzz::Expect(kept == fresh.DrawClockDisplayImage(), "a cached frame equals a fresh one");
    }

    Fuzz::Input m_input;
    QScopedPointer<HClockNode> m_node;
    QScopedPointer<DrawDisplayImage> m_drawer;
    QImage m_held;
    int m_sets = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Player(Fuzz::Input(data, size)).Play();
    Fuzz::EmptyDirectory();
    return 0;
}
