// The import of a clock element: every "clock" of a document, or its root. Whatever was taken over
// must be exported and come back as the same.
#include "clock_node.h"
#include "clock_plugin.h"
#include "clock_sdk_tables.h"
#include "fuzz_target.h"
#include "xml_document.h"

#include <QDomDocument>
#include <QMap>

using namespace Lw::HNodeClock;

namespace {

constexpr int kMostClocks = 8;

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
    Fuzz::Expect(before == after, "an export that is imported says the same again");
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const auto read = ClockProgram::ParseDocument(contents, QStringLiteral("fuzz"));
    const auto *const document = std::get_if<QDomDocument>(&read);
    if (!document)
        return 0;
    const QDomNodeList clocks = document->elementsByTagName(QLatin1String(Sdk::kClock));
    for (int i = 0; i < clocks.count() && i < kMostClocks; ++i) {
        for (const bool withDefaults : {false, true})
            ImportAndExport(clocks.at(i).toElement(), withDefaults);
    }
    if (clocks.isEmpty())
        ImportAndExport(document->documentElement(), true);
    return 0;
}
