#include "stage.h"

#include "clock_ids.h"
#include "node_keys.h"
#include "node_maker.h"

#include <algorithm>

namespace ClockPlayer {

namespace {

bool GivesId(const ProgramArea &area)
{
    return std::any_of(area.attributes.cbegin(), area.attributes.cend(),
                       [](const AttributeSetting &setting) { return setting.key == kIdKey; });
}

} // namespace

MaybeFailure Stage::Build(const Program &program)
{
    m_size = program.size;
    for (const ProgramArea &area : program.areas) {
        Result<MadeNode> made = MakeNode(program, area);
        if (const auto *failure = std::get_if<Failure>(&made))
            return *failure;
        auto &node = std::get<MadeNode>(made);
        AddArea(node.plugin, std::move(node.node));
    }
    SeparateIds(program);
    return std::nullopt;
}

void Stage::AddArea(Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node)
{
    const auto identifier = static_cast<unsigned int>(m_areas.size() + 1);
    m_areas.push_back(std::make_unique<Area>(identifier, plugin, std::move(node)));
    Area *const area = m_areas.back().get();
    connect(area, &Area::PictureChanged, this, [this, area] { emit Changed(area->Geometry()); });
}

void Stage::SeparateIds(const Program &program)
{
    QVector<int> places;
    QVector<ClockId> ids;
    for (int i = 0; i < program.areas.size(); ++i) {
        Lw::HNode *const node = m_areas[static_cast<std::size_t>(i)]->Node();
        if (!node->HaveAttribute(kIdKey))
            continue;
        places.append(i);
        ids.append({node->GetAttributeToInt(kIdKey), GivesId(program.areas[i])});
    }
    const QVector<int> numbers = DistinctIds(ids);
    for (int i = 0; i < ids.size(); ++i) {
        if (numbers[i] == ids[i].number)
            continue;
        m_areas[static_cast<std::size_t>(places[i])]->Node()->SetAttribute(kIdKey, numbers[i],
                                                                           false);
        if (ids[i].given)
            m_warnings.append(AtElement(program.path, program.areas[places[i]].element,
                                        QStringLiteral("the Id %1 is another clock's; this one "
                                                       "plays as %2")
                                            .arg(ids[i].number)
                                            .arg(numbers[i])));
    }
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

} // namespace ClockPlayer
