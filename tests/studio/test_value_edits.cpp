// Every attribute of every kind of clock is set by an edit of the text, and read back by the plugin
// with nothing else changed.
#include "sample_programs.h"

#include "editing/new_clock.h"
#include "editing/value_edits.h"
#include "properties/property_groups.h"

#include "clock_node.h"
#include "clock_sdk_tables.h"

using namespace ClockStudio;
using namespace Lw::HNodeClock;

namespace {

QString ProgramWith(const QString &area)
{
    return "<program width=\"256\" height=\"128\">\n  " + area + "\n</program>\n";
}

const QRect kPlace(0, 0, 128, 64);

/// Clocks whose texts say their settings in different ways.
QVector<QPair<QString, QString>> Forms(int kind)
{
    const QString type = QLatin1String(Sdk::kTypeNames[kind]);
    const QString frame = ProgramWith("<area x='0' y='0' width='128' height='64'>%1</area>");
    const ClockKind kinds[] = {ClockKind::Analog, ClockKind::Digital, ClockKind::Picture};
    return {
        {"bare", frame.arg("<clock type='" + type + "'/>")},
        {"new", ProgramWith(NewAreaText(kinds[kind], kPlace))},
        {"one font",
         frame.arg("<clock type='" + type
                   + "'><font name='DejaVu Sans' size='9' "
                     "color='#102030'/></clock>")},
        {"older",
         frame.arg("<clock type='" + type + "'><clockCom clockType='" + QString::number(kind)
                   + "' timeZone='+02:00' "
                     "timeAdjust='90' isDaylightSavingTime='1'/></clock>")},
        {"shadowed",
         frame.arg("<clock type='" + type
                   + "'><title value='a'/><fixedText value='b'/>"
                     "<lunarCalendar color='#ffffff'/><lunar color='#00ff00'/></clock>")},
    };
}

/// Another value than the clock has, of those that mean something.
QString OtherValue(const AttributeRow &row, const QString &now)
{
    const int number = now.toInt();
    switch (row.role) {
    case ValueRole::Flag:
        return QString::number(number == 0 ? 1 : 0);
    case ValueRole::Code:
        return QString::number(number == row.range.last ? row.range.first : number + 1);
    case ValueRole::Number:
    case ValueRole::Size:
        return QString::number(number + 3);
    case ValueRole::Colour:
        return QString::number(number == 0x123456 ? 0x654321 : 0x123456);
    case ValueRole::Zone:
        return "-07:30";
    case ValueRole::Adjustment:
        return "01A02B03";
    case ValueRole::Rule:
        return "4.1.7.02:00:00";
    case ValueRole::Family:
        return "DejaVu Sans Mono";
    case ValueRole::Text:
        return now + " \"<&>\" '";
    }
    return {};
}

bool IsSet(const AttributeRow &row, int kind)
{
    return row.attribute != Attribute::Id && row.attribute != Attribute::ClockType
        && row.attribute != Attribute::Guid && IsUsedBy(row.clocks, kind);
}

} // namespace

class TestValueEdits : public QObject
{
    Q_OBJECT

private slots:
    void EveryAttribute_data();
    void EveryAttribute();
    void WrittenAsPeopleDo();
    void ReplacedWhereItIs();
    void ResetRemovesIt();
    void EveryKindFromEveryKind();
    void GroupsHaveEveryAttribute();
};

void TestValueEdits::EveryAttribute_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("program");
    for (const int kind : {int(AnalogClock), int(DigitalClock), int(PictureClock)}) {
        for (const auto &form : Forms(kind))
            QTest::newRow(qPrintable(QString(Sdk::kTypeNames[kind]) + " " + form.first))
                << kind << form.second;
    }
}

void TestValueEdits::EveryAttribute()
{
    QFETCH(int, kind);
    QFETCH(QString, program);
    const ParsedProgram parsed = MustRead(program);
    const auto before = ClockOf(parsed, 0);
    QVERIFY(before);
    QCOMPARE(before->ClockType(), kind);
    for (const AttributeRow &row : kAttributeTable) {
        if (!IsSet(row, kind))
            continue;
        const QString wanted = OtherValue(row, before->GetAttribute(Key(row.attribute)));
        QString text = parsed.text;
        ApplyEdits(text, ValueEdits(parsed, 0, {{row.attribute, wanted}}));
        const auto after = ClockOf(MustRead(text), 0);
        QVERIFY2(after, row.key);
        for (const AttributeRow &other : kAttributeTable) {
            const QString &key = Key(other.attribute);
            if (other.attribute != Attribute::Id)
                QCOMPARE(
                    key + "=" + after->GetAttribute(key),
                    key + "="
                        + (other.attribute == row.attribute ? wanted : before->GetAttribute(key)));
        }
    }
}

void TestValueEdits::WrittenAsPeopleDo()
{
    const ParsedProgram parsed = MustRead(
        ProgramWith("<area x='0' y='0' width='9' height='9'><clock type='digital'/></area>"));
    const auto text = [&parsed](const StoredValue &value) {
        QString edited = parsed.text;
        ApplyEdits(edited, ValueEdits(parsed, 0, {value}));
        return edited;
    };
    QVERIFY(text({Attribute::DigitalTimeColor, "65280"}).contains("<time color=\"#00ff00\"/>"));
    QVERIFY(text({Attribute::Digital_TopTexy_d, "0"}).contains("<title display=\"false\"/>"));
    QVERIFY(text({Attribute::TimeZone, "+05:30"}).contains("type='digital' timezone=\"+05:30\""));
    QVERIFY(text({Attribute::DigitalDispAMPM, "1"})
                .contains("<attribute key=\"DigitalDispAMPM\" value=\"1\"/>"));
}

void TestValueEdits::ReplacedWhereItIs()
{
    const ParsedProgram parsed = MustRead(ProgramWith(
        "<area x='0' y='0' width='9' height='9'><clock type='dial'><!-- a --><date color='red' "
        "unknown='x'/><attribute key='AnalogSpace' value='7'/></clock></area>"));
    const TextEdits colour = ValueEdits(parsed, 0, {{Attribute::AnalogDateColor, "255"}});
    QCOMPARE(colour.size(), 0); // red is red however it is called
    const TextEdits space = ValueEdits(parsed, 0, {{Attribute::AnalogSpace, "8"}});
    QCOMPARE(space.size(), 1);
    QCOMPARE(space.first().removed, QString("7"));
    QCOMPARE(space.first().inserted, QString("8"));
}

void TestValueEdits::ResetRemovesIt()
{
    const QString plain =
        ProgramWith("<area x='0' y='0' width='9' height='9'><clock type='dial'>\n</clock></area>");
    const ParsedProgram first = MustRead(plain);
    QString text = plain;
    ApplyEdits(text, ValueEdits(first, 0, {{Attribute::HourRectType, "1"}}));
    QVERIFY(text != plain);
    const ParsedProgram changed = MustRead(text);
    ApplyEdits(text, ResetEdits(changed, 0, Attribute::HourRectType));
    QVERIFY(!text.contains("HourRectType"));
    QCOMPARE(ClockOf(MustRead(text), 0)->GetAttribute("HourRectType"), QString("0"));
}

void TestValueEdits::EveryKindFromEveryKind()
{
    for (const int from : {int(AnalogClock), int(DigitalClock), int(PictureClock)}) {
        for (const auto &form : Forms(from)) {
            for (const int to : {int(AnalogClock), int(DigitalClock), int(PictureClock)}) {
                const ParsedProgram parsed = MustRead(form.second);
                QString text = parsed.text;
                ApplyEdits(text, KindEdits(parsed, 0, to));
                const auto clock = ClockOf(MustRead(text), 0);
                QVERIFY2(clock, qPrintable(text));
                QCOMPARE(clock->ClockType(), to);
            }
        }
    }
}

void TestValueEdits::GroupsHaveEveryAttribute()
{
    QSet<int> grouped;
    for (int i = 0; i < kPropertyGroupCount; ++i) {
        grouped.insert(int(kPropertyGroups[i].shown));
        for (const PropertyLine &line : kPropertyGroups[i].lines) {
            for (int j = 0; j < line.count; ++j)
                grouped.insert(int(line.attributes[j]));
        }
    }
    for (const AttributeRow &row : kAttributeTable) {
        // What all kinds have is in the panel's own sections, or is not for people.
        if (row.clocks != ClockKinds::All)
            QVERIFY2(grouped.contains(int(row.attribute)), row.key);
    }
}

QTEST_MAIN(TestValueEdits)
#include "test_value_edits.moc"
