// No way out of the studio's window loses unsaved work without a question.
#include "sample_programs.h"

#include "window/gallery.h"
#include "window/main_window.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace ClockStudio;

namespace {

const QByteArray kSaved = "<program width=\"64\" height=\"32\"/>\n";
const QByteArray kTemplate = "<program width=\"16\" height=\"8\"/>\n";

class TestUnsavedWork : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void TemplateAsks_data();
    void TemplateAsks();
    void ClosingAsks();
    void SavedWorkIsLeftSilently();
    void GalleryLeadsBack();

private:
    void AnswerNext(QMessageBox::StandardButton answer);
    void EditFrom(const QByteArray &saved);
    void ChooseTemplate() { emit m_window->findChild<Gallery *>()->TemplateChosen(kTemplate); }
    QString Text() { return m_window->Document().Text(); }

    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<MainWindow> m_window;
    int m_questions = 0;
};

void TestUnsavedWork::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("test_unsaved_work");
    QSettings().clear();
}

void TestUnsavedWork::init()
{
    m_window.reset();
    m_directory.reset(new QTemporaryDir);
    m_window.reset(new MainWindow(m_directory->filePath("recovery")));
    m_questions = 0;
}

/// Presses a button of the message box that the next call opens.
void TestUnsavedWork::AnswerNext(QMessageBox::StandardButton answer)
{
    QTimer::singleShot(0, m_window.data(), [this, answer] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        ++m_questions;
        box->button(answer)->click();
    });
}

/// A file of these bytes is open, and a line was added to them.
void TestUnsavedWork::EditFrom(const QByteArray &saved)
{
    QFile file(m_directory->filePath("wall.xml"));
    QVERIFY(file.open(QFile::WriteOnly) && file.write(saved) == saved.size());
    file.close();
    QVERIFY(m_window->Open(file.fileName()));
    m_window->Document().Change({{0, {}, "<!-- mine -->\n"}}, "typing");
    QVERIFY(Text().startsWith("<!-- mine -->"));
}

void TestUnsavedWork::TemplateAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isLeft");
    QTest::newRow("cancelled") << int(QMessageBox::Cancel) << false;
    QTest::newRow("discarded") << int(QMessageBox::Discard) << true;
    QTest::newRow("saved") << int(QMessageBox::Save) << true;
}

void TestUnsavedWork::TemplateAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, isLeft);
    EditFrom(kSaved);
    m_window->ShowGallery();
    AnswerNext(QMessageBox::StandardButton(answer));
    ChooseTemplate();
    QCOMPARE(m_questions, 1);
    QCOMPARE(Text() == QString::fromUtf8(kTemplate), isLeft);
    QFile file(m_directory->filePath("wall.xml"));
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.readAll(), answer == QMessageBox::Save ? "<!-- mine -->\n" + kSaved : kSaved);
}

void TestUnsavedWork::ClosingAsks()
{
    EditFrom(kSaved);
    m_window->ShowGallery();
    AnswerNext(QMessageBox::Cancel);
    QVERIFY(!m_window->close());
    QCOMPARE(m_questions, 1);
}

void TestUnsavedWork::SavedWorkIsLeftSilently()
{
    EditFrom(kSaved);
    QVERIFY(!m_window->Files().Save(m_directory->filePath("wall.xml")));
    m_window->ShowGallery();
    ChooseTemplate();
    QCOMPARE(Text(), QString::fromUtf8(kTemplate));
    QCOMPARE(m_questions, 0);
}

void TestUnsavedWork::GalleryLeadsBack()
{
    auto *const back = m_window->findChild<Gallery *>()->findChild<QPushButton *>("return");
    QVERIFY(back->isHidden()); // nothing is open
    EditFrom(kSaved);
    m_window->ShowGallery();
    QVERIFY(!back->isHidden());
    back->click();
    QVERIFY(m_window->findChild<Gallery *>()->isHidden());
    QVERIFY(Text().startsWith("<!-- mine -->"));
}

} // namespace

QTEST_MAIN(TestUnsavedWork)

#include "test_unsaved_work.moc"
