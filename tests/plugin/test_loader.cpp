// The library file as a host meets it: loaded by Qt's plugin loader into a process that links
// nothing of it.
#include "hcontentnode.h"
#include "inodeplugin.h"
#include "start_program.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>
#include <QtTest>

#include <memory>

using Lw::INodePlugin;

// The host's own; plugins only hand it on.
class Lw::HVersion
{ };

namespace {

const char kPluginFile[] = CLOCK_PLUGIN_FILE;

QObject *Instance()
{
    return QPluginLoader(QString::fromUtf8(kPluginFile)).instance();
}

INodePlugin *Plugin()
{
    return qobject_cast<INodePlugin *>(Instance());
}

bool Claims(const QString &tag)
{
    QDomDocument document;
    QDomElement element = document.createElement(tag);
    return Plugin()->PluginMatch(element);
}

} // namespace

class TestLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void MetaData();
    void MetaDataAsQtsOwnToolReadsIt();
    void InstanceIsOne();
    void InstanceIsMadeAgainAfterDeletion();
    void CastByName_data();
    void CastByName();
    void InterfaceIsTheSecondBase();
    void PlainProperties();
    void InheritedDefaults();
    void ClaimsClockElements_data();
    void ClaimsClockElements();
    void MatchOfANullElement();
    void NewNodeHasNoAttributes();
    void NodeAndPluginAgreeOnTheType();
    void RendererOfANode();
    void RendererOfAForeignNodeRefusesToStart();
    void TimeSourceIsFoundByName();
};

void TestLoader::initTestCase()
{
    QPluginLoader loader(QString::fromUtf8(kPluginFile));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QVERIFY(Plugin());
}

void TestLoader::MetaData()
{
    const QJsonObject data = QPluginLoader(QString::fromUtf8(kPluginFile)).metaData();
    QCOMPARE(data.value("IID").toString(), QString("Lw.interface.IControllerPlugin/1.0"));
    QCOMPARE(data.value("className").toString(), QString("HNodeClock"));
    QCOMPARE(data.value("MetaData").toObject(), (QJsonObject {{"Keys", QJsonArray {"lw_plugin"}}}));
    QCOMPARE(data.value("version").toInt(), QT_VERSION & 0xffff00);
#ifdef QT_NO_DEBUG
    QCOMPARE(data.value("debug"), QJsonValue(false));
#endif
}

void TestLoader::MetaDataAsQtsOwnToolReadsIt()
{
    const QString tool = QStandardPaths::findExecutable("qtplugininfo", {QT_TOOLS_DIR});
    QVERIFY2(!tool.isEmpty(), "needs qtplugininfo, of Qt's tools");
    if (MachineOf(tool) != MachineOf(QString::fromUtf8(kPluginFile)))
        QSKIP("qtplugininfo reads plugins for its own machine only");
    QProcess process;
    process.start(tool, {"--full-json", QString::fromUtf8(kPluginFile)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QJsonObject data = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    QCOMPARE(data.value("IID").toString(), QString("Lw.interface.IControllerPlugin/1.0"));
    QCOMPARE(data.value("className").toString(), QString("HNodeClock"));
    QCOMPARE(data.value("MetaData").toObject(), (QJsonObject {{"Keys", QJsonArray {"lw_plugin"}}}));
}

void TestLoader::InstanceIsOne()
{
    using InstanceFunction = QObject *(*)();
    QLibrary library(QString::fromUtf8(kPluginFile));
    const auto entry = reinterpret_cast<InstanceFunction>(library.resolve("qt_plugin_instance"));
    QVERIFY(entry);
    QCOMPARE(entry(), entry());
    QCOMPARE(Instance(), entry());
    QVERIFY(!entry()->parent());
}

void TestLoader::InstanceIsMadeAgainAfterDeletion()
{
    const QPointer<QObject> first(Instance());
    delete first.data();
    QVERIFY(!first);
    QObject *const second = Instance();
    QVERIFY(second);
    QCOMPARE(Instance(), second);
    QCOMPARE(qobject_cast<INodePlugin *>(second)->level(), 4);
}

void TestLoader::CastByName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("answered");
    QTest::newRow("class") << QByteArray("Lw::HNodeClock::HNodeClock") << true;
    QTest::newRow("base as spelled") << QByteArray("INodePlugin") << true;
    QTest::newRow("interface") << QByteArray("Lw.interface.INodePlugin/1.0") << true;
    QTest::newRow("object") << QByteArray("QObject") << true;
    QTest::newRow("base, qualified") << QByteArray("Lw::INodePlugin") << false;
    QTest::newRow("class, unqualified") << QByteArray("HNodeClock") << false;
    QTest::newRow("IID of the metadata")
        << QByteArray("Lw.interface.IControllerPlugin/1.0") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void TestLoader::CastByName()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, answered);
    QCOMPARE(Instance()->qt_metacast(name.constData()) != nullptr, answered);
    QVERIFY(!Instance()->qt_metacast(nullptr));
}

void TestLoader::InterfaceIsTheSecondBase()
{
    QObject *const object = Instance();
    QCOMPARE(object->qt_metacast("Lw::HNodeClock::HNodeClock"), static_cast<void *>(object));
    QCOMPARE(object->qt_metacast("INodePlugin"), static_cast<void *>(Plugin()));
    QCOMPARE(object->qt_metacast("Lw.interface.INodePlugin/1.0"), static_cast<void *>(Plugin()));
    QCOMPARE(reinterpret_cast<char *>(Plugin()) - reinterpret_cast<char *>(object),
             std::ptrdiff_t(sizeof(QObject)));
    QCOMPARE(object->metaObject()->className(), "Lw::HNodeClock::HNodeClock");
    QCOMPARE(object->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
}

void TestLoader::PlainProperties()
{
    QCOMPARE(Plugin()->level(), 4);
    QCOMPARE(Plugin()->type(), QString("LW_Clock_Plugin"));
    QCOMPARE(Plugin()->name(), QString());
    QVERIFY(Plugin()->icon().isNull());
}

void TestLoader::InheritedDefaults()
{
    INodePlugin *const plugin = Plugin();
    QModelIndex index;
    QString controller;
    QVERIFY(!plugin->Create(QString("clock"), nullptr));
    QVERIFY(!plugin->CreateFrameRender(nullptr));
    QVERIFY(!plugin->AddFile(nullptr, index, 0));
    QVERIFY(!plugin->OverrideNewFile());
    QVERIFY(!plugin->NewFile(nullptr, index, 0));
    QVERIFY(!plugin->AddFileBasisSuffix("png", nullptr, index, 0));
    QVERIFY(!plugin->AddFileBasisSupport("png", nullptr, index, 0));
    QCOMPARE(plugin->SupportSuffix(), QStringList());
    QVERIFY(plugin->SuportController(controller));
    Lw::HVersion version;
    QVERIFY(plugin->ConvertVersion(nullptr, version));
    plugin->AppQuit();
    plugin->D3DLoseDevice();
}

void TestLoader::ClaimsClockElements_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("claimed");
    QTest::newRow("clock") << "clock" << true;
    QTest::newRow("Clock") << "Clock" << false;
    QTest::newRow("CLOCK") << "CLOCK" << false;
    QTest::newRow("clocks") << "clocks" << false;
    QTest::newRow("cloc") << "cloc" << false;
    QTest::newRow("prefixed") << "lw:clock" << false;
}

void TestLoader::ClaimsClockElements()
{
    QFETCH(QString, tag);
    QTEST(Claims(tag), "claimed");
}

void TestLoader::MatchOfANullElement()
{
    QDomElement none;
    QVERIFY(!Plugin()->PluginMatch(none));
}

void TestLoader::NewNodeHasNoAttributes()
{
    const std::unique_ptr<Lw::HNode> node(Plugin()->Create());
    QVERIFY(qobject_cast<Lw::HContentNode *>(node.get()));
    QVERIFY(node->AttributeKeys().isEmpty());
    QVERIFY(!node->HaveSourcFile());
    QVERIFY(!node->parent());
    const std::unique_ptr<Lw::HNode> another(Plugin()->Create());
    QVERIFY(node != another);
}

void TestLoader::NodeAndPluginAgreeOnTheType()
{
    const std::unique_ptr<Lw::HNode> node(Plugin()->Create());
    QCOMPARE(node->Type(), Plugin()->type());
}

void TestLoader::RendererOfANode()
{
    const std::unique_ptr<Lw::HNode> node(Plugin()->Create());
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    QVERIFY(render);
    QVERIFY(!render->parent());
    QCOMPARE(render->metaObject()->className(), "Lw::HNodeClock::HClockRender");
    QVERIFY(!render->AreaFinish());
}

void TestLoader::RendererOfAForeignNodeRefusesToStart()
{
    Lw::HContentNode foreign;
    Lw::HNode *const nodes[] = {&foreign, nullptr};
    for (Lw::HNode *const node : nodes) {
        const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node));
        QVERIFY(render);
        render->Start(1, 0);
        QCOMPARE(render->renderState(), 2);
    }
}

void TestLoader::TimeSourceIsFoundByName()
{
    QLibrary library(QString::fromUtf8(kPluginFile));
    QVERIFY(library.resolve("clock_set_time_source"));
}

QTEST_MAIN(TestLoader)
#include "test_loader.moc"
