// What the status file of a player says about its clocks, at times that are given to the player.
#include "player_process.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kPatience = 30000; // milliseconds

QByteArray Setting(const char *key, const char *value)
{
    return QByteArray("<attribute key=\"") + key + "\" value=\"" + value + "\"/>";
}

// A small digital clock at a place of its own, with its Id.
QByteArray Clock(int place, const QByteArray &zone, const QByteArray &content)
{
    return "<area x=\"" + QByteArray::number(64 * place)
        + "\" y=\"0\" width=\"64\" height=\"32\"><clock type=\"digital\" timezone=\"" + zone + "\">"
        + content + Setting("Id", QByteArray::number(1000 + place).constData()) + "</clock></area>";
}

QByteArray Rules(const char *start, const char *end)
{
    return Setting("UseDaylightSavingTime", "1") + Setting("DaylightSavingTimeStart", start)
        + Setting("DaylightSavingTimeEnd", end);
}

QByteArray Wall()
{
    return "<program width=\"256\" height=\"32\">" + Clock(0, "+09:00", "<time display=\"true\"/>")
        + Clock(1, "+02:00", Rules("3.4.5.02:00:00", "10.Last.7.01:00:00"))
        + Clock(2, "+08:00", "<lunar display=\"true\"/>")
        + Clock(3, "+03:30", "<date display=\"true\" format=\"7\"/>") + "</program>";
}

// With the build machine's interpreter, also where the player runs in an emulator.
ProcessRun RunMetrics(const QString &status)
{
    QProcess process;
    process.start(QStringLiteral(EXAMPLES "/fleet/metrics"), {status});
    ProcessRun run;
    run.crashed = !process.waitForFinished(kPatience);
    run.exitCode = process.exitCode();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

// The values of an exposition by name and labels; empty if a line is neither help, type nor sample,
// or a sample does not follow the type of its metric.
QMap<QString, double> Samples(const QString &exposition)
{
    static const QRegularExpression help("^# HELP ([a-zA-Z_:][a-zA-Z0-9_:]*) .+$");
    static const QRegularExpression type(
        "^# TYPE ([a-zA-Z_:][a-zA-Z0-9_:]*) (counter|gauge|untyped)$");
    static const QRegularExpression sample("^(([a-zA-Z_:][a-zA-Z0-9_:]*)(?:\\{(?:[a-zA-Z_][a-zA-Z0-"
                                           "9_]*=\"(?:[^\"\\\\]|\\\\[\"\\\\n])*\","
                                           "?)+\\})?) ([-+0-9.e]+)$");
    QMap<QString, double> values;
    QString helped;
    QString typed;
    for (const QString &line : exposition.split('\n', Qt::SkipEmptyParts)) {
        const auto value = sample.match(line);
        if (help.match(line).hasMatch())
            helped = help.match(line).captured(1);
        else if (type.match(line).captured(1) == helped && !helped.isEmpty())
            typed = helped;
        else if (value.hasMatch() && value.captured(2) == typed
                 && !values.contains(value.captured(1)))
            values.insert(value.captured(1), value.captured(3).toDouble());
        else
            return {};
    }
    return exposition.endsWith('\n') ? values : QMap<QString, double>();
}

} // namespace

class TestStatus : public QObject
{
    Q_OBJECT

private slots:
    void ValidUntil();
    void WarningsBeforeTheEnd();
    void Metrics();
    void MetricsOfNoStatus_data();
    void MetricsOfNoStatus();

private:
    QJsonObject StatusAt(const QString &instant);

    QTemporaryDir m_directory;
};

QJsonObject TestStatus::StatusAt(const QString &instant)
{
    QFile program(m_directory.filePath("wall.xml"));
    if (!program.open(QFile::WriteOnly) || program.write(Wall()) < 0)
        return {};
    program.close();
    QFile status(m_directory.filePath("status.json"));
    status.remove();
    QProcess player;
    player.setProcessEnvironment(DisplaylessEnvironment());
    StartProgram(player, QStringLiteral(PLAYER),
                 {"-platform", "offscreen", "--at", instant, "--files-dir",
                  m_directory.filePath("glyphs"), "--status-file", status.fileName(),
                  program.fileName()});
    QElapsedTimer waited;
    waited.start();
    while (!status.exists() && !player.waitForFinished(50) && !waited.hasExpired(kPatience)) { }
    player.terminate();
    player.waitForFinished(kPatience);
    return status.open(QFile::ReadOnly) ? QJsonDocument::fromJson(status.readAll()).object()
                                        : QJsonObject();
}

// The fourth Friday of March 2030 comes a week before Israel's; the lunar table is a month off from
// 25 August 2033, and the Persian year 1437 begins a day early.
void TestStatus::ValidUntil()
{
    const QJsonArray clocks = StatusAt("2029-11-01T00:00:00Z")["clocks"].toArray();
    QCOMPARE(clocks.size(), 4);
    QStringList ends;
    for (const QJsonValue &clock : clocks)
        ends.append(clock["valid_until"].toString("null") + ' '
                    + clock["valid_until_reason"].toString("null"));
    QCOMPARE(ends,
             QStringList({"null null", "2030-03-22T00:00:00Z daylight_saving_rules",
                          "2033-08-24T16:00:00Z lunar_calendar",
                          "2058-03-19T20:30:00Z persian_calendar"}));
}

void TestStatus::WarningsBeforeTheEnd()
{
    QCOMPARE(StatusAt("2029-12-20T23:59:00Z")["warnings"].toArray(), QJsonArray());
    const QJsonArray warnings = StatusAt("2029-12-22T00:00:00Z")["warnings"].toArray();
    QCOMPARE(warnings,
             QJsonArray({QJsonObject {{"id", 1001},
                                      {"text",
                                       "the daylight-saving rules are those of Asia/Jerusalem only "
                                       "until 2030-03-22T00:00:00Z"}}}));
}

// 2030-03-22 is 21995 days after the first of 1970.
void TestStatus::Metrics()
{
    QVERIFY(!StatusAt("2029-12-22T00:00:00Z").isEmpty());
    const ProcessRun run = RunMetrics(m_directory.filePath("status.json"));
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    const QMap<QString, double> values = Samples(run.output);
    const QString until = "clock_player_clock_valid_until_timestamp_seconds{id=\"%1\"}";
    QCOMPARE(values.value(until.arg(1001)), 21995 * 86400.0);
    QVERIFY(!values.contains(until.arg(1000)));
    QCOMPARE(values.value("clock_player_clock_utc_offset_seconds{id=\"1003\"}"), 12600.0);
    QCOMPARE(values.value("clock_player_warnings"), 1.0);
    QCOMPARE(values.value("clock_player_faults_total", -1), 0.0);
    QCOMPARE(values.value("clock_player_notice{code=\"\"}", -1), 0.0);
    const double now = static_cast<double>(QDateTime::currentSecsSinceEpoch());
    QVERIFY(qAbs(values.value("clock_player_written_timestamp_seconds") - now) < 3600);
}

void TestStatus::MetricsOfNoStatus_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("half") << QByteArray("{\"format\": 1,");
    QTest::newRow("another object") << QByteArray("{\"format\": 1}");
    QTest::newRow("no object") << QByteArray("[]");
    QTest::newRow("not text") << QByteArray("\xff\xfe\x00", 3);
}

void TestStatus::MetricsOfNoStatus()
{
    QFETCH(QByteArray, contents);
    QFile file(m_directory.filePath("no_status.json"));
    QVERIFY(file.open(QFile::WriteOnly) && file.write(contents) == contents.size());
    file.close();
    const ProcessRun run = RunMetrics(file.fileName());
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.startsWith("metrics: ") && run.errors.count('\n') == 1,
             qPrintable(run.errors));
}

QTEST_GUILESS_MAIN(TestStatus)
#include "test_status.moc"
