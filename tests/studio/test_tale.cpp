// A wall with three clocks in two zones, made by mouse and keys on a display of its own.
#include "sample_programs.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace ClockStudio;

class TestTale : public QObject
{
    Q_OBJECT

private slots:
    void ThreeClocksInTwoZones();
};

void TestTale::ThreeClocksInTwoZones()
{
    for (const char *tool : {"Xvfb", "xdotool", "import"}) {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            QSKIP(tool);
    }
    const QTemporaryDir work;
    QProcess tale;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("CLOCK_TALE_PATIENCE", "2");
    tale.setProcessEnvironment(environment);
    tale.setProcessChannelMode(QProcess::MergedChannels);
    tale.start(TALE, {STUDIO, work.path()});
    QVERIFY(tale.waitForFinished(240000));
    QVERIFY2(tale.exitCode() == 0, tale.readAll().constData());
    const ParsedProgram wall = MustRead(QString::fromUtf8(ContentsOf(work.filePath("wall.xml"))));
    QCOMPARE(wall.AreaCount(), 3);
    QCOMPARE(wall.Geometry(0), QRect(0, 0, 128, 128));
    QCOMPARE(wall.Geometry(1), QRect(128, 0, 128, 64));
    QCOMPARE(wall.Geometry(2), QRect(128, 64, 128, 64));
    const auto zone = [&wall](int area) {
        return wall.elements[wall.ClockElement(area)].Value("timezone");
    };
    QCOMPARE(zone(1), QString("+01:00"));
    QCOMPARE(zone(2), QString("-05:00"));
    QVERIFY(wall.ClockText(2).contains("3.2.7.02:00:00")); // New York's, not Berlin's
}

QTEST_GUILESS_MAIN(TestTale)
#include "test_tale.moc"
