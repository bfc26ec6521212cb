#include "schema_check.h"

#include "xml_document.h"

#include <QFile>
#include <QMap>

#include <libxml/parser.h>
#include <libxml/relaxng.h>
#include <libxml/xmlversion.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace ClockTool {

namespace {

#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError *;
#else
using ErrorPointer = xmlErrorPtr;
#endif

template<auto function>
struct Freer
{
    template<typename T>
    void operator()(T *pointer) const
    {
        function(pointer);
    }
};
using Document = std::unique_ptr<xmlDoc, Freer<xmlFreeDoc>>;
using SchemaParser = std::unique_ptr<xmlRelaxNGParserCtxt, Freer<xmlRelaxNGFreeParserCtxt>>;
using Schema = std::unique_ptr<xmlRelaxNG, Freer<xmlRelaxNGFree>>;
using Validation = std::unique_ptr<xmlRelaxNGValidCtxt, Freer<xmlRelaxNGFreeValidCtxt>>;

struct Faults
{
    QMap<int, QString> byLine;
    QMap<int, QString> vague;
};

/// The library's own words, which may hold texts of any length.
QString MessageOf(ErrorPointer error)
{
    return QString::fromUtf8(error->message).trimmed().left(200);
}

QString ElementOf(ErrorPointer error)
{
    const auto *node = static_cast<const xmlNode *>(error->node);
    return node ? QString::fromUtf8(reinterpret_cast<const char *>(node->name)).left(60)
                : QString();
}

/// The message for an error in its own element; empty if the error only says that something
/// within an element, or beside it, is wrong.
QString OwnMessage(ErrorPointer error)
{
    switch (error->code) {
    case XML_RELAXNG_ERR_ATTRVALID:
        return QStringLiteral("the attributes of <%1> do not match the schema")
            .arg(ElementOf(error));
    case XML_RELAXNG_ERR_ELEMWRONG:
        // After an error libxml2 also complains about the white space between elements.
        if (std::strstr(error->message, "element text there"))
            return {};
        return MessageOf(error);
    case XML_RELAXNG_ERR_INVALIDATTR:
    case XML_RELAXNG_ERR_NOELEM:
        return MessageOf(error);
    default:
        return {};
    }
}

void Collect(void *context, ErrorPointer error)
{
    auto &faults = *static_cast<Faults *>(context);
    const QString own = OwnMessage(error);
    auto &kept = own.isEmpty() ? faults.vague : faults.byLine;
    if (!kept.contains(error->line))
        kept.insert(error->line, own.isEmpty() ? MessageOf(error) : own);
}

void Ignore(void *, ErrorPointer) { }

/// libxml2's validation time is quadratic in the number of children of an element.
constexpr unsigned long kMaxChildren = 1024;

/// The line of an element with more than that; 0 for none.
int CrowdedLine(xmlNodePtr root)
{
    xmlNodePtr node = root;
    while (node) {
        if (xmlChildElementCount(node) > kMaxChildren)
            return static_cast<int>(xmlGetLineNo(node));
        xmlNodePtr next = xmlFirstElementChild(node);
        while (!next && node && node != root) {
            next = xmlNextElementSibling(node);
            node = node->parent;
        }
        node = next;
    }
    return 0;
}

Schema LoadSchema()
{
    QFile file(QStringLiteral(":/program.rng"));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray text = file.readAll();
    const SchemaParser parser(xmlRelaxNGNewMemParserCtxt(text.constData(), text.size()));
    return Schema(xmlRelaxNGParse(parser.get()));
}

SchemaReport AsReport(const Faults &faults)
{
    SchemaReport report;
    report.isVague = faults.byLine.isEmpty();
    const auto &shown = report.isVague ? faults.vague : faults.byLine;
    for (auto fault = shown.cbegin(); fault != shown.cend(); ++fault)
        report.faults.append({{fault.key(), {}, {}, 0},
                              Severity::Warning,
                              QStringLiteral("%1; see docs/program.rng").arg(fault.value()),
                              {}});
    if (report.isVague)
        report.faults = report.faults.mid(0, 1);
    return report;
}

SchemaReport NotChecked(int line, const QString &text)
{
    return {{{{line, {}, {}, 0}, Severity::Warning, text, {}}}, false};
}

} // namespace

SchemaReport CheckAgainstSchema(const QByteArray &contents)
{
    xmlSetStructuredErrorFunc(nullptr, Ignore);
    // The library sees the same text as every other reader, whatever the encoding of the file.
    const ClockProgram::Result<QString> text = ClockProgram::CheckedText(contents, QString());
    const QByteArray bytes = text ? text->toUtf8() : QByteArray();
    const Document document(xmlReadMemory(bytes.constData(), bytes.size(), nullptr, "UTF-8",
                                          XML_PARSE_NONET | XML_PARSE_BIG_LINES));
    const Schema schema = LoadSchema();
    if (!document || !schema)
        return NotChecked(0, QStringLiteral("cannot check this document against the schema"));
    if (const int line = CrowdedLine(xmlDocGetRootElement(document.get())))
        return NotChecked(line,
                          QStringLiteral("this element has more than %1 children, so the "
                                         "schema check was skipped")
                              .arg(kMaxChildren));
    const Validation validation(xmlRelaxNGNewValidCtxt(schema.get()));
    Faults faults;
    xmlRelaxNGSetValidStructuredErrors(validation.get(), Collect, &faults);
    if (xmlRelaxNGValidateDoc(validation.get(), document.get()) == 0)
        return {};
    return AsReport(faults);
}

} // namespace ClockTool
