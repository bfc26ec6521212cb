// Results on disks of every size, from none to enough, and with every number of free inodes:
// success means that all of it is there, whole; failure is told, and what was there before stays.
#include "exported_files.h"
#include "small_disk.h"
#include "tool_process.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include <sys/statvfs.h>

namespace {

enum class Limit { Pages, Inodes };

constexpr int kPlenty = 10000;
constexpr int kSuccesses = 3; // one after another: it was enough

int UsedPages(const QString &directory)
{
    struct statvfs status = {};
    statvfs(QFile::encodeName(directory).constData(), &status);
    return static_cast<int>((status.f_blocks - status.f_bfree) * status.f_frsize
                            / SmallDisk::kPage);
}

int UsedInodes(const QString &directory)
{
    struct statvfs status = {};
    statvfs(QFile::encodeName(directory).constData(), &status);
    return static_cast<int>(status.f_files - status.f_ffree);
}

/// What a run on a disk came to.
struct Attempt
{
    bool succeeded = false;
    QString fault; ///< that success or failure is not what it should be
};

QString NothingOnFailure(const ProcessRun &run)
{
    if (run.exitCode != 1)
        return QStringLiteral("exit code %1").arg(run.exitCode);
    return run.errors.isEmpty() ? QStringLiteral("failed without a word") : QString();
}

} // namespace

class TestFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ExportIsWholeOrUntouched_data() { AddLimits(); }
    void ExportIsWholeOrUntouched();
    void ExportAgain_data() { AddLimits(); }
    void ExportAgain();
    void ListsAreWholeOrUntouched_data();
    void ListsAreWholeOrUntouched();
    void ReadOnlyDisk();
    void GlyphsOnATemporaryDisk();
    void FramesAreWholeOrUntouched_data() { AddLimits(); }
    void FramesAreWholeOrUntouched();

private:
    static void AddLimits();
    QString Disk() const { return m_directory->filePath("disk"); }
    QString Roomy(const QString &name) const { return m_directory->filePath(name); }
    ProcessRun Export(const QByteArray &title, const QString &out) const;
    Attempt TryExport(const Entries &expected, const Entries &before) const;
    /// What is wrong at the first size at which something is.
    QString Sweep(Limit limit, const std::function<void()> &prepare,
                  const std::function<Attempt()> &attempt) const;

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestFullDisk::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(QDir(m_directory->path()).mkdir("disk"));
    if (!SmallDisk(Disk(), 1).IsThere())
        QSKIP("needs the right to mount");
}

void TestFullDisk::AddLimits()
{
    QTest::addColumn<int>("limit");
    QTest::newRow("pages") << int(Limit::Pages);
    QTest::newRow("inodes") << int(Limit::Inodes);
}

QString TestFullDisk::Sweep(Limit limit, const std::function<void()> &prepare,
                            const std::function<Attempt()> &attempt) const
{
    int inARow = 0;
    int failures = 0;
    for (int room = 0; inARow < kSuccesses; ++room) {
        const SmallDisk disk(Disk(), kPlenty, kPlenty);
        prepare();
        const int pages = limit == Limit::Pages ? UsedPages(Disk()) + room : kPlenty;
        const int inodes = limit == Limit::Inodes ? UsedInodes(Disk()) + room : kPlenty;
        if (room > kPlenty || !disk.Resize(pages, inodes))
            return QStringLiteral("no disk with room for %1").arg(room);
        const Attempt result = attempt();
        if (!result.fault.isEmpty())
            return QStringLiteral("room for %1: %2").arg(room).arg(result.fault);
        inARow = result.succeeded ? inARow + 1 : 0;
        failures += result.succeeded ? 0 : 1;
    }
    return failures > 0 ? QString() : QStringLiteral("it was never too small");
}

ProcessRun TestFullDisk::Export(const QByteArray &title, const QString &out) const
{
    const QString program = Roomy("in.xml");
    WriteText(program,
              ProgramOf("<clock type='digital'><attribute key='Id' value='7'/><title value='"
                        + title + "' display='true'/></clock>"));
    return RunTool({"export", program, out, "--language", "en"});
}

Attempt TestFullDisk::TryExport(const Entries &expected, const Entries &before) const
{
    const ProcessRun run = Export("second", Disk());
    Entries entries = EntriesIn(Disk());
    if (run.exitCode == 0) {
        for (const QString &path : before.keys()) {
            if (!expected.contains(path))
                entries.remove(path); // images of the earlier program only
        }
        return {true, entries == expected ? QString() : QStringLiteral("not whole")};
    }
    for (const QString &path : entries.keys()) {
        if (path.contains(".glyphs") || path.contains(".lock"))
            return {false, path + QStringLiteral(" is left")};
    }
    for (const QString &path : before.keys()) {
        if (entries.value(path) != before[path])
            return {false, path + QStringLiteral(" was lost")};
    }
    return {false, NothingOnFailure(run)};
}

void TestFullDisk::ExportIsWholeOrUntouched()
{
    QFETCH(int, limit);
    QCOMPARE(Export("second", Roomy("whole")).exitCode, 0);
    const Entries expected = EntriesIn(Roomy("whole"));
    const QString fault = Sweep(
        Limit(limit), [] {}, [&] { return TryExport(expected, {}); });
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

void TestFullDisk::ExportAgain()
{
    QFETCH(int, limit);
    QCOMPARE(Export("second", Roomy("whole")).exitCode, 0);
    const Entries expected = EntriesIn(Roomy("whole"));
    Entries before;
    const auto prepare = [&] {
        Export("first", Disk());
        before = EntriesIn(Disk());
    };
    const QString fault = Sweep(Limit(limit), prepare, [&] { return TryExport(expected, before); });
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

void TestFullDisk::ListsAreWholeOrUntouched_data()
{
    const QString program = InTree("examples/six_clocks.xml");
    QTest::addColumn<QStringList>("command");
    QTest::newRow("attributes") << QStringList {"attributes"};
    QTest::newRow("glyphs") << QStringList {"glyphs", program};
    QTest::newRow("import") << QStringList {"import", InTree("examples/station.xml")};
    QTest::newRow("sdk") << QStringList {"sdk", program};
    QTest::newRow("zone") << QStringList {"zone", "Asia/Tokyo"};
}

// Over a file that exists, which stays whole.
void TestFullDisk::ListsAreWholeOrUntouched()
{
    QFETCH(QStringList, command);
    const QByteArray expected = RunTool(command).output.toUtf8();
    const QString path = Disk() + "/list";
    const auto attempt = [&] {
        const ProcessRun run = RunTool(command + QStringList {"-o", path});
        const QByteArray contents = ReadText(path);
        if (run.exitCode == 0)
            return Attempt {true, contents == expected ? QString() : QStringLiteral("not whole")};
        if (contents != "old" || EntriesIn(Disk()).size() != 1)
            return Attempt {false, QStringLiteral("the old list was lost")};
        return Attempt {false, NothingOnFailure(run)};
    };
    for (const Limit limit : {Limit::Pages, Limit::Inodes}) {
        const QString fault = Sweep(
            limit, [&] { WriteText(path, "old"); }, attempt);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

void TestFullDisk::ReadOnlyDisk()
{
    const SmallDisk disk(Disk(), kPlenty);
    const QString path = Disk() + "/list";
    QVERIFY(WriteText(path, "old"));
    QVERIFY(disk.MakeReadOnly());
    const ProcessRun run = RunTool({"attributes", "-o", path});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("/list: "), qPrintable(run.errors));
    QCOMPARE(ReadText(path), QByteArray("old"));
}

// The images of which the list is made have no room.
void TestFullDisk::GlyphsOnATemporaryDisk()
{
    const QStringList command {"glyphs", InTree("examples/station.xml"), "--language", "en"};
    const QString expected = RunTool(command).output;
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Disk());
    const auto attempt = [&] {
        const ProcessRun run = RunProcess(TOOL, command, environment);
        if (run.exitCode == 0)
            return Attempt {true, run.output == expected ? QString() : QStringLiteral("not whole")};
        return Attempt {false, NothingOnFailure(run)};
    };
    const QString fault = Sweep(
        Limit::Pages, [] {}, attempt);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

// Those of the player, over older ones: each is old or new, and none is cut.
void TestFullDisk::FramesAreWholeOrUntouched()
{
    QFETCH(int, limit);
    const QString program = InTree("examples/station.xml");
    const auto play = [&](const QString &directory, const QString &second) {
        return RunPlayer({program, "--output", directory, "--frames", "3", "--led", "3",
                          "--language", "en", "--at", "2024-03-05T13:07:" + second + "Z"});
    };
    QCOMPARE(play(Roomy("old"), "10").exitCode, 0);
    QCOMPARE(play(Roomy("new"), "40").exitCode, 0);
    const Entries older = EntriesIn(Roomy("old"));
    const Entries newer = EntriesIn(Roomy("new"));
    const auto attempt = [&] {
        const ProcessRun run = play(Disk(), "40");
        const Entries frames = EntriesIn(Disk());
        if (run.exitCode == 0)
            return Attempt {true, frames == newer ? QString() : QStringLiteral("not whole")};
        if (frames.keys() != older.keys())
            return Attempt {false, frames.keys().join(' ')};
        for (const QString &name : frames.keys()) {
            if (frames[name] != older[name] && frames[name] != newer[name])
                return Attempt {false, name + " is neither old nor new"};
        }
        return Attempt {false, NothingOnFailure(run)};
    };
    const auto prepare = [&] {
        for (const QString &name : older.keys())
            WriteText(Disk() + '/' + name, older[name]);
    };
    const QString fault = Sweep(Limit(limit), prepare, attempt);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

QTEST_GUILESS_MAIN(TestFullDisk)
#include "test_full_disk.moc"
