// Glyph images that take too much time or memory: the clock is named before anything plays.
#include "tiny_gif.h"
#include "tool_process.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kLeftOut = QStringLiteral(
    "warning: cannot show 3 glyph images (_lunar, _chWeek_3, _timeNumber): a clock's images may "
    "take 64 MiB of memory, those of all clocks 256 MiB");

/// A digital clock, in line 2, with four carried images of 64 MiB.
QByteArray CarriedImages(const QString &directory)
{
    QByteArray files;
    for (const QByteArray key : {"_timeNumber", "_toptext", "_lunar", "_chWeek_3"}) {
        const QByteArray content = TinyGif() + key; // no two alike
        if (!WriteText(directory + '/' + key, content))
            return {};
        files += "<file key='" + key + "' path='" + key + "' size='"
            + QByteArray::number(content.size()) + "' md5='"
            + QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex() + "'/>";
    }
    return ProgramOf("\n<clock type='digital' timezone='+00:00'>" + files
                     + "<attribute key='DigitalWeekType' value='0'/></clock>");
}

/// A digital clock, in line 2, with texts so large.
QByteArray TextsOf(const QByteArray &points)
{
    const QByteArray size = " fontSize='" + points + "'/>";
    return ProgramOf("\n<clock type='digital' timezone='+00:00'><time" + size + "<date" + size
                     + "<week" + size + "</clock>");
}

} // namespace

class TestGlyphWarnings : public QObject
{
    Q_OBJECT

private slots:
    void CarriedImagesBeyondTheBound();
    void ManyPixels_data();
    void ManyPixels();
};

void TestGlyphWarnings::CarriedImagesBeyondTheBound()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, CarriedImages(directory.path())));
    const ProcessRun lint = RunTool({"lint", "--no-fit", path});
    QCOMPARE(lint.errors, path + ":2: " + kLeftOut + '\n');
    QCOMPARE(lint.exitCode, 1);
    const ProcessRun play =
        RunPlayer({"--use-files", path, "--output", directory.filePath("frames")});
    QCOMPARE(play.errors, "clock_player: " + path + ": clock 1000: " + kLeftOut + '\n');
    QCOMPARE(play.exitCode, 0);
}

void TestGlyphWarnings::ManyPixels_data()
{
    QTest::addColumn<QByteArray>("points");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("large") << QByteArray("100") << false;
    QTest::newRow("huge") << QByteArray("600") << true;
}

void TestGlyphWarnings::ManyPixels()
{
    QFETCH(QByteArray, points);
    QFETCH(bool, isTold);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, TextsOf(points)));
    const ProcessRun run = RunTool({"lint", "--no-fit", path});
    static const QRegularExpression form(
        ":2: warning: the images of its texts have [0-9]+ "
        "megapixels, which a small device draws slowly; accepted: at most 32");
    QCOMPARE(run.errors.contains(form), isTold);
}

QTEST_GUILESS_MAIN(TestGlyphWarnings)
#include "test_glyph_warnings.moc"
