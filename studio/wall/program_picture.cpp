#include "program_picture.h"

#include "live_wall.h"

#include "clock_finder.h"
#include "node_keys.h"
#include "stage.h"

namespace ClockStudio {

QImage PictureOfProgram(const QByteArray &bytes)
{
    const auto program = ClockProgram::ParseProgram(bytes, QString());
    if (!program)
        return {};
    // Ids and play numbers not used by the clocks on the wall.
    constexpr int kFirstIdentity = 90000;
    constexpr unsigned int kFirstPlay = 0xf0000000U;
    auto made = ClockProgram::MakeNodes(*program, ClockTool::FindClockPlugin);
    if (!made)
        return {};
    QVector<ClockStage::Layer> layers;
    int number = 0;
    for (ClockProgram::MadeNode &node : made->nodes) {
        node.node->SetAttribute(ClockProgram::kIdKey, kFirstIdentity + number, false);
        ClockStage::Area area(kFirstPlay + static_cast<unsigned int>(number++), node.plugin,
                              std::move(node.node), ClockStage::GlyphFiles::Made);
        StartWithTexts(area);
        layers.append(area.Picture());
    }
    QImage screen = ClockStage::BlackScreen(program->size);
    ClockStage::ComposeScreen(screen, layers, screen.rect());
    return screen;
}

} // namespace ClockStudio
