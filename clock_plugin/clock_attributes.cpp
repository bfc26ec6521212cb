#include "clock_attributes.h"

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

} // namespace Lw::HNodeClock
