// The sample programs, played by the real player with the real clock.
#include "player_process.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QDir kExamples(QStringLiteral(EXAMPLES));

/// How many pixels are not black.
int Lit(const QImage &image)
{
    int lit = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            lit += (image.pixel(x, y) & 0xffffffU) != 0;
    }
    return lit;
}

/// The frames of an example from an instant on; none when the player failed or said anything.
QVector<QImage> Played(const QString &example, const QString &instant, int frames,
                       const QProcessEnvironment &environment = DisplaylessEnvironment())
{
    const QTemporaryDir directory;
    const PlayerRun run =
        RunPlayer({kExamples.filePath(example), "--output", directory.path(), "--at", instant,
                   "--frames", QString::number(frames), "--language", "en"},
                  environment);
    if (run.exitCode != 0 || !run.errors.isEmpty()) {
        qWarning("%s", qPrintable(run.errors));
        return {};
    }
    return Frames(directory.path());
}

QImage Picture(const QRect &area, const QString &instant)
{
    return Played(QStringLiteral("zones.xml"), instant, 1).value(0).copy(area);
}

} // namespace

class TestExamples : public QObject
{
    Q_OBJECT

private slots:
    void EachPlaysTheSameAgain_data();
    void EachPlaysTheSameAgain();
    void StylesDiffer();
    void DaylightSaving_data();
    void DaylightSaving();
    void TextIsAsLargeOnEveryPlatform();
};

void TestExamples::EachPlaysTheSameAgain_data()
{
    QTest::addColumn<QString>("example");
    const QStringList examples = kExamples.entryList({"*.xml"}, QDir::Files);
    QVERIFY(examples.contains("station.xml"));
    for (const QString &example : examples)
        QTest::newRow(qPrintable(example)) << example;
}

void TestExamples::EachPlaysTheSameAgain()
{
    QFETCH(QString, example);
    const QString instant = QStringLiteral("2024-03-05T13:07:58Z");
    const QVector<QImage> frames = Played(example, instant, 3);
    QCOMPARE(frames.size(), 3);
    QVERIFY(Lit(frames[0]) > 500);
    QVERIFY(frames[0] != frames[1]);
    QVERIFY(frames[1] != frames[2]);
    QCOMPARE(Played(example, instant, 3), frames);
}

// Clocks of one zone have the same hands, so what differs is the dial.
void TestExamples::StylesDiffer()
{
    const QImage frame =
        Played(QStringLiteral("pictures.xml"), QStringLiteral("2024-03-05T13:07:58Z"), 1).value(0);
    QCOMPARE(frame.size(), QSize(1000, 400));
    QVector<QImage> clocks;
    for (int style = 0; style < 10; ++style) {
        const QImage clock = frame.copy(style % 5 * 200, style / 5 * 200, 200, 200);
        QVERIFY2(!clocks.contains(clock), qPrintable(QString::number(style + 1)));
        clocks.append(clock);
    }
}

// A reading looks the same in winter and in summer, so each row names two instants of one reading,
// one of them without daylight saving, and one instant of another reading.
void TestExamples::DaylightSaving_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("alike");
    QTest::addColumn<QString>("different");
    const QRect berlin(0, 0, 256, 128);
    const QRect london(256, 0, 256, 128);
    const QRect newYork(0, 128, 256, 128);
    const QRect tokyo(256, 128, 256, 128);
    QTest::newRow("Berlin, last second of winter") << berlin << "2024-03-31T00:59:59Z"
                                                   << "2024-01-15T00:59:59Z"
                                                   << "2024-01-15T01:59:59Z";
    QTest::newRow("Berlin, summer begins") << berlin << "2024-03-31T01:00:00Z"
                                           << "2024-01-15T02:00:00Z"
                                           << "2024-01-15T01:00:00Z";
    QTest::newRow("Berlin, last second of summer") << berlin << "2024-10-27T00:59:59Z"
                                                   << "2024-01-15T01:59:59Z"
                                                   << "2024-01-15T00:59:59Z";
    QTest::newRow("Berlin, winter begins") << berlin << "2024-10-27T01:00:00Z"
                                           << "2024-01-15T01:00:00Z"
                                           << "2024-01-15T02:00:00Z";
    QTest::newRow("London, summer begins") << london << "2024-03-31T01:00:00Z"
                                           << "2024-01-15T02:00:00Z"
                                           << "2024-01-15T01:00:00Z";
    QTest::newRow("London, winter begins") << london << "2024-10-27T01:00:00Z"
                                           << "2024-01-15T01:00:00Z"
                                           << "2024-01-15T02:00:00Z";
    QTest::newRow("New York, summer begins") << newYork << "2024-03-10T07:00:00Z"
                                             << "2024-01-15T08:00:00Z"
                                             << "2024-01-15T07:00:00Z";
    QTest::newRow("New York, winter begins") << newYork << "2024-11-03T06:00:00Z"
                                             << "2024-01-15T06:00:00Z"
                                             << "2024-01-15T07:00:00Z";
    QTest::newRow("Tokyo, summer") << tokyo << "2024-07-15T03:04:05Z"
                                   << "2024-01-15T03:04:05Z"
                                   << "2024-01-15T04:04:05Z";
}

void TestExamples::DaylightSaving()
{
    QFETCH(QRect, area);
    QFETCH(QString, instant);
    QFETCH(QString, alike);
    QFETCH(QString, different);
    const QImage picture = Picture(area, instant);
    QVERIFY(Lit(picture) > 500);
    QCOMPARE(Picture(area, alike), picture);
    QVERIFY(Picture(area, different) != picture);
}

// The platform that draws without a display has 100 dots an inch of its own.
void TestExamples::TextIsAsLargeOnEveryPlatform()
{
    const auto played = [](const QString &dotsPerInch) {
        QProcessEnvironment environment = DisplaylessEnvironment();
        environment.remove("QT_FONT_DPI");
        if (!dotsPerInch.isEmpty())
            environment.insert("QT_FONT_DPI", dotsPerInch);
        return Played("station.xml", "2024-03-05T13:07:58Z", 1, environment);
    };
    const QVector<QImage> chosenByPlayer = played("");
    QCOMPARE(chosenByPlayer.size(), 1);
    QCOMPARE(played("96"), chosenByPlayer);
    QVERIFY(played("100") != chosenByPlayer);
}

QTEST_GUILESS_MAIN(TestExamples)
#include "test_examples.moc"
