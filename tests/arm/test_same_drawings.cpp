// What this build's programs write is what the build machine's own programs write: frames, glyph
// files and their digests, byte for byte. Both use the machine's fonts, with the same FreeType.
//
// One thing differs, and only where a picture clock's hands are drawn, turned and smoothed. Qt's
// raster engine blends the four pixels around a point by sixteenths of a pixel: with the SSE2
// instructions of x86-64 (and those of AVX2, again otherwise) the place between the pixels is
// rounded to a sixteenth, elsewhere it is cut. A black and white edge, turned, has 17 greys in
// steps of 255/16 on ARM, with NEON and without.
#include "process_run.h"
#include "program_sweeps.h"
#include "reference_picture.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A sixteenth of the way from black to white across, and one down.
constexpr int kHandsDiffer = 2 * 16;
// How much of a picture clock its hands cover.
constexpr double kHandsCover = 0.05;

const QString kBuilt = QStringLiteral(BUILT_PROGRAMS "/");
const QString kNative = QStringLiteral(NATIVE_PROGRAMS "/");

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Everything below a directory, named relative to it.
QStringList FilesBelow(const QString &directory)
{
    QStringList files;
    QDirIterator walk(directory, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files += QDir(directory).relativeFilePath(walk.next());
    files.sort();
    return files;
}

} // namespace

class TestSameDrawings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void FramesAreEqual_data();
    void FramesAreEqual();
    void HandsOfPictures();
    void GlyphFiles_data();
    void GlyphFiles();
    void SelfTest();

private:
    QString Path(const QString &name) const { return m_directory.filePath(name); }
    QString Written(const QString &name, const QByteArray &program) const;
    bool RunBoth(const QString &program, const QStringList &arguments);
    bool Play(const QString &program, const QString &instant, const QStringList &more = {});

    QTemporaryDir m_directory;
    ProcessRun m_built;
    ProcessRun m_native;
};

void TestSameDrawings::initTestCase()
{
    QVERIFY(m_directory.isValid());
    for (const char *program : {"clock_player", "clock_tool"}) {
        QVERIFY(QFile::exists(kBuilt + program));
        QVERIFY2(QFile::exists(kNative + program), "to be built for the build machine first");
        QVERIFY(MachineOf(kBuilt + program) != MachineOf(kNative + program));
    }
}

QString TestSameDrawings::Written(const QString &name, const QByteArray &program) const
{
    QFile file(Path(name));
    return file.open(QFile::WriteOnly) && file.write(program) == program.size() ? file.fileName()
                                                                                : QString();
}

/// With OUT in the arguments, each has a directory of its own.
bool TestSameDrawings::RunBoth(const QString &program, const QStringList &arguments)
{
    for (const char *name : {"built", "native"})
        QDir(Path(name)).removeRecursively();
    const auto with = [&](const char *name) {
        return QStringList(arguments).replaceInStrings("OUT", Path(name));
    };
    m_built = RunProcess(kBuilt + program, with("built"));
    m_native = RunProcess(kNative + program, with("native"));
    if (m_built.exitCode != 0 || m_native.exitCode != 0)
        qWarning("%d %d: %s%s", m_built.exitCode, m_native.exitCode, qPrintable(m_built.errors),
                 qPrintable(m_native.errors));
    return m_built.exitCode == 0 && m_native.exitCode == 0;
}

bool TestSameDrawings::Play(const QString &program, const QString &instant, const QStringList &more)
{
    return RunBoth("clock_player",
                   QStringList {program, "--at", instant, "--frames", "4", "--language", "en",
                                "--output", "OUT"}
                       + more);
}

void TestSameDrawings::FramesAreEqual_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("instant");
    const QString digital = Written("digital.xml", ProgramSweeps::Digital());
    const QString analog = Written("analog.xml", ProgramSweeps::Analog());
    for (const char *instant :
         {"2024-02-29T18:14:58Z", "2038-01-19T03:14:06Z", "2050-07-01T06:14:58Z"}) {
        QTest::addRow("digital clocks, %s", instant) << digital << QString(instant);
        QTest::addRow("analog clocks, %s", instant) << analog << QString(instant);
    }
    const QDir examples(EXAMPLES);
    for (const char *name :
         {"analog", "chinese", "one_line", "persian", "station", "twelve_hour"}) {
        QTest::addRow("%s.xml", name)
            << examples.filePath(name + QStringLiteral(".xml")) << "2024-03-20T03:59:58Z";
    }
}

void TestSameDrawings::FramesAreEqual()
{
    QFETCH(QString, program);
    QFETCH(QString, instant);
    QVERIFY(Play(program, instant));
    const QStringList frames = FilesBelow(Path("native"));
    QCOMPARE(frames.size(), 4);
    QCOMPARE(FilesBelow(Path("built")), frames);
    for (const QString &frame : frames)
        QVERIFY2(Content(Path("built/" + frame)) == Content(Path("native/" + frame)),
                 qPrintable(frame));
}

// Where nothing is turned, nothing differs: the share of pixels that differ at all is bounded too.
void TestSameDrawings::HandsOfPictures()
{
    QVERIFY(Play(Written("picture.xml", ProgramSweeps::Picture()), "2024-02-29T18:14:58Z"));
    const QVector<QImage> built = Frames(Path("built"));
    const QVector<QImage> native = Frames(Path("native"));
    QCOMPARE(built.size(), 4);
    QCOMPARE(native.size(), 4);
    for (int i = 0; i < built.size(); ++i) {
        int far = 0;
        int differing = 0;
        ReferencePicture::Difference(built[i], native[i], kHandsDiffer, far);
        ReferencePicture::Difference(built[i], native[i], 0, differing);
        QCOMPARE(far, 0);
        const double share = double(differing) / (native[i].width() * native[i].height());
        QVERIFY2(share < kHandsCover, qPrintable(QString::number(share)));
    }
}

void TestSameDrawings::GlyphFiles_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("digital clocks") << ProgramSweeps::Digital();
    QTest::newRow("analog clocks") << ProgramSweeps::Analog();
}

// An export has the program with the digests, the files named by them, and the list of both.
void TestSameDrawings::GlyphFiles()
{
    QFETCH(QByteArray, program);
    const QString written = Written("program.xml", program);
    QVERIFY(RunBoth("clock_tool", {"export", "--language", "en", written, "OUT"}));
    const QStringList files = FilesBelow(Path("native"));
    QVERIFY(files.size() > 40);
    QCOMPARE(FilesBelow(Path("built")), files);
    for (const QString &file : files)
        QVERIFY2(Content(Path("built/" + file)) == Content(Path("native/" + file)),
                 qPrintable(file));

    QVERIFY(RunBoth("clock_tool", {"glyphs", "--language", "en", written}));
    QVERIFY(m_native.output.count('\n') > 40);
    QCOMPARE(m_built.output, m_native.output);
}

void TestSameDrawings::SelfTest()
{
    QVERIFY(RunBoth("clock_tool", {"self-test"}));
    QVERIFY(m_native.output.count(" ... ok\n") >= 6);
    QCOMPARE(m_built.output, m_native.output);
}

QTEST_GUILESS_MAIN(TestSameDrawings)
#include "test_same_drawings.moc"
