// Files that travel with a program, and what may be under their names instead.
#include "carried_files.h"
#include "swapped_file.h"

#include "hnode.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

using namespace ClockProgram;

namespace {

const QByteArray kContent("twelve bytes");
const QString kDigest = QStringLiteral("c91fa94e14cf2fa5474beceff788c0dc");

class TestCarriedFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void OddFilesAreTold_data();
    void OddFilesAreTold();
    void SizesThatAreMadeUpEnd();
    void SwappedForAPipe();

private:
    QString Path(const char *name) const { return m_directory.filePath(name); }
    bool Write(const QString &path) const;
    QStringList WarningsOf(const QString &path, const QString &digest, qint64 size) const;

    QTemporaryDir m_directory;
};

bool TestCarriedFiles::Write(const QString &path) const
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(kContent) == kContent.size();
}

/// Of a program with one clock, which has one file.
QStringList TestCarriedFiles::WarningsOf(const QString &path, const QString &digest,
                                         qint64 size) const
{
    const auto program = ParseProgram("<program width='1' height='1'><area x='0' y='0' width='1' "
                                      "height='1'><clock/></area></program>",
                                      Path("p.xml"));
    MadeNodes made;
    made.nodes.push_back({nullptr, std::make_unique<Lw::HNode>()});
    made.nodes[0].node->SetFilePath("_image", path, digest, size, 0);
    QStringList warnings = ResolveCarriedFiles(*program, made);
    for (QString &warning : warnings)
        warning.remove(path);
    return warnings;
}

void TestCarriedFiles::initTestCase()
{
    QVERIFY(Write(Path("good")));
    QVERIFY(QDir(m_directory.path()).mkdir("directory"));
    QCOMPARE(mkfifo(qPrintable(Path("pipe")), 0600), 0);
    QFile sparse(Path("sparse"));
    QVERIFY(sparse.open(QFile::WriteOnly) && sparse.resize(Q_INT64_C(300) << 30));
}

void TestCarriedFiles::OddFilesAreTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("digest");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("fault"); // empty: none
    const auto row = [](const char *name, const QString &path, const QString &digest, qint64 size,
                        const char *fault) {
        QTest::newRow(name) << path << digest << size << QString::fromLatin1(fault);
    };
    row("right", Path("good"), kDigest, 12, "");
    row("of any size", Path("good"), kDigest, -1, "");
    row("another size", Path("good"), kDigest, 13, "has 12 bytes, expected 13");
    row("another digest", Path("good"), "x", 12, "has the digest c91fa9");
    row("missing", Path("none"), kDigest, 12, "is missing");
    row("a directory", Path("directory"), kDigest, 12, "is not a regular file");
    row("a pipe", Path("pipe"), kDigest, 12, "is not a regular file");
    row("a device", "/dev/zero", kDigest, 12, "is not a regular file");
    row("sparse", Path("sparse"), kDigest, Q_INT64_C(300) << 30, "is larger than 142606336 bytes");
}

void TestCarriedFiles::OddFilesAreTold()
{
    QFETCH(QString, path);
    QFETCH(QString, digest);
    QFETCH(qint64, size);
    QFETCH(QString, fault);
    const QStringList warnings = WarningsOf(path, digest, size);
    QCOMPARE(warnings.size(), fault.isEmpty() ? 0 : 1);
    if (!fault.isEmpty())
        QVERIFY2(warnings[0].contains(fault), qPrintable(warnings[0]));
}

// The system gives such files the size 0, and bytes without an end.
void TestCarriedFiles::SizesThatAreMadeUpEnd()
{
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(WarningsOf("/proc/self/pagemap", kDigest, 0).size(), 1);
    QVERIFY(timer.elapsed() < 5000);
}

void TestCarriedFiles::SwappedForAPipe()
{
    const SwappedFile swapped(Path("swapped"), kContent);
    QVERIFY(swapped.BothAreMet(
        1000, [this] { return WarningsOf(Path("swapped"), kDigest, 12).isEmpty(); }));
}

} // namespace

QTEST_GUILESS_MAIN(TestCarriedFiles)
#include "test_carried_files.moc"
