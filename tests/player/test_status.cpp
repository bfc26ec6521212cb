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

} // namespace

class TestStatus : public QObject
{
    Q_OBJECT

private slots:
    void ValidUntil();
    void WarningsBeforeTheEnd();

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

QTEST_GUILESS_MAIN(TestStatus)
#include "test_status.moc"
