// The glyph files of a node: made when it is ready or updated, checked, exported and listed.
#include "node_test_support.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

using namespace Lw::HNodeClock;

namespace {

/// Counts how often it is asked for its files.
class CountingNode : public HClockNode
{
public:
    void GetAllFileList(QList<Lw::HSendFileInfo> &files) override
    {
        ++asked;
        HClockNode::GetAllFileList(files);
    }
    int asked = 0;
};

QStringList Series(std::initializer_list<const char *> prefixes, int length)
{
    QStringList keys;
    for (int i = 1; i <= length; ++i) {
        for (const char *prefix : prefixes)
            keys.append(QLatin1String(prefix) + QString::number(i));
    }
    return keys;
}

QStringList KeysOfType(int clockType)
{
    if (clockType == 0)
        return {"_hourhandNumber", "_AnalogAM", "_AnalogPM"};
    if (clockType == 1)
        return {"_timeCh", "_timeChar", "_timeNumber", "_timeAM", "_timePM"};
    return {};
}

QStringList RequiredKeys(int clockType)
{
    return KeysOfType(clockType) + Series({"_chWeek_", "_enWeek_", "_enWeekSim_"}, 7)
        + QStringList {"_lunar", "_dateNumber", "_dateCh", "_dateChar"}
    + Series({"_dateEnMonth_"}, 12);
}

QStringList ExportedKeys(int clockType)
{
    return KeysOfType(clockType) + QStringList("_toptext")
        + Series({"_chWeek_", "_enWeek_", "_enWeekSim_", "_PersiaWeek_"}, 7)
        + QStringList {"_lunar", "_dateNumber", "_dateCh", "_dateChar", "_space"}
    + Series({"_dateEnMonth_"}, 12);
}

QString Md5Of(const QString &path)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(ReadFile(path), QCryptographicHash::Md5).toHex());
}

QString MissingLine(const QString &path, const QString &key)
{
    return QStringLiteral("[clock_node.cpp::CheckFileExists::790]\"File [%1] key[%2]not exists\"\n")
        .arg(path, key);
}

void Fill(HClockNode &node, int clockType, int id = 1234)
{
    node.InitData();
    node.SetAttribute(QStringLiteral("Id"), id, false);
    node.SetAttribute(QStringLiteral("ClockType"), clockType, false);
}

int FilesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::Files).size();
}

} // namespace

class TestClockFiles : public QObject
{
    Q_OBJECT

    QScopedPointer<FreshDirectories> m_dirs;

private Q_SLOTS:
    void init()
    {
        m_dirs.reset(new FreshDirectories);
        fileList.clear();
        fileMd5List.clear();
    }

    void ClockTypes_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("required");
        QTest::addColumn<int>("exported");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("analog") << 0 << 40 << 49 << "analog_";
        QTest::newRow("digital") << 1 << 42 << 51 << "digital_";
        QTest::newRow("neither") << 3 << 37 << 46 << "analog_";
        QTest::newRow("negative") << -1 << 37 << 46 << "analog_";
    }

    void NodeAlready_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("analog") << 0;
        QTest::newRow("digital") << 1;
    }
    void NodeAlready()
    {
        QFETCH(int, type);
        HClockNode node;
        Fill(node, type);
        QVERIFY(node.NodeAlready(77));
        // Every image, the minus as well.
        QCOMPARE(FilesIn(m_dirs->Out()), ExportedKeys(type).size() + 1);
        QCOMPARE(FilesIn(m_dirs->Temp()), 0);
        const QString plain = m_dirs->Out() + QLatin1String(type == 0 ? "analog_" : "digital_")
            + QStringLiteral("1234");
        for (const QString &key : ExportedKeys(type) + QStringList("_Minus")) {
            QCOMPARE(node.GetFirstFile(key), plain + key + QStringLiteral(".png"));
            QVERIFY2(QFile::exists(node.GetFirstFile(key)), qPrintable(key));
        }
        for (const auto &record : node.FileRecords()) {
            QCOMPARE(record.name, QString());
            QCOMPARE(record.size, -1LL);
            QCOMPARE(record.kind, 3);
        }
        QVERIFY(node.AllFileExists());
    }

    void PictureClockOwnsNoImages()
    {
        HClockNode node;
        Fill(node, 2);
        CapturedOutput captured;
        QVERIFY(node.NodeAlready(0));
        QVERIFY(node.AllFileExists());
        node.ProcessFileName(m_dirs->Dest());
        QCOMPARE(captured.Take(), QByteArray());
        QVERIFY(node.FileRecords().isEmpty());
        QVERIFY(fileList.isEmpty());
        QCOMPARE(FilesIn(m_dirs->Out()) + FilesIn(m_dirs->Dest()), 0);
    }

    void AfterUpdateOfANodeWithoutFiles_data()
    {
        QTest::addColumn<bool>("isTemp");
        QTest::newRow("regular") << false;
        QTest::newRow("temporary") << true;
    }
    void AfterUpdateOfANodeWithoutFiles()
    {
        QFETCH(bool, isTemp);
        CountingNode node;
        Fill(node, 1);
        node.AfterUpdate(isTemp);
        QCOMPARE(node.asked, 2);
        QVERIFY(node.AllFileExists());
        const QString label = node.GetFirstFile(QStringLiteral("_timeCh"));
        QCOMPARE(QFileInfo(label).path() + QLatin1Char('/'),
                 isTemp ? m_dirs->Temp() : m_dirs->Out());
        QCOMPARE(QFileInfo(label).completeBaseName(), Md5Of(label));
        const QString strip = node.GetFirstFile(QStringLiteral("_timeNumber"));
        QCOMPARE(QFileInfo(strip).path() + QLatin1Char('/'), m_dirs->Out());
    }

    void AfterUpdateOfANodeWithFiles()
    {
        CountingNode node;
        Fill(node, 1);
        node.SetFilePath(QStringLiteral("any"), QStringLiteral("/x"), QString(), -1, 3);
        node.AfterUpdate(false);
        QCOMPARE(node.asked, 1);
        QCOMPARE(node.FileRecords().size(), 1);
        QCOMPARE(FilesIn(m_dirs->Out()), 0);
    }

    void AfterUpdateOfAPictureClock()
    {
        CountingNode node;
        Fill(node, 2);
        node.AfterUpdate(false);
        QCOMPARE(node.asked, 0);
        node.SetTakesPartInUpdate(true);
        node.AfterUpdate(false);
        QCOMPARE(node.asked, 2);
        QVERIFY(node.FileRecords().isEmpty());
        QCOMPARE(FilesIn(m_dirs->Out()), 0);
    }

    void EveryRequiredImageIsMissedInItsOrder_data() { ClockTypes_data(); }
    void EveryRequiredImageIsMissedInItsOrder()
    {
        QFETCH(int, type);
        QFETCH(int, required);
        HClockNode node;
        Fill(node, type);
        const QString image = m_dirs->Root() + QStringLiteral("image.png");
        WriteFile(image, "x");
        const QStringList keys = RequiredKeys(type);
        QCOMPARE(keys.size(), required);
        for (const QString &key : keys) {
            CapturedOutput captured;
            QVERIFY(!node.AllFileExists());
            QCOMPARE(QString::fromUtf8(captured.Take()), MissingLine(QString(), key));
            node.SetFilePath(key, image, QString(), -1, 3);
        }
        CapturedOutput captured;
        QVERIFY(node.AllFileExists());
        QCOMPARE(captured.Take(), QByteArray());
    }

    void CheckFileExistsStopsAtTheFirst()
    {
        HClockNode node;
        node.SetFilePath(QStringLiteral("here"), m_dirs->Root(), QString(), -1, 3);
        node.SetFilePath(QStringLiteral("gone"), m_dirs->Root() + QStringLiteral("none.png"),
                         QString(), -1, 3);
        CapturedOutput captured;
        QVERIFY(node.CheckFileExists({}));
        QVERIFY(node.CheckFileExists({QStringLiteral("here")})); // a directory exists as well
        QVERIFY(!node.CheckFileExists({"here", "gone", "never"}));
        QCOMPARE(QString::fromUtf8(captured.Take()),
                 MissingLine(m_dirs->Root() + QStringLiteral("none.png"), QStringLiteral("gone")));
    }

    void LogLinesTakeTextsAsTheyAre()
    {
        HClockNode node;
        const QString key = QStringLiteral("%n%s\u949f");
        node.SetFilePath(key, QStringLiteral("/%s%n%d"), QString(), -1, 3);
        CapturedOutput captured;
        QVERIFY(!node.CheckFileExists({key}));
        node.SetFileInfo(QStringLiteral("%n"), QStringLiteral("%s"), QStringLiteral("/%d/"));
        QCOMPARE(QString::fromUtf8(captured.Take()),
                 MissingLine(QStringLiteral("/%s%n%d"), key)
                     + QStringLiteral("[clock_node.cpp::SetFileInfo::839]\"soucepath[")
                     + m_dirs->Out() + QStringLiteral("%n%s.png], dest[/%d/.png]\"\n"));
    }

    void ExportOrder_data() { ClockTypes_data(); }
    void ExportOrder()
    {
        QFETCH(int, type);
        QFETCH(int, exported);
        QFETCH(QString, prefix);
        HClockNode node;
        Fill(node, type, 17);
        const QStringList keys = ExportedKeys(type);
        QCOMPARE(keys.size(), exported);
        QString expected;
        QStringList dests;
        for (const QString &key : keys) {
            const QString source =
                m_dirs->Out() + prefix + QStringLiteral("17") + key + QStringLiteral(".png");
            WriteFile(source, key.toLatin1());
            dests.append(m_dirs->Dest() + Md5Of(source) + QStringLiteral(".png"));
            expected += QStringLiteral("[clock_node.cpp::SetFileInfo::839]\"soucepath[%1], "
                                       "dest[%2]\"\n")
                            .arg(source, dests.last());
        }
        CapturedOutput captured;
        node.ProcessFileName(m_dirs->Dest());
        QCOMPARE(QString::fromUtf8(captured.Take()), expected);
        QCOMPARE(fileList, dests);
        QCOMPARE(fileMd5List.size(), dests.size());
        const auto records = node.FileRecords();
        QCOMPARE(records.size(), keys.size());
        for (int i = 0; i < keys.size(); ++i) {
            QCOMPARE(ReadFile(dests.at(i)), keys.at(i).toLatin1());
            QCOMPARE(m_dirs->Dest() + fileMd5List.at(i) + QStringLiteral(".png"), dests.at(i));
            QCOMPARE(records.at(i).key, keys.at(i));
            QCOMPARE(records.at(i).path, dests.at(i));
            QCOMPARE(records.at(i).name, fileMd5List.at(i));
            QCOMPARE(records.at(i).size, -1LL);
            QCOMPARE(records.at(i).kind, 3);
        }
        QCOMPARE(FilesIn(m_dirs->Out()), 0);
    }

    void GeneratedImagesAreExported()
    {
        HClockNode node;
        Fill(node, 0);
        node.NodeAlready(0);
        CapturedOutput captured;
        node.ProcessFileName(m_dirs->Dest());
        captured.Take();
        for (const QString &key : ExportedKeys(0)) {
            const QString path = node.GetFirstFile(key);
            QCOMPARE(QFileInfo(path).completeBaseName(), Md5Of(path));
        }
        QVERIFY(node.AllFileExists());
        // The minus is made but does not travel.
        const QString minus = m_dirs->Out() + QStringLiteral("analog_1234_Minus.png");
        QCOMPARE(node.GetFirstFile(QStringLiteral("_Minus")), minus);
        QCOMPARE(QDir(m_dirs->Out()).entryList(QDir::Files), QStringList("analog_1234_Minus.png"));
    }

    void SecondExportFindsNothing()
    {
        HClockNode node;
        Fill(node, 0);
        node.NodeAlready(0);
        CapturedOutput captured;
        node.ProcessFileName(m_dirs->Dest());
        const int exported = FilesIn(m_dirs->Dest());
        node.ProcessFileName(m_dirs->Dest());
        captured.Take();
        QCOMPARE(FilesIn(m_dirs->Dest()), exported);
        for (const QString &key : ExportedKeys(0))
            QCOMPARE(node.GetFirstFile(key), m_dirs->Dest() + QStringLiteral(".png"));
        QCOMPARE(fileList.size(), 98); // both exports are listed
        QCOMPARE(fileMd5List.size(), 98);
    }

    void TwoNodesWithEqualImagesShareTheFiles()
    {
        HClockNode first;
        HClockNode second;
        Fill(first, 0, 1001);
        Fill(second, 0, 1002);
        first.NodeAlready(0);
        second.NodeAlready(0);
        CapturedOutput captured;
        first.ProcessFileName(m_dirs->Dest());
        const int exported = FilesIn(m_dirs->Dest());
        second.ProcessFileName(m_dirs->Dest());
        captured.Take();
        QCOMPARE(FilesIn(m_dirs->Dest()), exported);
        QCOMPARE(FilesIn(m_dirs->Out()), 2); // only the two minus images are left
        for (const QString &key : ExportedKeys(0))
            QCOMPARE(second.GetFirstFile(key), first.GetFirstFile(key));
        QVERIFY(second.AllFileExists());
    }

    void ExportIntoTheOutputDirectory()
    {
        HClockNode node;
        Fill(node, 1);
        node.NodeAlready(0);
        CapturedOutput captured;
        node.ProcessFileName(m_dirs->Out());
        captured.Take();
        QVERIFY(node.AllFileExists());
    }

    void NodeWithoutAttributesExportsAsAnalogZero()
    {
        HClockNode node;
        CapturedOutput captured;
        node.ProcessFileName(m_dirs->Dest());
        const QByteArray first = captured.Take().split('\n').first();
        QVERIFY(first.contains("analog_0_hourhandNumber.png"));
    }

    void GetSDKTempFile()
    {
        HClockNode node;
        const QString regular = m_dirs->Out() + QStringLiteral("there.png");
        WriteFile(regular, "x");
        const auto record = [&node](const char *key, const QString &path) {
            node.SetFilePath(QLatin1String(key), path, QLatin1String(key) + QStringLiteral("md5"),
                             -1, 3);
        };
        record("a", QStringLiteral("/tmp/lwTempProgram/not_there.png"));
        record("b", regular);
        record("c", QStringLiteral("/root/Box/project/temp/project/x.png"));
        record("d", QStringLiteral("/mnt/tmp/lwTempProgram/inside.png"));
        record("e", QStringLiteral("/tmp/lwtempprogram/%s%n.png"));
        record("f", QString());
        record("g", QStringLiteral("/tmp/lwTempProgram"));
        QList<QFileInfo> out {QFileInfo(QStringLiteral("/kept"))};
        CapturedOutput captured;
        node.GetSDKTempFile(out);
        const auto line = [](const QString &path, const char *md5, int exists) {
            return QStringLiteral("[clock_node.cpp::GetSDKTempFile::827]\"not in temp file[%1],"
                                  "md5[%2],exists:%3\"\n")
                .arg(path, QLatin1String(md5), QString::number(exists));
        };
        QCOMPARE(QString::fromUtf8(captured.Take()),
                 line(regular, "bmd5", 1)
                     + line(QStringLiteral("/tmp/lwtempprogram/%s%n.png"), "emd5", 0)
                     + line(QString(), "fmd5", 0)
                     + line(QStringLiteral("/tmp/lwTempProgram"), "gmd5", 0));
        QStringList paths;
        for (const QFileInfo &info : qAsConst(out))
            paths.append(info.filePath());
        QCOMPARE(paths,
                 QStringList({"/kept", "/tmp/lwTempProgram/not_there.png",
                              "/root/Box/project/temp/project/x.png",
                              "/mnt/tmp/lwTempProgram/inside.png"}));
    }
};

QTEST_MAIN(TestClockFiles)
#include "test_clock_files.moc"
