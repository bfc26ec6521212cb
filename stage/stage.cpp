#include "stage.h"

#include "carried_files.h"

namespace ClockStage {

using namespace ClockProgram;

namespace {

// Identifiers are unique per process, as two stages exist while one replaces the other.
unsigned int NewIdentifier()
{
    static unsigned int last = 0;
    return ++last;
}

} // namespace

MaybeFailure Stage::Build(const Program &program, const PluginFinder &findPlugin,
                          GlyphFiles glyphFiles)
{
    m_size = program.size;
    Result<MadeNodes> made = MakeNodes(program, findPlugin);
    if (!made)
        return made.Error();
    m_warnings = made->warnings;
    if (glyphFiles == GlyphFiles::Carried)
        m_warnings += ResolveCarriedFiles(program, *made);
    for (MadeNode &node : made->nodes)
        AddArea(node.plugin, std::move(node.node), glyphFiles);
    return std::nullopt;
}

void Stage::AddArea(Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node, GlyphFiles glyphFiles)
{
    m_areas.push_back(std::make_unique<Area>(NewIdentifier(), plugin, std::move(node), glyphFiles));
    connect(m_areas.back().get(), &Area::PictureChanged, this, &Stage::Changed);
    connect(m_areas.back().get(), &Area::Restarted, this, &Stage::Restarted);
}

void Stage::Start()
{
    for (const auto &area : m_areas)
        area->Start();
}

void Stage::PlayNext()
{
    for (const auto &area : m_areas)
        area->PlayNext();
}

QVector<Lw::HNode *> Stage::Nodes() const
{
    QVector<Lw::HNode *> nodes;
    for (const auto &area : m_areas) {
        if (area->Node())
            nodes.append(area->Node());
    }
    return nodes;
}

QVector<Layer> Stage::Layers() const
{
    QVector<Layer> layers;
    for (const auto &area : m_areas)
        layers.append(area->Picture());
    return layers;
}

QImage Stage::Screen() const
{
    QImage screen = BlackScreen(m_size);
    ComposeScreen(screen, Layers(), screen.rect());
    return screen;
}

} // namespace ClockStage
