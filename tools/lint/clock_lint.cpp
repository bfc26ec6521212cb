#include "clock_lint.h"

#include "clock_words.h"
#include "suggestion.h"
#include "value_checks.h"

#include "clock_node.h"
#include "glyph/glyph_set.h"
#include "node_maker.h"
#include "number_text.h"
#include "program_file.h"

#include <QRegularExpression>
#include <QSet>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

const QString kKey = QStringLiteral("key");
const QString kValue = QStringLiteral("value");

const QStringList &AllKeys()
{
    static const QStringList all = [] {
        QStringList keys;
        for (const AttributeRow &row : kAttributeTable)
            keys.append(QLatin1String(row.key));
        return keys;
    }();
    return all;
}

QStringList ChildNames(const QDomElement &parent)
{
    QStringList names;
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        names.append(child.tagName());
    return names;
}

class ClockLint
{
public:
    ClockLint(const QDomElement &clock, ClockProgram::CarriedFiles &files, qint64 instant,
              Findings &findings)
        : m_clock(clock), m_files(files), m_instant(instant), m_findings(findings)
    {
        // The node itself decides what is read from the element.
        m_node.InitData();
        m_understood = ClockProgram::ReadElement(m_node, clock);
        // Picture clocks read the same elements as analog clocks.
        m_kind = m_understood ? m_node.ClockType() : MeantKind(clock);
        m_type = m_kind == DigitalClock ? DigitalClock : AnalogClock;
        for (QDomElement setting = clock.firstChildElement(ClockProgram::kAttributeTag);
             !setting.isNull(); setting = setting.nextSiblingElement(ClockProgram::kAttributeTag))
            m_node.SetAttribute(setting.attribute(kKey), setting.attribute(kValue), false);
    }

    void Run()
    {
        const QStringList names = ChildNames(m_clock);
        m_present = QSet<QString>(names.cbegin(), names.cend());
        CheckAttributes(m_clock, QString());
        for (QDomElement child = m_clock.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            CheckChild(child);
        if (m_understood)
            LintKinds(m_clock, m_kind, m_node.ClockType(), m_findings);
        else
            LintUnreadKind(m_clock, m_findings);
        LintWhole(m_clock, m_node, m_instant, m_findings);
    }

private:
    void CheckChild(const QDomElement &child)
    {
        const QString name = child.tagName();
        if (name == ClockProgram::kAttributeTag)
            return CheckSetting(child);
        if (name == QLatin1String(Sdk::kFile))
            return CheckFile(child);
        if (m_node.ClockType() == PictureClock && name != QLatin1String(Sdk::kClockCom))
            return CheckUnseen(child);
        const QStringList known = ElementsRead(m_type);
        if (!known.contains(name))
            return CheckUnread(child, known);
        const QString shadow = ShadowOf(m_type, name);
        if (!shadow.isEmpty() && m_present.contains(shadow))
            Warn(At(child),
                 QStringLiteral("<%1> is ignored because <%2> is present").arg(name, shadow));
        else if (m_seen.contains(name))
            Warn(At(child), QStringLiteral("only the first <%1> of a clock is read").arg(name));
        m_seen.insert(name);
        CheckAttributes(child, name);
    }

    /// A picture clock shows only its pictures.
    void CheckUnseen(const QDomElement &child)
    {
        const bool isHidden =
            child.attribute(QLatin1String(Sdk::kDisplay)) == QStringLiteral("false");
        if (child.attributes().isEmpty() || isHidden)
            return;
        Warn(At(child),
             QStringLiteral("<%1> has no effect: a picture clock shows only its pictures")
                 .arg(child.tagName()));
    }

    /// The exported form of a clock has elements that its type does not need; they are empty.
    void CheckUnread(const QDomElement &child, const QStringList &known)
    {
        if (child.tagName() == QLatin1String("time") && child.attributes().isEmpty())
            return;
        const int other = m_type == DigitalClock ? AnalogClock : DigitalClock;
        if (ElementsRead(other).contains(child.tagName()))
            Warn(At(child),
                 QStringLiteral("<%1> is not read for this kind of clock, only for type \"%2\"")
                     .arg(child.tagName(), QLatin1String(Sdk::kTypeNames[other])));
        else
            Warn(At(child),
                 QStringLiteral("<%1> is not read%2")
                     .arg(child.tagName(), Suggestion(child.tagName(), known)),
                 Nearest(child.tagName(), known));
    }

    void CheckAttributes(const QDomElement &element, const QString &name)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomAttr attribute = attributes.item(i).toAttr();
            if (!AttributesRead(m_type, name).contains(attribute.name()))
                CheckUnreadAttribute(element, name, attribute.name());
            for (const ImportedSetting &setting : SettingsReadFrom(m_type, name, attribute.name()))
                if (ReportFault(element, attribute.name(), attribute.value(),
                                ImportFault(setting.target, setting.conversion, attribute.value())))
                    break;
        }
    }

    void CheckUnreadAttribute(const QDomElement &element, const QString &name,
                              const QString &attribute)
    {
        if (name.isEmpty() && attribute == QLatin1String(Sdk::kGuid))
            return; // written in the exported form for the controller
        const QString read = ReadInPlaceOf(m_type, name, attribute);
        if (!read.isEmpty())
            return m_findings.Note(At(element, attribute),
                                   QStringLiteral("the attribute \"%1\" of <%2> is not read: it is "
                                                  "the exported form's code; the clock reads "
                                                  "\"%3\"")
                                       .arg(attribute, element.tagName(), read),
                                   read);
        const QStringList known = AttributesRead(m_type, name);
        Warn(At(element, attribute),
             QStringLiteral("the attribute \"%1\" of <%2> is not read%3")
                 .arg(attribute.left(60), element.tagName(), Suggestion(attribute, known)),
             Nearest(attribute, known));
    }

    void CheckSetting(const QDomElement &setting)
    {
        const QString key = setting.attribute(kKey);
        if (key.isEmpty() || !setting.hasAttribute(kValue))
            return; // reported by InterpretProgram()
        const AttributeRow *row = RowNamed(key);
        if (!row)
            return Warn(
                At(setting, key),
                QStringLiteral("a clock has no attribute %1%2").arg(Quoted(key), NearestKey(key)),
                Nearest(key, AllKeys()));
        if (m_settings.contains(key))
            Warn(At(setting, key),
                 QStringLiteral("%1 is set more than once; the last one is used").arg(key));
        m_settings.insert(key);
        const QString value = setting.attribute(kValue);
        ReportFault(setting, key, value, StoredFault(row->attribute, value));
    }

    static QString NearestKey(const QString &key)
    {
        const QString meant = DidYouMean(key, AllKeys());
        return meant.isEmpty()
            ? QStringLiteral("; accepted: the keys that \"clock_tool attributes\" lists")
            : meant;
    }

    void CheckFile(const QDomElement &file)
    {
        bool isWhole = true;
        for (const char *name : {"key", "md5", "size", "path"}) {
            if (file.hasAttribute(QLatin1String(name)))
                continue;
            isWhole = false;
            Warn(At(file, QLatin1String(name)),
                 QStringLiteral("a <file> needs the attribute %1").arg(QLatin1String(name)));
        }
        if (isWhole)
            CheckWholeFile(file);
    }

    void CheckWholeFile(const QDomElement &file)
    {
        const QString key = file.attribute(kKey);
        QStringList keys;
        for (const GlyphImage &image : GlyphImages(GlyphOrder::Bookkeeping, m_type))
            keys.append(image.Key());
        if (!keys.contains(key))
            return Warn(At(file, kKey),
                        QStringLiteral("this clock has no image %1%2")
                            .arg(Quoted(key), DidYouMean(key, keys)),
                        Nearest(key, keys));
        static const QRegularExpression digestForm(QStringLiteral("^[0-9a-f]{32}$"));
        const QString digest = file.attribute(QStringLiteral("md5"));
        if (!digestForm.match(digest).hasMatch())
            return; // reported by the schema check
        const QString path = file.attribute(QStringLiteral("path"));
        const QString fault = m_files.Fault(
            {key, path, digest, file.attribute(QStringLiteral("size")).toLongLong(), 0});
        if (!fault.isEmpty())
            Warn(At(file, QStringLiteral("path")),
                 QStringLiteral("the file %1 %2").arg(Quoted(path), fault));
    }

    bool ReportFault(const QDomElement &element, const QString &name, const QString &value,
                     const QString &fault)
    {
        if (!fault.isEmpty())
            Warn(At(element, name), QStringLiteral("%1=%2 %3").arg(name, Quoted(value), fault));
        return !fault.isEmpty();
    }

    void Warn(const Place &place, const QString &text, const QString &suggestion = {})
    {
        m_findings.Warn(place, text, suggestion);
    }

    const QDomElement m_clock;
    ClockProgram::CarriedFiles &m_files;
    const qint64 m_instant;
    Findings &m_findings;
    HClockNode m_node;
    bool m_understood = false;
    int m_kind = AnalogClock; // the kind that the element names
    int m_type = AnalogClock; // by which it is read
    QSet<QString> m_present;
    QSet<QString> m_seen;
    QSet<QString> m_settings;
};

} // namespace

void LintClock(const QDomElement &clock, ClockProgram::CarriedFiles &files, qint64 instant,
               Findings &findings)
{
    ClockLint(clock, files, instant, findings).Run();
}

std::optional<int> GivenId(const QDomElement &clock)
{
    std::optional<int> id;
    for (QDomElement setting = clock.firstChildElement(ClockProgram::kAttributeTag);
         !setting.isNull(); setting = setting.nextSiblingElement(ClockProgram::kAttributeTag)) {
        if (setting.attribute(kKey) == Key(Attribute::Id))
            id = Lw::NumberIn(setting.attribute(kValue));
    }
    return id;
}

} // namespace ClockTool
