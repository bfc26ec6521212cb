#include "node_maker.h"

#include "clock_ids.h"
#include "node_keys.h"

#include "hnode.h"
#include "inodeplugin.h"
#include "number_text.h"

#include <algorithm>

namespace ClockProgram {

namespace {

// The words of a program that name a picture clock.
constexpr char kTypeWord[] = "type";
constexpr char kPictureWord[] = "picture";
constexpr char kOlderForm[] = "clockCom";
constexpr char kOlderTypeWord[] = "clockType";

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

QString SettingOf(const QDomElement &element, const QString &key)
{
    QString value;
    for (QDomElement child = element.firstChildElement(kAttributeTag); !child.isNull();
         child = child.nextSiblingElement(kAttributeTag)) {
        if (child.attribute(QStringLiteral("key")) == key)
            value = child.attribute(QStringLiteral("value"));
    }
    return value;
}

bool SetsPictureClock(const QDomElement &element)
{
    return Lw::NumberIn(SettingOf(element, QLatin1String(kClockTypeKey))) == kPictureClock;
}

bool NamesPictureClock(const QDomElement &element)
{
    const QDomElement older = element.firstChildElement(QLatin1String(kOlderForm));
    return element.attribute(QLatin1String(kTypeWord)) == QLatin1String(kPictureWord)
        || Lw::NumberIn(older.attribute(QLatin1String(kOlderTypeWord))) == kPictureClock
        || SetsPictureClock(element);
}

/// A copy of the element without its type, so that plugins read it as an analog clock.
QDomElement WithoutKind(const QDomElement &element)
{
    QDomElement copy = element.cloneNode().toElement();
    copy.removeAttribute(QLatin1String(kTypeWord));
    QDomElement older = copy.firstChildElement(QLatin1String(kOlderForm));
    if (!older.isNull())
        older.setAttribute(QLatin1String(kOlderTypeWord), 0);
    return copy;
}

Result<MadeNode> MakeNode(const Program &program, const ProgramArea &area,
                          const PluginFinder &findPlugin)
{
    QDomElement element = area.element;
    Lw::INodePlugin *const plugin = findPlugin(element);
    if (!plugin)
        return ElementFailure(program, area, QStringLiteral("no plugin claims the element <%1>"));
    std::unique_ptr<Lw::HNode> node(plugin->Create());
    if (!node)
        return ElementFailure(program, area, QStringLiteral("the plugin creates no node for <%1>"));
    node->InitData();
    node->SetPos(area.geometry.topLeft());
    node->SetSize(area.geometry.size());
    const bool understood = ReadElement(*node, element);
    for (const AttributeSetting &setting : area.attributes)
        node->SetAttribute(setting.key, setting.value, false);
    if (!understood)
        return ElementFailure(program, area,
                              QStringLiteral("the plugin cannot read this <%1>; is its type "
                                             "known?"));
    return MadeNode {plugin, std::move(node)};
}

void SeparateIds(const Program &program, MadeNodes &made)
{
    QVector<int> places;
    QVector<ClockId> ids;
    for (int i = 0; i < program.areas.size(); ++i) {
        Lw::HNode &node = *made.nodes[static_cast<std::size_t>(i)].node;
        if (!node.HaveAttribute(kIdKey))
            continue;
        places.append(i);
        const bool given = SetsKey(program.areas[i], kIdKey);
        ids.append({given ? node.GetAttributeToInt(kIdKey) : DefaultIdAt(i), given});
    }
    const QVector<int> numbers = DistinctIds(ids);
    for (int i = 0; i < ids.size(); ++i) {
        if (ids[i].given && numbers[i] == ids[i].number)
            continue;
        made.nodes[static_cast<std::size_t>(places[i])].node->SetAttribute(kIdKey, numbers[i],
                                                                           false);
        if (ids[i].given)
            made.warnings.append(
                AtElement(program.path, program.areas[places[i]].element,
                          QStringLiteral("the Id %1 is used by another clock; this one "
                                         "gets the Id %2")
                              .arg(ids[i].number)
                              .arg(numbers[i])));
    }
}

} // namespace

bool ReadElement(Lw::HNode &node, const QDomElement &element)
{
    QList<Lw::FileInfo> files;
    if (node.UpdateNode(element, files))
        return true;
    if (!NamesPictureClock(element))
        return false;
    const bool understood = node.UpdateNode(WithoutKind(element), files);
    if (understood)
        node.SetAttribute(kClockTypeKey, kPictureClock, false);
    return understood || SetsPictureClock(element);
}

Result<MadeNodes> MakeNodes(const Program &program, const PluginFinder &findPlugin)
{
    MadeNodes all;
    for (const ProgramArea &area : program.areas) {
        Result<MadeNode> made = MakeNode(program, area, findPlugin);
        if (!made)
            return made.Error();
        all.nodes.push_back(std::move(*made));
    }
    SeparateIds(program, all);
    return all;
}

} // namespace ClockProgram
