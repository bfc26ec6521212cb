// fuzz/: target: imports clock elements: those of a document if the input begins with "<", else one
// made of the words that clocks are written with. What was imported is exported, imported and
// exported again: both exports must be equal.
#include "clock_node.h"
#include "clock_plugin.h"
#include "clock_sdk_tables.h"
#include "fuzz_input.h"
#include "fuzz_target.h"
#include "sdk_words.h"
#include "xml_document.h"

#include <QDomDocument>
#include <QMap>

using namespace Lw::HNodeClock;

namespace {

constexpr int kMaxClocks = 8;
constexpr int kMaxDepth = 8; // of nested elements

const QStringList kValues = {
    QStringLiteral("true"),
    QStringLiteral("false"),
    QStringLiteral("0"),
    QStringLiteral("1"),
    QStringLiteral("2"),
    QStringLiteral("-1"),
    QStringLiteral("2147483647"),
    QStringLiteral("-2147483648"),
    QStringLiteral("#ff8000"),
    QStringLiteral("light blue"),
    QStringLiteral("+08:00"),
    QStringLiteral("-23:59:59"),
    QStringLiteral("digital"),
    QStringLiteral("dial"),
    QStringLiteral("3.Last.7.02:00:00"),
    QString(),
};

using Texts = QMap<QString, QString>;

void CollectTexts(const QDomElement &element, const QString &path, Texts &texts)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        texts[path + QLatin1Char('@') + attribute.name()] = attribute.value();
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        CollectTexts(child, path + QLatin1Char('/') + child.tagName(), texts);
}

QDomElement Export(HClockNode &node, QDomDocument &document)
{
    QDomElement parent = document.createElement(QStringLiteral("parent"));
    document.appendChild(parent);
    node.CoverToSDKFormate(parent, Lw::ProgramForController);
    return parent.firstChildElement();
}

void CheckRoundTrip(HClockNode &node)
{
    QDomDocument first;
    const QDomElement exported = Export(node, first);
    Texts before;
    CollectTexts(exported, QString(), before);
    QList<Lw::FileInfo> files;
    Fuzz::Expect(node.UpdateNode(exported, files), "an export can be imported");
    QDomDocument second;
    Texts after;
    CollectTexts(Export(node, second), QString(), after);
    Fuzz::Expect(before == after, "an export that is imported exports the same again");
}

void ImportAndExport(QDomElement clock, bool withDefaults)
{
    HNodeClock plugin;
    plugin.PluginMatch(clock);
    HClockNode node;
    if (withDefaults)
        node.InitData();
    node.NodeMatch(clock);
    QList<Lw::FileInfo> files;
    if (node.UpdateNode(clock, files)) {
        CheckRoundTrip(node);
        node.AllFileExists();
    }
    QList<QFileInfo> temporary;
    node.GetSDKTempFile(temporary);
}

template<typename List>
auto AnyOf(const List &list, Fuzz::Input &input)
{
    return list[input.Choice(list.size())];
}

QDomElement MakeClock(QDomDocument &document, Fuzz::Input &input)
{
    QDomElement clock = document.createElement(QLatin1String(Sdk::kClock));
    document.appendChild(clock);
    QDomElement at = clock;
    int depth = 0;
    while (!input.AtEnd()) {
        const int step = input.Choice(5);
        if (step == 0 && depth < kMaxDepth) {
            at = at.appendChild(document.createElement(AnyOf(Fuzz::SdkWords(), input))).toElement();
            ++depth;
        } else if (step == 1 && depth > 0) {
            at = at.parentNode().toElement();
            --depth;
        } else if (step < 4) {
            const QString name = AnyOf(Fuzz::SdkWords(), input);
            at.setAttribute(name, AnyOf(kValues, input));
        } else {
            const QString name = AnyOf(Fuzz::SdkWords(), input);
            at.setAttribute(name, input.Text());
        }
    }
    return clock;
}

void ImportDocument(const QByteArray &contents)
{
    const auto document = ClockProgram::ParseDocument(contents, QStringLiteral("fuzz"));
    if (!document)
        return;
    const QDomNodeList clocks = document->elementsByTagName(QLatin1String(Sdk::kClock));
    for (int i = 0; i < clocks.count() && i < kMaxClocks; ++i) {
        for (const bool withDefaults : {false, true})
            ImportAndExport(clocks.at(i).toElement(), withDefaults);
    }
    if (clocks.isEmpty())
        ImportAndExport(document->documentElement(), true);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 0 && data[0] == '<') {
        ImportDocument({reinterpret_cast<const char *>(data), static_cast<int>(size)});
        return 0;
    }
    Fuzz::Input input(data, size);
    const bool withDefaults = input.Choice(2) == 1;
    QDomDocument document;
    ImportAndExport(MakeClock(document, input), withDefaults);
    return 0;
}
