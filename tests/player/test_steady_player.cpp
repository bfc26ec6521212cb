// What a second takes of the process while the player shows nothing but the time.
#include "process_run.h"

#include <QtTest>

namespace {

constexpr int kSeconds = 20;
constexpr int kSpeed = 4;
constexpr int kAttempts = 5;

using Counts = QMap<QString, double>;

Counts CountsOf(const QString &program)
{
    const ProcessRun run =
        RunProcess(QStringLiteral(PLAYER_SECONDS),
                   {program, QString::number(kSeconds), QString::number(kSpeed)});
    Counts counts;
    for (const QString &line : run.output.split('\n', Qt::SkipEmptyParts))
        counts.insert(line.section(": ", 0, 0), line.section(": ", 1).toDouble());
    return run.exitCode == 0 ? counts : Counts();
}

QString Text(const Counts &counts)
{
    QString text;
    for (auto i = counts.cbegin(); i != counts.cend(); ++i)
        text += QStringLiteral("%1: %2\n").arg(i.key()).arg(i.value());
    return text;
}

bool IsUndisturbed(const Counts &counts)
{
    const double presentations = counts.value("presentations per second");
    const double wakeUps = counts.value("wake-ups per second");
    return presentations >= 1 && presentations < 1.1 && wakeUps > 0.9 && wakeUps <= 2;
}

} // namespace

class TestSteadyPlayer : public QObject
{
    Q_OBJECT

private slots:
    void TakesNothingThatNoChangeCaused_data();
    void TakesNothingThatNoChangeCaused();
};

void TestSteadyPlayer::TakesNothingThatNoChangeCaused_data()
{
    QTest::addColumn<QString>("program");
    for (const char *name : {"station", "wall"})
        QTest::newRow(name) << QStringLiteral(EXAMPLES "/%1.xml").arg(name);
}

// A machine that is busy otherwise presents an area late, and by itself: then another time.
void TestSteadyPlayer::TakesNothingThatNoChangeCaused()
{
    QFETCH(const QString, program);
    Counts counts;
    for (int i = 0; i < kAttempts && !IsUndisturbed(counts); ++i) {
        counts = CountsOf(program);
        // The start allocates frames and opens files: what counts them works.
        QVERIFY(counts.value("frame-sized allocations before") > 0);
        QVERIFY(counts.value("files opened before") > 0);
        QCOMPARE(counts.value("frame-sized allocations", -1), 0.0);
        QCOMPARE(counts.value("files opened", -1), 0.0);
    }
    QVERIFY2(IsUndisturbed(counts), qPrintable(Text(counts)));
}

QTEST_GUILESS_MAIN(TestSteadyPlayer)
#include "test_steady_player.moc"
