// The stand-in's plugin manager: what it loads, what it refuses and why, and whom it chooses.
#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"

#include <QDomDocument>
#include <QtTest>

using Lw::HPluginManager;

namespace {

HPluginManager *Manager()
{
    return HPluginManager::instance();
}

QString PluginFile()
{
    return QStringLiteral(CLOCK_PLUGIN_FILE);
}

QString TypeFor(const QString &tag)
{
    QDomDocument document;
    QDomElement element = document.createElement(tag);
    Lw::INodePlugin *const plugin = Manager()->PluginFor(element);
    return plugin ? plugin->type() : QString();
}

bool Write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray ReadAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestPluginManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void NothingIsLoadedAtFirst();
    void BuiltLibraryIsRefused_data();
    void BuiltLibraryIsRefused();
    void FileIsRefused_data();
    void FileIsRefused();
    void MissingDirectoryIsRefused();
    void ClockPluginIsLoaded();
    void FileIsLoadedOnceThroughAllItsLinks();
    void DirectoryWithABadFileStillLoadsTheGoodOne();
    void ElementFindsItsPlugin();
    void LowerLevelComesFirst();
    void AlphaBlendIsAFlag();

private:
    QTemporaryDir m_dir;
};

void TestPluginManager::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(Write(m_dir.filePath("text.so"), "This is no library.\n"));
    QVERIFY(Write(m_dir.filePath("empty.so"), QByteArray()));
    const QByteArray library = ReadAll(PluginFile());
    QVERIFY(library.size() > 1000);
    QVERIFY(Write(m_dir.filePath("truncated.so"), library.left(library.size() / 2)));
    QVERIFY(QDir(m_dir.path()).mkdir("directory.so"));
    QVERIFY(QFile::link(m_dir.filePath("nowhere"), m_dir.filePath("broken_link.so")));
}

void TestPluginManager::NothingIsLoadedAtFirst()
{
    QCOMPARE(Manager(), HPluginManager::instance());
    QCOMPARE(Manager()->PluginCount(), 0);
    QCOMPARE(Manager()->PluginPath(0), QString());
    QCOMPARE(TypeFor("clock"), QString());
}

void TestPluginManager::BuiltLibraryIsRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("wrong IID") << "wrong_iid.so"
                               << "Lw.interface.INodePlugin/1.0";
    QTest::newRow("no plugin at all") << "no_plugin.so"
                                      << "not a Qt plugin";
    QTest::newRow("no interface") << "no_interface.so"
                                  << "does not implement";
}

void TestPluginManager::BuiltLibraryIsRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const QString path = QStringLiteral(TEST_PLUGINS_DIR) + file;
    QVERIFY(QFile::exists(path));
    QVERIFY(!Manager()->LoadFile(path));
    QVERIFY(Manager()->Refusals().last().startsWith(path));
    QVERIFY2(Manager()->Refusals().last().contains(reason),
             qPrintable(Manager()->Refusals().last()));
    QCOMPARE(Manager()->PluginCount(), 0);
}

void TestPluginManager::FileIsRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing.so"
                             << "no such file";
    QTest::newRow("broken link") << "broken_link.so"
                                 << "no such file";
    QTest::newRow("text") << "text.so"
                          << "not a Qt plugin";
    QTest::newRow("empty") << "empty.so"
                           << "not a Qt plugin";
    QTest::newRow("truncated") << "truncated.so"
                               << "not a Qt plugin";
    QTest::newRow("directory") << "directory.so"
                               << "not a Qt plugin";
}

void TestPluginManager::FileIsRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const int before = Manager()->Refusals().size();
    QVERIFY(!Manager()->LoadFile(m_dir.filePath(file)));
    QCOMPARE(Manager()->Refusals().size(), before + 1);
    QVERIFY(Manager()->Refusals().last().startsWith(m_dir.filePath(file)));
    QVERIFY2(Manager()->Refusals().last().contains(reason),
             qPrintable(Manager()->Refusals().last()));
    QCOMPARE(Manager()->PluginCount(), 0);
}

void TestPluginManager::MissingDirectoryIsRefused()
{
    QCOMPARE(Manager()->LoadDirectory(m_dir.filePath("none")), 0);
    QVERIFY(Manager()->Refusals().last().contains("no such directory"));
}

void TestPluginManager::ClockPluginIsLoaded()
{
    const int refusals = Manager()->Refusals().size();
    QVERIFY(Manager()->LoadFile(PluginFile()));
    QCOMPARE(Manager()->PluginCount(), 1);
    QCOMPARE(Manager()->PluginPath(0), QFileInfo(PluginFile()).canonicalFilePath());
    QCOMPARE(Manager()->Refusals().size(), refusals);
}

void TestPluginManager::FileIsLoadedOnceThroughAllItsLinks()
{
    QTemporaryDir links;
    QVERIFY(QFile::link(PluginFile(), links.filePath("liba.so")));
    QVERIFY(QFile::link(links.filePath("liba.so"), links.filePath("libb.so.1")));
    QVERIFY(Manager()->LoadFile(links.filePath("libb.so.1")));
    QCOMPARE(Manager()->LoadDirectory(links.path()), 0);
    QCOMPARE(Manager()->PluginCount(), 1);
}

void TestPluginManager::DirectoryWithABadFileStillLoadsTheGoodOne()
{
    QVERIFY(QFile::link(PluginFile(), m_dir.filePath("zz_clock.so")));
    const int refusals = Manager()->Refusals().size();
    QCOMPARE(Manager()->LoadDirectory(m_dir.path()), 0);
    QCOMPARE(Manager()->PluginCount(), 1);
    // text, empty and truncated; the directory and the link to nowhere are no files
    QCOMPARE(Manager()->Refusals().size(), refusals + 3);
}

void TestPluginManager::ElementFindsItsPlugin()
{
    QCOMPARE(TypeFor("clock"), QString("LW_Clock_Plugin"));
    QCOMPARE(TypeFor("Clock"), QString());
    QCOMPARE(TypeFor("video"), QString());
    QDomElement none;
    QVERIFY(!Manager()->PluginFor(none));
}

void TestPluginManager::LowerLevelComesFirst()
{
    QVERIFY(Manager()->LoadFile(QStringLiteral(TEST_PLUGINS_DIR "other_clock.so")));
    QCOMPARE(Manager()->PluginCount(), 2);
    QCOMPARE(TypeFor("clock"), QString("Other_Clock"));
}

void TestPluginManager::AlphaBlendIsAFlag()
{
    Lw::HNode node;
    QVERIFY(!Manager()->SuportAlphaBlend(&node));
    Manager()->SetAlphaBlend(true);
    QVERIFY(Manager()->SuportAlphaBlend(&node));
    Manager()->SetAlphaBlend(false);
    QVERIFY(!Manager()->SuportAlphaBlend(nullptr));
}

QTEST_MAIN(TestPluginManager)
#include "test_plugin_manager.moc"
