// Which files a generation leaves and how the node records them.
#include "file_size_limit.h"
#include "glyph_output.h"
#include "type_names.h"
#include "without_privileges.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

QStringList RecordedKeys(HClockNode &node)
{
    QStringList keys;
    for (const Lw::FileRecord &record : node.FileRecords())
        keys << record.key;
    return keys;
}

Lw::FileRecord RecordOf(HClockNode &node, const QString &key)
{
    for (const Lw::FileRecord &record : node.FileRecords()) {
        if (record.key == key)
            return record;
    }
    return {};
}

QString Md5(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

/// Sets the time of last change of every file of a directory back, to see which are written again.
const QDateTime kLongAgo(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
void Age(const QString &directory)
{
    for (const QString &name : GlyphOutput::FilesIn(directory)) {
        QFile file(directory + name);
        QVERIFY(file.open(QFile::ReadWrite));
        QVERIFY(file.setFileTime(kLongAgo, QFileDevice::FileModificationTime));
    }
}
bool IsAged(const QString &path)
{
    return QFileInfo(path).lastModified() == kLongAgo;
}

} // namespace

class TestDrawSourceImage : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<GlyphOutput> m_output;

    static void SetTopText(HClockNode &node, const QString &text)
    {
        SetText(node, Attribute::AnalogTopText, text);
        SetText(node, Attribute::DigitalTopText, text);
    }
    QStringList AllFilesBut(const QString &path) const
    {
        QStringList files = m_output->RegularFiles() + m_output->TemporaryFiles();
        files.removeAll(QFileInfo(path).fileName());
        return files;
    }

    static void Types()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("analog") << 0 << "analog_";
        QTest::newRow("digital") << 1 << "digital_";
        QTest::newRow("unknown type") << 3 << "";
        QTest::newRow("negative type") << -1 << "";
    }

private Q_SLOTS:
    void init() { m_output.reset(new GlyphOutput); }

    void PlainSet_data() { Types(); }
    void PlainSet()
    {
        QFETCH(int, clockType);
        QFETCH(QString, prefix);
        HClockNode node;
        FillNode(node, clockType, 7);
        Generate(node);

        QCOMPARE(RecordedKeys(node), KeysOfSet(clockType));
        QStringList expectedFiles;
        for (const Lw::FileRecord &record : node.FileRecords()) {
            QCOMPARE(record.path, m_output->Regular() + prefix + "7" + record.key + ".png");
            QCOMPARE(record.name, QString());
            QCOMPARE(record.size, -1LL);
            QCOMPARE(record.kind, 3);
            // A clock of neither type has no top text, and so no image of it.
            if (clockType == 0 || clockType == 1 || record.key != "_toptext")
                expectedFiles << prefix + "7" + record.key + ".png";
        }
        expectedFiles.sort();
        QStringList files = m_output->RegularFiles();
        files.sort();
        QCOMPARE(files, expectedFiles);
        QCOMPARE(m_output->TemporaryFiles(), QStringList());
    }

    void FilesAreImagesWithAlpha()
    {
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        Generate(node);
        for (const Lw::FileRecord &record : node.FileRecords()) {
            const QImage image(record.path, "PNG");
            QVERIFY2(!image.isNull(), qPrintable(record.key));
            QVERIFY2(image.hasAlphaChannel(), qPrintable(record.key));
        }
    }

    void Identities_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("written");
        QTest::newRow("new clock") << "1999"
                                   << "1999";
        QTest::newRow("no padding") << "0007"
                                    << "7";
        QTest::newRow("negative") << "-5"
                                  << "-5";
        QTest::newRow("not a number") << "../x"
                                      << "0";
        QTest::newRow("largest") << "2147483647"
                                 << "2147483647";
    }
    void Identities()
    {
        QFETCH(QString, id);
        QFETCH(QString, written);
        HClockNode node;
        FillNode(node, AnalogClock, 0);
        SetText(node, Attribute::Id, id);
        Generate(node);
        QCOMPARE(node.GetFirstFile("_Minus"),
                 m_output->Regular() + "analog_" + written + "_Minus.png");
        QVERIFY(QFile::exists(node.GetFirstFile("_Minus")));
    }

    void PictureClockHasNone()
    {
        HClockNode node;
        FillNode(node, PictureClock, 7);
        Generate(node, true, true);
        QVERIFY(node.FileRecords().isEmpty());
        QVERIFY(m_output->RegularFiles().isEmpty());
        QVERIFY(m_output->TemporaryFiles().isEmpty());
    }

    // A picture clock sets where images go, and nothing else of the generator.
    void PictureClockLeavesTheSettingsOfTheClockBefore()
    {
        HClockNode digital;
        FillNode(digital, DigitalClock, 7);
        HClockNode picture;
        FillNode(picture, PictureClock, 8);
        DrwSourceIMage generator;
        generator.DrawClockSourceImage(&digital);
        generator.DrawClockSourceImage(&picture, true, false);
        generator.DrawImage(&digital, "_k", "text", "7", "DejaVu Sans", 12, 0, "_k.png");
        QCOMPARE(digital.GetFirstFile("_k"), m_output->Regular() + "digital_7_k.png");
        generator.DrawClockSourceImage(&picture, true, true);
        generator.DrawImage(&digital, "_k", "text", "7", "DejaVu Sans", 12, 0, "_k.png");
        QCOMPARE(digital.GetFirstFile("_k"), m_output->Temporary() + "digital_7_k.png");
    }

    void NullNode()
    {
        DrwSourceIMage generator;
        generator.DrawClockSourceImage(nullptr, true, true);
        generator.InitParameters(nullptr);
        generator.DrawImage(nullptr, "_k", "text", "1", "DejaVu Sans", 12, 0, "_k.png");
        generator.DrawNumberImage(nullptr, "_n", "1", "DejaVu Sans", 12, 0, "_n.png");
        QVERIFY(m_output->TemporaryFiles().isEmpty());
    }

    void DigestSet_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::newRow("analog") << 0;
        QTest::newRow("digital") << 1;
    }
    void DigestSet()
    {
        QFETCH(int, clockType);
        HClockNode node;
        FillNode(node, clockType, 7);
        Generate(node, true);
        QCOMPARE(RecordedKeys(node), KeysOfSet(clockType));
        for (const Lw::FileRecord &record : node.FileRecords()) {
            const QByteArray bytes = GlyphOutput::Content(record.path);
            QVERIFY2(!bytes.isEmpty(), qPrintable(record.key));
            QCOMPARE(record.name, Md5(bytes));
            QCOMPARE(record.path, m_output->Regular() + record.name + ".png");
            QCOMPARE(record.size, static_cast<long long>(bytes.size()));
            QCOMPARE(record.kind, 3);
        }
    }

    // Without a catalogue the translated and the English week names are the same picture. The
    // first made takes the digest's name; the second finds it taken and stays where it was.
    void IdenticalImagesShareOneDigestName()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node, true);
        const Lw::FileRecord translated = RecordOf(node, "_chWeek_3");
        const Lw::FileRecord english = RecordOf(node, "_enWeek_3");
        QCOMPARE(english.path, translated.path);
        QCOMPARE(english.name, translated.name);
        QCOMPARE(english.size, translated.size);
        QVERIFY(!QFile::exists(m_output->Regular() + "digital_7_chWeek_3.png"));
        const QString left = m_output->Regular() + "digital_7_enWeek_3.png";
        QCOMPARE(GlyphOutput::Content(left), GlyphOutput::Content(english.path));

        QStringList undigested;
        for (const QString &name : m_output->RegularFiles()) {
            if (name.startsWith("digital_"))
                undigested << name;
        }
        QStringList expected;
        for (int day = 1; day <= 7; ++day)
            expected << QString("digital_7_enWeek_%1.png").arg(day);
        // All fonts of this node are the same, so its two strips are as well.
        expected << "digital_7_timeNumber.png";
        QCOMPARE(undigested, expected);
    }

    void SecondDigestGenerationGivesTheSameRecords()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node, true);
        const QList<Lw::FileRecord> before = node.FileRecords();
        Generate(node, true);
        const QList<Lw::FileRecord> after = node.FileRecords();
        QCOMPARE(after.size(), before.size());
        for (int i = 0; i < before.size(); ++i) {
            QCOMPARE(after[i].path, before[i].path);
            QCOMPARE(after[i].name, before[i].name);
            QCOMPARE(after[i].size, before[i].size);
        }
    }

    void EarlierDigestFilesStay()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node, true);
        const QString before = node.GetFirstFile("_timeNumber");
        SetInt(node, Attribute::DigitalTimeColor, 0x00ff00);
        Generate(node, true);
        QVERIFY(node.GetFirstFile("_timeNumber") != before);
        QVERIFY(QFile::exists(before));
    }

    void TemporarySet_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QStringList>("strips");
        QTest::newRow("analog") << 0
                                << QStringList {"analog_7_dateNumber.png",
                                                "analog_7_hourhandNumber.png"};
        QTest::newRow("digital") << 1
                                 << QStringList {"digital_7_dateNumber.png",
                                                 "digital_7_timeNumber.png"};
    }
    void TemporarySet()
    {
        QFETCH(int, clockType);
        QFETCH(QStringList, strips);
        HClockNode node;
        FillNode(node, clockType, 7);
        Generate(node, false, true);
        QCOMPARE(m_output->RegularFiles(), strips);
        QCOMPARE(m_output->TemporaryFiles().size(), KeysOfSet(clockType).size() - strips.size());
        QVERIFY(node.GetFirstFile("_toptext").startsWith(m_output->Temporary()));
        QVERIFY(node.GetFirstFile("_dateNumber").startsWith(m_output->Regular()));
    }

    void TemporaryDigestSet()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node, true, true);
        const Lw::FileRecord text = RecordOf(node, "_toptext");
        const Lw::FileRecord strip = RecordOf(node, "_timeNumber");
        QCOMPARE(text.path, m_output->Temporary() + text.name + ".png");
        QCOMPARE(strip.path, m_output->Regular() + strip.name + ".png");
        QVERIFY(QFile::exists(text.path));
        QVERIFY(QFile::exists(strip.path));
    }

    void EmptyTopText()
    {
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        SetText(node, Attribute::AnalogTopText, QString());
        Generate(node);
        const Lw::FileRecord record = RecordOf(node, "_toptext");
        QCOMPARE(record.path, m_output->Regular() + "analog_7_toptext.png");
        QCOMPARE(record.size, -1LL);
        QVERIFY(!QFile::exists(record.path));
    }

    void EmptyTopTextWithDigests()
    {
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        SetText(node, Attribute::AnalogTopText, QString());
        const QString path = m_output->Regular() + "analog_7_toptext.png";
        QTest::ignoreMessage(
            QtDebugMsg,
            QRegularExpression("^open \\[" + QRegularExpression::escape(path) + "\\]error"));
        Generate(node, true);
        const Lw::FileRecord record = RecordOf(node, "_toptext");
        QCOMPARE(record.key, QString("_toptext"));
        QCOMPARE(record.path, QString());
        QCOMPARE(record.name, QString());
        QCOMPARE(record.size, 0LL);
        QCOMPARE(record.kind, 3);
    }

    void ClearedTopTextIsRemoved_data()
    {
        QTest::addColumn<int>("clockType");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("isTempUpdate");
        QTest::newRow("analog, empty") << 0 << QString() << 12 << false;
        QTest::newRow("digital, empty") << 1 << QString() << 12 << false;
        QTest::newRow("digital, empty, font too large") << 1 << QString() << 40000 << false;
        QTest::newRow("digital, temporary update") << 1 << QString() << 12 << true;
        QTest::newRow("digital, no width") << 1 << QString(QChar(0x200b)) << 12 << false;
    }
    void ClearedTopTextIsRemoved()
    {
        QFETCH(int, clockType);
        QFETCH(QString, text);
        QFETCH(int, size);
        QFETCH(bool, isTempUpdate);
        HClockNode node;
        FillNode(node, clockType, 7);
        Generate(node, false, isTempUpdate);
        const QString path = node.GetFirstFile("_toptext");
        QVERIFY(QFile::exists(path));
        const QStringList others = AllFilesBut(path);
        SetTopText(node, text);
        SetInt(node, Attribute::DigitalTopTextFSize, size);
        Generate(node, false, isTempUpdate);
        QVERIFY(!QFile::exists(path));
        QCOMPARE(AllFilesBut(path), others);
        QCOMPARE(RecordOf(node, "_toptext").path, path);
        QCOMPARE(RecordOf(node, "_toptext").size, -1LL);
    }

    // The image under its plain name would be taken for the new one and get a digest name. The one
    // of an earlier generation may be another clock's too.
    void ClearedTopTextIsRemovedWithDigests()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QString plain = node.GetFirstFile("_toptext");
        Generate(node, true);
        const QString digested = node.GetFirstFile("_toptext");
        QVERIFY(QFile::copy(digested, plain));
        SetTopText(node, QString());
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^open \\[.*\\]error"));
        Generate(node, true);
        QVERIFY(!QFile::exists(plain));
        QVERIFY(QFile::exists(digested));
        QCOMPARE(RecordOf(node, "_toptext").path, QString());
    }

    // Nothing to draw is not the same as something that cannot be drawn.
    void OlderTopTextStaysWhereNoImageCanBeMade_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::newRow("font too large") << "LED" << 40000;
        QTest::newRow("text too wide") << QString(10000, 'W') << 12;
    }
    void OlderTopTextStaysWhereNoImageCanBeMade()
    {
        QFETCH(QString, text);
        QFETCH(int, size);
        HClockNode node;
        FillNode(node, AnalogClock, 7);
        Generate(node);
        const QByteArray before = GlyphOutput::Content(node.GetFirstFile("_toptext"));
        SetTopText(node, text);
        SetInt(node, Attribute::AnalogTopTextFSize, size);
        Generate(node);
        QVERIFY(!before.isEmpty());
        QCOMPARE(GlyphOutput::Content(node.GetFirstFile("_toptext")), before);
    }

    void OnlyTheTopTextIsEverRemoved()
    {
        HClockNode node;
        DrwSourceIMage generator;
        generator.DrawImage(&node, "_k", "text", "7", "DejaVu Sans", 12, 0, "_k.png");
        const QByteArray before = GlyphOutput::Content(node.GetFirstFile("_k"));
        QVERIFY(!before.isEmpty());
        generator.DrawImage(&node, "_k", "", "7", "DejaVu Sans", 12, 0, "_k.png");
        QCOMPARE(GlyphOutput::Content(node.GetFirstFile("_k")), before);
        // An image that another caller names otherwise is not the generator's own.
        generator.DrawImage(&node, "_toptext", "", "7", "DejaVu Sans", 12, 0, "_k.png");
        QCOMPARE(GlyphOutput::Content(node.GetFirstFile("_k")), before);
    }

    void ClearedTopTextLeavesAForeignDirectory()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        SetTopText(node, QString());
        QVERIFY(QDir(m_output->Regular()).mkpath("digital_7_toptext.png"));
        Generate(node);
        QVERIFY(QFileInfo(m_output->Regular() + "digital_7_toptext.png").isDir());
    }

    // A link goes as it goes where an image replaces it; the file that it names stays.
    void ClearedTopTextLeavesTheTargetOfALink()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        SetTopText(node, QString());
        const QString foreign = m_output->Temporary() + "foreign";
        const QString link = m_output->Regular() + "digital_7_toptext.png";
        QFile file(foreign);
        QVERIFY(file.open(QFile::WriteOnly) && file.write("kept") == 4);
        file.close();
        QVERIFY(QFile::link(foreign, link));
        Generate(node);
        QCOMPARE(GlyphOutput::Content(foreign), QByteArray("kept"));
        QVERIFY(!QFileInfo(link).isSymLink());
    }

    void ClearedTopTextStaysWhereItIsWriteProtected_data()
    {
        QTest::addColumn<bool>("directory");
        QTest::newRow("file") << false;
        QTest::newRow("directory") << true;
    }
    void ClearedTopTextStaysWhereItIsWriteProtected()
    {
        QFETCH(bool, directory);
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QString path = node.GetFirstFile("_toptext");
        SetTopText(node, QString());
        QFile::setPermissions(m_output->Regular(), QFile::Permissions(directory ? 0x5555 : 0x7777));
        QFile::setPermissions(path, QFile::Permissions(directory ? 0x6666 : 0x4444));
        {
            const WithoutPrivileges nobody;
            QVERIFY(nobody.Dropped());
            Generate(node);
        }
        QFile::setPermissions(m_output->Regular(), QFile::Permissions(0x7777));
        QVERIFY(QFile::exists(path));
    }

    void UnchangedSetLeavesItsFilesUntouched()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        Age(m_output->Regular());
        SetInt(node, Attribute::DigitalTimeColor, 0x00ff00);
        Generate(node);
        for (const Lw::FileRecord &record : node.FileRecords())
            QCOMPARE(IsAged(record.path), !record.key.startsWith("_time"));
    }

    void DamagedFilesAreMadeAgain_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("foreign") << QByteArray("no image");
    }
    void DamagedFilesAreMadeAgain()
    {
        QFETCH(QByteArray, content);
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QString path = node.GetFirstFile("_timeNumber");
        const QByteArray whole = GlyphOutput::Content(path);
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
        file.write(content);
        file.close();
        Generate(node);
        QCOMPARE(GlyphOutput::Content(path), whole);
    }

    void OneByteOffIsMadeAgain()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QString path = node.GetFirstFile("_timeNumber");
        const QByteArray whole = GlyphOutput::Content(path);
        QFile file(path);
        QVERIFY(file.open(QFile::ReadWrite) && file.seek(whole.size() / 2));
        QVERIFY(file.putChar(static_cast<char>(~whole[whole.size() / 2])));
        file.close();
        Generate(node);
        QCOMPARE(GlyphOutput::Content(path), whole);
    }

    void WrittenFileIsReadableByOthers()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        // As any file that is simply created: readable for all with the usual mask.
        const QString plain = m_output->Regular() + "plain";
        QFile file(plain);
        QVERIFY(file.open(QFile::WriteOnly));
        file.close();
        QCOMPARE(QFile::permissions(node.GetFirstFile("_timeNumber")), QFile::permissions(plain));
    }

    void DirectoryInPlaceOfAFile()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        QVERIFY(QDir(m_output->Regular()).mkpath("digital_7_timeNumber.png/kept"));
        Generate(node);
        QVERIFY(QFileInfo::exists(m_output->Regular() + "digital_7_timeNumber.png/kept"));
        QVERIFY(!node.GetFirstFile("_timeNumber").isEmpty());
        QVERIFY(!m_output->RegularFiles().join(' ').contains(".part"));
    }

    void MissingDirectory_data()
    {
        QTest::addColumn<bool>("calcMd5");
        QTest::newRow("plain") << false;
        QTest::newRow("digests") << true;
    }
    void MissingDirectory()
    {
        QFETCH(bool, calcMd5);
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        const QString missing = m_output->Regular() + "gone";
        Lw::HAppConfig::SetClockOutputPath(missing);
        QVERIFY(QDir().rmdir(missing));
        if (calcMd5) {
            for (int i = 0; i < KeysOfSet(DigitalClock).size(); ++i)
                QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^open \\[.*\\]error"));
        }
        Generate(node, calcMd5);
        QVERIFY(!QFileInfo::exists(missing));
        QCOMPARE(RecordedKeys(node), KeysOfSet(DigitalClock));
        for (const Lw::FileRecord &record : node.FileRecords()) {
            QCOMPARE(record.path.isEmpty(), calcMd5);
            QCOMPARE(record.size, calcMd5 ? 0LL : -1LL);
        }
    }

    void UnwritableDirectory()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QByteArray before = GlyphOutput::Content(node.GetFirstFile("_timeNumber"));
        const auto permissions = QFile::permissions(m_output->Regular());
        QFile::setPermissions(m_output->Regular(),
                              QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther
                                  | QFile::ExeOther);
        SetInt(node, Attribute::DigitalTimeColor, 0x00ff00);
        {
            const WithoutPrivileges nobody;
            QVERIFY(nobody.Dropped());
            Generate(node);
        }
        QCOMPARE(GlyphOutput::Content(node.GetFirstFile("_timeNumber")), before);
        QFile::setPermissions(m_output->Regular(), permissions);
        Generate(node);
        QVERIFY(GlyphOutput::Content(node.GetFirstFile("_timeNumber")) != before);
    }

    void FullDevice()
    {
        HClockNode node;
        FillNode(node, DigitalClock, 7);
        Generate(node);
        const QString path = node.GetFirstFile("_timeNumber");
        const QByteArray before = GlyphOutput::Content(path);
        SetInt(node, Attribute::DigitalTimeColor, 0x00ff00);
        {
            const FileSizeLimit limit(0); // a file can be made, and none of its bytes
            Generate(node);
        }
        QCOMPARE(GlyphOutput::Content(path), before);
        Generate(node);
        QVERIFY(GlyphOutput::Content(path) != before);
    }

    void AttributesOfTheOtherTypeAreNotUsed()
    {
        HClockNode analog;
        FillNode(analog, AnalogClock, 7);
        Generate(analog);
        const QByteArray before = GlyphOutput::Content(analog.GetFirstFile("_lunar"));
        for (GlyphFont font : {GlyphFont::Lunar, GlyphFont::Date, GlyphFont::Time})
            SetInt(analog, FontAttributes(font, DigitalClock).size, 40);
        Generate(analog);
        QCOMPARE(GlyphOutput::Content(analog.GetFirstFile("_lunar")), before);
        QVERIFY(!QFile::exists(m_output->Regular() + "analog_7_timeNumber.png"));
    }

    void ThroughTheMetaObject_data()
    {
        QTest::addColumn<int>("arguments");
        QTest::newRow("node") << 1;
        QTest::newRow("node, digests") << 2;
        QTest::newRow("node, digests, temporary") << 3;
    }
    void ThroughTheMetaObject();

    void RegisteredMetaType() { QVERIFY(TypeNamed("HClockNode*") > 0); }

    void ClassName()
    {
        QCOMPARE(DrwSourceIMage::staticMetaObject.className(), "Lw::HNodeClock::DrwSourceIMage");
    }
};

// The slot's argument is spelled as the class is from within its namespace.
namespace Lw::HNodeClock {
bool InvokeGeneration(DrwSourceIMage &generator, HClockNode *node, int arguments)
{
    const char *const slot = "DrawClockSourceImage";
    if (arguments == 1)
        return QMetaObject::invokeMethod(&generator, slot, Q_ARG(HClockNode *, node));
    if (arguments == 2)
        return QMetaObject::invokeMethod(&generator, slot, Q_ARG(HClockNode *, node),
                                         Q_ARG(bool, true));
    return QMetaObject::invokeMethod(&generator, slot, Q_ARG(HClockNode *, node), Q_ARG(bool, true),
                                     Q_ARG(bool, true));
}
} // namespace Lw::HNodeClock

void TestDrawSourceImage::ThroughTheMetaObject()
{
    QFETCH(int, arguments);
    HClockNode node;
    FillNode(node, DigitalClock, 7);
    DrwSourceIMage generator;
    QVERIFY(InvokeGeneration(generator, &node, arguments));
    const Lw::FileRecord record = RecordOf(node, "_toptext");
    QCOMPARE(record.size >= 0, arguments >= 2);
    QVERIFY(record.path.startsWith(arguments == 3 ? m_output->Temporary() : m_output->Regular()));
    QVERIFY(QFile::exists(record.path));
}

QTEST_MAIN(TestDrawSourceImage)
#include "test_draw_source_image.moc"
