// The window: its commands, files that are opened, saved, dropped and lost, and what is written of
// a wall, through the window's own dialogs.
#include "sample_programs.h"

#include "files/recovery_store.h"
#include "files/templates.h"
#include "wall/program_picture.h"
#include "window/gallery.h"
#include "window/main_window.h"

#include "calendar/device_clock.h"
#include "catalogues.h"
#include "time_travel.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProxyStyle>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>

using namespace ClockStudio;

namespace {

const QByteArray kWall =
    "<program width=\"64\" height=\"32\">\n"
    "  <area x=\"0\" y=\"0\" width=\"64\" height=\"32\"><clock type=\"digital\" "
    "timezone=\"+00:00\">"
    "<title display=\"false\"/><date display=\"false\"/><week display=\"false\"/>"
    "<time fontName=\"DejaVu Sans\" fontSize=\"9\"/></clock></area>\n</program>\n";

bool Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Answers the next question of the window, and counts how many there were.
class Answering : public QObject
{
public:
    explicit Answering(QMessageBox::StandardButton answer) : m_answer(answer) { startTimer(10); }
    int Questions() const { return m_questions; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            ++m_questions;
            box->button(m_answer)->click();
        }
    }

private:
    const QMessageBox::StandardButton m_answer;
    int m_questions = 0;
};

/// Gives the next file dialog a path.
class ChoosingFile : public QObject
{
public:
    explicit ChoosingFile(const QString &path) : m_path(path) { startTimer(10); }

protected:
    void timerEvent(QTimerEvent *event) override
    {
        auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        killTimer(event->timerId());
        dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(m_path);
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
    }

private:
    const QString m_path;
};

/// A desktop whose lists activate on a click, or on a double click.
class ActivatingStyle : public QProxyStyle
{
public:
    explicit ActivatingStyle(bool onClick) : m_onClick(onClick) { }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_ItemView_ActivateItemOnSingleClick
            ? int(m_onClick)
            : QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    const bool m_onClick;
};

struct WindowUnderTest
{
    QTemporaryDir work;
    QString path = work.filePath("wall.xml");
    MainWindow window {work.filePath("recovery")};

    WindowUnderTest()
    {
        if (!Write(path, kWall) || !window.Open(path))
            qFatal("no window");
        window.show();
    }
    ~WindowUnderTest() { window.Files().GiveUp(); }

    void Widen()
    {
        const int place = window.Document().Text().indexOf("64");
        window.Document().Change({{place, "64", "65"}}, "wider");
    }
    bool IsWider() const { return ContentsOf(path).contains("width=\"65\""); }
    /// The command that has a text, without its ellipsis and mnemonics.
    QAction *Command(const QString &text)
    {
        for (QAction *const action : window.findChildren<QAction *>()) {
            if (action->text().remove('&').remove(QChar(0x2026)) == text)
                return action;
        }
        qFatal("no command %s", qPrintable(text));
    }
    QAction *CommandOf(QKeySequence::StandardKey key)
    {
        for (QAction *const action : window.findChildren<QAction *>()) {
            if (action->shortcuts() == QKeySequence::keyBindings(key))
                return action;
        }
        qFatal("no command %d", int(key));
    }
    /// Runs a command whose dialog gets a path.
    void Run(const char *text, const QString &file)
    {
        const ChoosingFile choosing(file);
        Command(text)->trigger();
    }
    QString Said() const
    {
        QStringList said;
        for (const QLabel *const label : window.findChildren<QLabel *>()) {
            if (label->isVisible())
                said.append(label->text());
        }
        return said.join(' ');
    }
    void Press(const QString &text)
    {
        for (QPushButton *const button : window.findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() == text)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QFAIL(qPrintable("no button " + text));
    }
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void KeysAreUnique();
    void CommandsNeedAWall();
    void UndoFollowsTheHistory();
    void GalleryOpensOnce_data();
    void GalleryOpensOnce();
    void TemplatePictures();
    void ClosingAsksToSave();
    void SavesAndOpensRecent();
    void DropsAFile();
    void DamagedFileIsReported();
    void ChangedFileIsAskedAbout();
    void DeletedFileIsReported();
    void RecoversAllUnsavedWork();
    void WritesAPicture();
    void WritesASheet();
    void WritesAPreview();
    void FailedPictureKeepsTheFile();
    void ExportsAndImports();
};

void TestMainWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("clock-studio-test-window");
    QSettings().clear();
    QVERIFY(ClockCatalogues::Install("en"));
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestMainWindow::KeysAreUnique()
{
    WindowUnderTest test;
    QStringList keys;
    for (const QAction *const action : test.window.findChildren<QAction *>()) {
        for (const QKeySequence &key : action->shortcuts()) {
            QVERIFY2(!keys.contains(key.toString()), qPrintable(key.toString()));
            keys.append(key.toString());
        }
    }
    QVERIFY(keys.size() > 30);
}

void TestMainWindow::CommandsNeedAWall()
{
    WindowUnderTest test;
    QVERIFY(test.Command("Send to a wall")->isEnabled());
    QVERIFY(!test.Command("Duplicate")->isEnabled());
    test.window.Editor().Select({0});
    QVERIFY(test.Command("Duplicate")->isEnabled());
    test.window.ShowGallery();
    QVERIFY(!test.Command("Send to a wall")->isEnabled());
    QVERIFY(!test.Command("Duplicate")->isEnabled());
    QVERIFY(test.Command("Open")->isEnabled());
}

void TestMainWindow::UndoFollowsTheHistory()
{
    WindowUnderTest test;
    const auto enabled = [&test] {
        return QString::number(int(test.CommandOf(QKeySequence::Undo)->isEnabled()))
            + QString::number(int(test.CommandOf(QKeySequence::Redo)->isEnabled()));
    };
    test.window.Editor().Select({0});
    QCOMPARE(enabled(), QString("00"));
    test.Widen();
    test.window.Editor().Select({});
    QCOMPARE(enabled(), QString("10"));
    test.window.ShowGallery();
    QCOMPARE(enabled(), QString("00"));
    test.Press("Back to the wall");
    QCOMPARE(enabled(), QString("10"));
    test.window.Document().History().undo();
    test.window.Editor().Select({0});
    QCOMPARE(enabled(), QString("01"));
}

void TestMainWindow::GalleryOpensOnce_data()
{
    QTest::addColumn<bool>("activatesOnClick");
    QTest::newRow("click") << true;
    QTest::newRow("double click") << false;
}

void TestMainWindow::GalleryOpensOnce()
{
    QFETCH(bool, activatesOnClick);
    ActivatingStyle style(activatesOnClick);
    Gallery gallery;
    QSignalSpy chosen(&gallery, &Gallery::TemplateChosen);
    gallery.resize(800, 600);
    gallery.show();
    for (QListWidget *const list : gallery.findChildren<QListWidget *>()) {
        list->setStyle(&style);
        if (list->count() > 0)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(0)).center());
    }
    QCOMPARE(chosen.count(), 1);
}

/// A template's picture, drawn clock by clock, is its wall.
void TestMainWindow::TemplatePictures()
{
    ClockStage::StageTime::HoldAt(
        QDateTime::fromString("2026-05-04T10:08:36Z", Qt::ISODate).toMSecsSinceEpoch());
    WindowUnderTest test;
    for (const Template &one : Templates()) {
        const QByteArray bytes = TemplateBytes(one.name);
        test.window.Document().Load(bytes);
        const LiveWall &wall = test.window.Editor().Wall();
        QTRY_VERIFY(wall.IsComplete());
        ProgramPicture picture(bytes);
        for (int area = 0; area < wall.AreaCount(); ++area) {
            QVERIFY(!picture.IsDone());
            picture.DrawNextClock();
        }
        QVERIFY(picture.IsDone());
        QCOMPARE(picture.Image(), wall.Screen());
    }
    ClockStage::StageTime::Travel().ReturnToPresent();
    QVERIFY(ProgramPicture("<program").IsDone());
    QVERIFY(ProgramPicture("<program").Image().isNull());
}

void TestMainWindow::ClosingAsksToSave()
{
    WindowUnderTest test;
    test.Widen();
    QVERIFY(test.window.isWindowModified());
    {
        const Answering cancel(QMessageBox::Cancel);
        QVERIFY(!test.window.close());
        QCOMPARE(cancel.Questions(), 1);
    }
    QVERIFY(!test.IsWider());
    {
        const Answering save(QMessageBox::Save);
        QVERIFY(test.window.close());
    }
    QVERIFY(test.IsWider());
    const Answering none(QMessageBox::Cancel);
    QVERIFY(test.window.close());
    QCOMPARE(none.Questions(), 0);
}

void TestMainWindow::SavesAndOpensRecent()
{
    WindowUnderTest test;
    test.Widen();
    test.Command("Save")->trigger();
    QVERIFY(test.IsWider());
    QVERIFY(!test.window.isWindowModified());
    const QString other = test.work.filePath("other.xml");
    test.Run("Save as", other);
    QVERIFY(QFileInfo(other).isFile());
    QCOMPARE(ProgramFiles::Recent().mid(0, 2), QStringList({other, test.path}));
    QMenu *const recent = test.Command("Open recent")->menu();
    emit recent->aboutToShow();
    recent->actions()[1]->trigger();
    QCOMPARE(test.window.Files().Path(), test.path);
}

void TestMainWindow::DropsAFile()
{
    WindowUnderTest test;
    const QString other = test.work.filePath("other.xml");
    QVERIFY(Write(other, QByteArray(kWall).replace("64", "66")));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other)});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&test.window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&test.window, &drop);
    QCOMPARE(test.window.Files().Path(), other);
    QCOMPARE(test.window.Editor().Wall().Size().width(), 66);
}

void TestMainWindow::DamagedFileIsReported()
{
    WindowUnderTest test;
    const QString bomb = test.work.filePath("bomb.xml");
    QVERIFY(Write(bomb,
                  "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                  "<program width=\"8\" height=\"8\">&b;</program>"));
    test.window.Open(bomb);
    QVERIFY2(test.Said().contains("Line 1"), qPrintable(test.Said()));
    // The wall of the file before is no version of this one.
    QVERIFY2(!test.Said().contains("last valid"), qPrintable(test.Said()));
    QCOMPARE(test.window.Editor().Wall().AreaCount(), 0);
    const QString huge = test.work.filePath("huge.xml");
    QFile file(huge);
    QVERIFY(file.open(QFile::WriteOnly) && file.resize(200LL << 20));
    QVERIFY(!test.window.Open(huge));
    QVERIFY2(test.Said().contains("huge.xml"), qPrintable(test.Said()));
    QCOMPARE(test.window.Files().Path(), bomb);
}

void TestMainWindow::ChangedFileIsAskedAbout()
{
    WindowUnderTest test;
    QVERIFY(Write(test.path, QByteArray(kWall).replace("64", "66")));
    QTRY_VERIFY(test.Said().contains("changed by another program"));
    test.Press("Reload");
    QCOMPARE(test.window.Editor().Wall().Size().width(), 66);
}

void TestMainWindow::DeletedFileIsReported()
{
    WindowUnderTest test;
    QVERIFY(QFile::remove(test.path));
    QTRY_VERIFY(test.Said().contains("deleted from disk"));
    test.Press("Save");
    QCOMPARE(ContentsOf(test.path), kWall);
}

void TestMainWindow::RecoversAllUnsavedWork()
{
    const QTemporaryDir work;
    for (const char *name : {"1", "2"}) { // as studios that were killed leave it
        RecoveryStore store(work.filePath(name));
        QVERIFY(store.Keep(QString(), QByteArray(kWall).replace("64", name)));
        const QString file = QDir(work.filePath(name)).entryList({"*.work"}, QDir::Files).first();
        QVERIFY(QDir(work.path()).mkpath("recovery"));
        QVERIFY(QFile::copy(work.filePath(name) + '/' + file, work.filePath("recovery/") + file));
    }
    QVERIFY(Write(work.filePath("wall.xml"), kWall));
    MainWindow window(work.filePath("recovery"));
    window.show();
    QVERIFY(window.Open(work.filePath("wall.xml")));
    const auto press = [&window](const char *text) {
        QTest::qWait(10); // the buttons of the question before are deleted
        for (QPushButton *const button : window.findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() == text)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QFAIL(text);
    };
    press("Discard");
    press("Recover");
    QVERIFY(window.Editor().Wall().Size().width() <= 2);
    QVERIFY(window.isWindowModified());
    QVERIFY(window.Files().Path().isEmpty());
    QVERIFY(window.Files().Recoverable().isEmpty());
    window.Files().GiveUp();
}

void TestMainWindow::WritesAPicture()
{
    WindowUnderTest test;
    const QString picture = test.work.filePath("wall.png");
    test.Run("Picture of the wall", picture);
    const QImage written(picture);
    QCOMPARE(written.size(), QSize(64, 32));
    QCOMPARE(written.convertToFormat(QImage::Format_RGB32),
             test.window.Editor().Wall().Screen().convertToFormat(QImage::Format_RGB32));
}

void TestMainWindow::WritesASheet()
{
    WindowUnderTest test;
    const QString sheet = test.work.filePath("wall.pdf");
    test.Run("Approval sheet", sheet);
    const QByteArray written = ContentsOf(sheet);
    QVERIFY(written.startsWith("%PDF-"));
    QVERIFY(written.trimmed().endsWith("%%EOF"));
    QVERIFY(written.contains("/Page"));
}

void TestMainWindow::WritesAPreview()
{
    if (QStandardPaths::findExecutable("convert").isEmpty())
        QSKIP("no ImageMagick");
    WindowUnderTest test;
    const QString preview = test.work.filePath("wall.gif");
    test.Run("Animated preview", preview);
    QImageReader reader(preview);
    QCOMPARE(reader.imageCount(), 10);
    const QImage first = reader.read();
    QCOMPARE(first.size(), QSize(640, 320)); // a small wall is magnified
    QVERIFY(reader.read() != first);
}

void TestMainWindow::FailedPictureKeepsTheFile()
{
    WindowUnderTest test;
    test.Run("Picture of the wall", test.work.filePath("no/such/wall.png"));
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    test.Run("Approval sheet", "/proc/wall.pdf");
    QVERIFY2(test.Said().contains("could not be saved"), qPrintable(test.Said()));
}

void TestMainWindow::ExportsAndImports()
{
    WindowUnderTest test;
    const QString folder = test.work.filePath("export");
    QVERIFY(QDir().mkpath(folder));
    test.Run("Export with glyph files", folder);
    QVERIFY2(QFileInfo(folder + "/program.xml").isFile(), qPrintable(test.Said()));
    QVERIFY(QFileInfo(folder + "/files.tsv").isFile());
    const QString sdk = test.work.filePath("sdk.xml");
    QVERIFY(Write(sdk, "<clock type=\"digital\" timezone=\"+02:00\"/>"));
    test.Run("Import SDK XML", sdk);
    QVERIFY2(test.window.Document().Text().contains("+02:00"), qPrintable(test.Said()));
}

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
