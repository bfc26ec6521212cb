#include "clock_words.h"

#include "glyph/glyph_set.h"

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

template<typename Visit>
void ForEachElement(int clockType, const Visit &visit)
{
    for (const ImportElement &element : kFontImport)
        visit(element);
    if (clockType == DigitalClock) {
        for (const ImportElement &element : kDigitalImport)
            visit(element);
    } else {
        for (const ImportElement &element : kAnalogImport)
            visit(element);
    }
    for (const ImportElement &element : kTimeImport)
        visit(element);
}

bool IsCalled(const ImportElement &element, const QString &name)
{
    if (!element.name)
        return name.isEmpty();
    return name == QLatin1String(element.name)
        || (element.fallback && name == QLatin1String(element.fallback));
}

template<typename Visit>
void ForEachSource(int clockType, const QString &name, const Visit &visit)
{
    ForEachElement(clockType, [&](const ImportElement &element) {
        if (!IsCalled(element, name))
            return;
        for (const ImportRow &row : element.rows) {
            for (const ImportSource &source : {row.source, row.fallback}) {
                if (source.attribute)
                    visit(row, source);
            }
        }
    });
}

/// The first attribute of an element that is read into a setting.
QString SourceOf(Attribute target, int clockType, const QString &element)
{
    QString first;
    ForEachSource(clockType, element, [&](const ImportRow &row, const ImportSource &source) {
        if (row.target == target && first.isEmpty())
            first = QLatin1String(source.attribute);
    });
    return first;
}

} // namespace

QStringList ElementsRead(int clockType)
{
    QStringList names;
    ForEachElement(clockType, [&names](const ImportElement &element) {
        for (const char *name : {element.name, element.fallback}) {
            if (name)
                names.append(QLatin1String(name));
        }
    });
    names.removeDuplicates();
    return names;
}

QStringList AttributesRead(int clockType, const QString &element)
{
    QStringList names;
    ForEachSource(clockType, element, [&names](const ImportRow &, const ImportSource &source) {
        names.append(QLatin1String(source.attribute));
    });
    if (element.isEmpty())
        names.append(QLatin1String(Sdk::kType));
    if (element == QLatin1String(Sdk::kClockCom))
        names.prepend(QLatin1String(Sdk::kClockType));
    names.removeDuplicates();
    return names;
}

QVector<ImportedSetting> SettingsReadFrom(int clockType, const QString &element,
                                          const QString &attribute)
{
    QVector<ImportedSetting> settings;
    ForEachSource(clockType, element, [&](const ImportRow &row, const ImportSource &source) {
        if (attribute == QLatin1String(source.attribute))
            settings.append({row.target, source.conversion});
    });
    return settings;
}

QString ReadInPlaceOf(int clockType, const QString &element, const QString &attribute)
{
    if (attribute != QLatin1String(Sdk::kValue)
        || AttributesRead(clockType, element).contains(attribute))
        return {};
    for (const ExportRow &row : kExport) {
        const ExportSource &written = clockType == DigitalClock ? row.digital : row.analog;
        if (element == QLatin1String(row.element) && written.value)
            return SourceOf(*written.value, clockType, element);
    }
    return {};
}

QString ShadowOf(int clockType, const QString &element)
{
    QString shadow;
    ForEachElement(clockType, [&](const ImportElement &row) {
        if (row.fallback && element == QLatin1String(row.fallback))
            shadow = QLatin1String(row.name);
    });
    return shadow;
}

} // namespace ClockTool
