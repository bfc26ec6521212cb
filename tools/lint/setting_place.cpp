#include "setting_place.h"

#include "clock_words.h"

#include "program_file.h"

#include <algorithm>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

const QLatin1String kKey("key");
const QLatin1String kValue("value");

bool IsReadInto(Attribute target, int clockType, const QString &element, const QString &name)
{
    const QVector<ImportedSetting> settings = SettingsReadFrom(clockType, element, name);
    return std::any_of(
        settings.cbegin(), settings.cend(),
        [target](const ImportedSetting &setting) { return setting.target == target; });
}

// The XML attribute of an element that is read into an attribute of the clock; empty for none.
QString NameRead(const QDomElement &element, int clockType, Attribute attribute)
{
    for (const QString &name : AttributesRead(clockType, element.tagName())) {
        if (element.hasAttribute(name) && IsReadInto(attribute, clockType, element.tagName(), name))
            return name;
    }
    return {};
}

} // namespace

QVector<QDomElement> ChildrenRead(const QDomElement &clock, int clockType)
{
    QVector<QDomElement> children;
    for (const QString &name : ElementsRead(clockType)) {
        const QDomElement child = clock.firstChildElement(name);
        const QString shadow = ShadowOf(clockType, name);
        if (!child.isNull() && (shadow.isEmpty() || clock.firstChildElement(shadow).isNull()))
            children.append(child);
    }
    return children;
}

SettingPlace PlaceOf(const QDomElement &clock, int clockType, Attribute attribute)
{
    SettingPlace place = {clock, {}};
    for (const QDomElement &child : ChildrenRead(clock, clockType)) {
        const QString name = NameRead(child, clockType, attribute);
        if (!name.isEmpty())
            place = {child, name};
    }
    for (QDomElement child = clock.firstChildElement(ClockProgram::kAttributeTag); !child.isNull();
         child = child.nextSiblingElement(ClockProgram::kAttributeTag)) {
        if (child.attribute(kKey) == Key(attribute))
            place = {child, kValue};
    }
    return place;
}

Place FindingPlace(const SettingPlace &place)
{
    const bool isSetting = place.element.tagName() == ClockProgram::kAttributeTag;
    return At(place.element, isSetting ? place.element.attribute(kKey) : place.attribute);
}

} // namespace ClockTool
