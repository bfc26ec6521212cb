// The library file in a host that shares nothing with the stand-ins but the declarations.
#include "messages.h"
#include "minimal_host.h"

#include "hcontentnode.h"
#include "inodeplugin.h"

#include "happconfig.h"

#include <QDomDocument>
#include <QLibrary>
#include <QPluginLoader>
#include <QtTest>

#include <memory>

using MinimalHost::Session;
using MinimalHost::SessionOf;

namespace {

const QRect kArea(16, 8, 192, 96);
constexpr QRgb kKeyColour = 0xff010201;
constexpr int kFrames = 4;

constexpr char kDigital[] = R"(<clock type="digital" timezone="+01:00">
    <title display="false"/> <date display="false"/> <week display="false"/>
    <time display="true" format="0" fontName="DejaVu Sans Mono" fontSize="28" color="#0ac832"/>
</clock>)";
constexpr char kAnalog[] = R"(<clock type="dial" timezone="+01:00"/>)";

long long g_now = 0;

long long Now()
{
    return g_now;
}

Lw::INodePlugin *Plugin()
{
    return qobject_cast<Lw::INodePlugin *>(
        QPluginLoader(QStringLiteral(CLOCK_PLUGIN_FILE)).instance());
}

std::unique_ptr<Lw::HNode> MakeNode(const QByteArray &xml)
{
    std::unique_ptr<Lw::HNode> node(Plugin()->Create());
    node->InitData();
    node->setProperty(MinimalHost::kGeometry, kArea);
    QDomDocument document;
    QList<Lw::FileInfo> files;
    if (document.setContent(xml))
        node->UpdateNode(document.documentElement(), files);
    return node;
}

/// How many of a frame's pixels have the colour.
int Count(const QImage &frame, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x)
            count += frame.pixel(x, y) == colour;
    }
    return count;
}

/// Plays from the instant set, a second a frame, and takes the renderer away again.
const Session &Play(Lw::HNode &node, unsigned int identifier)
{
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(&node));
    render->Start(identifier, 0);
    for (int frame = 1; frame < kFrames; ++frame) {
        g_now += 1000;
        render->PlayNext();
    }
    render->Remove();
    return SessionOf(identifier);
}

} // namespace

class TestMinimalHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void ThereIsNoStandInInThisProcess();
    void ClockPlays_data();
    void ClockPlays();
    void StartRecordIsFilledByThePlugin();
    void GlyphFilesAreRecorded_data();
    void GlyphFilesAreRecorded();
    void PictureClockRecordsNoFiles();
    void ColoursKeepTheirBytes();
    void WhatThePlayerIsAsked();
    void NodeGoneByStopping();
    void RefusedStartAsksNothing();
    void DestructionStopsThePlayerFirst();
    void RendererGoneByInitialising_data();
    void RendererGoneByInitialising();
    void StyleIsReadAtConstruction();
    void WritesPassFalse();
};

void TestMinimalHost::initTestCase()
{
    QVERIFY(Plugin());
    using SetTimeSource = void (*)(long long (*)());
    const auto setTimeSource = reinterpret_cast<SetTimeSource>(
        QLibrary::resolve(QStringLiteral(CLOCK_PLUGIN_FILE), "clock_set_time_source"));
    QVERIFY(setTimeSource);
    setTimeSource(Now);
}

void TestMinimalHost::init()
{
    g_now = QDateTime(QDate(2024, 3, 5), QTime(9, 41, 27, 250), Qt::UTC).toMSecsSinceEpoch();
}

void TestMinimalHost::ThereIsNoStandInInThisProcess()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("libclock_plugin"));
    QVERIFY(!loaded.contains("liblw_host"));
}

void TestMinimalHost::ClockPlays_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("clockType");
    QTest::newRow("analog") << QByteArray(kAnalog) << "0";
    QTest::newRow("digital") << QByteArray(kDigital) << "1";
    QTest::newRow("picture") << QByteArray() << "2";
}

void TestMinimalHost::ClockPlays()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, clockType);
    const std::unique_ptr<Lw::HNode> node = MakeNode(xml);
    if (xml.isEmpty())
        node->SetAttribute(QStringLiteral("ClockType"), clockType, false);
    QCOMPARE(node->GetAttribute(QStringLiteral("ClockType")), clockType);
    QVERIFY(node->NodeAlready(0));

    const unsigned int identifier = 20 + clockType.toUInt();
    const Session &session = Play(*node, identifier);
    QCOMPARE(session.frames.size(), kFrames);
    QCOMPARE(session.waits, QVector<int>(kFrames, 750));
    QVERIFY(session.stops > 0);
    QVERIFY(!session.isOpen);
    const int area = kArea.width() * kArea.height();
    for (int i = 0; i < kFrames; ++i) {
        const QImage frame = session.frames[i];
        QCOMPARE(frame.size(), kArea.size());
        QCOMPARE(frame.format(), QImage::Format_ARGB32);
        const int background = Count(frame, kKeyColour);
        QVERIFY(background > 0);
        QVERIFY2(area - background > 200, "nothing to speak of is drawn");
        if (i > 0)
            QVERIFY2(frame != session.frames[i - 1], "a second has passed unseen");
    }
}

void TestMinimalHost::StartRecordIsFilledByThePlugin()
{
    const std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    const SessionParameter record = Play(*node, 77).record;
    QCOMPARE(record.playIdentifier, 77u);
    QCOMPARE(record.position, kArea.topLeft());
    QCOMPARE(record.size, kArea.size());
    QCOMPARE(int(record.timing), 1000);
    QVERIFY(record.alphaBlend); // as this host's plugin manager says
    QVERIFY(record.lastFlag);
}

void TestMinimalHost::GlyphFilesAreRecorded_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("analog") << QByteArray(kAnalog);
    QTest::newRow("digital") << QByteArray(kDigital);
}

void TestMinimalHost::GlyphFilesAreRecorded()
{
    QFETCH(QByteArray, xml);
    const std::unique_ptr<Lw::HNode> node = MakeNode(xml);
    QVERIFY(!node->HaveSourcFile());
    QVERIFY(!node->AllFileExists());
    node->NodeAlready(0);
    QVERIFY(node->AllFileExists());

    QList<Lw::HSendFileInfo> files;
    node->GetAllFileList(files);
    QVERIFY(!files.isEmpty());
    for (const Lw::HSendFileInfo &file : qAsConst(files)) {
        QVERIFY2(file.path.startsWith(Lw::HAppConfig::ClockOutputPath()), qPrintable(file.path));
        QVERIFY2(!QImage(file.path).isNull(), qPrintable(file.path));
    }
}

void TestMinimalHost::PictureClockRecordsNoFiles()
{
    const std::unique_ptr<Lw::HNode> node = MakeNode(QByteArray());
    node->SetAttribute(QStringLiteral("ClockType"), 2, false);
    node->NodeAlready(0);
    QVERIFY(!node->HaveSourcFile());
}

// From the element through this host's functions into the node, the glyphs and the frame, and back.
void TestMinimalHost::ColoursKeepTheirBytes()
{
    const std::unique_ptr<Lw::HNode> node = MakeNode(kDigital);
    QCOMPARE(node->GetAttributeToInt(QStringLiteral("DigitalTimeColor")), 0x32c80a);
    node->NodeAlready(0);
    const QImage frame = Play(*node, 78).frames.constFirst();
    QVERIFY(Count(frame, qRgb(0x0a, 0xc8, 0x32)) > 100);

    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("area"));
    node->CoverToSDKFormate(parent, Lw::ProgramForController);
    const QDomElement time = parent.elementsByTagName(QStringLiteral("time")).at(0).toElement();
    QCOMPARE(time.attribute(QStringLiteral("color")),
             QStringLiteral("#ff0ac832")); // opaque, as all are written
}

void TestMinimalHost::WhatThePlayerIsAsked()
{
    QStringList &calls = MinimalHost::Calls();
    const std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    node->setObjectName(QStringLiteral("this clock"));
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    calls.clear();
    render->Start(79, 0);
    QCOMPARE(calls,
             QStringList({"Stop", "SuportAlphaBlend this clock", "Init 79", "UpdateImage",
                          "UpdateEffect 750 0"}));

    calls.clear();
    QStringList tenFrames;
    for (int frame = 0; frame < 10; ++frame) {
        g_now += 1001; // the milliseconds of the second are 251 and so on
        render->PlayNext();
        tenFrames << "UpdateImage" << QStringLiteral("UpdateEffect %1 0").arg(749 - frame);
    }
    QCOMPARE(calls, tenFrames);

    calls.clear();
    render->Pause();
    QCOMPARE(calls, QStringList());
    render->Stop();
    QCOMPARE(calls, QStringList("Stop"));

    calls.clear();
    render->Remove();
    QCOMPARE(calls, QStringList({"Stop", "Stop", "~"}));
    render->Remove();
    QCOMPARE(calls.size(), 3);
}

// A node that is deleted as the player is stopped is not asked again.
void TestMinimalHost::NodeGoneByStopping()
{
    std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    MinimalHost::Calls().clear();
    MinimalHost::whenStopped = [&node] { node.reset(); };
    render->Start(82, 0);
    QVERIFY(!node);
    QCOMPARE(MinimalHost::Calls(), QStringList({"Stop", "Init 82"}));
}

void TestMinimalHost::RefusedStartAsksNothing()
{
    std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    MinimalHost::Calls().clear();
    render->Start(0, 0);
    node.reset();
    render->Start(80, 0);
    QCOMPARE(MinimalHost::Calls(), QStringList());
}

void TestMinimalHost::DestructionStopsThePlayerFirst()
{
    const std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    MinimalHost::Calls().clear();
    render.reset();
    QCOMPARE(MinimalHost::Calls(), QStringList({"Stop", "~"}));
}

void TestMinimalHost::RendererGoneByInitialising_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::addColumn<QStringList>("calls");
    const QStringList start {"Stop", "SuportAlphaBlend ", "Init 81"};
    QTest::newRow("removed") << false << start + QStringList {"Stop", "Stop", "~"};
    QTest::newRow("deleted") << true << start + QStringList {"Stop", "~"};
}

void TestMinimalHost::RendererGoneByInitialising()
{
    QFETCH(bool, isDeleted);
    QFETCH(QStringList, calls);
    const std::unique_ptr<Lw::HNode> node = MakeNode(kAnalog);
    std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    MinimalHost::Calls().clear();
    MinimalHost::whenInitialised = [&render, isDeleted] {
        isDeleted ? render.reset() : render->Remove();
    };
    const CollectedMessages messages;
    render->Start(81, 0);
    QCOMPARE(messages.Lines(), QStringList());
    QCOMPARE(!render, isDeleted);
    QCOMPARE(MinimalHost::Calls(), calls);
}

// Hosts may count on it, although the pictures are only loaded for the first frame.
void TestMinimalHost::StyleIsReadAtConstruction()
{
    const std::unique_ptr<Lw::HNode> node = MakeNode(QByteArray());
    node->SetAttribute(QStringLiteral("ClockType"), 2, false);
    const QString style = QStringLiteral("PictrueClockType");
    QCOMPARE(MinimalHost::StoreOf(node.get()).numbersRead.value(style), 0);
    const std::unique_ptr<Lw::IContentRender> render(Plugin()->CreateAreaRender(node.get()));
    QCOMPARE(MinimalHost::StoreOf(node.get()).numbersRead.value(style), 1);
}

// The last argument of every write, of numbers and of texts.
void TestMinimalHost::WritesPassFalse()
{
    const std::unique_ptr<Lw::HNode> node(Plugin()->Create());
    const MinimalHost::Store &store = MinimalHost::StoreOf(node.get());
    node->InitData();
    QCOMPARE(store.values.size(), 74);
    QCOMPARE(store.writesWithTrue, 0);

    QDomDocument document;
    QList<Lw::FileInfo> files;
    QVERIFY(document.setContent(QByteArray(R"(<clock type="digital" adjust="-01:02:03">
        <font name="DejaVu Sans" size="9" color="#102030"/> <title text="a"/>
        <time display="true" format="1"/></clock>)")));
    QVERIFY(node->UpdateNode(document.documentElement(), files));
    QCOMPARE(node->GetAttribute(QStringLiteral("TimeAdjust")), QStringLiteral("01A02B03"));
    QCOMPARE(node->GetAttribute(QStringLiteral("DigitalTopText")), QStringLiteral("a"));
    QCOMPARE(store.writesWithTrue, 0);
}

QTEST_MAIN(TestMinimalHost)
#include "test_minimal_host.moc"
