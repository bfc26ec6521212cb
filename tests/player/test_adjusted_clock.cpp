// A clock whose program adjusts it shows the adjusted time, in every language of the device.
#include "player_process.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestAdjustedClock : public QObject
{
    Q_OBJECT

private slots:
    void FrameOfTheAdjustedTime_data();
    void FrameOfTheAdjustedTime();

private:
    /// The frame of a digital clock in UTC with these attributes and children at an instant of a
    /// day; null where none is made.
    static QImage FrameOf(const QString &rest, const QString &time);
};

QImage TestAdjustedClock::FrameOf(const QString &rest, const QString &time)
{
    const QTemporaryDir directory;
    QFile program(directory.filePath("program.xml"));
    if (!program.open(QFile::WriteOnly))
        return QImage();
    program.write("<program width=\"256\" height=\"64\"><area x=\"0\" y=\"0\" width=\"256\" "
                  "height=\"64\"><clock type=\"digital\" timezone=\"+00:00\" "
                  + rest.toUtf8() + "</clock></area></program>");
    program.close();
    const PlayerRun run =
        RunPlayer({program.fileName(), "--output", directory.path(), "--frames", "1", "--at",
                   QStringLiteral("2024-03-05T%1Z").arg(time), "--language", "en"});
    return run.exitCode == 0 ? Frames(directory.path()).value(0) : QImage();
}

void TestAdjustedClock::FrameOfTheAdjustedTime_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("none");
    QTest::addColumn<QString>("adjustment");
    QTest::newRow("text") << "adjust=\"%1\">"
                          << "+00:00:00"
                          << "+01:30:05";
    QTest::newRow("seconds") << "><clockCom clockType=\"1\" timeAdjust=\"%1\"/>"
                             << "0"
                             << "5405";
}

void TestAdjustedClock::FrameOfTheAdjustedTime()
{
    QFETCH(QString, form);
    QFETCH(QString, none);
    QFETCH(QString, adjustment);
    const QImage adjusted = FrameOf(form.arg(adjustment), "11:37:53");
    QVERIFY(!adjusted.isNull());
    QCOMPARE(adjusted, FrameOf(form.arg(none), "13:07:58"));
    QVERIFY(adjusted != FrameOf(form.arg(none), "11:37:53"));
}

QTEST_GUILESS_MAIN(TestAdjustedClock)
#include "test_adjusted_clock.moc"
