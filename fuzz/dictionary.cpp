// Prints the words that clocks and programs are written with, one a line, as a fuzzer's dictionary.
#include "clock_attributes.h"
#include "clock_sdk_tables.h"

#include <QSet>
#include <QString>

#include <cstdio>

using namespace Lw::HNodeClock;

namespace {

void Say(const char *word)
{
    static QSet<QString> said;
    const QString text = QString::fromLatin1(word ? word : "");
    if (text.isEmpty() || said.contains(text))
        return;
    said.insert(text);
    std::printf("\"%s\"\n", word);
}

template<std::size_t N>
void SayImport(const ImportElement (&elements)[N])
{
    for (const ImportElement &element : elements) {
        Say(element.name);
        Say(element.fallback);
        for (const ImportRow &row : element.rows) {
            Say(row.source.attribute);
            Say(row.fallback.attribute);
        }
    }
}

} // namespace

int main()
{
    for (const AttributeRow &row : kAttributeTable)
        Say(row.key);
    SayImport(kAnalogImport);
    SayImport(kDigitalImport);
    SayImport(kFontImport);
    SayImport(kTimeImport);
    for (const char *word :
         {Sdk::kClock, Sdk::kClockCom, Sdk::kClockType, Sdk::kFile, Sdk::kGuid, Sdk::kType,
          Sdk::kTimezone, Sdk::kAdjust, Sdk::kValue, Sdk::kColor, Sdk::kDisplay})
        Say(word);
    for (const char *word : Sdk::kTypeNames)
        Say(word);
    for (const char *word : {"program", "area", "attribute", "width", "height", "key", "=\\\"",
                             "/>", "</", "<!--", "<![CDATA[", "&#x", "true", "false", "Last"})
        Say(word);
    return 0;
}
