// What lint finds of the year that the clocks show, and how it writes findings for programs.
#include "tool_process.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

namespace {

// A wall of one area; at 96 dots per inch a digit of DejaVu Sans Mono is 0.8 pixels wide per point.
QByteArray Wall(const QByteArray &clock, int width = 200, int height = 60)
{
    const QByteArray size = " width=\"" + QByteArray::number(width) + "\" height=\""
        + QByteArray::number(height) + "\"";
    return "<program" + size + ">\n<area x=\"0\" y=\"0\"" + size + ">\n" + clock
        + "\n</area>\n</program>\n";
}

QByteArray Digital(const QByteArray &content)
{
    return "<clock type=\"digital\" timezone=\"+00:00\">\n" + content + "\n</clock>";
}

const QByteArray kHidden =
    "<title display=\"false\"/><date display=\"false\"/><week display=\"false\"/>\n";

QByteArray Time(const QByteArray &size, const QByteArray &colour = "#ffffff")
{
    return kHidden + "<time display=\"true\" format=\"1\" fontName=\"DejaVu Sans Mono\" fontSize=\""
        + size + "\" color=\"" + colour + "\"/>";
}

QByteArray Date(const QByteArray &format, const QByteArray &size)
{
    return "<title display=\"false\"/><week display=\"false\"/><time display=\"false\"/>\n"
           "<date display=\"true\" fontName=\"DejaVu Sans\" color=\"#ffffff\" format=\""
        + format + "\" fontSize=\"" + size + "\"/>";
}

const QByteArray kWeekday =
    "<title display=\"false\"/><date display=\"false\"/><time display=\"false\"/>\n"
    "<week display=\"true\" format=\"1\" fontName=\"DejaVu Sans\" fontSize=\"20\" "
    "color=\"#60c0ff\"/>";

QByteArray Title(const QByteArray &text)
{
    return "<date display=\"false\"/><week display=\"false\"/><time display=\"false\"/>\n"
           "<title display=\"true\" fontName=\"DejaVu Sans\" color=\"#ffffff\" value=\""
        + text + "\"/>";
}

// What lint says of a program, as a warning or a note.
struct Finding
{
    const char *name;
    QByteArray program;
    QString severity;
    QString said;
};

const QString kWarning = "warning";
const QString kNote = "note";

const Finding kFindings[] = {
    {"cut", Wall(Digital(Time("60"))), kWarning, "in.xml:5: warning: the time is cut: "},
    {"size", Wall(Digital(Time("60"))), kWarning, " points would fit; all sizes"},
    // The foot of the "J" is left of where the letter begins.
    {"beyond its image", Wall(Digital(Date("3", "14"))), kWarning,
     "the images of the date are too small for the ink: 2 pixels of \"Jan.\" lost at the left"},
    {"a line of a title", Wall(Digital(Title("One&#10;Two"))), kWarning,
     "the images of the title are too small for the ink: "},
    {"key colour", Wall(Digital(Time("20", "#010201"))), kWarning,
     "the colour of the time is the key colour #010201"},
    {"first of two elements", Wall(Digital(Time("60") + "\n<time fontSize=\"9\"/>")), kWarning,
     "in.xml:5: warning: the time is cut: "},
    {"row before the font", Wall(Digital(Time("20", "#010201") + "\n<font color=\"#ffffff\"/>")),
     kWarning, "in.xml:5: warning: the colour of the time is the key colour"},
    {"faint", Wall(Digital(Time("20", "#202020"))), kWarning,
     "the colour #202020 of the time has a contrast of 1.2 against its background #000000"},
    {"blue", Wall(Digital(Time("20", "#0000ff"))), kNote,
     "the colour #0000ff of the time has a contrast of 2.4 against its background #000000"},
    {"rows over each other",
     Wall(Digital("<title display=\"false\"/><week display=\"false\"/>\n"
                  "<date display=\"true\" color=\"#ffffff\"/>\n"
                  "<time display=\"true\"/><clockTextsSyle space=\"-20\"/>")),
     kWarning, "the time is drawn over the date: up to "},
    {"not in the font",
     Wall(Digital("<title display=\"true\" value=\"&#x5317;\" fontName=\"DejaVu Sans\"/>\n"
                  "<date display=\"false\"/><week display=\"false\"/>"
                  "<time display=\"false\"/>")),
     kNote, QString::fromUtf8("the family \"DejaVu Sans\" of the title lacks \"北\": ")},
    {"a symbol that is not in the font",
     Wall(Digital("<title display=\"true\" value=\"&#xE000;\" fontName=\"DejaVu Sans Mono\"/>\n"
                  "<date display=\"false\"/><week display=\"false\"/>"
                  "<time display=\"false\"/>")),
     kWarning,
     QString::fromUtf8("the family \"DejaVu Sans Mono\" of the title lacks \"\xEE\x80\x80\": ")},
    {"small dial",
     Wall("<clock type=\"dial\"><title display=\"false\"/><date display=\"false\"/>\n"
          "<week display=\"false\"/><ampm display=\"false\"/></clock>",
          60, 60),
     kNote, "a dial with a radius of 30 pixels has no minute marks; they need at least 40.5"},
    {"hands",
     Wall("<clock type=\"dial\"><analog hourHandColor=\"#ffffff\""
          " minuteHandColor=\"#ffffff\"/></clock>",
          200, 200),
     kNote, "the hour hand and the minute hand are both #ffffff"},
    {"off the screen", Wall(Digital(Time("20"))).replace("x=\"0\"", "x=\"500\""), kWarning,
     "in.xml:2: warning: the area is off the screen"},
    {"cut by the screen", Wall(Digital(Time("40"))).replace("x=\"0\"", "x=\"-60\""), kWarning,
     "the time is cut: "},
    {"clock over clock",
     Wall(Digital(Time("20")) + "</area>\n<area x=\"0\" y=\"0\" width=\"200\" height=\"60\">"
          + Digital(Time("20"))),
     kWarning, "in.xml:7: warning: the time is drawn over the time of the clock in line 3: "},
};

} // namespace

class TestLintFit : public QObject
{
    Q_OBJECT

private slots:
    void WhatDoesNotFitIsFound_data();
    void WhatDoesNotFitIsFound();
    void ReportsAnAreaOnce_data();
    void ReportsAnAreaOnce();
    void SamplesAreClean_data();
    void SamplesAreClean();
    void SaysNothingOfWhatFits_data();
    void SaysNothingOfWhatFits();
    void TellsTheFirstDay();
    void WritesJson();
    void RefusesUnknownChoices_data();
    void RefusesUnknownChoices();

private:
    ProcessRun Lint(const QByteArray &program, const QStringList &options = {})
    {
        const QString path = m_directory.filePath("in.xml");
        if (!WriteText(path, program))
            qFatal("cannot write a program");
        return RunTool(QStringList {"lint", "--at", "2026-08-20", "--language", "en"} + options
                       << path);
    }

    QTemporaryDir m_directory;
};

void TestLintFit::WhatDoesNotFitIsFound_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QString>("severity");
    QTest::addColumn<QString>("said");
    for (const Finding &finding : kFindings)
        QTest::newRow(finding.name) << finding.program << finding.severity << finding.said;
}

void TestLintFit::WhatDoesNotFitIsFound()
{
    QFETCH(QByteArray, program);
    QFETCH(QString, severity);
    QFETCH(QString, said);
    const ProcessRun run = Lint(program);
    QVERIFY2(run.errors.contains(said), qPrintable(run.errors));
    QCOMPARE(run.exitCode, run.errors.contains(": warning: ") ? 1 : 0);
    QVERIFY(run.errors.contains(": " + severity + ": "));
    QVERIFY(!Lint(program, {"--no-fit"}).errors.contains(said));
}

void TestLintFit::ReportsAnAreaOnce_data()
{
    QTest::addColumn<QByteArray>("x");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("said");
    QTest::newRow("off") << QByteArray("500") << QStringList() << "the area is off the screen";
    QTest::newRow("off, no fit") << QByteArray("500") << QStringList {"--no-fit"}
                                 << "the area is outside the screen of 200 x 60 pixels";
    QTest::newRow("partly") << QByteArray("100") << QStringList()
                            << "the area extends beyond the screen: 100 pixels at the right";
    QTest::newRow("partly, no fit")
        << QByteArray("100") << QStringList {"--no-fit"} << "the area extends beyond the screen";
}

void TestLintFit::ReportsAnAreaOnce()
{
    QFETCH(QByteArray, x);
    QFETCH(QStringList, options);
    QFETCH(QString, said);
    const ProcessRun run =
        Lint(Wall(Digital(Time("10"))).replace("x=\"0\"", "x=\"" + x + "\""), options);
    QVERIFY2(run.errors.contains("in.xml:2: "), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(said), qPrintable(run.errors));
    QCOMPARE(run.errors.count("the area "), 1);
}

void TestLintFit::SamplesAreClean_data()
{
    QTest::addColumn<QString>("path");
    for (const char *directory : {"examples", "studio/templates"}) {
        for (const QFileInfo &file : QDir(InTree(directory)).entryInfoList({"*.xml"}))
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

// Except for notes on what cannot be otherwise, or what the sample shows.
void TestLintFit::SamplesAreClean()
{
    QFETCH(QString, path);
    const ProcessRun run = RunTool({"lint", "--at", "2026-08-20", "--language", "en", path});
    QCOMPARE(run.exitCode, 0);
    const QStringList expected {"these rules give the time of ", "missing from an exported",
                                "a radius of 40 pixels has no minute marks"};
    for (const QString &line : run.errors.split('\n', Qt::SkipEmptyParts))
        QVERIFY2(std::any_of(expected.begin(), expected.end(),
                             [&](const QString &words) { return line.contains(words); }),
                 qPrintable(line));
}

// The "T" of DejaVu Sans at 20 points begins a pixel left of its image.
void TestLintFit::SaysNothingOfWhatFits_data()
{
    QTest::addColumn<QByteArray>("clock");
    QTest::newRow("time") << Digital(Time("30"));
    QTest::newRow("one pixel beyond its image") << Digital(kWeekday);
}

void TestLintFit::SaysNothingOfWhatFits()
{
    QFETCH(QByteArray, clock);
    const ProcessRun run = Lint(Wall(clock));
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
}

// "Wednesday" is the widest weekday: in a narrow area it is the only one that is cut. The first one
// after 20 August 2026 is the 26th, which in this zone begins at 22 hours.
void TestLintFit::TellsTheFirstDay()
{
    const QByteArray week =
        "<clock type=\"digital\" timezone=\"+02:00\"><title display=\"false\"/>\n"
        "<date display=\"false\"/><time display=\"false\"/>\n"
        "<week display=\"true\" format=\"1\" fontName=\"DejaVu Sans\""
        " fontSize=\"12\"/></clock>";
    const ProcessRun run = Lint(Wall(week, 85));
    QVERIFY2(run.errors.contains("; first at 2026-08-25T22:00:00Z as \"Wednesday\"; "),
             qPrintable(run.errors));
}

void TestLintFit::WritesJson()
{
    const ProcessRun run = Lint(Wall(Digital(Time("60"))), {"--format", "json"});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output.count('\n'), 1);
    const QJsonObject finding = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QCOMPARE(finding["file"].toString(), m_directory.filePath("in.xml"));
    QCOMPARE(finding["line"].toInt(), 5);
    QCOMPARE(finding["clock"].toInt(), 1);
    QCOMPARE(finding["element"].toString(), QString("time"));
    QCOMPARE(finding["attribute"].toString(), QString("fontSize"));
    QCOMPARE(finding["severity"].toString(), QString("warning"));
    QVERIFY(finding["text"].toString().startsWith("the time is cut: "));
    const int points = finding["suggestion"].toString().toInt();
    QVERIFY(points > 0 && points < 60);
    // The size that is suggested fits, and the next one does not.
    QCOMPARE(Lint(Wall(Digital(Time(QByteArray::number(points))))).errors, QString());
    QVERIFY(!Lint(Wall(Digital(Time(QByteArray::number(points + 1))))).errors.isEmpty());
}

void TestLintFit::RefusesUnknownChoices_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("instant") << QStringList {"--at", "soon"};
    QTest::newRow("language") << QStringList {"--language", "xx"};
    QTest::newRow("format") << QStringList {"--format", "xml"};
}

void TestLintFit::RefusesUnknownChoices()
{
    QFETCH(QStringList, options);
    QCOMPARE(Lint(Wall(Digital(Time("20"))), options).exitCode, 2);
}

QTEST_MAIN(TestLintFit)

#include "test_lint_fit.moc"
