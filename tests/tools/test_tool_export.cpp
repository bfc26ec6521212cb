// Programs carried away with their glyph files, and played elsewhere by the real player.
#include "tool_process.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The last character for private use; no font that the tests install has it.
constexpr char32_t kUnknownLetter = 0x10fffd;

const QString kInstant = QStringLiteral("2024-03-05T13:07:58Z");

ProcessRun Play(const QString &program, const QString &frames, const QStringList &more = {})
{
    return RunPlayer(QStringList {program, "--output", frames, "--at", kInstant, "--frames", "3",
                                  "--language", "en"}
                     + more);
}

struct Listed
{
    QString path;
    QString md5;
    qint64 size = 0;
};

QVector<Listed> ListIn(const QString &directory)
{
    QVector<Listed> listed;
    QStringList lines = QString::fromUtf8(ReadText(directory + "/files.tsv")).split('\n');
    if (lines.takeFirst() != "path\tmd5\tsize")
        return {};
    for (const QString &line : lines) {
        const QStringList fields = line.split('\t');
        if (fields.size() == 3)
            listed.append({fields[0], fields[1], fields[2].toLongLong()});
    }
    return listed;
}

/// Every file of a directory, relative to it.
QStringList FilesIn(const QString &directory)
{
    QStringList files;
    QDirIterator walk(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(QDir(directory).relativeFilePath(walk.next()));
    files.sort();
    return files;
}

QByteArray TopTextClock(const QString &text, int size, bool shown)
{
    return QStringLiteral("<clock type=\"digital\" timezone=\"+00:00\"><title value=\"%1\"/>"
                          "<attribute key=\"DigitalTopTextFSize\" value=\"%2\"/>"
                          "<attribute key=\"Digital_TopTexy_d\" value=\"%3\"/></clock>")
        .arg(text)
        .arg(size)
        .arg(shown ? 1 : 0)
        .toUtf8();
}

} // namespace

class TestToolExport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void SixClocksPlayAlikeElsewhere();
    void ListAgreesWithMd5sum();
    void ExportedProgramIsClean();
    void NothingIsMadeFromCarriedFiles();
    void ClocksWithoutFilesAreReported();
    void SaysHowMuchIsDone();
    void MinusStaysBehind();
    void FaultyFilesAreReported_data();
    void FaultyFilesAreReported();
    void EmptyTextHasNoFile();
    void ExportsAgainToTheSamePlace();
    void RefusesOtherDirectories_data();
    void RefusesOtherDirectories();
    void RefusesToReplaceTheProgram();
    void FaultyImagesAreReported_data();
    void FaultyImagesAreReported();
    void HiddenImageThatCannotBeMade();
    void SystemWithoutFonts();
    void FailureLeavesEarlierExport();

private:
    QString Path(const QString &name) const { return m_directory->filePath(name); }
    ProcessRun Export(const QByteArray &program)
    {
        WriteText(Path("in.xml"), program);
        return RunTool({"export", Path("in.xml"), Path("out"), "--language", "en"});
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestToolExport::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void TestToolExport::SixClocksPlayAlikeElsewhere()
{
    const QString original = InTree("examples/six_clocks.xml");
    QCOMPARE(RunTool({"lint", original}).exitCode, 0);
    const ProcessRun exported = RunTool({"export", original, Path("out"), "--language", "en"});
    QCOMPARE(exported.exitCode, 0);
    QCOMPARE(exported.errors, QString());
    QCOMPARE(exported.output, QString());
    QVERIFY(QDir(m_directory->path()).mkdir("elsewhere"));
    QVERIFY(QDir().rename(Path("out"), Path("elsewhere/carried")));

    const ProcessRun carried =
        Play(Path("elsewhere/carried/program.xml"), Path("b"), {"--use-files"});
    QCOMPARE(carried.errors, QString());
    QCOMPARE(carried.exitCode, 0);
    QCOMPARE(Play(original, Path("a")).exitCode, 0);
    const QVector<QImage> expected = Frames(Path("a"));
    QCOMPARE(expected.size(), 3);
    QVERIFY(expected[0] != expected[1]);
    QCOMPARE(Frames(Path("b")), expected);
}

void TestToolExport::ListAgreesWithMd5sum()
{
    const QString original = InTree("examples/six_clocks.xml");
    QCOMPARE(RunTool({"export", original, Path("out")}).exitCode, 0);
    const QVector<Listed> listed = ListIn(Path("out"));
    QStringList expected {"files.tsv"};
    QByteArray sums;
    for (const Listed &file : listed) {
        expected.append(file.path);
        QCOMPARE(QFileInfo(Path("out/" + file.path)).size(), file.size);
        sums += file.md5.toLatin1() + "  " + Path("out/" + file.path).toLocal8Bit() + '\n';
    }
    expected.sort();
    QVERIFY(listed.size() > 200);
    QCOMPARE(FilesIn(Path("out")), expected);
    QVERIFY(WriteText(Path("sums"), sums));
    const ProcessRun check = RunProcess("md5sum", {"--check", "--quiet", "--strict", Path("sums")});
    QCOMPARE(check.output + check.errors, QString());
    QCOMPARE(check.exitCode, 0);
}

void TestToolExport::ExportedProgramIsClean()
{
    const QString original = InTree("examples/six_clocks.xml");
    QCOMPARE(RunTool({"export", original, Path("out")}).exitCode, 0);
    const ProcessRun lint = RunTool({"lint", Path("out/program.xml")});
    const QStringList lines = lint.errors.trimmed().split(QLatin1Char('\n'));
    for (const QString &line : lines)
        QVERIFY2(line.contains(": note: "), qPrintable(line)); // notes find nothing wrong
    QCOMPARE(lint.exitCode, 0);
}

// Without the carried images there is nothing to show: the player makes none.
void TestToolExport::NothingIsMadeFromCarriedFiles()
{
    const QByteArray clock = "<clock type='digital'><title display='false'/>"
                             "<date display='false'/><week display='false'/>"
                             "<time display='true' fontSize='8' color='#ffffff'/></clock>";
    QCOMPARE(Export(ProgramOf(clock)).exitCode, 0);
    QCOMPARE(Play(Path("out/program.xml"), Path("whole"), {"--use-files"}).exitCode, 0);
    const QImage whole = Frames(Path("whole")).value(0);
    QVERIFY(whole != Frames(Path("whole")).value(1));
    QVERIFY(QDir(Path("out/files")).removeRecursively());
    const ProcessRun run = Play(Path("out/program.xml"), Path("none"), {"--use-files"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains("is missing"), qPrintable(run.errors));
    QImage black(64, 32, whole.format());
    black.fill(Qt::black);
    QCOMPARE(Frames(Path("none")).value(0), black);
    QVERIFY(!QFile::exists(Path("out/files")));
}

void TestToolExport::ClocksWithoutFilesAreReported()
{
    const QByteArray area = "<area x='0' y='0' width='64' height='32'>%</area>\n";
    const auto inArea = [&](const QByteArray &clock) {
        return QByteArray(area).replace("%", clock);
    };
    QVERIFY(WriteText(Path("in.xml"),
                      "<program width='64' height='32'>\n" + inArea("<clock type='digital'/>")
                          + inArea("<clock type='picture'><attribute key='ClockType' value='2'/>"
                                   "</clock>")
                          + inArea("<clock/>") + "</program>"));
    const ProcessRun run = Play(Path("in.xml"), Path("frames"), {"--use-files"});
    QCOMPARE(run.exitCode, 0);
    const QString text =
        ": the clock has no <file> elements, and --use-files generates no images\n";
    for (const char *line : {"2", "4"})
        QVERIFY2(run.errors.contains("in.xml:" + QString(line) + text), qPrintable(run.errors));
    QCOMPARE(run.errors.count('\n'), 2); // a picture clock has none
    QCOMPARE(Play(Path("in.xml"), Path("made")).errors, QString());
}

void TestToolExport::SaysHowMuchIsDone()
{
    const QString original = InTree("examples/station.xml");
    const ProcessRun exported =
        RunTool({"export", "--progress", original, Path("out"), "--language", "en"});
    QCOMPARE(exported.exitCode, 0);
    QCOMPARE(exported.output, QString("0%\n50%\n100%\n"));
}

void TestToolExport::MinusStaysBehind()
{
    const QByteArray clock =
        "<clock type='digital'><title display='false'/>"
        "<week display='false'/><time display='false'/>"
        "<date display='true' format='8' fontSize='7' color='#ffffff'/></clock>";
    const ProcessRun exported = Export(ProgramOf(clock));
    QCOMPARE(exported.exitCode, 0);
    QVERIFY2(exported.errors.contains("in.xml:1: note: the minus"), qPrintable(exported.errors));
    QVERIFY(!ReadText(Path("out/program.xml")).contains("_Minus"));
    QCOMPARE(Play(Path("in.xml"), Path("a")).exitCode, 0);
    QCOMPARE(Play(Path("out/program.xml"), Path("b"), {"--use-files"}).exitCode, 0);
    QVERIFY(Frames(Path("a")).value(0) != Frames(Path("b")).value(0));
}

void TestToolExport::FaultyFilesAreReported_data()
{
    QTest::addColumn<QByteArray>("replacement"); // empty: the file goes
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << QByteArray() << "is missing";
    QTest::newRow("another size") << QByteArray("x") << "has 1 bytes, expected ";
    QTest::newRow("another digest") << QByteArray("=") << "has the digest ";
}

void TestToolExport::FaultyFilesAreReported()
{
    QFETCH(QByteArray, replacement);
    QFETCH(QString, message);
    QCOMPARE(Export(ProgramOf("<clock type='digital'/>")).exitCode, 0);
    QDomDocument document;
    QVERIFY(document.setContent(ReadText(Path("out/program.xml"))));
    const QDomNodeList files = document.elementsByTagName("file");
    QString name;
    for (int i = 0; i < files.count(); ++i) {
        const QDomElement file = files.at(i).toElement();
        if (file.attribute("key") == "_timeNumber")
            name = file.attribute("path");
    }
    const QString path = Path("out/" + name);
    const auto size = static_cast<int>(QFileInfo(path).size());
    QVERIFY(QFile::remove(path));
    if (!replacement.isEmpty())
        QVERIFY(WriteText(path, replacement == "=" ? QByteArray(size, '=') : replacement));
    const ProcessRun run = Play(Path("out/program.xml"), Path("frames"), {"--use-files"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains("program.xml:4: the file "), qPrintable(run.errors));
    QVERIFY2(run.errors.contains("_timeNumber " + message), qPrintable(run.errors));
    QCOMPARE(run.errors.count('\n'), 1);
}

void TestToolExport::EmptyTextHasNoFile()
{
    const ProcessRun run = Export(ProgramOf("<clock type='digital'><title value=''/></clock>"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QVERIFY(!ReadText(Path("out/program.xml")).contains("_toptext"));
    QVERIFY(!QFile::exists(Path("out/files/.png")));
}

void TestToolExport::ExportsAgainToTheSamePlace()
{
    const QByteArray program = ProgramOf("<clock type='digital'/>");
    QCOMPARE(Export(program).exitCode, 0);
    const QStringList files = FilesIn(Path("out"));
    QCOMPARE(Export(program).exitCode, 0);
    QCOMPARE(FilesIn(Path("out")), files);
}

void TestToolExport::RefusesOtherDirectories_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("message");
    QTest::newRow("a file") << "in.xml"
                            << "cannot create this directory";
    QTest::newRow("within a file") << "in.xml/out"
                                   << "cannot create this directory";
    QTest::newRow("what is no export") << "."
                                       << "neither empty nor an earlier export";
}

void TestToolExport::RefusesOtherDirectories()
{
    QFETCH(QString, directory);
    QFETCH(QString, message);
    const QByteArray program = ProgramOf("<clock/>");
    QVERIFY(WriteText(Path("in.xml"), program));
    const ProcessRun run = RunTool({"export", Path("in.xml"), Path(directory)});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    QCOMPARE(FilesIn(m_directory->path()), QStringList {"in.xml"});
    QCOMPARE(ReadText(Path("in.xml")), program);
}

void TestToolExport::RefusesToReplaceTheProgram()
{
    QCOMPARE(Export(ProgramOf("<clock/>")).exitCode, 0);
    const QByteArray program = ReadText(Path("out/program.xml"));
    const ProcessRun run = RunTool({"export", Path("out/program.xml"), Path("out")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("the program itself"), qPrintable(run.errors));
    QCOMPARE(ReadText(Path("out/program.xml")), program);
}

// A directory is where the list would be written: the images are there, the rest fails.
// A wall whose images are wrong is no success.
void TestToolExport::FaultyImagesAreReported_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    QTest::newRow("letter of no font")
        << QString::fromUcs4(&kUnknownLetter, 1) << 12 << 0 << "warning: no installed font has";
    QTest::newRow("blank text") << QString(QChar(0x2800)) << 12 << 1
                                << "the font draws nothing for the glyph image _toptext";
    QTest::newRow("font too large") << "LED" << 30000 << 1 << "would be larger than 32767 pixels";
}
void TestToolExport::FaultyImagesAreReported()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QTemporaryDir directory;
    const QString program = directory.filePath("in.xml");
    QVERIFY(WriteText(program, ProgramOf(TopTextClock(text, size, true))));
    QStringList window {"-platform", "offscreen", program};
    for (const ProcessRun &run :
         {RunTool({"export", program, directory.filePath("out")}),
          RunPlayer({program, "--output", directory.filePath("frames"), "--frames", "1"}),
          // In a window the player would play on.
          exitCode == 0 ? ProcessRun {0, false, {}, message} : RunPlayer(window)}) {
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    }
    QCOMPARE(QFile::exists(directory.filePath("out/program.xml")), exitCode == 0);
}

// It is missing from what is carried away, and not from what is shown here.
void TestToolExport::HiddenImageThatCannotBeMade()
{
    const QTemporaryDir directory;
    const QString program = directory.filePath("in.xml");
    QVERIFY(WriteText(program, ProgramOf(TopTextClock("LED", 30000, false))));
    const ProcessRun run = RunTool({"export", program, directory.filePath("out")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("no image can be generated for _toptext"), qPrintable(run.errors));
    QCOMPARE(
        RunPlayer({program, "--output", directory.filePath("frames"), "--frames", "1"}).exitCode,
        0);
}

void TestToolExport::SystemWithoutFonts()
{
    const QTemporaryDir directory;
    const QString program = directory.filePath("in.xml");
    QVERIFY(WriteText(program, ProgramOf("<clock type=\"digital\" timezone=\"+00:00\"/>")));
    const ProcessRun run = RunToolWithoutFonts({"export", program, directory.filePath("out")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("no font is installed"), qPrintable(run.errors));
}

void TestToolExport::FailureLeavesEarlierExport()
{
    QCOMPARE(Export(ProgramOf("<clock/>")).exitCode, 0);
    const QByteArray program = ReadText(Path("out/program.xml"));
    QVERIFY(QFile::remove(Path("out/files.tsv")));
    QVERIFY(QDir(Path("out")).mkdir("files.tsv"));
    const ProcessRun run = Export(ProgramOf("<clock type='digital'/>"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("/out/files.tsv: "), qPrintable(run.errors));
    QCOMPARE(ReadText(Path("out/program.xml")), program);
    QCOMPARE(Play(Path("out/program.xml"), Path("frames"), {"--use-files"}).errors, QString());
}

QTEST_GUILESS_MAIN(TestToolExport)
#include "test_tool_export.moc"
