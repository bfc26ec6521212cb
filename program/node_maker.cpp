#include "node_maker.h"

#include "node_keys.h"

#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"

#include <algorithm>

namespace ClockPlayer {

namespace {

bool SetsKey(const ProgramArea &area, const QString &key)
{
    return std::any_of(area.attributes.cbegin(), area.attributes.cend(),
                       [&key](const AttributeSetting &setting) { return setting.key == key; });
}

Failure ElementFailure(const Program &program, const ProgramArea &area, const QString &text)
{
    return {ExitCode::ProgramError,
            AtElement(program.path, area.element, text.arg(area.element.tagName()))};
}

} // namespace

Result<MadeNode> MakeNode(const Program &program, const ProgramArea &area)
{
    QDomElement element = area.element;
    Lw::INodePlugin *const plugin = Lw::HPluginManager::instance()->PluginFor(element);
    if (!plugin)
        return ElementFailure(program, area, QStringLiteral("no plugin claims the element <%1>"));
    std::unique_ptr<Lw::HNode> node(plugin->Create());
    if (!node)
        return ElementFailure(program, area, QStringLiteral("the plugin makes nothing of <%1>"));
    node->InitData();
    node->SetPos(area.geometry.topLeft());
    node->SetSize(area.geometry.size());
    QList<Lw::FileInfo> files;
    const bool understood = node->UpdateNode(element, files);
    for (const AttributeSetting &setting : area.attributes)
        node->SetAttribute(setting.key, setting.value, false);
    const bool isPictureClock =
        SetsKey(area, kClockTypeKey) && node->GetAttributeToInt(kClockTypeKey) == kPictureClock;
    if (!understood && !isPictureClock)
        return ElementFailure(program, area,
                              QStringLiteral("the plugin cannot read this <%1>; is its type "
                                             "known?"));
    return MadeNode {plugin, std::move(node)};
}

} // namespace ClockPlayer
