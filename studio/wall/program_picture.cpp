#include "program_picture.h"

#include "live_wall.h"

#include "clock_finder.h"
#include "node_keys.h"
#include "stage.h"

#include <utility>

namespace ClockStudio {

namespace {

// Ids and play numbers not used by the clocks on the wall.
constexpr int kFirstIdentity = 90000;
constexpr unsigned int kFirstPlay = 0xf0000000U;

} // namespace

ProgramPicture::ProgramPicture(const QByteArray &bytes)
{
    const auto program = ClockProgram::ParseProgram(bytes, QString());
    if (!program)
        return;
    auto made = ClockProgram::MakeNodes(*program, ClockTool::FindClockPlugin);
    if (!made)
        return;
    m_made = std::move(*made);
    m_size = program->size;
}

void ProgramPicture::DrawNextClock()
{
    const auto number = static_cast<unsigned int>(m_next);
    ClockProgram::MadeNode &made = m_made.nodes[m_next++];
    made.node->SetAttribute(ClockProgram::kIdKey, kFirstIdentity + static_cast<int>(number), false);
    ClockStage::Area area(kFirstPlay + number, made.plugin, std::move(made.node),
                          ClockStage::GlyphFiles::Made);
    StartWithTexts(area);
    m_layers.append(area.Picture());
}

QImage ProgramPicture::Image() const
{
    if (m_size.isEmpty())
        return {};
    QImage screen = ClockStage::BlackScreen(m_size);
    ClockStage::ComposeScreen(screen, m_layers, screen.rect());
    return screen;
}

} // namespace ClockStudio
