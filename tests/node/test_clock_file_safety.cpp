// The export of one glyph image: whatever is at its source and its destination, no image that
// exists is lost, and record and lists are made all the same.
#include "file_size_limit.h"
#include "node_test_support.h"
#include "without_privileges.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <optional>
#include <sys/stat.h>

using namespace Lw::HNodeClock;

namespace {

const QByteArray kImage = QByteArray("\x89PNG\r\n\x1a\n", 8) + QByteArray(3000, 'g');

QString Md5(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

bool OnOneFileSystem(const QString &a, const QString &b)
{
    struct stat first;
    struct stat second;
    return stat(QFile::encodeName(a).constData(), &first) == 0
        && stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev;
}

} // namespace

class TestClockFileSafety : public QObject
{
    Q_OBJECT

    QScopedPointer<FreshDirectories> m_dirs;
    QSharedPointer<QTemporaryDir> m_elsewhere;
    HClockNode *m_node = nullptr;

    QString Source() const { return m_dirs->Out() + QStringLiteral("analog_7_space.png"); }
    static QString NameIn(const QString &directory)
    {
        return directory + Md5(kImage) + QStringLiteral(".png");
    }
    QString Dest() const { return NameIn(m_dirs->Dest()); }

    /// Exports and checks what holds in every case: the record and one entry in both lists.
    void Export(const QString &destDir, const QString &digest,
                const QString &name = QStringLiteral("analog_7"),
                const QString &key = QStringLiteral("_space"))
    {
        const int entries = fileList.size();
        CapturedOutput captured;
        m_node->SetFileInfo(name, key, destDir);
        const QString dest = destDir + digest + QStringLiteral(".png");
        QCOMPARE(QString::fromUtf8(captured.Take()),
                 QStringLiteral("[clock_node.cpp::SetFileInfo::839]\"soucepath[%1], dest[%2]\"\n")
                     .arg(m_dirs->Out() + name + key + QStringLiteral(".png"), dest));
        QCOMPARE(fileList.size(), entries + 1);
        QCOMPARE(fileMd5List.size(), entries + 1);
        QCOMPARE(fileList.last(), dest);
        QCOMPARE(fileMd5List.last(), digest);
        const Lw::FileRecord record = m_node->FileRecords().last();
        QCOMPARE(record.key, key);
        QCOMPARE(record.path, dest);
        QCOMPARE(record.name, digest);
        QCOMPARE(record.size, -1LL);
        QCOMPARE(record.kind, 3);
    }

    /// The source becomes a link to the image beside it.
    void LinkTheSource(bool relative)
    {
        const QString name = QStringLiteral("named.png");
        QVERIFY(QFile::rename(Source(), m_dirs->Out() + name));
        QVERIFY(QFile::link(relative ? name : m_dirs->Out() + name, Source()));
    }

    /// A directory on another file system than the output directory; invalid where there is none.
    QSharedPointer<QTemporaryDir> ElsewhereDirectory()
    {
        auto made = QSharedPointer<QTemporaryDir>::create(QStringLiteral("/dev/shm/clock-XXXXXX"));
        if (!made->isValid() || OnOneFileSystem(made->path(), m_dirs->Out()))
            return {};
        return made;
    }

    /// Where to, on the output directory's file system or another; empty where there is none. Gone
    /// after the test.
    QString DestDirectory(bool elsewhere)
    {
        if (!elsewhere)
            return m_dirs->Dest();
        m_elsewhere = ElsewhereDirectory();
        return m_elsewhere ? m_elsewhere->path() + QLatin1Char('/') : QString();
    }

private Q_SLOTS:
    void init()
    {
        m_dirs.reset(new FreshDirectories);
        for (const QString &directory : {m_dirs->Root(), m_dirs->Out(), m_dirs->Dest()})
            QFile::setPermissions(directory, QFile::Permissions(0x7777));
        m_node = new HClockNode;
        WriteFile(Source(), kImage);
    }
    void cleanup()
    {
        delete m_node;
        m_elsewhere.reset();
        m_dirs.reset();
    }

    void OrdinaryMove()
    {
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
        QVERIFY(!QFile::exists(Source()));
    }

    void EqualImageStandsThere()
    {
        WriteFile(Dest(), kImage);
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
        QVERIFY(!QFile::exists(Source()));
    }

    void SourceIsDest()
    {
        const QString digest = Md5(kImage);
        WriteFile(NameIn(m_dirs->Out()), kImage);
        Export(m_dirs->Out(), digest, digest, QString());
        QCOMPARE(ReadFile(NameIn(m_dirs->Out())), kImage);
    }

    void SourceIsDestInAnotherSpelling_data()
    {
        QTest::addColumn<QString>("spelling");
        QTest::newRow("dots") << "out/../out/./";
        QTest::newRow("double slash") << "out//";
        QTest::newRow("linked directory") << "link/";
    }
    void SourceIsDestInAnotherSpelling()
    {
        QFETCH(QString, spelling);
        QVERIFY(QFile::link(m_dirs->Out(), m_dirs->Root() + QStringLiteral("link")));
        const QString digest = Md5(kImage);
        WriteFile(NameIn(m_dirs->Out()), kImage);
        Export(m_dirs->Root() + spelling, digest, digest, QString());
        QCOMPARE(ReadFile(NameIn(m_dirs->Out())), kImage);
    }

    void LinkAtDestLeadsBackToSource()
    {
        QVERIFY(QFile::link(Source(), Dest()));
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Source()), kImage);
        QCOMPARE(ReadFile(Dest()), kImage);
    }

    void LinkAtSourceLeadsToDest()
    {
        WriteFile(Dest(), kImage);
        QFile::remove(Source());
        QVERIFY(QFile::link(Dest(), Source()));
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
    }

    void HardLinkAtDest()
    {
        QCOMPARE(
            ::link(QFile::encodeName(Source()).constData(), QFile::encodeName(Dest()).constData()),
            0);
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
        QVERIFY(!QFile::exists(Source())); // another name of the same bytes, gone like any other
    }

    void HardLinkElsewhereOfAnImageInItsPlace()
    {
        const QString digest = Md5(kImage);
        const QString path = NameIn(m_dirs->Out());
        WriteFile(path, kImage);
        QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(Dest()).constData()),
                 0);
        Export(m_dirs->Root() + QStringLiteral("out/./"), digest, digest, QString());
        QCOMPARE(ReadFile(path), kImage);
    }

    // The system's calls end a path at its character 0 and would take another file for it.
    void CharacterZeroInTheDestination()
    {
        const QString other = m_dirs->Root() + QStringLiteral("other");
        WriteFile(other, "not mine");
        const QString destDir = other + QChar(0) + QLatin1Char('/');
        {
            CapturedOutput captured;
            m_node->SetFileInfo(QStringLiteral("analog_7"), QStringLiteral("_space"), destDir);
        }
        QCOMPARE(fileList.last(), NameIn(destDir));
        QCOMPARE(fileMd5List.last(), Md5(kImage));
        QCOMPARE(m_node->GetFirstFile(QStringLiteral("_space")), NameIn(destDir));
        QCOMPARE(ReadFile(other), QByteArray("not mine"));
        QCOMPARE(ReadFile(Source()), kImage);
    }

    void CharacterZeroInTheName()
    {
        const QString other = m_dirs->Out() + QStringLiteral("other");
        WriteFile(other, "not mine");
        {
            CapturedOutput captured;
            m_node->SetFileInfo(QStringLiteral("other") + QChar(0), QStringLiteral("_space"),
                                m_dirs->Dest());
        }
        QCOMPARE(ReadFile(other), QByteArray("not mine"));
        QVERIFY(QDir(m_dirs->Dest()).entryList(QDir::Files).isEmpty());
    }

    void MissingSource()
    {
        QFile::remove(Source());
        const QString nameless = m_dirs->Dest() + QStringLiteral(".png");
        WriteFile(nameless, "another's");
        Export(m_dirs->Dest(), QString());
        QCOMPARE(ReadFile(nameless), QByteArray("another's"));
    }

    void MissingSourceAfterAGoodOne()
    {
        Export(m_dirs->Dest(), Md5(kImage));
        Export(m_dirs->Dest(), QString(), QStringLiteral("analog_7"), QStringLiteral("_lunar"));
        QCOMPARE(ReadFile(Dest()), kImage);
    }

    void UnreadableSource_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"directory", "pipe", "device", "no permission", "dangling link"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }
    void UnreadableSource()
    {
        QFETCH(QString, kind);
        if (kind != QLatin1String("no permission"))
            QFile::remove(Source());
        const QByteArray source = QFile::encodeName(Source());
        if (kind == QLatin1String("directory"))
            QDir().mkpath(Source() + QStringLiteral("/inside"));
        else if (kind == QLatin1String("pipe"))
            QCOMPARE(mkfifo(source.constData(), 0600), 0);
        else if (kind == QLatin1String("device"))
            QVERIFY(QFile::link(QStringLiteral("/dev/zero"), Source()));
        else if (kind == QLatin1String("dangling link"))
            QVERIFY(QFile::link(QStringLiteral("/dev/null/none"), Source()));
        else
            QVERIFY(QFile::setPermissions(Source(), QFile::Permissions()));
        std::optional<WithoutPrivileges> nobody;
        if (kind == QLatin1String("no permission"))
            QVERIFY(nobody.emplace().Dropped());
        // Twice: the second must not take what the first may have left at the nameless dest.
        for (int i = 0; i < 2; ++i)
            Export(m_dirs->Dest(), QString());
        struct stat info;
        QCOMPARE(lstat(source.constData(), &info), 0);
        QVERIFY(!QFile::exists(m_dirs->Dest() + QStringLiteral(".png")));
    }

    void UnusableDestination_data()
    {
        QTest::addColumn<QString>("destDir");
        QTest::newRow("missing") << "missing/";
        QTest::newRow("below a file") << "file/dest/";
        QTest::newRow("not writable") << "locked/";
    }
    void UnusableDestination()
    {
        QFETCH(QString, destDir);
        WriteFile(m_dirs->Root() + QStringLiteral("file"), "x");
        QDir(m_dirs->Root()).mkpath(QStringLiteral("locked"));
        QFile::setPermissions(m_dirs->Root() + QStringLiteral("locked"),
                              QFile::Permissions(0x5555));
        const WithoutPrivileges nobody;
        QVERIFY(nobody.Dropped());
        Export(m_dirs->Root() + destDir, Md5(kImage));
        QCOMPARE(ReadFile(Source()), kImage);
        QVERIFY(!QFile::exists(NameIn(m_dirs->Root() + destDir)));
        QVERIFY(!QFile::exists(m_dirs->Root() + QStringLiteral("missing"))); // nothing is created
    }

    void AnotherFileSystem()
    {
        const auto elsewhere = ElsewhereDirectory();
        QVERIFY2(elsewhere, "needs a second file system at /dev/shm");
        const QString destDir = elsewhere->path() + QLatin1Char('/');
        Export(destDir, Md5(kImage));
        QCOMPARE(ReadFile(NameIn(destDir)), kImage);
        QVERIFY(!QFile::exists(Source()));
        QCOMPARE(QDir(destDir).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void AnotherFileSystemThatIsFull_data()
    {
        QTest::addColumn<int>("room");
        QTest::newRow("no byte") << 0;
        QTest::newRow("part of the image") << 100;
        QTest::newRow("all but a byte") << int(kImage.size()) - 1;
    }
    void AnotherFileSystemThatIsFull()
    {
        QFETCH(int, room);
        const auto elsewhere = ElsewhereDirectory();
        QVERIFY2(elsewhere, "needs a second file system at /dev/shm");
        const QString destDir = elsewhere->path() + QLatin1Char('/');
        {
            CapturedOutput captured;
            const FileSizeLimit limit(static_cast<rlim_t>(room));
            m_node->SetFileInfo(QStringLiteral("analog_7"), QStringLiteral("_space"), destDir);
        }
        QCOMPARE(ReadFile(Source()), kImage);
        // Not even half an image under the name.
        QVERIFY(QDir(destDir).entryList(QDir::Files | QDir::Hidden).isEmpty());
        QCOMPARE(m_node->GetFirstFile(QStringLiteral("_space")), NameIn(destDir));
    }

    void OtherContentAtDest_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("elsewhere");
        const QByteArray half = kImage.left(kImage.size() / 2);
        QTest::newRow("empty") << QByteArray("") << false;
        QTest::newRow("half of it") << half << false;
        QTest::newRow("foreign") << QByteArray(5000, 'f') << false;
        QTest::newRow("empty, another file system") << QByteArray("") << true;
        QTest::newRow("half of it, another file system") << half << true;
    }
    void OtherContentAtDest()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, elsewhere);
        const QString destDir = DestDirectory(elsewhere);
        QVERIFY2(!destDir.isEmpty(), "needs a second file system at /dev/shm");
        WriteFile(NameIn(destDir), content);
        Export(destDir, Md5(kImage));
        QCOMPARE(ReadFile(NameIn(destDir)), kImage);
        QVERIFY(!QFile::exists(Source()));
    }

    void OtherContentOnAFullFileSystem()
    {
        const auto elsewhere = ElsewhereDirectory();
        QVERIFY2(elsewhere, "needs a second file system at /dev/shm");
        const QString destDir = elsewhere->path() + QLatin1Char('/');
        WriteFile(NameIn(destDir), "foreign");
        {
            CapturedOutput captured;
            const FileSizeLimit limit(100);
            m_node->SetFileInfo(QStringLiteral("analog_7"), QStringLiteral("_space"), destDir);
        }
        QCOMPARE(ReadFile(Source()), kImage);
        QCOMPARE(ReadFile(NameIn(destDir)), QByteArray("foreign"));
    }

    void DirectoryAtDest()
    {
        QDir().mkpath(Dest());
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
        QVERIFY(!QFile::exists(Source()));
    }

    void FilledDirectoryAtDest()
    {
        QDir().mkpath(Dest());
        WriteFile(Dest() + QStringLiteral("/inside"), "x");
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Source()), kImage);
        QCOMPARE(ReadFile(Dest() + QStringLiteral("/inside")), QByteArray("x"));
    }

    void LinkAtDest_data()
    {
        QTest::addColumn<bool>("dangling");
        QTest::addColumn<bool>("elsewhere");
        QTest::newRow("dangling") << true << false;
        QTest::newRow("to another file") << false << false;
        QTest::newRow("dangling, another file system") << true << true;
        QTest::newRow("to another file, another file system") << false << true;
    }
    void LinkAtDest()
    {
        QFETCH(bool, dangling);
        QFETCH(bool, elsewhere);
        const QString destDir = DestDirectory(elsewhere);
        QVERIFY2(!destDir.isEmpty(), "needs a second file system at /dev/shm");
        const QString target = m_dirs->Root() + QStringLiteral("target");
        if (!dangling)
            WriteFile(target, "not mine");
        QVERIFY(QFile::link(target, NameIn(destDir)));
        Export(destDir, Md5(kImage));
        QCOMPARE(ReadFile(NameIn(destDir)), kImage);
        QVERIFY(!QFileInfo(NameIn(destDir)).isSymLink());
        // What the link led to is not written through it.
        QCOMPARE(ReadFile(target), dangling ? QByteArray() : QByteArray("not mine"));
    }

    void DeviceAtDest()
    {
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), Dest()));
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
    }

    void LinkAtSource_data()
    {
        QTest::addColumn<bool>("relative");
        QTest::addColumn<bool>("elsewhere");
        QTest::newRow("relative") << true << false;
        QTest::newRow("absolute") << false << false;
        QTest::newRow("relative, another file system") << true << true;
        QTest::newRow("absolute, another file system") << false << true;
    }
    void LinkAtSource()
    {
        QFETCH(bool, relative);
        QFETCH(bool, elsewhere);
        const QString destDir = DestDirectory(elsewhere);
        QVERIFY2(!destDir.isEmpty(), "needs a second file system at /dev/shm");
        LinkTheSource(relative);
        Export(destDir, Md5(kImage));
        QCOMPARE(ReadFile(NameIn(destDir)), kImage);
        QVERIFY(!QFileInfo(NameIn(destDir)).isSymLink());
        QVERIFY(!QFileInfo(Source()).isSymLink());
        QCOMPARE(ReadFile(m_dirs->Out() + QStringLiteral("named.png")), kImage);
    }

    void LinkAtSourceAndAFullFileSystem()
    {
        LinkTheSource(true);
        {
            CapturedOutput captured;
            const FileSizeLimit limit(100);
            m_node->SetFileInfo(QStringLiteral("analog_7"), QStringLiteral("_space"),
                                m_dirs->Dest());
        }
        QVERIFY(QFileInfo(Source()).isSymLink());
        QCOMPARE(ReadFile(Source()), kImage);
        QVERIFY(!QFile::exists(Dest()));
    }

    void LinkAtSourceNamesDest()
    {
        WriteFile(Dest(), kImage);
        QFile::remove(Source());
        QVERIFY(QFile::link(Dest(), Source()));
        Export(m_dirs->Dest(), Md5(kImage));
        QCOMPARE(ReadFile(Dest()), kImage);
        QVERIFY(!QFileInfo(Dest()).isSymLink());
    }

    void DestinationWithoutSeparatorIsAPrefix()
    {
        const QString prefix = m_dirs->Root() + QStringLiteral("dest");
        Export(prefix, Md5(kImage));
        QCOMPARE(ReadFile(NameIn(prefix)), kImage);
        QVERIFY(QDir(m_dirs->Dest()).entryList(QDir::Files).isEmpty());
    }

    void TwoNodesInTheOutputDirectory()
    {
        const QString second = m_dirs->Out() + QStringLiteral("analog_8_space.png");
        WriteFile(second, kImage);
        Export(m_dirs->Out(), Md5(kImage));
        Export(m_dirs->Out(), Md5(kImage), QStringLiteral("analog_8"));
        QCOMPARE(ReadFile(NameIn(m_dirs->Out())), kImage);
        QVERIFY(!QFile::exists(Source()));
        QVERIFY(!QFile::exists(second));
    }

    void NameThatLeadsElsewhere()
    {
        WriteFile(m_dirs->Root() + QStringLiteral("beside_x.png"), kImage);
        Export(m_dirs->Dest(), Md5(kImage), QStringLiteral("../beside"), QStringLiteral("_x"));
        QCOMPARE(ReadFile(Dest()), kImage);
    }

    void EmptyImageIsAFileLikeAnyOther()
    {
        WriteFile(Source(), "");
        const QString digest = QStringLiteral("d41d8cd98f00b204e9800998ecf8427e");
        Export(m_dirs->Dest(), digest);
        QCOMPARE(ReadFile(m_dirs->Dest() + digest + QStringLiteral(".png")), QByteArray(""));
    }

    void ImageOfManyBlocks()
    {
        const QByteArray large(300001, 'L');
        WriteFile(Source(), large);
        Export(m_dirs->Dest(), Md5(large));
        QCOMPARE(ReadFile(m_dirs->Dest() + Md5(large) + QStringLiteral(".png")), large);
    }
};

QTEST_GUILESS_MAIN(TestClockFileSafety)
#include "test_clock_file_safety.moc"
