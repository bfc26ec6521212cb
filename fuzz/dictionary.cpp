// fuzz/: prints the words of clocks and programs, one per line, as a fuzzer's dictionary.
#include "sdk_words.h"

#include <cstdio>

namespace {

constexpr const char *kOtherWords[] = {
    "program", "area", "attribute", "width", "height", "x",     "y",    "=\\\"",  "/>",
    "</",      "<!--", "<![CDATA[", "&#x",   "true",   "false", "Last", ".Last.", "00:00",
};

} // namespace

int main()
{
    for (const QString &word : Fuzz::SdkWords() + Fuzz::AttributeKeys())
        std::printf("\"%s\"\n", qPrintable(word));
    for (const char *word : kOtherWords)
        std::printf("\"%s\"\n", word);
    return 0;
}
