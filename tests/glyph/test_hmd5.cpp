// Digests against the vectors of RFC 1321 and Qt's own MD5, and the renaming of files to them.
#include "glyph/hmd5.h"
#include "without_privileges.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

namespace {

const QString kEmptyDigest = QStringLiteral("d41d8cd98f00b204e9800998ecf8427e");
const QString kAbcDigest = QStringLiteral("900150983cd24fb0d6963f7d28e17f72");

QString QtDigest(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

QByteArray Noise(int length)
{
    QByteArray bytes(length, '\0');
    for (int i = 0; i < length; ++i)
        bytes[i] = static_cast<char>((i * 131 + i / 7) % 256);
    return bytes;
}

QString DigestInPieces(const QByteArray &bytes, int piece)
{
    HMD5 digest;
    for (int at = 0; at < bytes.size(); at += piece) {
        const QByteArray part = bytes.mid(at, piece);
        digest.Update(reinterpret_cast<const unsigned char *>(part.constData()),
                      static_cast<unsigned int>(part.size()));
    }
    unsigned char result[16];
    digest.Final(result);
    return QString::fromLatin1(QByteArray(reinterpret_cast<char *>(result), 16).toHex());
}

int OpenHandles()
{
    return QDir("/proc/self/fd")
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

} // namespace

class TestHmd5 : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir *m_directory = nullptr;

    QString Make(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_directory->filePath(name);
        QFile file(path);
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the test's own file");
        return path;
    }
    QString In(const QString &name) const { return m_directory->filePath(name); }
    static QByteArray Content(const QString &path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static void ExpectOpenError(const QString &path)
    {
        QTest::ignoreMessage(
            QtDebugMsg,
            QRegularExpression("^open \\[" + QRegularExpression::escape(path) + "\\]error .+"));
    }

private Q_SLOTS:
    void init() { m_directory = new QTemporaryDir; }
    void cleanup() { delete m_directory; }

    void Vectors_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QString>("digest");
        QTest::newRow("no bytes") << QByteArray() << kEmptyDigest;
        QTest::newRow("a") << QByteArray("a") << "0cc175b9c0f1b6a831c399e269772661";
        QTest::newRow("abc") << QByteArray("abc") << kAbcDigest;
        QTest::newRow("message digest")
            << QByteArray("message digest") << "f96b697d7cb7938d525a2f31aaf161d0";
        QTest::newRow("alphabet") << QByteArray("abcdefghijklmnopqrstuvwxyz")
                                  << "c3fcd3d76192e4007dfb496cca67e13b";
        QTest::newRow("letters and digits")
            << QByteArray("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789")
            << "d174ab98d277d9f5a5611c2c9f419d9f";
        QTest::newRow("eighty digits")
            << QByteArray("1234567890").repeated(8) << "57edf4a22be3c955ac49da2e2107b67a";
    }
    void Vectors()
    {
        QFETCH(QByteArray, message);
        QFETCH(QString, digest);
        QCOMPARE(DigestInPieces(message, 1024), digest);
        QCOMPARE(HMD5::FileDigest(Make("vector", message)), digest);
    }

    void EveryLengthAroundTheBlockBoundaries()
    {
        for (int length = 0; length <= 200; ++length) {
            const QByteArray bytes = Noise(length);
            QCOMPARE(DigestInPieces(bytes, 1024), QtDigest(bytes));
            QCOMPARE(DigestInPieces(bytes, 1), QtDigest(bytes));
            QCOMPARE(DigestInPieces(bytes, 63), QtDigest(bytes));
        }
    }

    void FileLengths_data()
    {
        QTest::addColumn<int>("length");
        for (int length : {1023, 1024, 1025, 2048, 1024 * 1024, 1024 * 1024 + 1})
            QTest::newRow(QByteArray::number(length).constData()) << length;
    }
    void FileLengths()
    {
        QFETCH(int, length);
        const QByteArray bytes = Noise(length);
        QCOMPARE(HMD5::FileDigest(Make("long", bytes)), QtDigest(bytes));
    }

    // The bit count has two halves: half a gigabyte fills the low one.
    void CountCrossesItsLowHalf()
    {
        const QByteArray bytes = Noise(1024 * 1024);
        HMD5 own;
        QCryptographicHash reference(QCryptographicHash::Md5);
        for (int i = 0; i < 513; ++i) {
            own.Update(reinterpret_cast<const unsigned char *>(bytes.constData()),
                       static_cast<unsigned int>(bytes.size()));
            reference.addData(bytes);
        }
        unsigned char result[16];
        own.Final(result);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(result), 16), reference.result());
    }

    void TransformOfAnUnalignedBlock()
    {
        // "abc" with its padding and its 24 bits; the state's high bits, where it has any, are
        // noise to be ignored.
        alignas(8) unsigned char buffer[72] = {};
        for (int shift = 0; shift < 8; ++shift) {
            unsigned char *const block = buffer + shift;
            std::memset(buffer, 0, sizeof buffer);
            std::memcpy(block, "abc\x80", 4);
            block[56] = 24;
            unsigned long state[4] = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
            for (unsigned long &word : state)
                word |= ~0xffffffffUL;
            HMD5::MD5Transform(state, block);
            // The digest of "abc", read as four little-endian words.
            const unsigned long expected[4] = {0x98500190, 0xb04fd23c, 0x7d3f96d6, 0x727fe128};
            for (int i = 0; i < 4; ++i)
                QCOMPARE(state[i], expected[i]);
        }
    }

    void DigestOfWhatCannotBeRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << "/dev/null/file.png";
        QTest::newRow("no name") << "";
        QTest::newRow("directory") << "/tmp";
        QTest::newRow("read error") << "/proc/self/mem";
        QTest::newRow("endless device") << "/dev/zero";
    }
    void DigestOfWhatCannotBeRead()
    {
        QFETCH(QString, path);
        QVERIFY(HMD5::FileDigest(path).isEmpty());
        ExpectOpenError(path);
        QVERIFY(HMD5::GeneratorFile(path).isNull());
    }

    void DigestWithoutPermission()
    {
        QFile::setPermissions(m_directory->path(), QFile::Permissions(0x7777));
        const QString path = Make("closed.png", "abc");
        QFile::setPermissions(path, QFile::Permissions());
        const WithoutPrivileges nobody;
        QVERIFY(nobody.Dropped());
        QVERIFY(HMD5::FileDigest(path).isEmpty());
        ExpectOpenError(path);
        QVERIFY(HMD5::GeneratorFile(path).isNull());
        QVERIFY(QFile::exists(path));
    }

    void ErrorTextIsOfThisCall()
    {
        ExpectOpenError("/dev/null/file.png");
        QVERIFY(HMD5::GeneratorFile("/dev/null/file.png").isNull());
        QTest::ignoreMessage(QtDebugMsg, "open [/dev/zero]error Unknown error");
        QVERIFY(HMD5::GeneratorFile("/dev/zero").isNull());
    }

    void Suffixes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("png") << "a.png"
                             << ".png";
        QTest::newRow("last suffix only") << "x.tar.gz"
                                          << ".gz";
        QTest::newRow("case is kept") << "a.PNG"
                                      << ".PNG";
        QTest::newRow("none") << "plain"
                              << ".";
        QTest::newRow("bare full stop") << "ends."
                                        << ".";
        QTest::newRow("hidden") << ".hidden"
                                << ".hidden";
        QTest::newRow("directory with a full stop") << "sub.d/plain"
                                                    << ".";
        QTest::newRow("blank in the name") << "a b.p g"
                                           << ".p g";
        QTest::newRow("format directive") << "%n%s.%s"
                                          << ".%s";
        QTest::newRow("not Latin") << QString::fromUtf8("时钟.图") << QString::fromUtf8(".图");
    }
    void Suffixes()
    {
        QFETCH(QString, name);
        QFETCH(QString, suffix);
        QDir(m_directory->path()).mkpath("sub.d");
        const QString path = Make(name, "abc");
        const QString expected = QFileInfo(path).absolutePath() + "/" + kAbcDigest + suffix;
        QCOMPARE(HMD5::GeneratorFile(path), expected);
        QVERIFY(!QFile::exists(path));
        QCOMPARE(Content(expected), QByteArray("abc"));
    }

    void EmptyFile()
    {
        QCOMPARE(HMD5::GeneratorFile(Make("empty.png", {})), In(kEmptyDigest + ".png"));
        QVERIFY(QFile::exists(In(kEmptyDigest + ".png")));
    }

    void AlreadyNamed()
    {
        const QString path = Make(kAbcDigest + ".png", "abc");
        QCOMPARE(HMD5::GeneratorFile(path), path);
        QCOMPARE(Content(path), QByteArray("abc"));
    }

    void AlreadyNamedByAnotherSpelling_data()
    {
        QTest::addColumn<QString>("spelling");
        QTest::newRow("current directory") << "./";
        QTest::newRow("double separator") << "//";
        QTest::newRow("through a parent") << "sub/../";
        QTest::newRow("through a link") << "link/";
    }
    void AlreadyNamedByAnotherSpelling()
    {
        QFETCH(QString, spelling);
        QDir(m_directory->path()).mkpath("sub");
        QVERIFY(QFile::link(m_directory->path(), In("link")));
        const QString plain = Make(kAbcDigest + ".png", "abc");
        const QString renamed =
            HMD5::GeneratorFile(m_directory->path() + "/" + spelling + kAbcDigest + ".png");
        QCOMPARE(QFileInfo(renamed).canonicalFilePath(), QFileInfo(plain).canonicalFilePath());
        QCOMPARE(Content(plain), QByteArray("abc"));
    }

    void RelativePathComesBackAbsolute()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_directory->path()));
        Make("a.png", "abc");
        const QString renamed = HMD5::GeneratorFile("a.png");
        QDir::setCurrent(before);
        QVERIFY(QDir::isAbsolutePath(renamed));
        QCOMPARE(QFileInfo(renamed).canonicalFilePath(),
                 QFileInfo(In(kAbcDigest + ".png")).canonicalFilePath());
    }

    void TargetPresent_data()
    {
        QTest::addColumn<QByteArray>("there");
        QTest::newRow("identical") << QByteArray("abc");
        QTest::newRow("different") << QByteArray("something else");
        QTest::newRow("empty") << QByteArray();
    }
    void TargetPresent()
    {
        QFETCH(QByteArray, there);
        const QString target = Make(kAbcDigest + ".png", there);
        const QString source = Make("a.png", "abc");
        QCOMPARE(HMD5::GeneratorFile(source), target);
        QCOMPARE(Content(source), QByteArray("abc"));
        QCOMPARE(Content(target), there);
    }

    // What the link names is outside, and would come to be by writing through it.
    void TargetIsADanglingLink()
    {
        const QTemporaryDir outside;
        QVERIFY(QFile::link(outside.filePath("new"), In(kAbcDigest + ".png")));
        const QString source = Make("a.png", "abc");
        QCOMPARE(HMD5::GeneratorFile(source), In(kAbcDigest + ".png"));
        QCOMPARE(Content(source), QByteArray("abc"));
        QVERIFY(QFileInfo(In(kAbcDigest + ".png")).isSymLink());
        QVERIFY(!QFile::exists(outside.filePath("new")));
    }

    void TargetIsADirectory()
    {
        QVERIFY(QDir(m_directory->path()).mkdir(kAbcDigest + ".png"));
        const QString source = Make("a.png", "abc");
        QCOMPARE(HMD5::GeneratorFile(source), In(kAbcDigest + ".png"));
        QCOMPARE(Content(source), QByteArray("abc"));
    }

    void NextCallAfterAFailureWorks()
    {
        for (int i = 0; i < 3; ++i) {
            ExpectOpenError(In("missing.png"));
            QVERIFY(HMD5::GeneratorFile(In("missing.png")).isNull());
            ExpectOpenError("/proc/self/mem");
            QVERIFY(HMD5::GeneratorFile("/proc/self/mem").isNull());
            QFile::remove(In(kAbcDigest + ".png"));
            QCOMPARE(HMD5::GeneratorFile(Make("a.png", "abc")), In(kAbcDigest + ".png"));
        }
    }

    void ManyCallsLeaveNoHandle()
    {
        QLoggingCategory::setFilterRules("default.debug=false");
        const int before = OpenHandles();
        for (int i = 0; i < 100; ++i) {
            QVERIFY(HMD5::GeneratorFile(In("missing.png")).isNull());
            QVERIFY(HMD5::GeneratorFile("/proc/self/mem").isNull());
            QVERIFY(!HMD5::GeneratorFile(Make("a.png", QByteArray::number(i))).isNull());
        }
        QCOMPARE(OpenHandles(), before);
        QLoggingCategory::setFilterRules(QString());
    }
};

QTEST_GUILESS_MAIN(TestHmd5)
#include "test_hmd5.moc"
