// tools/: clock_tool import: makes a program from SDK XML, one area per clock.
#include "clock_nodes.h"
#include "commands.h"
#include "lint/clock_words.h"
#include "output.h"
#include "tool_arguments.h"

#include "clock_sdk_tables.h"
#include "command_support.h"
#include "glyph/glyph_set.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSize>

#include <algorithm>
#include <optional>

namespace ClockTool {

namespace {

using namespace ClockProgram;

constexpr char kDescription[] =
    "Makes a program from SDK XML. Every clock element, anywhere in the document, gets\n"
    "its own area. Areas are stacked; where the screen would become too high they continue in\n"
    "further columns. Elements are kept as they are; colours are written with six digits.";

const QString kArea = QStringLiteral("area");
const QString kDefaultArea = QStringLiteral("256x128");

std::optional<QSize> ParseSize(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty() || size.width() > kMaximumSide || size.height() > kMaximumSide)
        return std::nullopt;
    return size;
}

/// The next element in document order outside this one; null at the end of the root.
QDomElement NextOutside(QDomElement element)
{
    while (!element.isNull() && element.nextSiblingElement().isNull())
        element = element.parentNode().toElement();
    return element.nextSiblingElement();
}

QVector<QDomElement> ClocksIn(const QDomElement &root)
{
    QVector<QDomElement> clocks;
    QDomElement element = root;
    while (!element.isNull()) {
        const bool isClock = element.tagName() == QLatin1String(Lw::HNodeClock::Sdk::kClock);
        if (isClock)
            clocks.append(element);
        const QDomElement inner = element.firstChildElement();
        element = isClock || inner.isNull() ? NextOutside(element) : inner;
    }
    return clocks;
}

void SetRectangle(QDomElement &area, const QRect &rectangle)
{
    area.setAttribute(QStringLiteral("x"), rectangle.x());
    area.setAttribute(QStringLiteral("y"), rectangle.y());
    area.setAttribute(QStringLiteral("width"), rectangle.width());
    area.setAttribute(QStringLiteral("height"), rectangle.height());
}

/// SDK XML writes #aarrggbb; clocks ignore the alpha digits.
void ShortenColours(QDomElement element)
{
    static const QRegularExpression form(QStringLiteral("^#[0-9a-fA-F]{8}$"));
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name().endsWith(QLatin1String("color"), Qt::CaseInsensitive)
            && form.match(attribute.value()).hasMatch())
            attribute.setValue(QLatin1Char('#') + attribute.value().right(6));
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        ShortenColours(child);
}

QDomElement ProgramOf(QDomDocument &document, const QVector<QDomElement> &clocks, QSize size)
{
    const int rows = qMin(clocks.size(), kMaximumSide / size.height());
    const int columns = (clocks.size() + rows - 1) / rows;
    QDomElement program = document.createElement(kProgramTag);
    program.setAttribute(QStringLiteral("width"), columns * size.width());
    program.setAttribute(QStringLiteral("height"), rows * size.height());
    for (int i = 0; i < clocks.size(); ++i) {
        QDomElement area = document.createElement(kAreaTag);
        const QPoint position(i / rows * size.width(), i % rows * size.height());
        SetRectangle(area, QRect(position, size));
        ShortenColours(area.appendChild(document.importNode(clocks[i], true)).toElement());
        program.appendChild(area);
    }
    return program;
}

/// Checked here so that a clock the plugin cannot read is reported with its line in the SDK file.
MaybeFailure CheckClocks(const QVector<QDomElement> &clocks, const QString &path)
{
    if (clocks.isEmpty())
        return Failure {ExitCode::ProgramError,
                        QStringLiteral("%1: contains no <clock>").arg(path)};
    if (clocks.size() > kMaximumAreas)
        return Failure {ExitCode::ProgramError,
                        QStringLiteral("%1: %2 clocks; a program has at most %3 areas")
                            .arg(path)
                            .arg(clocks.size())
                            .arg(kMaximumAreas)};
    for (const QDomElement &clock : clocks) {
        Lw::HNodeClock::HClockNode node;
        if (!ReadElement(node, clock))
            return Failure {ExitCode::ProgramError,
                            AtElement(path, clock,
                                      QStringLiteral("the type of this <clock> cannot be read; "
                                                     "accepted: dial, digital, picture"))};
    }
    return std::nullopt;
}

/// The exported form is what the controller, and "clock_tool sdk", write of a clock.
bool IsExportedForm(const QDomElement &clock)
{
    using namespace Lw::HNodeClock;
    const bool isDigital =
        clock.attribute(QLatin1String(Sdk::kType)) == QLatin1String(Sdk::kTypeNames[DigitalClock]);
    for (QDomElement child = clock.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString read = ReadInPlaceOf(isDigital ? DigitalClock : AnalogClock, child.tagName(),
                                           QLatin1String(Sdk::kValue));
        if (child.hasAttribute(QLatin1String(Sdk::kValue)) && !read.isEmpty()
            && !child.hasAttribute(read))
            return true;
    }
    return false;
}

void NoteExportedForm(const QVector<QDomElement> &clocks, const QString &path)
{
    const auto count = std::count_if(clocks.cbegin(), clocks.cend(), IsExportedForm);
    if (count > 0)
        Say(QStringLiteral("%1: note: clocks in the exported form: %2; the codes of date, week and "
                           "time in that form are not read, and it contains no fonts, sizes, "
                           "layout, AM/PM, hands, marks "
                           "or daylight-saving rules: these get the defaults "
                           "of a new clock")
                .arg(path, QString::number(count)));
}

std::optional<QSize> AreaSize(const ToolArguments &tool)
{
    return ParseSize(tool.IsSet(kArea) ? tool.Value(kArea) : kDefaultArea);
}

Failure BadSize(const ToolArguments &tool)
{
    return UsageFailure(
        QStringLiteral("--area needs a size such as 256x128, each side from 1 to %1, not "
                       "\"%2\"")
            .arg(QString::number(kMaximumSide), tool.Value(kArea)));
}

/// The text of a program with the clocks of an SDK file.
Result<QByteArray> ImportFile(const QString &path, QSize size)
{
    const Result<QByteArray> contents = ReadContents(path);
    if (!contents)
        return contents.Error();
    Result<QDomDocument> sdk = ParseDocument(*contents, path);
    if (!sdk)
        return sdk.Error();
    const QVector<QDomElement> clocks = ClocksIn(sdk->documentElement());
    if (const MaybeFailure failure = CheckClocks(clocks, path))
        return *failure;
    const QByteArray program = WriteXml(ProgramOf(*sdk, clocks, size));
    const Result<Program> check = ParseProgram(program, QStringLiteral("the resulting program"));
    if (!check)
        return check.Error();
    NoteExportedForm(clocks, path);
    return program;
}

} // namespace

CommandResult RunImport(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("import"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("SDK.xml"), QStringLiteral("The SDK XML to read."));
    tool.AddOption({kArea},
                   QStringLiteral("Size of each area in pixels (default: %1).").arg(kDefaultArea),
                   QStringLiteral("WxH"));
    tool.AddOutput();
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    const std::optional<QSize> size = AreaSize(tool);
    if (!size)
        return Report(BadSize(tool));
    const Result<QByteArray> program = ImportFile(tool.Positional(0), *size);
    if (!program)
        return Report(program.Error());
    return Deliver(tool.Output(), *program);
}

} // namespace ClockTool
