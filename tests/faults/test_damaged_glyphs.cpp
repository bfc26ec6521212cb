// Glyph images that are damaged, replaced or gone, and directories that vanish while a clock plays.
// An image that cannot be read is as good as missing: the rest of the clock is drawn, nothing waits
// for a pipe or reads a device without end, and no memory is taken for what a header promises.
#include "fault_support.h"
#include "node/node_test_support.h"
#include "without_privileges.h"

#include <QDir>

#include <optional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kHalfDay = 12 * 3600000;

QByteArray BigEndian(quint32 number)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> shift & 0xff));
    return bytes;
}

quint32 Crc(const QByteArray &bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320 : crc >> 1;
    }
    return ~crc;
}

QByteArray Chunk(const QByteArray &typeAndData)
{
    return BigEndian(static_cast<quint32>(typeAndData.size() - 4)) + typeAndData
        + BigEndian(Crc(typeAndData));
}

/// A PNG that promises so many pixels, in order up to its first bytes of pixels.
QByteArray PromisingPng(quint32 width, quint32 height)
{
    return QByteArray("\x89PNG\r\n\x1a\n", 8)
        + Chunk("IHDR" + BigEndian(width) + BigEndian(height) + QByteArray("\x08\x06\0\0\0", 5))
        + Chunk(QByteArray("IDAT\x78\x9c\xed\xc1\x01\x01\0\0\0\x80\x90\xfe\xaf", 16))
        + Chunk("IEND");
}

void MakePipe(const QString &path)
{
    if (mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("no pipe");
}

void MakeLink(const QString &target, const QString &path)
{
    if (!QFile::link(target, path))
        qFatal("no link");
}

/// What becomes of a file that is gone already.
struct Damage
{
    const char *name;
    void (*apply)(const QString &path, const QByteArray &whole);
};

const Damage kDamages[] = {
    {"missing", [](const QString &, const QByteArray &) {}},
    {"empty", [](const QString &path, const QByteArray &) { WriteFile(path, ""); }},
    {"text", [](const QString &path, const QByteArray &) { WriteFile(path, "no picture\n"); }},
    {"signature alone",
     [](const QString &path, const QByteArray &whole) { WriteFile(path, whole.left(8)); }},
    {"other bytes",
     [](const QString &path, const QByteArray &whole) {
         QByteArray bytes = whole;
         for (int i = 8; i < bytes.size(); ++i)
             bytes[i] = static_cast<char>(bytes.at(i) ^ 0x5a);
         WriteFile(path, bytes);
     }},
    {"directory",
     [](const QString &path, const QByteArray &) {
         QDir().mkpath(path + QStringLiteral("/inside"));
     }},
    {"link to itself", [](const QString &path, const QByteArray &) { MakeLink(path, path); }},
    {"ring of links",
     [](const QString &path, const QByteArray &) {
         MakeLink(path + QStringLiteral(".next"), path);
         MakeLink(path, path + QStringLiteral(".next"));
     }},
    {"link to nowhere",
     [](const QString &path, const QByteArray &) {
         MakeLink(QStringLiteral("/dev/null/none"), path);
     }},
    {"pipe", [](const QString &path, const QByteArray &) { MakePipe(path); }},
    {"link to a pipe",
     [](const QString &path, const QByteArray &) {
         MakePipe(path + QStringLiteral(".pipe"));
         MakeLink(path + QStringLiteral(".pipe"), path);
     }},
    {"endless device",
     [](const QString &path, const QByteArray &) { MakeLink(QStringLiteral("/dev/zero"), path); }},
    {"4 GiB of nothing",
     [](const QString &path, const QByteArray &whole) {
         WriteFile(path, whole.left(8));
         if (truncate(QFile::encodeName(path).constData(), Q_INT64_C(1) << 32) != 0)
             qFatal("no sparse file");
     }},
    {"promises 1 GiB",
     [](const QString &path, const QByteArray &) { WriteFile(path, PromisingPng(16384, 16384)); }},
    {"promises all there is",
     [](const QString &path, const QByteArray &) {
         WriteFile(path, PromisingPng(0x7fffffff, 0x7fffffff));
     }},
    {"promises none",
     [](const QString &path, const QByteArray &) { WriteFile(path, PromisingPng(0, 16)); }},
};

/// The glyph files of a clock, which can be put back as they were.
class GlyphFiles
{
public:
    explicit GlyphFiles(HClockNode &node)
    {
        for (const Lw::FileRecord &record : node.FileRecords()) {
            m_paths.append(record.path);
            m_contents.append(ReadFile(record.path));
        }
    }
    int Count() const { return m_paths.size(); }
    const QString &Path(int index) const { return m_paths.at(index); }
    const QByteArray &Content(int index) const { return m_contents.at(index); }

    void Apply(const Damage &damage, int index) const
    {
        QFile::remove(Path(index));
        damage.apply(Path(index), Content(index));
    }
    void PutBack(int index) const
    {
        for (const char *const suffix : {"", ".next", ".pipe"}) {
            const QString path = Path(index) + QLatin1String(suffix);
            QDir(path).removeRecursively();
            QFile::remove(path);
        }
        WriteFile(Path(index), Content(index));
    }

private:
    QStringList m_paths;
    QList<QByteArray> m_contents;
};

qint64 MostResidentKiB()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// Shows what is read from files while playing, too, or nothing of the kind.
std::unique_ptr<ClockUnderTest> ClockWith(int kind, bool live)
{
    auto clock = FullClock(kind);
    clock->Set("Analog_AMPM_d", live ? 1 : 0);
    clock->Set("HourScaleType", live ? 3 : 0);
    clock->Set("DigitalMode", live ? 1 : 0);
    return clock;
}

} // namespace

class TestDamagedGlyphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ChosenTime::Set("2026-11-21T11:59:50"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void AllDamaged_data();
    void AllDamaged();
    void OneDamaged_data() { AddKindsWithGlyphs(); }
    void OneDamaged();
    void CutAnywhere_data() { AddKindsWithGlyphs(); }
    void CutAnywhere();
    void NotReadable_data() { AddKindsWithGlyphs(); }
    void NotReadable();
    void DirectoryGoneBeforeTheStart_data();
    void DirectoryGoneBeforeTheStart();
    void DirectoryGoneWhilePlaying_data();
    void DirectoryGoneWhilePlaying();
    void LiveImagesGoneAndBack_data() { AddKindsWithGlyphs(); }
    void LiveImagesGoneAndBack();
};

void TestDamagedGlyphs::AllDamaged_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("damage");
    for (const int kind : {AnalogClock, DigitalClock}) {
        for (int damage = 0; damage < int(std::size(kDamages)); ++damage)
            QTest::addRow("%s, %s", KindName(kind), kDamages[damage].name) << kind << damage;
    }
}

// The clock without any of its images: a digital one shows nothing, an analog one its dial and
// hands, as one that has no rows and no badge to show.
void TestDamagedGlyphs::AllDamaged()
{
    QFETCH(int, kind);
    QFETCH(int, damage);
    const auto clock = ClockWith(kind, true);
    const GlyphFiles files(clock->node);
    const QImage whole = SettledFrame(clock->node, kMorning);
    for (int i = 0; i < files.Count(); ++i)
        files.Apply(kDamages[damage], i);

    const qint64 before = MostResidentKiB();
    const QImage shown = SettledFrame(clock->node, kMorning);
    QVERIFY(MostResidentKiB() - before < 32 << 10);
    QVERIFY(shown != whole);
    if (kind == DigitalClock) {
        QCOMPARE(PixelsShown(shown), 0);
    } else {
        const auto bare = ClockWith(kind, false);
        for (const char *const key :
             {"Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d", "Analog_Lunar_d"})
            bare->Set(key, 0);
        bare->Set("HourScaleType", 2); // the marks that go with numerals
        QCOMPARE(shown, SettledFrame(bare->node, kMorning));
    }

    for (int i = 0; i < files.Count(); ++i)
        files.PutBack(i);
    QCOMPARE(SettledFrame(clock->node, kMorning), whole);
}

// Each image alone, in turn by each kind of damage: as where that one is missing.
void TestDamagedGlyphs::OneDamaged()
{
    QFETCH(int, kind);
    const auto clock = ClockWith(kind, true);
    const GlyphFiles files(clock->node);
    QVERIFY(files.Count() > 49);
    for (int i = 0; i < files.Count(); ++i) {
        files.Apply(kDamages[0], i);
        const QImage without = SettledFrame(clock->node, kMorning);
        const Damage &damage = kDamages[1 + i % (int(std::size(kDamages)) - 1)];
        files.Apply(damage, i);
        QVERIFY2(SettledFrame(clock->node, kMorning) == without,
                 qPrintable(files.Path(i) + QLatin1Char(' ') + QLatin1String(damage.name)));
        files.PutBack(i);
    }
}

void TestDamagedGlyphs::CutAnywhere()
{
    QFETCH(int, kind);
    const auto clock = ClockWith(kind, true);
    const GlyphFiles files(clock->node);
    const QImage whole = SettledFrame(clock->node, kMorning);
    const QString digits = clock->node.GetFirstFile(QStringLiteral("_dateNumber"));
    int index = 0;
    while (files.Path(index) != digits)
        ++index;
    files.Apply(kDamages[0], index);
    const QImage without = SettledFrame(clock->node, kMorning);
    QVERIFY(without != whole);
    const QByteArray content = files.Content(index);
    // The last twelve bytes say only that the picture ends there.
    for (int cut = 0; cut < content.size() - 12; cut += 7) {
        WriteFile(digits, content.left(cut));
        QVERIFY2(SettledFrame(clock->node, kMorning) == without, qPrintable(QString::number(cut)));
    }
    files.PutBack(index);
    QCOMPARE(SettledFrame(clock->node, kMorning), whole);
}

void TestDamagedGlyphs::NotReadable()
{
    QFETCH(int, kind);
    const auto clock = ClockWith(kind, true);
    const GlyphFiles files(clock->node);
    for (int i = 0; i < files.Count(); ++i)
        files.Apply(kDamages[0], i);
    const QImage without = SettledFrame(clock->node, kMorning);
    for (int i = 0; i < files.Count(); ++i) {
        files.PutBack(i);
        QVERIFY(QFile::setPermissions(files.Path(i), QFile::Permissions()));
    }
    const WithoutPrivileges nobody;
    QVERIFY(nobody.Dropped());
    QCOMPARE(SettledFrame(clock->node, kMorning), without);
}

void AddDisappearances()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("how");
    for (const int kind : {AnalogClock, DigitalClock}) {
        for (const char *const how :
             {"removed", "moved away", "a file now", "a pipe now", "locked"})
            QTest::addRow("%s, %s", KindName(kind), how) << kind << QString::fromLatin1(how);
    }
}

/// The directory is gone in one of those ways. A locked one is locked for users without privileges:
/// the test drops its own meanwhile.
class Disappearance
{
public:
    Disappearance(const QString &directory, const QString &how) : m_directory(directory)
    {
        if (how == QLatin1String("locked")) {
            QFile::setPermissions(directory, QFile::Permissions());
            m_nobody.emplace();
            return;
        }
        m_moved = directory + QStringLiteral(".moved");
        if (!QDir().rename(directory, m_moved))
            qFatal("the directory stays");
        if (how == QLatin1String("removed"))
            QDir(m_moved).removeRecursively();
        if (how == QLatin1String("a file now"))
            WriteFile(directory, "file");
        if (how == QLatin1String("a pipe now"))
            MakePipe(directory);
    }
    ~Disappearance()
    {
        m_nobody.reset();
        QFile::remove(m_directory);
        if (QFile::exists(m_moved))
            QDir().rename(m_moved, m_directory);
        QDir().mkpath(m_directory);
        QFile::setPermissions(m_directory, QFile::Permissions(0x7777));
    }
    Q_DISABLE_COPY(Disappearance)

private:
    QString m_directory;
    QString m_moved;
    std::optional<WithoutPrivileges> m_nobody;
};

void TestDamagedGlyphs::DirectoryGoneBeforeTheStart_data()
{
    AddDisappearances();
}

void TestDamagedGlyphs::DirectoryGoneBeforeTheStart()
{
    QFETCH(int, kind);
    QFETCH(QString, how);
    const auto clock = ClockWith(kind, true);
    const QImage whole = SettledFrame(clock->node, kMorning);
    const GlyphFiles files(clock->node);
    for (int i = 0; i < files.Count(); ++i)
        files.Apply(kDamages[0], i);
    const QImage without = SettledFrame(clock->node, kMorning);
    for (int i = 0; i < files.Count(); ++i)
        files.PutBack(i);
    {
        const Disappearance gone(clock->Directory(), how);
        QCOMPARE(SettledFrame(clock->node, kMorning), without);
        // Making them again makes nothing, and no directory either.
        clock->MakeGlyphs();
        QVERIFY(!clock->node.AllFileExists());
        QCOMPARE(SettledFrame(clock->node, kMorning), without);
    }
    clock->MakeGlyphs();
    QVERIFY(clock->node.AllFileExists());
    QCOMPARE(SettledFrame(clock->node, kMorning), whole);
    for (int i = 0; i < files.Count(); ++i)
        QCOMPARE(ReadFile(files.Path(i)), files.Content(i));
}

void TestDamagedGlyphs::DirectoryGoneWhilePlaying_data()
{
    AddDisappearances();
}

// The images were taken when the clock was set up, those too that it shows only tomorrow.
void TestDamagedGlyphs::DirectoryGoneWhilePlaying()
{
    QFETCH(int, kind);
    QFETCH(QString, how);
    const auto clock = ClockWith(kind, false);
    const QVector<qint64> instants = {kMorning,
                                      kMorning + 1000,
                                      kMorning + 2000,
                                      kMorning + kHalfDay,
                                      kMorning + kHalfDay + 1000,
                                      kMorning + 2 * kHalfDay,
                                      kMorning + 2 * kHalfDay + 1000,
                                      kMorning + 60 * kHalfDay,
                                      kMorning + 60 * kHalfDay + 1000};
    QList<QImage> expected;
    DrawDisplayImage undisturbed(&clock->node);
    for (const qint64 instant : instants)
        expected.append(FrameAt(undisturbed, instant).copy());
    QVERIFY(expected.at(1) != expected.at(6));

    DrawDisplayImage drawer(&clock->node);
    QCOMPARE(FrameAt(drawer, instants.at(0)), expected.at(0));
    const Disappearance gone(clock->Directory(), how);
    for (int i = 1; i < instants.size(); ++i)
        QCOMPARE(FrameAt(drawer, instants.at(i)), expected.at(i));
}

// Read while playing: the mark of the twelve-hour display, each second; badge and numerals with
// each new dial, at noon.
void TestDamagedGlyphs::LiveImagesGoneAndBack()
{
    QFETCH(int, kind);
    const auto clock = ClockWith(kind, true);
    const qint64 evening = kMorning + kHalfDay;
    const QImage wholeEvening = SettledFrame(clock->node, evening);
    const GlyphFiles files(clock->node);
    const QStringList live = {"_timeAM", "_timePM", "_AnalogAM", "_AnalogPM", "_hourhandNumber"};
    const auto each = [&](auto change) {
        for (int i = 0; i < files.Count(); ++i) {
            for (const QString &key : live) {
                if (files.Path(i) == clock->node.GetFirstFile(key))
                    change(i);
            }
        }
    };
    each([&](int i) { files.Apply(kDamages[0], i); });
    const QImage withoutEvening = SettledFrame(clock->node, evening);
    QVERIFY(withoutEvening != wholeEvening);
    each([&](int i) { files.PutBack(i); });

    DrawDisplayImage drawer(&clock->node);
    FrameAt(drawer, kMorning);
    {
        const Disappearance gone(clock->Directory(), QStringLiteral("moved away"));
        FrameAt(drawer, evening);
        QCOMPARE(FrameAt(drawer, evening), withoutEvening);
    }
    FrameAt(drawer, kMorning); // another half of the day: another dial
    FrameAt(drawer, evening);
    QCOMPARE(FrameAt(drawer, evening), wholeEvening);
}

QTEST_MAIN(TestDamagedGlyphs)

#include "test_damaged_glyphs.moc"
