#include "setting_place.h"

#include "clock_words.h"

#include "program_file.h"

#include <algorithm>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

const QLatin1String kKey("key");
const QLatin1String kValue("value");

// The XML attribute of an element that is read into an attribute of the clock; empty for none.
QString NameRead(const QDomElement &element, int clockType, Attribute attribute)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const QVector<ImportedSetting> settings =
            SettingsReadFrom(clockType, element.tagName(), name);
        if (std::any_of(settings.cbegin(), settings.cend(),
                        [attribute](const ImportedSetting &setting) {
                            return setting.target == attribute;
                        }))
            return name;
    }
    return {};
}

} // namespace

SettingPlace PlaceOf(const QDomElement &clock, int clockType, Attribute attribute)
{
    SettingPlace imported = {clock, {}};
    SettingPlace given = imported;
    for (QDomElement child = clock.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == ClockProgram::kAttributeTag) {
            if (child.attribute(kKey) == Key(attribute))
                given = {child, kValue};
            continue;
        }
        const QString name = NameRead(child, clockType, attribute);
        if (!name.isEmpty())
            imported = {child, name};
    }
    return given.IsSet() ? given : imported;
}

Place FindingPlace(const SettingPlace &place)
{
    const bool isSetting = place.element.tagName() == ClockProgram::kAttributeTag;
    return At(place.element, isSetting ? place.element.attribute(kKey) : place.attribute);
}

} // namespace ClockTool
