// clock_plugin/: HClockNode: writes and reads SDK XML.
#include "clock_node.h"

#include "calendar/clock_time.h"
#include "clock_sdk_tables.h"

#include "happconfig.h"
#include "number_text.h"

#include <QColor>
#include <QDomDocument>
#include <QDomElement>
#include <QPointer>

namespace Lw::HNodeClock {

namespace {

QDomElement ElementNamedIn(const QDomElement &clock, const ImportElement &element)
{
    if (!element.name)
        return clock;
    const QDomElement found = clock.firstChildElement(QLatin1String(element.name));
    if (!found.isNull() || !element.fallback)
        return found;
    return clock.firstChildElement(QLatin1String(element.fallback));
}

const ImportSource *SourcePresentIn(const QDomElement &element, const ImportRow &row)
{
    for (const ImportSource *source : {&row.source, &row.fallback}) {
        if (source->attribute && element.hasAttribute(QLatin1String(source->attribute)))
            return source;
    }
    return nullptr;
}

int ParsedColour(const QString &name)
{
    QColor colour;
    colour.setNamedColor(name);
    return Lw::HAppConfig::ColorToInt(colour);
}

/// Parses a sign and "hh:mm:ss" into seconds; nullopt for any other text.
std::optional<int> SignedSeconds(const QString &text)
{
    const QTime time = ParseTimeOfDay(text.mid(1));
    if (!time.isValid())
        return {};
    const int seconds = QTime(0, 0).secsTo(time);
    if (text.startsWith(QLatin1Char('-')))
        return -seconds;
    if (text.startsWith(QLatin1Char('+')))
        return seconds;
    return {};
}

/// The clock type that an element names; nullopt for an unknown name. With a clockCom child it is
/// the number there, known or not; -1 if there is none.
std::optional<int> ClockTypeIn(const QDomElement &element)
{
    const QDomElement clockCom = element.firstChildElement(QLatin1String(Sdk::kClockCom));
    if (!clockCom.isNull())
        return NumberIn(clockCom.attribute(QLatin1String(Sdk::kClockType), QStringLiteral("-1")));
    const QString named =
        element.attribute(QLatin1String(Sdk::kType), QLatin1String(Sdk::kTypeNames[AnalogClock]));
    for (const int type : {AnalogClock, DigitalClock, PictureClock}) {
        if (named == QLatin1String(Sdk::kTypeNames[type]))
            return type;
    }
    return {};
}

const ExportSource *SourceOf(const ExportRow &row, int clockType)
{
    switch (clockType) {
    case AnalogClock:
        return &row.analog;
    case DigitalClock:
        return &row.digital;
    default:
        return nullptr;
    }
}

} // namespace

void HClockNode::CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model)
{
    QDomDocument document;
    QDomElement clock = document.createElement(QLatin1String(Sdk::kClock));
    parent.appendChild(clock);
    const int clockType = HaveAttribute(Key(Attribute::ClockType))
        ? NumberIn(GetAttribute(Key(Attribute::ClockType)))
        : -1;
    if (HaveAttribute(Key(Attribute::Guid)))
        clock.setAttribute(QLatin1String(Sdk::kGuid), GetGuid());
    if (clockType == AnalogClock || clockType == DigitalClock)
        clock.setAttribute(QLatin1String(Sdk::kType), QLatin1String(Sdk::kTypeNames[clockType]));
    if (HaveAttribute(Key(Attribute::TimeZone)))
        clock.setAttribute(QLatin1String(Sdk::kTimezone), GetAttribute(Key(Attribute::TimeZone)));
    if (HaveAttribute(Key(Attribute::AdjustType)))
        clock.setAttribute(QLatin1String(Sdk::kAdjust), SdkAdjust());
    for (const ExportRow &row : kExport) {
        QDomElement child = document.createElement(QLatin1String(row.element));
        clock.appendChild(child);
        if (const ExportSource *source = SourceOf(row, clockType))
            CoverChildToSDK(child, *source);
    }
    Lw::HNode::CoverToSDKFormate(parent, model);
}

QString HClockNode::SdkAdjust()
{
    const QString stored = GetAttribute(Key(Attribute::TimeAdjust)); // hhAmmBss
    const bool backward = GetAttributeToInt(Key(Attribute::AdjustType)) != 0;
    return QLatin1Char(backward ? '-' : '+') + stored.mid(0, 2) + QLatin1Char(':')
        + stored.mid(3, 2) + QLatin1Char(':') + stored.mid(6, 2);
}

void HClockNode::CoverChildToSDK(QDomElement &child, const ExportSource &source)
{
    if (source.value)
        ClockSubnodeCoverToSDK(child, Key(*source.value), Key(*source.colour),
                               Key(*source.display));
    else if (source.colour)
        LunarCoverToSDK(child, Key(*source.colour), Key(*source.display));
}

void HClockNode::ClockSubnodeCoverToSDK(QDomElement &element, QString valueKey, QString colorKey,
                                        QString displayKey)
{
    if (HaveAttribute(valueKey))
        element.setAttribute(QLatin1String(Sdk::kValue), GetAttribute(valueKey));
    LunarCoverToSDK(element, colorKey, displayKey);
}

void HClockNode::LunarCoverToSDK(QDomElement &element, QString colorKey, QString displayKey)
{
    if (HaveAttribute(colorKey)) {
        const QRgb opaque = Lw::HAppConfig::IntToColor(GetAttributeToInt(colorKey)).rgb();
        element.setAttribute(QLatin1String(Sdk::kColor),
                             QLatin1Char('#') + QString::number(opaque, 16));
    }
    if (HaveAttribute(displayKey)) {
        const bool shown = GetAttributeToInt(displayKey) != 0;
        element.setAttribute(QLatin1String(Sdk::kDisplay), QLatin1String(shown ? "true" : "false"));
    }
}

// The font is read before the type is checked, so an element that is rejected for its type still
// sets the font.
bool HClockNode::UpdateNode(QDomElement element, QList<Lw::FileInfo> &files)
{
    if (element.isNull())
        return false;
    const QPointer<HClockNode> self(this);
    ImportAll(element, std::begin(kFontImport), std::end(kFontImport));
    const std::optional<int> type = ClockTypeIn(element);
    if (!self || (type != DigitalClock && type != AnalogClock))
        return false;
    *type == DigitalClock ? PatchDigital(element) : PatchAnalog(element);
    if (self)
        Store(Attribute::ClockType, *type);
    if (self)
        ImportAll(element, std::begin(kTimeImport), std::end(kTimeImport));
    if (self)
        ProcFile(element, files);
    return !self.isNull();
}

void HClockNode::ProcFile(QDomElement &element, QList<Lw::FileInfo> &files)
{
    const QString tag = QLatin1String(Sdk::kFile);
    for (QDomElement file = element.firstChildElement(tag); !file.isNull();
         file = file.nextSiblingElement(tag)) {
        const QString md5 = file.attribute(QStringLiteral("md5"));
        const quint64 size = NumberText(file.attribute(QStringLiteral("size"))).toULongLong();
        const QString path = file.attribute(QStringLiteral("path"));
        SetFilePath(file.attribute(QStringLiteral("key")), path, md5, static_cast<long long>(size),
                    kImageFileKind);
        files.append({md5, size, path});
    }
}

bool HClockNode::PatchAnalog(QDomElement &element)
{
    ImportAll(element, std::begin(kAnalogImport), std::end(kAnalogImport));
    return true;
}

bool HClockNode::PatchDigital(QDomElement &element)
{
    ImportAll(element, std::begin(kDigitalImport), std::end(kDigitalImport));
    return true;
}

// A slot connected to ReDrawSourceImage() may delete the node; the rest of the element is then
// ignored.
void HClockNode::ImportAll(const QDomElement &clock, const ImportElement *begin,
                           const ImportElement *end)
{
    const QPointer<HClockNode> self(this);
    for (const ImportElement *element = begin; element != end; ++element) {
        const QDomElement found = ElementNamedIn(clock, *element);
        for (const ImportRow &row : element->rows) {
            if (!self || !row.source.attribute)
                break;
            if (const ImportSource *source = SourcePresentIn(found, row))
                Apply(row.target, source->conversion,
                      found.attribute(QLatin1String(source->attribute)));
        }
    }
}

void HClockNode::Apply(Attribute target, Conversion conversion, const QString &text)
{
    switch (conversion) {
    case Conversion::Text:
        return Store(target, text);
    case Conversion::Number:
        return Store(target, NumberIn(text));
    case Conversion::InvertedNumber:
        return Store(target, NumberIn(text) == 0 ? 1 : 0);
    case Conversion::Flag:
        return Store(target, CovertDisplay(text));
    case Conversion::Colour:
        return Store(target, Lw::HAppConfig::NameToIntColor(text));
    case Conversion::ParsedColour:
        return Store(target, ParsedColour(text));
    case Conversion::AdjustSeconds:
        return SetTimeAdjust(NumberIn(text));
    case Conversion::AdjustTime:
        if (const std::optional<int> seconds = SignedSeconds(text))
            SetTimeAdjust(*seconds);
        return;
    }
}

} // namespace Lw::HNodeClock
