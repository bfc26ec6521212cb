#include "setting_edits.h"

#include "clock_nodes.h"
#include "lint/clock_words.h"
#include "lint/setting_place.h"

#include "clock_sdk_tables.h"
#include "text/program_edits.h"

#include <QSet>

namespace ClockTool {

namespace {

using namespace ClockStudio;
using namespace Lw::HNodeClock;

// Where a setting is written: an XML attribute of the clock or of one of its children.
struct WrittenPlace
{
    int element = -1; ///< of the text; -1 where a new child is needed
    QString name;
};

bool SetsOnly(Attribute attribute, int clockType, const QString &element, const QString &name)
{
    const QVector<ImportedSetting> settings = SettingsReadFrom(clockType, element, name);
    return settings.size() == 1 && settings.first().target == attribute;
}

class SettingEdits
{
public:
    SettingEdits(ParsedProgram parsed, const TextForm &form)
        : m_parsed(std::move(parsed)), m_form(form)
    { }

    // At most one change per clock. False if the text is no longer a valid program.
    bool Make(const QVector<SettingChange> &changes, bool asSetting)
    {
        TextEdits edits;
        for (const SettingChange &change : changes)
            edits.append(EditOf(change, asSetting));
        QString text = m_parsed.text;
        ApplyEdits(text, InSequence(edits));
        m_parsed = ParsedProgram(); // which may be as large as the next one
        auto read = ReadProgramText(text, m_form);
        auto *const next = std::get_if<ParsedProgram>(&read);
        if (next)
            m_parsed = std::move(*next);
        return next != nullptr;
    }

    std::optional<QByteArray> Bytes() const { return EncodeText(m_parsed.text, m_form); }

private:
    TextEdit EditOf(const SettingChange &change, bool asSetting)
    {
        const WrittenPlace place = asSetting ? WrittenPlace() : PlaceOfSetting(change);
        if (place.element >= 0)
            return SetAttributeEdit(m_parsed, place.element, place.name, change.value);
        return AppendChildEdit(m_parsed, m_parsed.ClockElement(change.area),
                               QStringLiteral("<attribute key=\"%1\" value=\"%2\"/>")
                                   .arg(Key(change.attribute), change.value));
    }

    WrittenPlace PlaceOfSetting(const SettingChange &change)
    {
        const QDomElement clock = m_parsed.program.areas[change.area].element;
        const QString zone = QLatin1String(Sdk::kTimezone);
        for (const int clockType : {AnalogClock, DigitalClock}) {
            const SettingPlace place = PlaceOf(clock, clockType, change.attribute);
            const bool isSetting = place.element.tagName() == ClockProgram::kAttributeTag;
            if (place.IsSet()
                && (isSetting
                    || SetsOnly(change.attribute, clockType, place.element.tagName(),
                                place.attribute)))
                return {ElementOf(change.area, clock, place.element), place.attribute};
            if (!place.IsSet() && clock.hasAttribute(zone)
                && SetsOnly(change.attribute, clockType, QString(), zone))
                return {m_parsed.ClockElement(change.area), zone};
            const WrittenPlace free = FreePlace(change, clock, clockType);
            if (!place.IsSet() && free.element >= 0)
                return free;
        }
        return {};
    }

    // A child element that is read and could hold the setting.
    WrittenPlace FreePlace(const SettingChange &change, const QDomElement &clock, int clockType)
    {
        for (const QDomElement &child : ChildrenRead(clock, clockType)) {
            for (const QString &name : AttributesRead(clockType, child.tagName())) {
                if (SetsOnly(change.attribute, clockType, child.tagName(), name))
                    return {ElementOf(change.area, clock, child), name};
            }
        }
        return {};
    }

    int ElementOf(int area, const QDomElement &clock, const QDomElement &child)
    {
        int number = 0;
        for (QDomElement one = clock.firstChildElement(); one != child;
             one = one.nextSiblingElement())
            ++number;
        return m_parsed.elements[m_parsed.ClockElement(area)].children[number];
    }

    ParsedProgram m_parsed;
    const TextForm m_form;
};

// Takes the first change of each clock out of the list.
QVector<SettingChange> TakeRound(QVector<SettingChange> &changes)
{
    QVector<SettingChange> round;
    QVector<SettingChange> rest;
    QSet<int> areas;
    for (const SettingChange &change : changes) {
        (areas.contains(change.area) ? rest : round).append(change);
        areas.insert(change.area);
    }
    changes = rest;
    return round;
}

Failure CannotBeEdited(const QString &path)
{
    return {ExitCode::ProgramError,
            QStringLiteral("%1: the settings in this file cannot be edited").arg(path)};
}

// The changes that did not take effect in a program.
QVector<SettingChange> Missing(const QByteArray &contents, const QString &path,
                               const QVector<SettingChange> &changes)
{
    const Result<ProgramClocks> clocks = ParseClocks(contents, path);
    QVector<SettingChange> missing;
    for (const SettingChange &change : changes) {
        if (!clocks
            || clocks->Clock(change.area).GetAttribute(Key(change.attribute)) != change.value)
            missing.append(change);
    }
    return missing;
}

// A text with these changes, in the XML attributes that are read or in "attribute" children.
std::optional<QByteArray> Edited(const QByteArray &contents, QVector<SettingChange> changes,
                                 bool asSetting)
{
    const std::optional<EncodedText> text = DecodeText(contents);
    if (!text)
        return std::nullopt;
    auto read = ReadProgramText(text->text, text->form);
    auto *const parsed = std::get_if<ParsedProgram>(&read);
    if (!parsed)
        return std::nullopt;
    SettingEdits edits(std::move(*parsed), text->form);
    // The whole text is parsed once per round, not once per change.
    while (!changes.isEmpty()) {
        if (!edits.Make(TakeRound(changes), asSetting))
            return std::nullopt;
    }
    return edits.Bytes();
}

} // namespace

Result<QByteArray> WithSettings(const QByteArray &contents, const QString &path,
                                const QVector<SettingChange> &changes)
{
    QByteArray edited = contents;
    QVector<SettingChange> open = changes;
    for (const bool asSetting : {false, true}) {
        const std::optional<QByteArray> bytes = Edited(edited, open, asSetting);
        if (!bytes)
            break;
        edited = *bytes;
        open = Missing(edited, path, changes);
        if (open.isEmpty())
            return edited;
    }
    return CannotBeEdited(path);
}

} // namespace ClockTool
