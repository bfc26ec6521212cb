// What is done to clocks on the wall, in the text and in the pixels.
#include "studio_under_test.h"

#include "chosen_time.h"

#include "clock_node.h"

#include <QClipboard>
#include <QSignalSpy>

using namespace ClockStudio;

namespace {

const char kTwo[] =
    "<program width=\"128\" height=\"64\">\n"
    "  <area x=\"0\" y=\"0\" width=\"64\" height=\"32\">\n"
    "    <clock type=\"digital\"><title display=\"false\"/><date display=\"false\"/>"
    "<week display=\"false\"/><time format=\"1\" color=\"#ff0000\"/></clock>\n"
    "  </area>\n"
    "  <area x=\"64\" y=\"32\" width=\"64\" height=\"32\">\n"
    "    <clock type=\"digital\"><title display=\"false\"/><date display=\"false\"/>"
    "<week display=\"false\"/><time format=\"1\" color=\"#00ff00\"/></clock>\n"
    "  </area>\n"
    "</program>\n";
constexpr QRgb kRed = 0xff0000;
constexpr QRgb kGreen = 0x00ff00;

} // namespace

class TestWallEditor : public QObject
{
    Q_OBJECT

private slots:
    // No hand of a dial is over its title at the top.
    void initTestCase() { ChosenTime::Set("2024-03-05T10:10:35"); }
    void ShowsFrames();
    void ShowsTextsOfDialsAtOnce();
    void MovesWithoutRecreating();
    void RecreatesOnlyWhatChanged();
    void AddsEveryKind();
    void DeletesAndUndoes();
    void DuplicatesSelected();
    void CopiesAndPastes();
    void BringsToFront();
    void SelectionFollowsTheText();
    void InvalidTextChangesNothing();
    void RefusedClockIsEmpty();
    void ManyClocksDoNotBlock();
    void LargeFontsDoNotBlock();
    void LargeImagesOfOneClockDoNotBlock();
};

void TestWallEditor::ShowsFrames()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    QVERIFY(studio.HasColour({0, 0, 64, 32}, kRed));
    QVERIFY(!studio.HasColour({0, 0, 64, 32}, kGreen));
    QVERIFY(studio.HasColour({64, 32, 64, 32}, kGreen));
}

// The clock itself draws them from its second frame on, which a held time never asks for.
void TestWallEditor::ShowsTextsOfDialsAtOnce()
{
    StudioUnderTest studio("<program width=\"128\" height=\"128\">"
                           "<area x=\"0\" y=\"0\" width=\"128\" height=\"128\">"
                           "<clock type=\"dial\" timezone=\"+00:00\">"
                           "<title display=\"true\" value=\"I\" color=\"#12ff34\"/></clock></area>"
                           "</program>");
    studio.WaitForClocks();
    QVERIFY(studio.HasColour(studio.Screen().rect(), 0x12ff34));
}

void TestWallEditor::MovesWithoutRecreating()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    auto *const clock = studio.wall.Clock(0);
    studio.editor.Select({0});
    studio.editor.MoveBy({64, 0});
    QCOMPARE(studio.wall.Clock(0), clock);
    QVERIFY(studio.document.Text().contains("<area x=\"64\" y=\"0\""));
    QVERIFY(!studio.HasColour({0, 0, 64, 32}, kRed));
    QVERIFY(studio.HasColour({64, 0, 64, 32}, kRed));
    studio.document.History().undo();
    QCOMPARE(studio.document.Text(), QString(kTwo));
    QVERIFY(studio.HasColour({0, 0, 64, 32}, kRed));
}

void TestWallEditor::RecreatesOnlyWhatChanged()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    const QPointer<Lw::HNodeClock::HClockNode> changed = studio.wall.Clock(0);
    const QPointer<Lw::HNodeClock::HClockNode> same = studio.wall.Clock(1);
    const int place = studio.document.Text().indexOf("#ff0000");
    studio.document.Change({{place, "#ff0000", "#0000ff"}}, "colour");
    studio.WaitForClocks();
    QVERIFY(!changed);
    QCOMPARE(studio.wall.Clock(1), same.data());
    QVERIFY(studio.HasColour({0, 0, 64, 32}, 0x0000ff));
}

void TestWallEditor::AddsEveryKind()
{
    for (const ClockKind kind : {ClockKind::Digital, ClockKind::Analog, ClockKind::Picture}) {
        StudioUnderTest studio("<program width=\"128\" height=\"64\"/>");
        studio.editor.Add(kind, {8, 8, 64, 48});
        studio.WaitForClocks();
        QCOMPARE(studio.wall.AreaCount(), 1);
        QCOMPARE(studio.editor.Selected(), QVector<int> {0});
        QCOMPARE(studio.wall.Geometry(0), QRect(8, 8, 64, 48));
        QVERIFY(studio.wall.Clock(0));
        studio.document.History().undo();
        QCOMPARE(studio.document.Text(), QString("<program width=\"128\" height=\"64\"/>"));
        QCOMPARE(studio.wall.AreaCount(), 0);
    }
}

void TestWallEditor::DeletesAndUndoes()
{
    StudioUnderTest studio(kTwo);
    studio.editor.SelectAll();
    studio.editor.Delete();
    QCOMPARE(studio.wall.AreaCount(), 0);
    QVERIFY(studio.document.Parsed());
    QVERIFY(!studio.HasColour(studio.Screen().rect(), kRed));
    studio.document.History().undo();
    QCOMPARE(studio.document.Text(), QString(kTwo));
    studio.WaitForClocks();
    QVERIFY(studio.HasColour({0, 0, 64, 32}, kRed));
}

void TestWallEditor::DuplicatesSelected()
{
    StudioUnderTest studio(QByteArray(kTwo).replace(
        "<clock type",
        "<clock type=\"digital\"><attribute key=\"Id\" value=\"1000\"/></clock>\n"
        "  </area>\n  <area x=\"0\" y=\"0\" width=\"9\" height=\"9\">\n    <clock type"));
    studio.editor.Select({0});
    studio.editor.Duplicate();
    const int last = studio.wall.AreaCount() - 1;
    QCOMPARE(studio.editor.Selected(), QVector<int> {last});
    QCOMPARE(studio.document.Text().count("value=\"1000\""), 2);
    QCOMPARE(studio.document.Text().count("value=\"1001\""), 1);
    QCOMPARE(studio.wall.Geometry(last), QRect(64, 0, 64, 32)); // the free place beside it
}

void TestWallEditor::CopiesAndPastes()
{
    StudioUnderTest from(kTwo);
    from.editor.Select({1});
    from.editor.Copy();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("<area x=\"64\""));
    StudioUnderTest to("<program width=\"128\" height=\"64\">\r\n</program>\r\n");
    QVERIFY(to.editor.Paste());
    QCOMPARE(to.wall.AreaCount(), 1);
    QCOMPARE(to.document.Text().count("\n"), to.document.Text().count("\r\n"));
    QVERIFY(!to.editor.PasteText("hello"));
    QCOMPARE(to.wall.AreaCount(), 1);
}

void TestWallEditor::BringsToFront()
{
    StudioUnderTest studio(kTwo);
    studio.editor.Select({0});
    studio.editor.BringToFront();
    QCOMPARE(studio.editor.Selected(), QVector<int> {1});
    QCOMPARE(studio.wall.Geometry(1), QRect(0, 0, 64, 32));
    studio.editor.SendToBack();
    QCOMPARE(studio.document.Text(), QString(kTwo));
    QCOMPARE(studio.editor.Selected(), QVector<int> {0});
}

void TestWallEditor::SelectionFollowsTheText()
{
    StudioUnderTest studio(kTwo);
    studio.editor.Select({1});
    studio.document.Change({{0, "", "<!-- longer -->\n"}}, "typing");
    QCOMPARE(studio.editor.Selected(), QVector<int> {1});
    const int begin = studio.document.Text().indexOf("  <area x=\"0\"");
    const int end = studio.document.Text().indexOf("  <area x=\"64\"");
    studio.document.Change({{begin, studio.document.Text().mid(begin, end - begin), ""}}, "cut");
    QCOMPARE(studio.editor.Selected(), QVector<int> {0});
}

void TestWallEditor::InvalidTextChangesNothing()
{
    StudioUnderTest studio(kTwo);
    studio.WaitForClocks();
    const QImage before = studio.Screen().copy();
    studio.document.Change({{0, "<", ""}}, "typing");
    studio.editor.Select({0});
    studio.editor.MoveBy({5, 5});
    studio.editor.Delete();
    studio.editor.Add(ClockKind::Digital, {0, 0, 9, 9});
    QCOMPARE(studio.document.Text(), QString(kTwo).mid(1));
    QCOMPARE(studio.Screen().size(), before.size());
    QVERIFY(studio.HasColour({0, 0, 64, 32}, kRed));
}

void TestWallEditor::RefusedClockIsEmpty()
{
    StudioUnderTest studio(QByteArray(kTwo).replace("type=\"digital\"", "type=\"sundial\""));
    studio.WaitForClocks();
    QVERIFY(!studio.wall.Clock(0));
    QVERIFY(!studio.wall.Refusal(0).isEmpty());
    studio.editor.Select({0});
    studio.editor.MoveBy({1, 1});
    QVERIFY(studio.document.Text().contains("<area x=\"1\" y=\"1\""));
}

void TestWallEditor::ManyClocksDoNotBlock()
{
    const QByteArray area =
        "<area x=\"0\" y=\"0\" width=\"32\" height=\"16\"><clock type=\"digital\"/>"
        "</area>\n";
    StudioUnderTest studio("<program width=\"128\" height=\"64\">\n" + area.repeated(1000)
                           + "</program>\n");
    QCOMPARE(studio.wall.AreaCount(), 1000);
    QVERIFY(!studio.wall.IsComplete()); // the rest is made between events
    studio.document.Change({{0, "", "<!-- -->"}}, "typing");
    QCOMPARE(studio.wall.AreaCount(), 1000);
}

// A step of size for all of them draws every image of the font: clock by clock, between events.
void TestWallEditor::LargeFontsDoNotBlock()
{
    const QByteArray area = "<area x=\"0\" y=\"0\" width=\"128\" height=\"64\">"
                            "<clock type=\"digital\"><time fontSize=\"200\"/></clock></area>\n";
    StudioUnderTest studio("<program width=\"128\" height=\"64\">\n" + area.repeated(12)
                           + "</program>\n");
    studio.WaitForClocks();
    TextEdits edits;
    for (int place = 0; (place = studio.document.Text().indexOf("200", place + 1)) > 0;)
        edits.prepend({place, "200", QString::number(201 + edits.size())});
    QCOMPARE(edits.size(), 12);
    studio.document.Change(edits, "larger");
    QVERIFY(!studio.wall.IsComplete());
    studio.WaitForClocks();
    QVERIFY(studio.wall.Clock(11));
}

// One image after the other, while the old picture is shown; the text may change meanwhile.
void TestWallEditor::LargeImagesOfOneClockDoNotBlock()
{
    const QByteArray program =
        "<program width=\"512\" height=\"256\">\n<area x=\"0\" y=\"0\" width=\"512\" "
        "height=\"256\"><clock type=\"digital\"><title display=\"false\"/>"
        "<date display=\"false\"/><week display=\"false\"/><time fontSize=\"60\"/>"
        "</clock></area></program>\n";
    StudioUnderTest studio(program);
    studio.WaitForClocks();
    const QImage before = studio.Screen();
    const auto place = static_cast<int>(program.indexOf("60"));
    studio.document.Change({{place, "60", "90"}}, "larger");
    QVERIFY(!studio.wall.IsComplete());
    QCOMPARE(studio.Screen(), before);
    studio.document.History().undo();
    studio.WaitForClocks();
    QVERIFY(studio.wall.Clock(0));
    QCOMPARE(studio.Screen(), before);
    studio.document.History().redo();
    studio.WaitForClocks();
    StudioUnderTest fresh(QByteArray(program).replace("60", "90"));
    fresh.WaitForClocks();
    QVERIFY(studio.Screen() != before);
    QCOMPARE(studio.Screen(), fresh.Screen());
}

QTEST_MAIN(TestWallEditor)
#include "test_wall_editor.moc"
