#include "sdk_words.h"

#include "clock_attributes.h"
#include "clock_sdk_tables.h"

using namespace Lw::HNodeClock;

namespace Fuzz {

namespace {

void Add(const char *word, QStringList &words)
{
    if (word)
        words.append(QString::fromLatin1(word));
}

template<std::size_t N>
void AddImport(const ImportElement (&elements)[N], QStringList &words)
{
    for (const ImportElement &element : elements) {
        Add(element.name, words);
        Add(element.fallback, words);
        for (const ImportRow &row : element.rows) {
            Add(row.source.attribute, words);
            Add(row.fallback.attribute, words);
        }
    }
}

QStringList CollectSdkWords()
{
    QStringList words;
    AddImport(kAnalogImport, words);
    AddImport(kDigitalImport, words);
    AddImport(kFontImport, words);
    AddImport(kTimeImport, words);
    for (const char *word : {Sdk::kClock, Sdk::kClockCom, Sdk::kClockType, Sdk::kFile, Sdk::kGuid,
                             Sdk::kType, Sdk::kTimezone, Sdk::kAdjust, Sdk::kValue, Sdk::kColor,
                             Sdk::kDisplay, "key", "path", "md5", "size"})
        Add(word, words);
    for (const char *word : Sdk::kTypeNames)
        Add(word, words);
    words.removeDuplicates();
    return words;
}

} // namespace

const QStringList &SdkWords()
{
    static const QStringList words = CollectSdkWords();
    return words;
}

const QStringList &AttributeKeys()
{
    static const QStringList keys = [] {
        QStringList all;
        for (const AttributeRow &row : kAttributeTable)
            Add(row.key, all);
        return all;
    }();
    return keys;
}

} // namespace Fuzz
