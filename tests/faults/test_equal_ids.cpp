// A hundred clocks of one Id, which share the names of their glyph files: the one made last has its
// images under them. Clocks that were set up before go on with their own; under digests' names
// every image is its own.
#include "fault_support.h"
#include "node/node_test_support.h"
#include "process_run.h"

#include "clock_render.h"
#include "happconfig.h"

#include "pictureplayer.h"

#include <QColor>
#include <QDir>
#include <QSet>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr int kClocks = 100;
constexpr int kId = 1234;

/// A colour of its own for each, none the key colour: the blue 100 is in all.
QRgb ColourOf(int clock)
{
    return qRgb(clock, 255 - clock, 100);
}

/// Digital clocks that show date and time in their colour.
std::unique_ptr<HClockNode> NewClock(int index)
{
    auto node = std::make_unique<HClockNode>();
    node->InitData();
    const auto set = [&node](const char *key, int value) {
        node->SetAttribute(QLatin1String(key), value, false);
    };
    set("ClockType", DigitalClock);
    set("Id", kId);
    const QRgb colour = ColourOf(index);
    SetEvery(*node, ValueRole::Colour, Lw::HAppConfig::ColorToInt(QColor(colour)));
    SetEvery(*node, ValueRole::Size, 8);
    node->SetSize({80, 40});
    return node;
}

/// The colours of a picture without the key colour.
QSet<QRgb> Colours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    colours.remove(qRgb(1, 2, 1));
    return colours;
}

} // namespace

class TestEqualIds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { clock_set_time_source(nullptr); }

    void EachPlaysWithItsOwnImages();
    void EachReloadsItsOwnDigests();
    void EachIsExportedWithItsOwnImages();
    void EachIsImportedWithItsOwnImages();
    void ExportAfterAllWereMade();
    void PlayerGivesEachItsOwn();

private:
    std::unique_ptr<FreshDirectories> m_directories;
};

void TestEqualIds::init()
{
    m_directories = std::make_unique<FreshDirectories>();
    ChosenTime::Set("2026-11-21T11:59:50");
    pictureplayer::SetTimeScale(0);
}

// All are made and started one after the other, and then play on together, past midnight.
void TestEqualIds::EachPlaysWithItsOwnImages()
{
    std::vector<std::unique_ptr<HClockNode>> nodes;
    std::vector<std::unique_ptr<HClockRender>> renders;
    for (int i = 0; i < kClocks; ++i) {
        nodes.push_back(NewClock(i));
        nodes.back()->NodeAlready(0);
        renders.push_back(std::make_unique<HClockRender>(nodes.back().get()));
        renders.back()->Start(static_cast<unsigned int>(i + 1), 0);
    }
    QCOMPARE(QDir(m_directories->Out()).entryList(QDir::Files).size(), 52);
    QImage first;
    for (int second = 0; second < 3; ++second) {
        ChosenTime::Advance(second == 2 ? 24 * 3600000 : 1000);
        for (int i = 0; i < kClocks; ++i) {
            renders[static_cast<std::size_t>(i)]->PlayNext();
            const QImage frame =
                pictureplayer::ForIdentifier(static_cast<unsigned int>(i + 1))->LastImage();
            QCOMPARE(Colours(frame), QSet<QRgb> {ColourOf(i)});
            // All show the same but for the colour.
            const QImage shape = frame.createMaskFromColor(qRgb(1, 2, 1));
            if (i == 0)
                first = shape;
            QCOMPARE(shape, first);
        }
    }
}

void TestEqualIds::EachReloadsItsOwnDigests()
{
    std::vector<std::unique_ptr<HClockNode>> nodes;
    for (int i = 0; i < kClocks; ++i) {
        nodes.push_back(NewClock(i));
        nodes.back()->AfterUpdate(false);
    }
    for (int i = 0; i < kClocks; ++i) {
        HClockNode &node = *nodes[static_cast<std::size_t>(i)];
        QCOMPARE(node.FileRecords().size(), 52);
        for (const Lw::FileRecord &record : node.FileRecords())
            QCOMPARE(record.name, Md5(ReadFile(record.path)));
        QCOMPARE(Colours(SettledFrame(node, kMorning)), QSet<QRgb> {ColourOf(i)});
    }
}

void TestEqualIds::EachIsExportedWithItsOwnImages()
{
    std::vector<std::unique_ptr<HClockNode>> nodes;
    for (int i = 0; i < kClocks; ++i) {
        nodes.push_back(NewClock(i));
        nodes.back()->NodeAlready(0);
        CapturedOutput captured;
        nodes.back()->ProcessFileName(m_directories->Dest());
    }
    for (int i = 0; i < kClocks; ++i) {
        HClockNode &node = *nodes[static_cast<std::size_t>(i)];
        QVERIFY(node.AllFileExists());
        for (const Lw::FileRecord &record : node.FileRecords()) {
            if (record.key != QLatin1String("_Minus")) // does not travel
                QCOMPARE(record.name, Md5(ReadFile(record.path)));
        }
        QCOMPARE(Colours(SettledFrame(node, kMorning)), QSet<QRgb> {ColourOf(i)});
    }
}

// A program on another device: elements that name the exported images, and nothing of the Ids.
void TestEqualIds::EachIsImportedWithItsOwnImages()
{
    QDomDocument program;
    QDomElement root = program.createElement(QStringLiteral("program"));
    for (int i = 0; i < kClocks; ++i) {
        const auto node = NewClock(i);
        node->NodeAlready(0);
        CapturedOutput captured;
        node->ProcessFileName(m_directories->Dest());
        QDomElement clock = program.createElement(QStringLiteral("clock"));
        clock.setAttribute(QStringLiteral("type"), QStringLiteral("digital"));
        for (const Lw::FileRecord &record : node->FileRecords()) {
            QDomElement file = program.createElement(QStringLiteral("file"));
            file.setAttribute(QStringLiteral("key"), record.key);
            file.setAttribute(QStringLiteral("path"), record.path);
            file.setAttribute(QStringLiteral("md5"), record.name);
            clock.appendChild(file);
        }
        root.appendChild(clock);
    }
    int seen = 0;
    for (QDomElement clock = root.firstChildElement(); !clock.isNull();
         clock = clock.nextSiblingElement()) {
        HClockNode node;
        node.InitData();
        QList<Lw::FileInfo> files;
        QVERIFY(node.UpdateNode(clock, files));
        QCOMPARE(files.size(), 52);
        node.SetSize({80, 40});
        QVERIFY(node.AllFileExists());
        QCOMPARE(Colours(SettledFrame(node, kMorning)), QSet<QRgb> {ColourOf(seen)});
        ++seen;
    }
    QCOMPARE(seen, kClocks);
}

// The files are those of the clock made last. The first to be exported takes them; the others are
// left without, and nothing that was exported is lost by it.
void TestEqualIds::ExportAfterAllWereMade()
{
    std::vector<std::unique_ptr<HClockNode>> nodes;
    for (int i = 0; i < kClocks; ++i) {
        nodes.push_back(NewClock(i));
        nodes.back()->NodeAlready(0);
    }
    QSet<QString> digests;
    for (const QString &name : QDir(m_directories->Out()).entryList(QDir::Files)) {
        if (!name.contains(QLatin1String("Minus")))
            digests.insert(Md5(ReadFile(m_directories->Out() + name)) + QStringLiteral(".png"));
    }
    for (const auto &node : nodes) {
        CapturedOutput captured;
        node->ProcessFileName(m_directories->Dest());
    }
    const QStringList exported = QDir(m_directories->Dest()).entryList(QDir::Files);
    QCOMPARE(QSet<QString>(exported.begin(), exported.end()), digests);
    QCOMPARE(Colours(SettledFrame(*nodes.front(), kMorning)), QSet<QRgb> {ColourOf(kClocks - 1)});
    QCOMPARE(PixelsShown(SettledFrame(*nodes.back(), kMorning)), 0);
}

// The real player moves all but the first to numbers of their own, and says so.
void TestEqualIds::PlayerGivesEachItsOwn()
{
    constexpr int kColumns = 10;
    QString areas;
    for (int i = 0; i < kClocks; ++i) {
        const QString colour = QColor(ColourOf(i)).name();
        areas += QStringLiteral("<area x=\"%1\" y=\"%2\" width=\"80\" height=\"40\">"
                                "<clock type=\"digital\" timezone=\"+00:00\">"
                                "<title display=\"false\"/><week display=\"false\"/>"
                                "<date display=\"false\"/>"
                                "<time display=\"true\" fontSize=\"8\" color=\"%3\"/>"
                                "<attribute key=\"Id\" value=\"1234\"/></clock></area>")
                     .arg(i % kColumns * 80)
                     .arg(i / kColumns * 40)
                     .arg(colour);
    }
    const QString program = m_directories->Root() + QStringLiteral("program.xml");
    WriteFile(
        program,
        QStringLiteral("<program width=\"800\" height=\"400\">%1</program>").arg(areas).toUtf8());
    const ProcessRun run = RunProcess(QStringLiteral(PLAYER),
                                      {program, QStringLiteral("--output"), m_directories->Dest(),
                                       QStringLiteral("--frames"), QStringLiteral("2")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors.count(QStringLiteral("the Id 1234 is used by another clock")), kClocks - 1);
    const QImage frame(m_directories->Dest() + QStringLiteral("frame_0002.png"));
    QCOMPARE(frame.size(), QSize(800, 400));
    for (int i = 0; i < kClocks; ++i) {
        QSet<QRgb> colours = Colours(frame.copy(i % kColumns * 80, i / kColumns * 40, 80, 40));
        colours.remove(qRgb(0, 0, 0)); // the screen behind the clocks
        QCOMPARE(colours, QSet<QRgb> {ColourOf(i)});
    }
}

QTEST_MAIN(TestEqualIds)

#include "test_equal_ids.moc"
