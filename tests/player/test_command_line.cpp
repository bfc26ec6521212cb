#include "command_line.h"

#include "catalogues.h"

#include <QtTest>

using namespace ClockPlayer;
using namespace ClockProgram;

namespace {

CommandLine Parsed(const QStringList &arguments)
{
    return ParseCommandLine(QStringList {QStringLiteral("clock_player")} + arguments);
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void Defaults();
    void AllOptionsAreRead();
    void PreviewAndTravel();
    void KioskOptionsAreRead();
    void TurnsAreRightAngles();
    void QtOptionsWithOneDash();
    void DefaultsOfScripts();
    void LanguagesAreRead();
    void HelpAndVersionAreTexts_data();
    void HelpAndVersionAreTexts();
    void HelpTellsBounds();
    void FaultsAreTold_data();
    void FaultsAreTold();
};

void TestCommandLine::Defaults()
{
    const CommandLine line = Parsed({"a.xml"});
    QVERIFY(std::holds_alternative<Options>(line));
    const Options &options = std::get<Options>(line);
    QCOMPARE(options.programPath, QStringLiteral("a.xml"));
    QVERIFY(!options.WritesFrames());
    QCOMPARE(options.frames, 10);
    QCOMPARE(options.magnification, 1);
    QCOMPARE(options.ledPitch, 0);
    QCOMPARE(options.speed, 1.0);
    QVERIFY(!options.printsStats);
    QVERIFY(!options.startInstant);
    QVERIFY(options.pluginDirectory.isEmpty() && options.filesDirectory.isEmpty());
    QVERIFY(options.language.isEmpty() && options.platform.isEmpty());
}

void TestCommandLine::AllOptionsAreRead()
{
    const CommandLine line =
        Parsed({"--output", "out", "--frames=1000000", "a.xml", "--at", "1970-01-01T00:00:01Z",
                "--plugin-dir", "plugins", "--files-dir=files", "--platform", "minimal",
                "--magnify", "16"});
    QVERIFY(std::holds_alternative<Options>(line));
    const Options &options = std::get<Options>(line);
    QCOMPARE(options.outputDirectory, QStringLiteral("out"));
    QCOMPARE(options.frames, 1000000);
    QCOMPARE(options.magnification, 16);
    QCOMPARE(options.startInstant.value_or(0), qint64(1000));
    QCOMPARE(options.pluginDirectory, QStringLiteral("plugins"));
    QCOMPARE(options.filesDirectory, QStringLiteral("files"));
    QCOMPARE(options.platform, QStringLiteral("minimal"));
}

void TestCommandLine::PreviewAndTravel()
{
    const CommandLine line =
        Parsed({"a.xml", "--led", "64", "--speed", "0.01", "--stats", "--at", "2024-01-01"});
    QVERIFY(std::holds_alternative<Options>(line));
    const Options &options = std::get<Options>(line);
    QVERIFY(!options.WritesFrames());
    QCOMPARE(options.ledPitch, 64);
    QCOMPARE(options.speed, 0.01);
    QVERIFY(options.printsStats);
    const CommandLine fast = Parsed({"a.xml", "-o", "out", "--led=3", "--speed=1e5"});
    QCOMPARE(std::get<Options>(fast).ledPitch, 3);
    QCOMPARE(std::get<Options>(fast).speed, 100000.0);
}

void TestCommandLine::KioskOptionsAreRead()
{
    const CommandLine line = Parsed({"a.xml", "--kiosk", "--require-time", "--offset", "16,-8",
                                     "--rotate", "270", "--status-file", "s.json", "--watch"});
    QVERIFY(std::holds_alternative<Options>(line));
    const Options &options = std::get<Options>(line);
    QVERIFY(options.isKiosk && options.requiresTime && options.watchesProgram);
    QCOMPARE(options.offset, QPoint(16, -8));
    QCOMPARE(options.turn, 270);
    QCOMPARE(options.statusFile, QStringLiteral("s.json"));
    const Options plain = std::get<Options>(Parsed({"a.xml"}));
    QVERIFY(!plain.isKiosk && plain.statusFile.isEmpty() && plain.turn == 0);
    for (const QStringList &refused :
         {QStringList {"--offset", "16"}, QStringList {"--offset", "1,2,3"},
          QStringList {"--require-time"}, QStringList {"--kiosk", "-o", "out"},
          QStringList {"--watch", "-o", "out"}, QStringList {"--rotate", "90", "-o", "out"}}) {
        const CommandLine answer = Parsed(QStringList {"a.xml"} + refused);
        QVERIFY2(std::holds_alternative<Failure>(answer), qPrintable(refused.join(' ')));
    }
}

void TestCommandLine::TurnsAreRightAngles()
{
    for (const int turn : {0, 90, 180, 270}) {
        const CommandLine line = Parsed({"a.xml", "--rotate", QString::number(turn)});
        QCOMPARE(std::get<Options>(line).turn, turn);
    }
    for (const char *refused : {"45", "360", "-90", "9e1", "right", ""}) {
        const CommandLine answer = Parsed({"a.xml", "--rotate", refused});
        QVERIFY2(std::holds_alternative<Failure>(answer), refused);
        QCOMPARE(std::get<Failure>(answer).text,
                 QStringLiteral("--rotate needs 0, 90, 180 or 270, not \"%1\" (see --help)")
                     .arg(refused));
    }
}

void TestCommandLine::QtOptionsWithOneDash()
{
    const CommandLine line = Parsed({"-platform", "linuxfb", "a.xml", "-o", "out"});
    QVERIFY(std::holds_alternative<Options>(line));
    QCOMPARE(std::get<Options>(line).platform, QStringLiteral("linuxfb"));
    QCOMPARE(std::get<Options>(line).outputDirectory, QStringLiteral("out"));
}

void TestCommandLine::DefaultsOfScripts()
{
    const QStringList defaults {"--default-program", "sample.xml", "--default-output", "frames"};
    const CommandLine nothingSaid = Parsed(defaults);
    QCOMPARE(std::get<Options>(nothingSaid).programPath, QStringLiteral("sample.xml"));
    QCOMPARE(std::get<Options>(nothingSaid).outputDirectory, QStringLiteral("frames"));
    const CommandLine said = Parsed(defaults + QStringList {"a.xml", "-o", "out"});
    QCOMPARE(std::get<Options>(said).programPath, QStringLiteral("a.xml"));
    QCOMPARE(std::get<Options>(said).outputDirectory, QStringLiteral("out"));
    const CommandLine platformSaid = Parsed(defaults + QStringList {"-platform", "linuxfb"});
    QVERIFY(!std::get<Options>(platformSaid).WritesFrames());
}

void TestCommandLine::LanguagesAreRead()
{
    const QStringList languages = ClockCatalogues::Languages();
    QVERIFY(!languages.isEmpty());
    for (const QString &language : languages)
        QCOMPARE(std::get<Options>(Parsed({"a.xml", "--language", language})).language, language);
    const CommandLine unknown = Parsed({"a.xml", "--language", "xx"});
    QVERIFY(std::holds_alternative<Failure>(unknown));
    for (const QString &language : languages)
        QVERIFY(std::get<Failure>(unknown).text.contains(language));
}

void TestCommandLine::HelpAndVersionAreTexts_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("begins");
    const QString usage = "Usage: clock_player [options] PROGRAM.xml\n";
    QTest::newRow("help") << "--help" << usage;
    QTest::newRow("help, short") << "-h" << usage;
    QTest::newRow("version") << "--version"
                             << "clock_player ";
    QTest::newRow("version, short") << "-v"
                                    << "clock_player ";
}

void TestCommandLine::HelpAndVersionAreTexts()
{
    QFETCH(QString, option);
    QFETCH(QString, begins);
    const CommandLine line = Parsed({option});
    QVERIFY(std::holds_alternative<Information>(line));
    const QString text = std::get<Information>(line).text;
    QVERIFY(text.startsWith(begins));
    QVERIFY(!text.contains(QStringLiteral("default-program")));
}

// What the help says are the bounds; others are refused below.
void TestCommandLine::HelpTellsBounds()
{
    const QString text = std::get<Information>(Parsed({"--help"})).text.simplified();
    for (const QString &bounds :
         {QString("Number of frames to write, 1 to 1000000 (default 10)."),
          QString("pixels, 1 to 16 (default 1)."), QString("pitch of <pixels>, 3 to 64."),
          QString("as real time, 0.01 to 100000."),
          "wording: " + ClockCatalogues::Languages().join(", ") + " ("})
        QVERIFY2(text.contains(bounds), qPrintable(bounds));
    QVERIFY(!text.contains(QLatin1Char('%')));
}

void TestCommandLine::FaultsAreTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("about");
    const auto row = [](const char *name, const QStringList &arguments, const char *about) {
        QTest::newRow(name) << arguments << QString::fromLatin1(about);
    };
    row("no program", {}, "no program");
    row("empty program", {""}, "no program");
    row("two programs", {"a.xml", "b.xml"}, "b.xml");
    row("unknown option", {"a.xml", "--loud"}, "loud");
    row("value missing", {"a.xml", "--output"}, "output");
    row("empty output", {"a.xml", "--output", ""}, "--output");
    row("empty plugin directory", {"a.xml", "--plugin-dir="}, "--plugin-dir");
    row("images made and not made", {"a.xml", "--use-files", "--files-dir", "x"}, "--use-files");
    row("frames without output", {"a.xml", "--frames", "3"}, "--output");
    for (const char *frames : {"0", "-1", "1000001", "3.5", "", "ten", "4294967297"})
        row(qPrintable(QStringLiteral("frames \"%1\"").arg(frames)),
            {"a.xml", "-o", "out", "--frames", frames}, "--frames");
    row("magnified without output", {"a.xml", "--magnify", "2"}, "--output");
    for (const char *times : {"0", "-1", "17", "1.5", "", "two", "4294967297"})
        row(qPrintable(QStringLiteral("magnified \"%1\"").arg(times)),
            {"a.xml", "-o", "out", "--magnify", times}, "--magnify");
    for (const char *pitch : {"0", "-4", "2", "65", "4.5", "", "many", "4294967300"})
        row(qPrintable(QStringLiteral("diodes \"%1\"").arg(pitch)), {"a.xml", "--led", pitch},
            "--led");
    row("diodes and squares", {"a.xml", "-o", "out", "--led", "4", "--magnify", "4"}, "exclude");
    for (const char *speed : {"0", "-1", "0.009", "100001", "1e6", "inf", "nan", "", "fast", "2x"})
        row(qPrintable(QStringLiteral("speed \"%1\"").arg(speed)), {"a.xml", "--speed", speed},
            "--speed");
    row("malformed instant", {"a.xml", "--at", "noon"}, "noon");
    row("empty instant", {"a.xml", "--at", ""}, "--at");
}

void TestCommandLine::FaultsAreTold()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, about);
    const CommandLine line = Parsed(arguments);
    QVERIFY(std::holds_alternative<Failure>(line));
    const Failure &failure = std::get<Failure>(line);
    QCOMPARE(int(failure.code), 2);
    QVERIFY2(failure.text.contains(about), qPrintable(failure.text));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
