// Files of programs: whole or not at all, noticed when others change them, recovered after a crash.
#include "sample_programs.h"
#include "small_disk.h"

#include "files/program_files.h"
#include "text/studio_document.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ClockStudio;

namespace {

const QByteArray kWall = "<program width=\"8\" height=\"8\"/>\n";

bool Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

TextEdits Widened(const StudioDocument &document)
{
    const auto place = static_cast<int>(document.Text().indexOf("8"));
    return {{place, "8", "16"}};
}

} // namespace

class TestProgramFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void OpensAndSaves();
    void FailedSaveKeepsTheFile();
    void RefusedFiles_data();
    void RefusedFiles();
    void ChangedOnDisk();
    void LostOnDisk();
    void RecoversAfterAKill();
    void SavedWorkIsNotRecovered();
    void Recent();
    void KeepsWhatIsTypedOn();
    void KeepsWhatWasGivenUp();
    void FullDiskKeepsFileAndWork();
    void ReadOnlyDiskKeepsFileAndWork();
};

void TestProgramFiles::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("clock-studio-test");
    QSettings().clear();
}

void TestProgramFiles::OpensAndSaves()
{
    const QTemporaryDir work;
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    QVERIFY(!files.Open(path));
    QVERIFY(files.IsSaved());
    document.Change(Widened(document), "wider");
    QVERIFY(!files.IsSaved());
    QVERIFY(!files.Save(path));
    QVERIFY(files.IsSaved());
    QCOMPARE(ContentsOf(path), QByteArray(kWall).replace("\"8\" h", "\"16\" h"));
    document.History().undo();
    QVERIFY(!files.IsSaved());
}

void TestProgramFiles::FailedSaveKeepsTheFile()
{
    const QTemporaryDir work;
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    QVERIFY(!files.Open(path));
    document.Change(Widened(document), "wider");
    QVERIFY(files.Save(work.filePath("no/such/folder/wall.xml")));
    QVERIFY(files.Save(work.path())); // a folder
    const QByteArray pipe = QFile::encodeName(work.filePath("pipe"));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    QVERIFY(files.Save(work.filePath("pipe")));
    QVERIFY(!QFileInfo(work.filePath("pipe")).isFile());
    QVERIFY(!files.IsSaved());
    QCOMPARE(ContentsOf(path), kWall);
    QCOMPARE(files.Path(), path);
}

void TestProgramFiles::RefusedFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "/no/such/file.xml";
    QTest::newRow("a directory") << "/tmp";
    QTest::newRow("endless") << "/dev/zero";
}

void TestProgramFiles::RefusedFiles()
{
    QFETCH(QString, path);
    const QTemporaryDir work;
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    files.Begin(kWall);
    QVERIFY(files.Open(path));
    QCOMPARE(document.Text().toUtf8(), kWall);
    QVERIFY(files.Path().isEmpty());
}

void TestProgramFiles::ChangedOnDisk()
{
    const QTemporaryDir work;
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    QSignalSpy changed(&files, &ProgramFiles::ChangedOnDisk);
    QVERIFY(!files.Open(path));
    document.Change(Widened(document), "wider");
    QVERIFY(!files.Save(path));
    QTest::qWait(500);
    QCOMPARE(changed.count(), 0); // one's own saving is no news
    QVERIFY(Write(path, "<program width=\"9\" height=\"9\"/>"));
    QTRY_COMPARE(changed.count(), 1);
}

void TestProgramFiles::LostOnDisk()
{
    const QTemporaryDir work;
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    QSignalSpy lost(&files, &ProgramFiles::LostOnDisk);
    QVERIFY(!files.Open(path));
    QVERIFY(QFile::remove(path));
    QTRY_COMPARE(lost.count(), 1);
    QCOMPARE(document.Text().toUtf8(), kWall);
    QVERIFY(!files.Save(path));
    QCOMPARE(ContentsOf(path), kWall);
}

// A child process keeps its work and is killed.
void TestProgramFiles::RecoversAfterAKill()
{
    const QTemporaryDir work;
    const QString directory = work.filePath("recovery");
    const pid_t child = fork();
    if (child == 0) {
        RecoveryStore store(directory);
        store.Keep("/somewhere/wall.xml", "<kept/>");
        for (;;)
            pause();
    }
    QTRY_COMPARE(QDir(directory).entryList({"*.work"}, QDir::Files).size(), 1);
    RecoveryStore store(directory);
    QVERIFY(store.Recoverable().isEmpty()); // it still runs
    QCOMPARE(kill(child, SIGKILL), 0);
    QCOMPARE(waitpid(child, nullptr, 0), child);
    const QVector<UnsavedWork> left = store.Recoverable();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().path, QString("/somewhere/wall.xml"));
    QCOMPARE(left.first().bytes, QByteArray("<kept/>"));
    StudioDocument document;
    ProgramFiles files(document, directory);
    files.Recover(left.first());
    QCOMPARE(document.Text(), QString("<kept/>"));
    QVERIFY(!files.IsSaved());
    QVERIFY(store.Recoverable().isEmpty()); // it is the work of a studio that runs
}

void TestProgramFiles::SavedWorkIsNotRecovered()
{
    const QTemporaryDir work;
    const QString directory = work.filePath("recovery");
    StudioDocument document;
    {
        ProgramFiles files(document, directory);
        files.Begin(kWall);
        document.Change(Widened(document), "wider");
        files.StoreUnsavedWork();
        QCOMPARE(QDir(directory).entryList({"*.work"}, QDir::Files).size(), 1);
        QVERIFY(!files.Save(work.filePath("wall.xml")));
        QCOMPARE(QDir(directory).entryList({"*.work"}, QDir::Files).size(), 0);
    }
    QVERIFY(Write(directory + "/broken.work", "no work"));
    QVERIFY(RecoveryStore(directory).Recoverable().isEmpty());
}

void TestProgramFiles::Recent()
{
    const QTemporaryDir work;
    StudioDocument document;
    ProgramFiles files(document, work.filePath("recovery"));
    for (const char *name : {"a.xml", "b.xml", "a.xml"}) {
        QVERIFY(Write(work.filePath(name), kWall));
        QVERIFY(!files.Open(work.filePath(name)));
    }
    QCOMPARE(ProgramFiles::Recent().mid(0, 2),
             QStringList({work.filePath("a.xml"), work.filePath("b.xml")}));
    QVERIFY(QFile::remove(work.filePath("a.xml")));
    QCOMPARE(ProgramFiles::Recent().first(), work.filePath("b.xml"));
}

void TestProgramFiles::KeepsWhatIsTypedOn()
{
    const QTemporaryDir work;
    const QString directory = work.filePath("recovery");
    StudioDocument document;
    ProgramFiles files(document, directory);
    files.Begin(kWall);
    for (const char *text : {"16", "32"}) {
        // One step of the history, as typing is.
        const int place = document.Text().indexOf("width=\"") + 7;
        const int end = document.Text().indexOf('"', place);
        document.Change({{place, document.Text().mid(place, end - place), text}}, "typing",
                        "typing");
        files.StoreUnsavedWork();
        const QStringList kept = QDir(directory).entryList({"*.work"}, QDir::Files);
        QCOMPARE(kept.size(), 1);
        QVERIFY(ContentsOf(directory + '/' + kept.first()).contains(document.Text().toUtf8()));
    }
    QCOMPARE(document.History().count(), 1);
}

// Work is given up for another program, which then cannot be read: the work goes on.
void TestProgramFiles::KeepsWhatWasGivenUp()
{
    const QTemporaryDir work;
    const QString directory = work.filePath("recovery");
    StudioDocument document;
    ProgramFiles files(document, directory);
    files.Begin(kWall);
    document.Change(Widened(document), "wider");
    files.StoreUnsavedWork();
    files.GiveUp();
    QCOMPARE(QDir(directory).entryList({"*.work"}, QDir::Files).size(), 0);
    QVERIFY(files.Open(work.filePath("missing.xml")));
    files.StoreUnsavedWork();
    QCOMPARE(QDir(directory).entryList({"*.work"}, QDir::Files).size(), 1);
}

void TestProgramFiles::FullDiskKeepsFileAndWork()
{
    const QTemporaryDir work;
    const SmallDisk disk(work.path(), 2);
    if (!disk.IsThere())
        QSKIP("no disk can be mounted");
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    const QTemporaryDir elsewhere;
    StudioDocument document;
    ProgramFiles files(document, elsewhere.filePath("recovery"));
    QVERIFY(!files.Open(path));
    document.Change({{0, "", QString(3 * SmallDisk::kPage, ' ')}}, "longer");
    QVERIFY(files.Save(path));
    QCOMPARE(ContentsOf(path), kWall);
    QCOMPARE(QDir(work.path()).entryList(QDir::Files | QDir::Hidden), QStringList("wall.xml"));
    QVERIFY(!files.IsSaved());
    files.StoreUnsavedWork();
    QCOMPARE(QDir(elsewhere.filePath("recovery")).entryList({"*.work"}, QDir::Files).size(), 1);
    QVERIFY(disk.Resize(20));
    QVERIFY(!files.Save(path));
    QVERIFY(ContentsOf(path).endsWith(kWall));
}

void TestProgramFiles::ReadOnlyDiskKeepsFileAndWork()
{
    const QTemporaryDir work;
    const SmallDisk disk(work.path(), 20);
    if (!disk.IsThere())
        QSKIP("no disk can be mounted");
    const QString path = work.filePath("wall.xml");
    QVERIFY(Write(path, kWall));
    QVERIFY(disk.MakeReadOnly());
    const QTemporaryDir elsewhere;
    StudioDocument document;
    ProgramFiles files(document, elsewhere.filePath("recovery"));
    QVERIFY(!files.Open(path));
    document.Change(Widened(document), "wider");
    const auto problem = files.Save(path);
    QVERIFY(problem);
    QVERIFY2(problem->contains(path), qPrintable(*problem));
    QVERIFY(!files.IsSaved());
    QVERIFY(!files.Save(elsewhere.filePath("wall.xml")));
    QCOMPARE(files.Path(), elsewhere.filePath("wall.xml"));
    QCOMPARE(ContentsOf(path), kWall);
}

QTEST_GUILESS_MAIN(TestProgramFiles)
#include "test_program_files.moc"
