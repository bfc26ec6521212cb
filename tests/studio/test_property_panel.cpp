// Every property of every kind of clock, set through its control by mouse and keys: found in the
// text, in the clock that the text makes, and in the pixels.
#include "studio_under_test.h"

#include "editing/value_edits.h"
#include "properties/family_box.h"
#include "properties/property_groups.h"
#include "properties/property_panel.h"
#include "properties/value_editor.h"
#include "properties/zone_section.h"

#include "calendar/device_clock.h"
#include "catalogues.h"
#include "clock_node.h"
#include "clock_sdk_tables.h"
#include "happconfig.h"
#include "time_travel.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>
#include <QToolButton>

using namespace ClockStudio;
using namespace Lw::HNodeClock;

namespace {

constexpr int kSide = 256;
constexpr qint64 kInstant = 1791990462000; // 2026-10-14 15:07:42 UTC, in milliseconds
constexpr char kSwatch[] = "#c060ff";      // of the palette, and of no new clock
constexpr int kGrown = 5;                  // added to numbers

/// Attributes that the panel sets by other means than a control for each.
constexpr Attribute kOthers[] = {Attribute::Id,
                                 Attribute::ClockType,
                                 Attribute::AdjustType,
                                 Attribute::TimeAdjust,
                                 Attribute::TimeZone,
                                 Attribute::UseDaylightSavingTime,
                                 Attribute::DaylightSavingTimeStart,
                                 Attribute::DaylightSavingTimeEnd,
                                 Attribute::DaylightSavingTimeIndex,
                                 Attribute::TimeZoneIndex,
                                 Attribute::Guid};

/// A clock that shows everything, in the afternoon, with twelve hours where the kind has them.
QByteArray Everything(int kind)
{
    QByteArray clock =
        "<clock type=\"" + QByteArray(Sdk::kTypeNames[kind]) + "\" timezone=\"+00:00\">\n";
    const auto set = [&clock](const QString &key, const QString &value) {
        clock += QStringLiteral("<attribute key=\"%1\" value=\"%2\"/>\n").arg(key, value).toUtf8();
    };
    for (const AttributeRow &row : kAttributeTable) {
        const bool isSwitch = QLatin1String(row.key).endsWith(QLatin1String("_d"))
            || row.attribute == Attribute::DigitalDispAMPM;
        if (!IsUsedBy(row.clocks, kind))
            continue;
        if (isSwitch || row.attribute == Attribute::DigitalMode)
            set(row.key, "1");
        else if (row.role == ValueRole::Size)
            set(row.key, "9");
        else if (row.role == ValueRole::Family)
            set(row.key, "DejaVu Sans");
        else if (row.attribute == Attribute::HourScaleType)
            set(row.key, "3"); // with numerals
        else if (row.attribute == Attribute::DigitalWeekType
                 || row.attribute == Attribute::AnalogWeekType)
            set(row.key, "1"); // English, as the Chinese weekday is too in the tests' language
    }
    return QByteArray("<program width=\"256\" height=\"256\">\n"
                      "<area x=\"0\" y=\"0\" width=\"256\" height=\"256\">")
        + clock + "</clock></area>\n</program>\n";
}

/// Clicks a colour of the palette that a click on the button opens.
void ChooseColour(QToolButton *button)
{
    QTimer::singleShot(0, button, [] {
        QWidget *const palette = QApplication::activePopupWidget();
        for (QToolButton *const swatch : palette->findChildren<QToolButton *>()) {
            if (swatch->toolTip() == QLatin1String(kSwatch))
                return QTest::mouseClick(swatch, Qt::LeftButton);
        }
        palette->close();
    });
    QTest::mouseClick(button, Qt::LeftButton);
}

/// Sets another value through the control of an editor; what it then must be, as stored.
QString SetAnother(ValueEditor &editor)
{
    QWidget *const control = editor.findChild<QWidget *>(editor.objectName() + "Control");
    control->setFocus();
    if (auto *const box = qobject_cast<QCheckBox *>(control)) {
        const bool was = box->isChecked();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        return QString::number(was ? 0 : 1);
    }
    if (auto *const box = qobject_cast<QComboBox *>(control)) {
        const bool isLast = box->currentIndex() == box->count() - 1;
        const int next = box->currentIndex() + (isLast ? -1 : 1);
        QTest::keyClick(box, isLast ? Qt::Key_Up : Qt::Key_Down);
        return box->itemData(next).toString();
    }
    if (auto *const box = qobject_cast<QSpinBox *>(control)) {
        const QString wanted = QString::number(box->value() + kGrown);
        box->selectAll();
        QTest::keyClicks(box, wanted);
        QTest::keyClick(box, Qt::Key_Return);
        return wanted;
    }
    if (auto *const line = qobject_cast<QLineEdit *>(control)) {
        QTest::keyClicks(line, "<&X");
        return line->text();
    }
    auto *const button = qobject_cast<QToolButton *>(control);
    if (!button)
        return {};
    ChooseColour(button);
    return QString::number(Lw::HAppConfig::ColorToInt(QColor(QLatin1String(kSwatch))));
}

/// Only one family that the tests install has the characters of lunar dates.
bool IsOfOneFamily(Attribute attribute)
{
    return attribute == Attribute::AnalogLunarFName || attribute == Attribute::DigitalLunarFName;
}

/// A wall with one clock that shows everything, selected, and its panel.
struct PanelUnderTest
{
    StudioUnderTest studio;
    PropertyPanel panel {studio.editor};

    explicit PanelUnderTest(const QByteArray &program) : studio(program)
    {
        studio.WaitForClocks();
        if (!studio.wall.Clock(0))
            qFatal("%s", qPrintable(studio.wall.Refusal(0)));
        studio.editor.Select({0});
        panel.resize(360, 700);
        panel.show();
    }

    QString Stored(Attribute attribute)
    {
        return studio.wall.Clock(0)->GetAttribute(Key(attribute));
    }
    QString InText(Attribute attribute) const
    {
        return ClockOf(studio.document.LastParsed(), 0)->GetAttribute(Key(attribute));
    }

    /// What is wrong after an attribute was set to a value; then all is as it was before.
    QString Fault(Attribute attribute, const QString &wanted, const QByteArray &bytes,
                  const QImage &pixels)
    {
        studio.WaitForClocks();
        QString fault;
        if (studio.document.Bytes() == bytes)
            fault = "the text is the same";
        else if (InText(attribute) != wanted || Stored(attribute) != wanted)
            fault = InText(attribute) + " instead of " + wanted;
        else if (studio.Screen() == pixels && !IsOfOneFamily(attribute))
            fault = "the pixels are the same";
        else if (studio.document.History().count() != 1)
            fault = "not one step";
        studio.document.History().undo();
        studio.WaitForClocks();
        if (fault.isEmpty() && (studio.document.Bytes() != bytes || studio.Screen() != pixels))
            fault = "undoing it is not the same again";
        studio.document.History().clear();
        return fault.isEmpty() ? QString() : QLatin1String(RowOf(attribute).key) + ": " + fault;
    }
};

bool IsOther(Attribute attribute)
{
    return std::find(std::begin(kOthers), std::end(kOthers), attribute) != std::end(kOthers);
}

} // namespace

class TestPropertyPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void EveryAttributeHasAControl();
    void SetsEveryProperty_data() { Kinds(); }
    void SetsEveryProperty();
    void ShowsAndHidesEveryPart_data() { Kinds(); }
    void ShowsAndHidesEveryPart();
    void ResetsEveryProperty_data() { Kinds(); }
    void ResetsEveryProperty();
    void SetsKind();
    void SetsPlace();
    void SetsAdjustment();
    void SetsZone();
    void SetsSeveralClocks();
    void ClockOffTheWallIsNotFitted();
    void MissingFamilyStaysMarked();
    void InvalidTextDisablesThePanel();
    void WheelScrollsThePanel();
    void ControlsAreNotCut();

private:
    static void Kinds();
};

void TestPropertyPanel::Kinds()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("analog") << int(AnalogClock);
    QTest::newRow("digital") << int(DigitalClock);
    QTest::newRow("picture") << int(PictureClock);
}

void TestPropertyPanel::initTestCase()
{
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    ClockStage::StageTime::HoldAt(kInstant);
    QVERIFY(ClockCatalogues::Install("en"));
}

void TestPropertyPanel::EveryAttributeHasAControl()
{
    PanelUnderTest test(Everything(DigitalClock));
    for (const AttributeRow &row : kAttributeTable) {
        const bool hasControl = test.panel.findChild<QWidget *>(QLatin1String(row.key));
        QVERIFY2(hasControl != IsOther(row.attribute), row.key);
    }
}

void TestPropertyPanel::SetsEveryProperty()
{
    QFETCH(int, kind);
    PanelUnderTest test(Everything(kind));
    const QByteArray bytes = *test.studio.document.Bytes();
    const QImage pixels = test.studio.Screen().copy();
    QStringList faults;
    int count = 0;
    for (ValueEditor *const editor : test.panel.findChildren<ValueEditor *>()) {
        if (!editor->isVisible())
            continue;
        ++count;
        const QString wanted = SetAnother(*editor);
        faults.append(test.Fault(editor->Attribute(), wanted, bytes, pixels));
    }
    faults.removeAll({});
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
    const int used = static_cast<int>(std::count_if(
        std::begin(kAttributeTable), std::end(kAttributeTable), [kind](const AttributeRow &row) {
            return IsUsedBy(row.clocks, kind) && !IsOther(row.attribute)
                && !QLatin1String(row.key).endsWith(QLatin1String("_d"));
        }));
    QCOMPARE(count, used);
}

void TestPropertyPanel::ShowsAndHidesEveryPart()
{
    QFETCH(int, kind);
    PanelUnderTest test(Everything(kind));
    const QByteArray bytes = *test.studio.document.Bytes();
    const QImage pixels = test.studio.Screen().copy();
    int count = 0;
    for (const AttributeRow &row : kAttributeTable) {
        if (!IsUsedBy(row.clocks, kind) || !QLatin1String(row.key).endsWith(QLatin1String("_d")))
            continue;
        auto *const section = test.panel.findChild<QWidget *>(QLatin1String(row.key));
        QTest::mouseClick(section->findChild<QCheckBox *>(), Qt::LeftButton);
        QCOMPARE(test.Fault(row.attribute, "0", bytes, pixels), QString());
        ++count;
    }
    QCOMPARE(count, kind == DigitalClock ? 5 : kind == AnalogClock ? 5 : 0);
}

void TestPropertyPanel::ResetsEveryProperty()
{
    QFETCH(int, kind);
    PanelUnderTest test(Everything(kind));
    const QByteArray bytes = *test.studio.document.Bytes();
    for (ValueEditor *const editor : test.panel.findChildren<ValueEditor *>()) {
        const Attribute attribute = editor->Attribute();
        if (!editor->isVisible())
            continue;
        SetAnother(*editor);
        test.studio.WaitForClocks();
        QVERIFY(editor->actions().size() == 1);
        editor->actions().first()->trigger();
        test.studio.WaitForClocks();
        QVERIFY2(test.Stored(attribute) == DefaultValue(attribute)
                     || attribute == Attribute::DigitalDispAMPM,
                 RowOf(attribute).key);
        while (test.studio.document.History().canUndo())
            test.studio.document.History().undo();
        QCOMPARE(*test.studio.document.Bytes(), bytes);
        test.studio.WaitForClocks();
    }
}

void TestPropertyPanel::SetsKind()
{
    PanelUnderTest test(Everything(DigitalClock));
    for (const int kind : {AnalogClock, PictureClock, DigitalClock}) {
        const QImage before = test.studio.Screen().copy();
        const QString name = QStringList({"Analog", "Digital", "Picture"})[kind];
        for (QToolButton *const button : test.panel.findChildren<QToolButton *>()) {
            if (button->text() == name)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        test.studio.WaitForClocks();
        QCOMPARE(test.studio.wall.Clock(0)->ClockType(), kind);
        QVERIFY(test.studio.Screen() != before);
        for (ValueEditor *const editor : test.panel.findChildren<ValueEditor *>())
            QVERIFY(!editor->isVisible() || IsUsedBy(editor->Row().clocks, kind));
    }
}

void TestPropertyPanel::SetsPlace()
{
    PanelUnderTest test(Everything(DigitalClock));
    const struct
    {
        const char *name;
        const char *value;
        QRect place;
    } steps[] = {{"Left edge in pixels", "-3", {-3, 0, kSide, kSide}},
                 {"Top edge in pixels", "7", {-3, 7, kSide, kSide}},
                 {"Width in pixels", "120", {-3, 7, 120, kSide}},
                 {"Height in pixels", "90", {-3, 7, 120, 90}}};
    for (const auto &step : steps) {
        for (QSpinBox *const box : test.panel.findChildren<QSpinBox *>()) {
            if (box->accessibleName() != step.name || !box->isVisible())
                continue;
            box->selectAll();
            QTest::keyClicks(box, step.value);
            QTest::keyClick(box, Qt::Key_Return);
        }
        QCOMPARE(test.studio.editor.SelectedRects(), QVector<QRect> {step.place});
    }
    test.studio.editor.Select({});
    auto *const width = test.panel.findChild<QSpinBox *>();
    QVERIFY(width->isVisible());
    width->selectAll();
    QTest::keyClicks(width, "320");
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(test.studio.wall.Size(), QSize(320, kSide));
}

void TestPropertyPanel::SetsAdjustment()
{
    PanelUnderTest test(Everything(DigitalClock));
    const QImage before = test.studio.Screen().copy();
    auto *const time = test.panel.findChild<QTimeEdit *>("AdjustmentEdit");
    time->setFocus();
    time->setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClicks(time, "05");
    QTest::keyClick(time, Qt::Key_Return);
    test.studio.WaitForClocks();
    QCOMPARE(test.InText(Attribute::TimeAdjust), QString("00A05B00"));
    QCOMPARE(test.InText(Attribute::AdjustType), QString("0"));
    const QImage ahead = test.studio.Screen().copy();
    QVERIFY(ahead != before);
    auto *const direction = test.panel.findChild<QComboBox *>("AdjustmentDirection");
    direction->setFocus();
    QTest::keyClick(direction, Qt::Key_Down);
    test.studio.WaitForClocks();
    QCOMPARE(test.InText(Attribute::AdjustType), QString("1"));
    QVERIFY(test.studio.Screen() != ahead);
}

// The next change and how long the rules hold; why a zone cannot be expressed, for as long as it is
// the clock's.
void TestPropertyPanel::SetsZone()
{
    PanelUnderTest test(Everything(DigitalClock));
    const auto said = [&test] {
        QStringList texts;
        for (const QLabel *const label : test.panel.Zone().findChildren<QLabel *>())
            texts.append(label->text());
        return texts.join(' ');
    };
    test.panel.Zone().Choose("Europe/Berlin");
    test.studio.WaitForClocks();
    QCOMPARE(test.InText(Attribute::TimeZone), QString("+01:00"));
    QVERIFY2(said().contains("25 October 2026"), qPrintable(said()));
    QVERIFY2(said().contains("hold for"), qPrintable(said()));
    test.panel.Zone().Choose("Australia/Lord_Howe");
    test.studio.WaitForClocks();
    QVERIFY2(said().contains("by 30 minute"), qPrintable(said()));
    test.studio.editor.Select({});
    test.studio.editor.Select({0});
    QVERIFY2(said().contains("by 30 minute"), qPrintable(said()));
    test.panel.Zone().Choose("America/Nuuk"); // on the day before the last Sunday
    test.studio.WaitForClocks();
    QVERIFY2(said().contains("not on the same weekday"), qPrintable(said()));
    test.panel.Zone().Choose("Asia/Tokyo");
    test.studio.WaitForClocks();
    QVERIFY2(said().contains("No daylight saving"), qPrintable(said()));
    QCOMPARE(test.InText(Attribute::DaylightSavingTimeStart), QString());
    QCOMPARE(test.InText(Attribute::DaylightSavingTimeEnd), QString());
}

void TestPropertyPanel::SetsSeveralClocks()
{
    QByteArray two = Everything(DigitalClock);
    const int area = two.indexOf("<area");
    two.insert(area,
               two.mid(area, two.indexOf("</program>") - area)
                   .replace("key=\"DigitalSpace\" value=\"0\"", "")
                   .replace("value=\"9\"", "value=\"8\""));
    PanelUnderTest test(two);
    test.studio.editor.SelectAll();
    auto *const size =
        test.panel.findChild<QSpinBox *>(Key(Attribute::DigitalTimeFSize) + "Control");
    QCOMPARE(size->text(), QString("–"));
    size->selectAll();
    QTest::keyClicks(size, "11");
    QTest::keyClick(size, Qt::Key_Return);
    test.studio.WaitForClocks();
    for (const int clock : {0, 1})
        QCOMPARE(test.studio.wall.Clock(clock)->GetAttribute(Key(Attribute::DigitalTimeFSize)),
                 QString("11"));
    QCOMPARE(test.studio.document.History().count(), 1);
    QCOMPARE(size->value(), 11);
}

// Nothing of such a clock can be seen, so no size fits.
void TestPropertyPanel::ClockOffTheWallIsNotFitted()
{
    for (const char *x : {"0", "300"}) {
        PanelUnderTest test(
            Everything(DigitalClock).replace("x=\"0\"", QByteArray("x=\"") + x + '"'));
        const QString text = test.studio.document.Text();
        test.panel.FitSizes();
        QCOMPARE(test.studio.document.Text() == text, QByteArray(x) == "300");
    }
}

void TestPropertyPanel::MissingFamilyStaysMarked()
{
    FamilyBox box;
    box.Show("No Such Family", false);
    const QString marked = box.currentText();
    QVERIFY2(marked.contains("not installed"), qPrintable(marked));
    box.show();
    box.showPopup();
    box.hidePopup();
    QCOMPARE(box.currentText(), marked);
}

void TestPropertyPanel::InvalidTextDisablesThePanel()
{
    PanelUnderTest test(Everything(DigitalClock));
    test.studio.document.Change({{0, "<", ""}}, "typing");
    for (ValueEditor *const editor : test.panel.findChildren<ValueEditor *>())
        QVERIFY(!editor->isEnabled());
}

// Scrolling through the panel with the wheel changes nothing that happens to be under it.
void TestPropertyPanel::WheelScrollsThePanel()
{
    PanelUnderTest test(Everything(DigitalClock));
    const QByteArray bytes = *test.studio.document.Bytes();
    test.panel.setFocus();
    for (QWidget *const control : test.panel.findChildren<QWidget *>()) {
        if (!control->isVisible()
            || !(qobject_cast<QComboBox *>(control) || qobject_cast<QAbstractSpinBox *>(control)))
            continue;
        QWheelEvent turn(control->rect().center(), control->mapToGlobal(control->rect().center()),
                         {}, QPoint(0, -120), {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &turn);
        QVERIFY2(*test.studio.document.Bytes() == bytes, qPrintable(control->objectName()));
    }
}

/// Fonts and styles differ in how wide their controls are, and the panel only scrolls down.
void TestPropertyPanel::ControlsAreNotCut()
{
    const QFont usual = QApplication::font();
    for (const int points : {9, 20}) {
        QApplication::setFont(QFont("DejaVu Sans", points));
        PanelUnderTest test(Everything(DigitalClock));
        QTRY_VERIFY2(test.panel.widget()->minimumSizeHint().width()
                         <= test.panel.viewport()->width(),
                     qPrintable(QString::number(points)));
    }
    QApplication::setFont(usual);
}

QTEST_MAIN(TestPropertyPanel)
#include "test_property_panel.moc"
