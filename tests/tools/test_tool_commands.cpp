// The command line of clock_tool, the reference page and the audit of glyph images.
#include "tool_process.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QStringList Lines(const QString &text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    lines.removeAll(QString());
    return lines;
}

} // namespace

class TestToolCommands : public QObject
{
    Q_OBJECT

private slots:
    void Help_data();
    void Help();
    void Usage_data();
    void Usage();
    void UnreadableInput_data();
    void UnreadableInput();
    void AttributesPageIsTheTable();
    void AttributesPageNamesItsCodes();
    void FontsTableIsInTheDocuments();
    void OutputFileStaysWhenItCannotBeWritten();
    void GlyphsOfOneClock();
    void GlyphsSharedByTwoClocks();
    void GlyphsOfPictureClock();
};

void TestToolCommands::Help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("start");
    QTest::newRow("of the tool") << QStringList {"--help"} << "Usage: clock_tool COMMAND";
    QTest::newRow("of the tool, short") << QStringList {"-h"} << "Usage: clock_tool COMMAND";
    QTest::newRow("version") << QStringList {"--version"} << "clock_tool ";
    for (const char *command : {"lint", "fit", "sdk", "import", "export", "glyphs", "attributes",
                                "fonts", "zone", "self-test"}) {
        QTest::addRow("of %s", command)
            << QStringList {command, "--help"} << "Usage: clock_tool " + QString(command);
        QTest::addRow("version from %s", command)
            << QStringList {command, "--version"} << "clock_tool ";
    }
}

void TestToolCommands::Help()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, start);
    const ProcessRun run = RunTool(arguments);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.startsWith(start), qPrintable(run.output));
    QCOMPARE(run.errors, QString());
}

void TestToolCommands::Usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const QString example = InTree("examples/station.xml");
    QTest::newRow("nothing") << QStringList {} << "no command given";
    QTest::newRow("unknown command") << QStringList {"lynt"} << "unknown command \"lynt\"";
    QTest::newRow("misspelt command") << QStringList {"exprot"} << "did you mean \"export\"?";
    QTest::newRow("no program") << QStringList {"lint"} << "needs PROGRAM.xml";
    QTest::newRow("nothing to fit") << QStringList {"fit"} << "needs PROGRAM.xml";
    QTest::newRow("no directory") << QStringList {"export", example} << "needs DIR";
    QTest::newRow("too much") << QStringList {"sdk", example, "b.xml"} << "\"b.xml\"";
    QTest::newRow("unknown option") << QStringList {"sdk", example, "--frames"} << "frames";
    QTest::newRow("no zone") << QStringList {"zone"} << "needs ZONE";
    QTest::newRow("empty output") << QStringList {"sdk", example, "-o", ""} << "-o needs a file";
    QTest::newRow("language") << QStringList {"glyphs", example, "--language", "xx"} << "\"xx\"";
    QTest::newRow("empty language") << QStringList {"glyphs", example, "--language", ""} << "\"\"";
    for (const char *year : {"", "x", "1969", "2038", "-2026", "2026.5", "99999999999"})
        QTest::addRow("year \"%s\"", year)
            << QStringList {"zone", "Europe/Berlin", "--year", year} << "--year needs a year";
    for (const char *size : {"", "64", "64x", "0x64", "64x0", "-1x5", "64x32x2", "64X32", "40000x4",
                             " 6x6", "999999x1"})
        QTest::addRow("area \"%s\"", size)
            << QStringList {"import", "sdk.xml", "--area", size} << "--area needs a size";
}

void TestToolCommands::Usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const ProcessRun run = RunTool(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.startsWith("clock_tool: "), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
}

void TestToolCommands::UnreadableInput_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    for (const char *command : {"lint", "fit", "sdk", "import", "export", "glyphs"}) {
        QTest::addRow("%s, missing", command) << command << QByteArray() << "/in.xml: ";
        QTest::addRow("%s, no XML", command) << command << QByteArray("text") << "/in.xml:1:";
        QTest::addRow("%s, not closed", command)
            << command << QByteArray("<program>\n<area>\n</program>") << "/in.xml:3:";
    }
    const QByteArray square = ProgramOf("\n<square/>");
    QTest::newRow("sdk, not a clock") << "sdk" << square << "/in.xml:2: ";
    QTest::newRow("import, no clock") << "import" << QByteArray("<sdk/>") << "no <clock>";
    QTest::newRow("import, unknown type")
        << "import" << QByteArray("<sdk>\n<clock type='round'/></sdk>") << "/in.xml:2: ";
}

void TestToolCommands::UnreadableInput()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    if (!text.isEmpty())
        QVERIFY(WriteText(path, text));
    QStringList arguments {command, path};
    if (command == "export")
        arguments.append(directory.filePath("out"));
    const ProcessRun run = RunTool(arguments);
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QVERIFY(!QFile::exists(directory.filePath("out")));
}

void TestToolCommands::AttributesPageIsTheTable()
{
    const ProcessRun run = RunTool({"attributes"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString::fromUtf8(ReadText(InTree("docs/attributes.md"))));
    // 78 keys: 74 that a new clock has, and four that it has not.
    QCOMPARE(run.output.count("\n| `"), 78);
    QCOMPARE(run.output.count("| absent |"), 4);
    // Red is the low byte of a stored colour.
    for (const char *line : {
             "| `SecondHandColor` | analog | colour |  | 16711680 (#0000ff) | yes | ",
             "| `MinuteScaleType` | analog | code | 0 dots; 1 squares; 2 lines | 0 | yes | ",
             "| `DigitalTimeFSize` | digital | size | 1 to 32767 | 12 | yes | ",
             "| `DigitalTimeFName` | digital | font |  | empty | yes | ",
             "| `DigitalSpace` | digital | number |  | 0 | no | ",
             "| `TimeZone` | all | zone |  | computed | yes | ",
         })
        QVERIFY2(run.output.contains(line), line);
}

// Every code has a name: "0 lines; 1 dots".
void TestToolCommands::AttributesPageNamesItsCodes()
{
    int rows = 0;
    for (const QString &line : Lines(RunTool({"attributes"}).output)) {
        const QStringList cells = line.split(" | ");
        if (cells.value(2) != "code")
            continue;
        ++rows;
        const QStringList codes = cells[3].split("; ");
        QVERIFY(codes.size() > 1);
        const int first = codes.first().section(' ', 0, 0).toInt();
        for (int i = 0; i < codes.size(); ++i)
            QVERIFY2(QRegularExpression(QString("^%1 [A-Za-z].*").arg(first + i))
                         .match(codes[i])
                         .hasMatch(),
                     qPrintable(line));
    }
    // Kind and style of clocks, the adjustment's direction, marks of hours and minutes, three
    // hands, date and week of both kinds, the time, hours and layout of digital clocks.
    QCOMPARE(rows, 15);
}

// The fonts of the samples.
void TestToolCommands::FontsTableIsInTheDocuments()
{
    const ProcessRun run =
        RunTool({"fonts", "DejaVu Sans", "DejaVu Sans Mono", "WenQuanYi Micro Hei"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("| WenQuanYi Micro Hei | 14 | 5, 9, 12 |"),
             qPrintable(run.output));
    QVERIFY2(ReadText(InTree("docs/programs.md")).contains(run.output.toUtf8()),
             qPrintable(run.output));
    const ProcessRun unknown = RunTool({"fonts", "DejaVu Snas"});
    QCOMPARE(unknown.exitCode, 3);
    QVERIFY(unknown.errors.contains("did you mean \"DejaVu Sans\"?"));
}

void TestToolCommands::OutputFileStaysWhenItCannotBeWritten()
{
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir("taken"));
    const ProcessRun run = RunTool({"attributes", "-o", directory.filePath("taken")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("/taken: "), qPrintable(run.errors));
    QCOMPARE(RunTool({"attributes", "-o", directory.filePath("no/such/file")}).exitCode, 1);
    const QString path = directory.filePath("page.md");
    QCOMPARE(RunTool({"attributes", "-o", path}).exitCode, 0);
    QCOMPARE(ReadText(path), ReadText(InTree("docs/attributes.md")));
}

// The images of a digital clock: the top text, 4 times 7 weekdays, the lunar cells, 12 months, five
// for the date (labels, separators, space, digits, minus) and five for the time (labels, colon,
// digits, AM, PM).
void TestToolCommands::GlyphsOfOneClock()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("one.xml");
    QVERIFY(WriteText(path, ProgramOf("<clock type='digital'><title value=''/></clock>")));
    const ProcessRun run = RunTool({"glyphs", path, "--language", "en"});
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = Lines(run.output);
    QCOMPARE(lines.first(), QString("md5\tbytes\tpixels\tused by"));
    int uses = 0;
    for (const QString &line : lines.mid(1)) {
        const QStringList fields = line.split('\t');
        QCOMPARE(fields.size(), 4);
        uses += fields[3].split(' ').size();
    }
    QCOMPARE(uses, 1 + 4 * 7 + 1 + 12 + 5 + 5);
    // The empty text has no image.
    QVERIFY2(run.output.contains("\n-\t0\t0x0\t1:_toptext\n"), qPrintable(run.output));
}

void TestToolCommands::GlyphsSharedByTwoClocks()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("two.xml");
    const QByteArray area = "<area x='0' y='0' width='9' height='9'><clock type='digital'>"
                            "<time fontName='DejaVu Sans' fontSize='%'/></clock></area>";
    QVERIFY(WriteText(path,
                      "<program width='9' height='9'>" + QByteArray(area).replace("%", "12")
                          + QByteArray(area).replace("%", "13") + "</program>"));
    const ProcessRun run = RunTool({"glyphs", path, "--language", "en"});
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = Lines(run.output);
    const auto holds = [&lines](const QString &one, const QString &other) {
        for (const QString &line : lines) {
            const QStringList uses = line.section('\t', 3).split(' ');
            if (uses.contains(one) && uses.contains(other))
                return true;
        }
        return false;
    };
    QVERIFY(holds("1:_dateNumber", "2:_dateNumber"));
    QVERIFY(holds("1:_chWeek_1", "2:_chWeek_1"));
    QVERIFY(!holds("1:_timeNumber", "2:_timeNumber"));
    QVERIFY(run.errors.contains("104 images, "));
}

void TestToolCommands::GlyphsOfPictureClock()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("picture.xml");
    QVERIFY(WriteText(path,
                      ProgramOf("<clock type='picture'>"
                                "<attribute key='ClockType' value='2'/></clock>")));
    const ProcessRun run = RunTool({"glyphs", path});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(Lines(run.output).size(), 1);
}

QTEST_GUILESS_MAIN(TestToolCommands)
#include "test_tool_commands.moc"
