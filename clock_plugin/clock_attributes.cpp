// clock_plugin/: finds keys and rows of the attribute table.
#include "clock_attributes.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace Lw::HNodeClock {

const QString &Key(Attribute attribute)
{
    static const std::vector<QString> keys = [] {
        std::vector<QString> made;
        made.reserve(kAttributeCount);
        for (const AttributeRow &row : kAttributeTable)
            made.push_back(QString::fromLatin1(row.key));
        return made;
    }();
    return keys[static_cast<std::size_t>(attribute)];
}

const AttributeRow *RowNamed(const QString &key)
{
    const auto row =
        std::find_if(std::begin(kAttributeTable), std::end(kAttributeTable),
                     [&key](const AttributeRow &each) { return key == QLatin1String(each.key); });
    return row == std::end(kAttributeTable) ? nullptr : row;
}

} // namespace Lw::HNodeClock
