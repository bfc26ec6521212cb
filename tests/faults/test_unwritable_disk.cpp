// Disks that are full, read-only, or have something else in the way of a glyph image. What is there
// after all is whole, what was there before is not lost, nothing half-written is left, and with
// room again everything is made.
#include "fault_support.h"
#include "file_size_limit.h"
#include "messages.h"
#include "node/node_test_support.h"
#include "small_disk.h"
#include "without_privileges.h"

#include <QDir>

#include <optional>

#include <sys/stat.h>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

using Files = QMap<QString, QByteArray>;

Files FilesIn(const QString &directory)
{
    Files files;
    const QDir dir(directory);
    for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        files.insert(name, ReadFile(dir.filePath(name)));
    return files;
}

/// A clock whose images are larger than those of FullClock, under the same names.
void Enlarge(ClockUnderTest &clock)
{
    SetEvery(clock.node, Lw::HNodeClock::ValueRole::Size, 20);
}

/// The images as they are made where there is room.
Files EnlargedFiles(int kind)
{
    const auto clock = FullClock(kind);
    Enlarge(*clock);
    clock->MakeGlyphs();
    return FilesIn(clock->Directory());
}

} // namespace

class TestUnwritableDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // What cannot be read is logged, image by image.
        SilenceMessages();
    }
    void init() { ChosenTime::Set("2026-11-21T11:59:50"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void FilesThatMayNotGrow_data();
    void FilesThatMayNotGrow();
    void FullDisk_data() { AddKindsWithGlyphs(); }
    void FullDisk();
    void ExportToAFullDisk_data() { AddKindsWithGlyphs(); }
    void ExportToAFullDisk();
    void UpdateOnAFullDisk_data() { AddKindsWithGlyphs(); }
    void UpdateOnAFullDisk();
    void ReadOnly_data();
    void ReadOnly();
    void InTheWayOfAnImage_data();
    void InTheWayOfAnImage();
    void InTheWayOfWriting_data();
    void InTheWayOfWriting();
};

void TestUnwritableDisk::FilesThatMayNotGrow_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("bytes");
    for (const int kind : {AnalogClock, DigitalClock}) {
        for (const int bytes : {0, 1, 100, 300, 700})
            QTest::addRow("%s, %d bytes", KindName(kind), bytes) << kind << bytes;
    }
}

// Those that fit are new, the others are as before.
void TestUnwritableDisk::FilesThatMayNotGrow()
{
    QFETCH(int, kind);
    QFETCH(int, bytes);
    const Files enlarged = EnlargedFiles(kind);
    const auto clock = FullClock(kind);
    Files expected = FilesIn(clock->Directory());
    QCOMPARE(expected.keys(), enlarged.keys());
    for (const QString &name : enlarged.keys()) {
        if (enlarged[name].size() <= bytes)
            expected[name] = enlarged[name];
    }
    Enlarge(*clock);
    {
        const FileSizeLimit limit(static_cast<rlim_t>(bytes));
        clock->MakeGlyphs();
    }
    QCOMPARE(FilesIn(clock->Directory()), expected);
    clock->MakeGlyphs();
    QCOMPARE(FilesIn(clock->Directory()), enlarged);
}

// Room for some of the images: those are whole, and what is drawn is what they give.
void TestUnwritableDisk::FullDisk()
{
    QFETCH(int, kind);
    const Files enlarged = EnlargedFiles(kind);
    auto clock = std::make_unique<ClockUnderTest>(kind, QSize(120, 90));
    const QString directory = clock->Directory();
    std::optional<SmallDisk> disk(std::in_place, directory, 12);
    if (!disk->IsThere())
        QSKIP("needs the right to mount");
    Enlarge(*clock);
    clock->MakeGlyphs();
    const Files made = FilesIn(directory);
    QVERIFY(made.size() >= 5 && made.size() <= 12); // a page each at least
    for (const QString &name : made.keys())
        QCOMPARE(made[name], enlarged.value(name));
    const QImage shown = SettledFrame(clock->node, kMorning);
    QCOMPARE(shown.size(), QSize(120, 90));

    disk.reset(); // an empty directory with room
    clock->MakeGlyphs();
    QCOMPARE(FilesIn(directory), enlarged);
    for (const QString &name : enlarged.keys()) {
        if (!made.contains(name))
            QFile::remove(directory + QLatin1Char('/') + name);
    }
    QCOMPARE(SettledFrame(clock->node, kMorning), shown);
}

// Each image is where it was or under its digest's name, whole.
void TestUnwritableDisk::ExportToAFullDisk()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    const Files before = FilesIn(clock->Directory());
    const QTemporaryDir target;
    const SmallDisk disk(target.path(), 12);
    if (!disk.IsThere())
        QSKIP("needs the right to mount");
    {
        CapturedOutput captured;
        clock->node.ProcessFileName(target.path() + QLatin1Char('/'));
    }
    const Files left = FilesIn(clock->Directory());
    const Files exported = FilesIn(target.path());
    QVERIFY(!exported.isEmpty());
    QVERIFY(!left.isEmpty());
    for (const QString &name : before.keys()) {
        const QString digest = Md5(before[name]) + QStringLiteral(".png");
        QVERIFY2(left.value(name) == before[name] || exported.value(digest) == before[name],
                 qPrintable(name));
    }
    for (const QString &name : exported.keys())
        QCOMPARE(name, Md5(exported[name]) + QStringLiteral(".png"));
}

// Made under their digests' names, as far as there is room.
void TestUnwritableDisk::UpdateOnAFullDisk()
{
    QFETCH(int, kind);
    auto clock = std::make_unique<ClockUnderTest>(kind, QSize(120, 90));
    std::optional<SmallDisk> disk(std::in_place, clock->Directory(), 12);
    if (!disk->IsThere())
        QSKIP("needs the right to mount");
    clock->node.AfterUpdate(false);
    const Files made = FilesIn(clock->Directory());
    QVERIFY(!made.isEmpty());
    // The second of two equal images keeps its own name as well.
    for (const QString &name : made.keys())
        QCOMPARE(made.value(Md5(made[name]) + QStringLiteral(".png")), made[name]);
    int readable = 0;
    for (const Lw::FileRecord &record : clock->node.FileRecords()) {
        if (record.path.isEmpty()) {
            QCOMPARE(record.size, 0LL);
            continue;
        }
        ++readable;
        QCOMPARE(record.size, qint64(ReadFile(record.path).size()));
        QCOMPARE(record.name, Md5(ReadFile(record.path)));
    }
    QVERIFY(readable > 0);
    QCOMPARE(SettledFrame(clock->node, kMorning).size(), QSize(120, 90));
}

void TestUnwritableDisk::ReadOnly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("what");
    for (const int kind : {AnalogClock, DigitalClock}) {
        for (const char *const what :
             {"directory", "directory of files that are not", "files", "file system"})
            QTest::addRow("%s, %s", KindName(kind), what) << kind << QString::fromLatin1(what);
    }
}

// The images stay as they were; the clock goes on with them, and an export moves none of them.
void TestUnwritableDisk::ReadOnly()
{
    QFETCH(int, kind);
    QFETCH(QString, what);
    auto clock = std::make_unique<ClockUnderTest>(kind, QSize(120, 90));
    std::optional<SmallDisk> disk;
    if (what == QLatin1String("file system")) {
        disk.emplace(clock->Directory(), 200);
        if (!disk->IsThere())
            QSKIP("needs the right to mount");
    }
    clock->MakeGlyphs();
    const Files before = FilesIn(clock->Directory());
    const QImage shown = SettledFrame(clock->node, kMorning);
    const QTemporaryDir target;
    QFile::setPermissions(target.path(), QFile::Permissions(0x7777));
    const bool isDirectory = what.startsWith(QLatin1String("directory"));
    QFile::setPermissions(clock->Directory(), QFile::Permissions(isDirectory ? 0x5555 : 0x7777));
    if (what.contains(QLatin1String("files"))) {
        for (const QString &name : before.keys())
            QFile::setPermissions(clock->Directory() + QLatin1Char('/') + name,
                                  QFile::Permissions(isDirectory ? 0x6666 : 0x4444));
    }
    if (disk)
        QVERIFY(disk->MakeReadOnly());
    Enlarge(*clock);
    {
        const WithoutPrivileges nobody;
        QVERIFY(nobody.Dropped());
        clock->MakeGlyphs();
        QCOMPARE(FilesIn(clock->Directory()), before);
        QCOMPARE(SettledFrame(clock->node, kMorning), shown);
        CapturedOutput captured;
        if (what != QLatin1String("files"))
            clock->node.ProcessFileName(target.path() + QLatin1Char('/'));
    }
    QCOMPARE(FilesIn(clock->Directory()), before);
    QFile::setPermissions(clock->Directory(), QFile::Permissions(0x7777));
}

void TestUnwritableDisk::InTheWayOfAnImage_data()
{
    QTest::addColumn<QString>("what");
    for (const char *const what :
         {"pipe", "link to a pipe", "link to nowhere", "link to itself", "link to another's file",
          "endless device", "empty directory", "filled directory"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void PutInTheWay(const QString &what, const QString &path, const QString &others)
{
    WriteFile(others, "another's");
    const QByteArray pipe =
        QFile::encodeName(what == QLatin1String("pipe") ? path : others + ".pipe");
    if (what.contains(QLatin1String("pipe")))
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    if (what == QLatin1String("link to a pipe"))
        QVERIFY(QFile::link(others + ".pipe", path));
    if (what == QLatin1String("link to nowhere"))
        QVERIFY(QFile::link(others + ".none", path));
    if (what == QLatin1String("link to itself"))
        QVERIFY(QFile::link(path, path));
    if (what == QLatin1String("link to another's file"))
        QVERIFY(QFile::link(others, path));
    if (what == QLatin1String("endless device"))
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
    if (what.contains(QLatin1String("directory")))
        QVERIFY(QDir().mkpath(path));
    if (what == QLatin1String("filled directory"))
        WriteFile(path + QStringLiteral("/inside"), "kept");
}

namespace {

/// A clock one of whose images is gone, and a file elsewhere.
struct LostImage
{
    std::unique_ptr<ClockUnderTest> clock = FullClock(DigitalClock);
    QString path = clock->node.GetFirstFile(QStringLiteral("_dateNumber"));
    QByteArray image = ReadFile(path);
    QTemporaryDir elsewhere;
    QString others = elsewhere.filePath(QStringLiteral("file"));

    LostImage()
    {
        if (!QFile::remove(path))
            qFatal("cannot remove %s", qPrintable(path));
    }
};

} // namespace

// Under the name of an image. All but directories give way to it; what links lead to is not
// touched.
void TestUnwritableDisk::InTheWayOfAnImage()
{
    QFETCH(QString, what);
    const LostImage lost;
    PutInTheWay(what, lost.path, lost.others);

    lost.clock->MakeGlyphs();
    QCOMPARE(ReadFile(lost.others), QByteArray("another's"));
    QVERIFY(!QFile::exists(lost.path + QStringLiteral(".part")));
    QVERIFY(!QFile::exists(lost.others + ".none"));
    if (what.contains(QLatin1String("directory"))) {
        QVERIFY(QFileInfo(lost.path).isDir());
        if (what == QLatin1String("filled directory"))
            QCOMPARE(ReadFile(lost.path + QStringLiteral("/inside")), QByteArray("kept"));
    } else {
        QVERIFY(!QFileInfo(lost.path).isSymLink());
        QCOMPARE(ReadFile(lost.path), lost.image);
    }
}

void TestUnwritableDisk::InTheWayOfWriting_data()
{
    InTheWayOfAnImage_data();
    QTest::newRow("half an image") << "half an image";
}

// Under the name beside it, under which an image is written before it gets its own: as a power
// failure, or somebody else, may leave it.
void TestUnwritableDisk::InTheWayOfWriting()
{
    QFETCH(QString, what);
    const LostImage lost;
    const QString part = lost.path + QStringLiteral(".part");
    if (what == QLatin1String("half an image"))
        WriteFile(part, lost.image.left(lost.image.size() / 2));
    PutInTheWay(what, part, lost.others);

    lost.clock->MakeGlyphs();
    QCOMPARE(ReadFile(lost.others), QByteArray("another's"));
    QVERIFY(!QFile::exists(lost.others + ".none"));
    if (what == QLatin1String("filled directory")) {
        QCOMPARE(ReadFile(part + QStringLiteral("/inside")), QByteArray("kept"));
        QVERIFY(!QFile::exists(lost.path));
        return;
    }
    QVERIFY(!QFile::exists(part));
    QVERIFY(!QFileInfo(part).isSymLink());
    QCOMPARE(ReadFile(lost.path), lost.image);
}

QTEST_MAIN(TestUnwritableDisk)

#include "test_unwritable_disk.moc"
