// A renderer deleted or removed by the host while it draws a frame, and a node while its images are
// made, at each call that this makes out of the plugin: for the time, for the size, for attributes
// and files.
#include "clock_render.h"
#include "fault_support.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_cache.h"
#include "messages.h"

#include "pictureplayer.h"

#include <dlfcn.h>

#include <functional>
#include <utility>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr unsigned int kId = 51;

int g_calls = 0;              // out of the plugin, since it was set to 0
int g_fatalCall = 0;          // 0 is none
std::function<void()> g_deed; // what the host does within that call

void CalledOut()
{
    if (++g_calls == g_fatalCall)
        std::exchange(g_deed, {})();
}

template<class Function>
Function Next(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

class SizedNode : public HClockNode
{
public:
    QSize Size() override
    {
        CalledOut();
        return QSize(64, 48);
    }
};

} // namespace

// The host's own operations, found before those of its library.
namespace Lw {

int HData::GetAttributeToInt(QString key)
{
    using Function = int (*)(HData *, QString);
    static const auto next = Next<Function>("_ZN2Lw5HData17GetAttributeToIntE7QString");
    const int value = next(this, key);
    CalledOut();
    return value;
}

QString HData::GetAttribute(QString key)
{
    using Function = QString (*)(HData *, QString);
    static const auto next = Next<Function>("_ZN2Lw5HData12GetAttributeE7QString");
    const QString value = next(this, key);
    CalledOut();
    return value;
}

bool HData::HaveAttribute(QString key)
{
    using Function = bool (*)(HData *, QString);
    static const auto next = Next<Function>("_ZN2Lw5HData13HaveAttributeE7QString");
    const bool value = next(this, key);
    CalledOut();
    return value;
}

QString HData::GetFirstFile(QString key)
{
    using Function = QString (*)(HData *, QString);
    static const auto next = Next<Function>("_ZN2Lw5HData12GetFirstFileE7QString");
    const QString value = next(this, key);
    CalledOut();
    return value;
}

} // namespace Lw

class TestDrawingDeletions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { clock_set_time_source(nullptr); }

    void AtEveryCallOut_data();
    void AtEveryCallOut();
    void NodeDeletedByTheTime_data() { AddKinds(); }
    void NodeDeletedByTheTime();
    void NodeDeletedByItsSize_data() { AddKinds(); }
    void NodeDeletedByItsSize();
    void NodeDeletedWhileImagesAreMade_data();
    void NodeDeletedWhileImagesAreMade();
    void KnownImagesAreAskedForNothing();

private:
    QTemporaryDir m_directory;
};

void TestDrawingDeletions::initTestCase()
{
    Lw::HAppConfig::SetClockOutputPath(m_directory.path());
    pictureplayer::SetTimeScale(0);
    // The refusal of a renderer that was removed is logged each time; other tests look at that
    // line.
    SilenceMessages();
}

void TestDrawingDeletions::init()
{
    g_fatalCall = 0;
    ChosenTime::Set("2026-11-21T11:59:59");
    clock_set_time_source([] {
        CalledOut();
        return ChosenTime::Milliseconds();
    });
}

void TestDrawingDeletions::AtEveryCallOut_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isDeleted"); // else removed
    for (const int kind : kKinds) {
        QTest::addRow("%s deleted", KindName(kind)) << kind << true;
        QTest::addRow("%s removed", KindName(kind)) << kind << false;
    }
}

// In the third frame, so that both frames and all that is kept from one to the next are in use; it
// is noon then, and an analog dial is redrawn.
void TestDrawingDeletions::AtEveryCallOut()
{
    QFETCH(int, kind);
    QFETCH(bool, isDeleted);
    SizedNode node;
    node.InitData();
    for (const char *const key : {"Analog_AMPM_d", "Analog_Date_d", "Digital_Lunar_d"})
        node.SetAttribute(QLatin1String(key), 1, false);
    node.SetAttribute(Key(Attribute::ClockType), kind, false);
    node.NodeAlready(0);
    const qint64 begin = ChosenTime::Milliseconds();
    int calls = 1;
    for (int fatal = 1; fatal <= calls; ++fatal) {
        ChosenTime::Milliseconds() = begin;
        QPointer<HClockRender> render(new HClockRender(&node));
        render->Start(kId, 0);
        render->PlayNext();
        const QImage shown = pictureplayer::ForIdentifier(kId)->LastImage();
        const QImage copy = shown.copy();
        g_calls = 0;
        g_fatalCall = fatal;
        g_deed = [&render, isDeleted] { isDeleted ? delete render : render->Remove(); };
        ChosenTime::Advance(1000);
        render->PlayNext();
        g_fatalCall = 0;
        calls = std::max(calls, g_calls);
        QVERIFY2(!g_deed, "the call was not made");
        QCOMPARE(!render, isDeleted);
        QVERIFY(!pictureplayer::ForIdentifier(kId));
        QCOMPARE(shown, copy);
        if (render)
            render->PlayNext();
        delete render;
    }
    QVERIFY(calls > 5);
}

void TestDrawingDeletions::NodeDeletedByTheTime()
{
    QFETCH(int, kind);
    QPointer<SizedNode> node(new SizedNode);
    node->InitData();
    node->SetAttribute(Key(Attribute::ClockType), kind, false);
    HClockRender render(node);
    render.Start(kId, 0);
    g_calls = 0;
    g_fatalCall = 1;
    g_deed = [&node] { delete node; };
    render.PlayNext(); // the time is asked for first
    QVERIFY(!node);
    QCOMPARE(pictureplayer::ForIdentifier(kId)->LastImage().size(), QSize(64, 48));
}

void TestDrawingDeletions::NodeDeletedByItsSize()
{
    QFETCH(int, kind);
    for (int fatal = 1; fatal < 40; ++fatal) {
        class FleetingNode : public HClockNode
        {
        public:
            QSize Size() override
            {
                if (--left == 0)
                    delete this;
                return QSize(64, 48);
            }
            int left = 0;
        };
        QPointer<FleetingNode> node(new FleetingNode);
        node->InitData();
        node->SetAttribute(Key(Attribute::ClockType), kind, false);
        HClockRender render(node);
        render.Start(kId, 0);
        node->left = fatal;
        render.PlayNext();
        if (node) { // asked less often than that
            QVERIFY(fatal > 1);
            delete node;
            return;
        }
        render.PlayNext();
    }
}

namespace {

QPointer<HClockNode> NodeWithEverything(int kind)
{
    QPointer<HClockNode> node(new HClockNode);
    node->InitData();
    for (const char *const key : {"Analog_AMPM_d", "Analog_Date_d", "Analog_Week_d",
                                  "Analog_Lunar_d", "Digital_Lunar_d", "DigitalMode"})
        node->SetAttribute(QLatin1String(key), 1, false);
    node->SetAttribute(Key(Attribute::ClockType), kind, false);
    return node;
}

/// How often making the images calls out.
int CallsToMakeImages(HClockNode &node)
{
    g_calls = 0;
    DrwSourceIMage().DrawClockSourceImage(&node);
    return g_calls;
}

} // namespace

void TestDrawingDeletions::NodeDeletedWhileImagesAreMade_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("areDrawn"); // else their files are there
    for (const int kind : {AnalogClock, DigitalClock}) {
        QTest::addRow("%s, drawn", KindName(kind)) << kind << true;
        QTest::addRow("%s, known", KindName(kind)) << kind << false;
    }
}

void TestDrawingDeletions::NodeDeletedWhileImagesAreMade()
{
    QFETCH(int, kind);
    QFETCH(bool, areDrawn);
    const auto forget = [areDrawn] {
        if (areDrawn)
            GlyphCache::Shared().Forget();
    };
    QPointer<HClockNode> node = NodeWithEverything(kind);
    CallsToMakeImages(*node);
    forget();
    const int calls = CallsToMakeImages(*node);
    delete node;
    QVERIFY(calls > 20);
    for (int fatal = 1; fatal <= calls; ++fatal) {
        forget();
        node = NodeWithEverything(kind);
        g_calls = 0;
        g_fatalCall = fatal;
        g_deed = [&node] { delete node; };
        DrwSourceIMage().DrawClockSourceImage(node);
        g_fatalCall = 0;
        QVERIFY2(!node, qPrintable(QString::number(fatal)));
    }
}

// Only for images that are drawn the host is asked whether a frame needs them.
void TestDrawingDeletions::KnownImagesAreAskedForNothing()
{
    GlyphCache::Shared().Forget();
    const QPointer<HClockNode> node = NodeWithEverything(DigitalClock);
    const int drawn = CallsToMakeImages(*node);
    const int known = CallsToMakeImages(*node);
    delete node;
    QVERIFY(known < drawn);
}

QTEST_MAIN(TestDrawingDeletions)

#include "test_drawing_deletions.moc"
