// What lint finds, in which line, and what it suggests.
#include "tool_process.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// A digital clock with this content in the second line.
QByteArray Digital(const QByteArray &content)
{
    return ProgramOf("<clock type='digital' timezone='+00:00'>\n" + content + "\n</clock>");
}

QByteArray Analog(const QByteArray &content)
{
    return ProgramOf("<clock type='dial' timezone='+00:00'>\n" + content + "\n</clock>");
}

QByteArray Setting(const QByteArray &key, const QByteArray &value)
{
    return Digital("<attribute key='" + key + "' value='" + value + "'/>");
}

/// A clock with a file that came with it.
QByteArray Carried(const QByteArray &path, const QByteArray &digest, int size)
{
    return Digital("<file key='_timeNumber' path='" + path + "' md5='" + digest + "' size='"
                   + QByteArray::number(size) + "'/>");
}

QStringList Warnings(const QString &errors)
{
    return errors.split(QLatin1Char('\n')).filter(QStringLiteral(": warning: "));
}

// A program with one fault, and the warning that it gets.
struct Finding
{
    const char *name;
    QByteArray text;
    int line;
    QStringList words; // of the warning
};

// Elements, attributes and keys that are not read.
const QVector<Finding> kNames {
    {"misspelt element", Digital("<weak/>"), 2, {"<weak>", "did you mean \"week\"?"}},
    {"unknown element", Digital("<xyzzyplugh/>"), 2, {"<xyzzyplugh>", "accepted: ", "week"}},
    {"element of the other kind", Digital("<analog/>"), 2, {"<analog>", "type \"dial\""}},
    {"second element", Digital("<date/><date/>"), 2, {"only the first <date>"}},
    {"shadowed element",
     Digital("<title/><fixedText/>"),
     2,
     {"<title> is ignored because <fixedText> is present"}},
    {"misspelt attribute",
     Digital("<time fontsize='3'/>"),
     2,
     {"\"fontsize\" of <time>", "did you mean \"fontSize\"?"}},
    {"code that the exported form has not",
     Analog("<time value='3'/>"),
     2,
     {"<time>", "type \"digital\""}},
    {"code of a lunar row", Digital("<lunarCalendar value='3'/>"), 2, {"\"value\""}},
    {"attribute of the clock",
     ProgramOf("<clock timeZone='+01:00'/>"),
     1,
     {"\"timeZone\"", "did you mean \"timezone\"?"}},
    {"misspelt key",
     Setting("DigitalSpase", "1"),
     2,
     {"\"DigitalSpase\"", "did you mean \"DigitalSpace\"?"}},
    {"unknown key", Setting("xyzzyplugh", "1"), 2, {"\"xyzzyplugh\"", "clock_tool attributes"}},
    {"a key twice",
     Digital("<attribute key='Id' value='1'/>\n<attribute key='Id' value='2'/>"),
     3,
     {"Id is set more than once"}},
    {"other element", ProgramOf("\n<clok/>"), 2, {"<clok>", "<clock>"}},
    {"setting without a value",
     Digital("<date/>\n<attribute key='Id'/>"),
     3,
     {"needs a key and a value"}},
    {"text where none is read", Digital("<date/>12:00"), 1, {"docs/program.rng"}},
};

const QVector<Finding> kValues {
    {"display as number",
     Digital("<date display='1'/>"),
     2,
     {"display=\"1\" counts as \"false\"", "\"true\""}},
    {"display in capitals", Digital("<date display='True'/>"), 2, {"display=\"True\""}},
    {"colour", Digital("<date color='#ff'/>"), 2, {"color=\"#ff\"", "black", "#rrggbb"}},
    {"misspelt colour", Digital("<date color='purpel'/>"), 2, {"did you mean \"purple\"?"}},
    {"colour of the font", Digital("<font color='redd'/>"), 2, {"did you mean \"red\"?"}},
    // Red is 255, green 128 and blue 0: 255 + 256 * 128.
    {"stored colour as name", Setting("DigitalTimeColor", "#ff8000"), 2, {"33023"}},
    {"stored colour too large", Setting("DigitalTimeColor", "16777216"), 2, {"16777215"}},
    {"number with a unit",
     Digital("<time fontSize='12pt'/>"),
     2,
     {"fontSize=\"12pt\"", "is read as 0"}},
    {"number too large", Digital("<clockTextsSyle space='4294967297'/>"), 2, {"is read as 0"}},
    {"flag that is no number", Setting("Digital_Date_d", "true"), 2, {"is read as 0"}},
    {"date code", Digital("<date format='99'/>"), 2, {"format=\"99\"", "accepted: 0 to "}},
    {"negative code", Digital("<week format='-1'/>"), 2, {"0 to 3"}},
    {"time code", Setting("DigitalTimeType", "5"), 2, {"0 to 4"}},
    {"hour marks", Analog("<analog hourScaleType='5'/>"), 2, {"0 to 4"}},
    {"minute marks", Analog("<analog minuteScaleType='3'/>"), 2, {"0 to 2"}},
    {"kind", Setting("ClockType", "3"), 2, {"0 to 2"}},
    {"font size", Digital("<time fontSize='0'/>"), 2, {"1 to 32767"}},
    {"tag of several lines", Digital("<date\n  format='99'\n/>"), 4, {"accepted: 0 to "}},
    {"opacity behind the colour",
     Digital("<date color='#11223344'/>"),
     2,
     {"#aarrggbb, which is the colour #223344", "#rrggbbaa: #112233"}},
};

// Zones, adjustments and rules of daylight saving.
const QVector<Finding> kTimes {
    {"zone without a sign", ProgramOf("<clock timezone='19:00'/>"), 1, {"+09:00", "a sign"}},
    {"zone that is a name", ProgramOf("<clock timezone='Europe/Berlin'/>"), 1, {"+00:00"}},
    {"zone of the older form",
     Digital("<clockCom clockType='1' timeZone='UTC'/>"),
     2,
     {"timeZone=\"UTC\""}},
    {"stored zone", Setting("TimeZone", "+1"), 2, {"TimeZone=\"+1\""}},
    {"adjustment",
     ProgramOf("<clock adjust='01:30:00'/>"),
     1,
     {"adjust=\"01:30:00\"", "is ignored", "hh:mm:ss"}},
    {"adjustment of two days",
     Digital("<clockCom clockType='1' timeAdjust='172800'/>"),
     2,
     {"86399"}},
    {"stored adjustment", Setting("TimeAdjust", "01:30:00"), 2, {"hhAmmBss"}},
    {"rule",
     Setting("DaylightSavingTimeStart", "13.1.7.02:00:00"),
     2,
     {"never in force", "3.Last.7.02:00:00"}},
    {"rule of a fifth Sunday",
     Setting("DaylightSavingTimeEnd", "10.5.7.02:00:00"),
     2,
     {"fifth", "Last"}},
    {"rule missing", Setting("UseDaylightSavingTime", "1"), 1, {"without a rule"}},
    {"rules alike",
     ProgramOf("<clock><clockCom clockType='1' isDaylightSavingTime='1' "
               "Start='3.1.7.02:00:00' End='3.1.7.02:00:00'/></clock>"),
     1,
     {"at the same time"}},
    {"rules that are not used",
     Digital("<attribute key='DaylightSavingTimeStart' value='3.Last.7.02:00:00'/>"
             "<attribute key='DaylightSavingTimeEnd' value='10.Last.7.02:00:00'/>"),
     1,
     {"not used", "UseDaylightSavingTime is 0", "accepted: 1"}},
    {"rules with a flag of another number",
     Digital("<clockCom clockType='1' timeZone='+01:00' isDaylightSavingTime='0' "
             "Start='3.Last.7.02:00:00' End='10.Last.7.02:00:00'/>"),
     1,
     {"not used"}},
    {"end as published",
     Digital("<attribute key='TimeZone' value='+01:00'/>"
             "<attribute key='UseDaylightSavingTime' value='1'/>"
             "<attribute key='DaylightSavingTimeStart' value='3.Last.7.02:00:00'/>"
             "<attribute key='DaylightSavingTimeEnd' value='10.Last.7.03:00:00'/>"),
     1,
     {"an hour late for Europe/Berlin", "accepted: 10.Last.7.02:00:00"}},
};

const QVector<Finding> kFonts {
    {"font",
     Digital("<time fontName='DejaVu Snas'/>"),
     2,
     {"not an installed font", "did you mean \"DejaVu Sans\"?"}},
    {"stored font", Setting("DigitalTimeFName", "Xyzzy Plugh"), 2, {"fc-list"}},
    {"digits that lose strokes",
     Digital("<date display='false'/>\n"
             "<time fontName='WenQuanYi Micro Hei' fontSize='8' format='0'/>"),
     3,
     {"\"WenQuanYi Micro Hei\" are not legible at 8 points", "0 has 0 holes instead of 1",
      "accepted: 9"}},
    {"colon that vanishes",
     Digital("<date display='false'/><time fontName='WenQuanYi Micro Hei'/>\n"
             "<attribute key='DigitalTimeFSize' value='7'/>"),
     3,
     {"\":\" is not drawn", "accepted: 9"}},
    {"numerals that lose strokes",
     Analog("<date display='false'/><analog hourScaleType='4' hourScaleFontName='DejaVu Serif' "
            "hourScaleFontSize='6'/>"),
     2,
     {"are not legible at 6 points", "accepted: 7"}},
};

// What does not suit the kind of clock, or hides all of it.
const QVector<Finding> kKinds {
    {"type", ProgramOf("<clock type='round'/>"), 1, {"type=\"round\"", "\"digital\""}},
    {"type in capitals",
     ProgramOf("<clock\n type='Digital'>\n<digital/><time/></clock>"),
     2,
     {"type=\"Digital\"", "\"digital\""}},
    {"setting of another kind",
     Digital("<attribute key='ClockType' value='0'/>"),
     2,
     {"ClockType makes a clock of type \"dial\"", "read as for type \"digital\""}},
    {"kind by a setting only",
     ProgramOf("<clock>\n<attribute key='ClockType' value='1'/></clock>"),
     2,
     {"accepted: <clock type=\"digital\">"}},
    {"type beside an older form of another kind",
     Digital("<clockCom clockType='0'/>"),
     1,
     {"type=\"digital\" is ignored because of <clockCom>", "\"dial\""}},
    {"older form without a type", Digital("<clockCom/>"), 1, {"clockType", "1 digital"}},
    {"all rows hidden",
     Digital("<title display='false'/><date display='false'/><week display='false'/>"
             "<time display='false'/>"),
     1,
     {"all rows of this clock are hidden", "display=\"true\""}},
    {"only an empty label shown",
     Digital("<title value='' display='true'/><date display='false'/>"
             "<week display='false'/><time display='false'/>"),
     1,
     {"all rows"}},
    {"label of a picture clock",
     ProgramOf("<clock type='picture'>\n<title value='x'/></clock>"),
     2,
     {"<title> has no effect", "picture clock"}},
    {"hands of a picture clock",
     ProgramOf("<clock>\n<analog hourHandColor='red'/>"
               "<attribute key='ClockType' value='2'/></clock>"),
     2,
     {"<analog> has no effect"}},
};

// Files that travel with a program.
const QVector<Finding> kFiles {
    {"image that the clock has not",
     Digital("<file key='_AnalogAM' md5='0123456789abcdef0123456789abcdef' size='1' path='a'/>"),
     2,
     {"\"_AnalogAM\""}},
    {"file without a digest",
     Digital("<file key='_timeNumber' path='a' size='1'/>"),
     2,
     {"<file> needs the attribute md5"}},
    {"file with a digest of another form",
     Digital("<file key='_timeNumber' md5='x' path='a' size='1'/>"),
     2,
     {"<file>", "docs/program.rng"}},
    {"file that is missing",
     Carried("none.png", "0123456789abcdef0123456789abcdef", 1),
     2,
     {"the file \"none.png\" is missing"}},
    {"file of other bytes",
     Carried("in.png", "0123456789abcdef0123456789abcdef", 5),
     2,
     {"the file \"in.png\" has the digest 5d41402abc4b2a76b9719d911017c592"}},
    {"file of another size",
     Carried("in.png", "5d41402abc4b2a76b9719d911017c592", 6),
     2,
     {"has 5 bytes, expected 6"}},
};

// Screens, areas and what clocks make together.
const QVector<Finding> kAreas {
    {"area without a width",
     "<program width='1' height='1'>\n<area x='0' y='0' height='1'><clock/></area></program>",
     2,
     {"width", "1 to 32767"}},
    {"program without areas", "<program width='1' height='1'/>", 1, {"no <area>"}},
    {"area misspelt",
     "<program width='1' height='1'><area x='0' y='0' width='1' height='1'><clock/></area>\n"
     "<aera/></program>",
     2,
     {"aera"}},
    {"unknown attribute of the area",
     "<program width='1' height='1'>\n<area x='0' y='0' z='1' width='1' height='1'><clock/>"
     "</area></program>",
     2,
     {"z"}},
    {"frames of more than is usual",
     "<program width='32767' height='410'>\n<area x='0' y='0' width='32767' height='410'>"
     "<clock/></area></program>",
     1,
     {"257 MiB", "more than 256"}},
    {"area outside the screen",
     "<program width='64' height='32'>\n<area x='64' y='0' width='8' height='8'><clock/></area>"
     "</program>",
     2,
     {"outside the screen of 64 x 32"}},
    {"screen without a size",
     "<program><area x='0' y='0' width='1' height='1'><clock/></area></program>",
     1,
     {"width from 1 to 32767, height from 1 to 32767"}},
    {"two clocks with one Id",
     "<program width='1' height='1'>"
     "<area x='0' y='0' width='1' height='1'><clock>\n<attribute key='Id' value='7'/></clock>"
     "</area><area x='0' y='0' width='1' height='1'>\n<clock>"
     "<attribute key='Id' value='7'/></clock></area></program>",
     3,
     {"Id 7", "line 1"}},
};

} // namespace

class TestToolLint : public QObject
{
    Q_OBJECT

private slots:
    void SoundProgramsHaveNoWarnings_data();
    void SoundProgramsHaveNoWarnings();
    void FaultsAreFound_data();
    void FaultsAreFound();
    void EveryFindingIsReported();
    void NotesDoNotCount();
    void EndsOfClocks_data();
    void EndsOfClocks();
    void MissingZoneIsNoted_data();
    void MissingZoneIsNoted();
    void ExportedCodesAreNoted_data();
    void ExportedCodesAreNoted();
    void SeveralPrograms_data();
    void SeveralPrograms();
    void RulesAreJudgedAsOfTheDay();
    void SystemWithoutFonts();
    void StylePictures();
    void FilesElsewhere();
    void UnreadableCatalogue();
    void ManyFindings();

private:
    ProcessRun Lint(const QByteArray &text, const QString &day = "2026-09-01")
    {
        WriteText(m_directory.filePath("in.xml"), text);
        WriteText(m_directory.filePath("in.png"), "hello");
        return RunTool({"lint", "--no-fit", "--at", day, m_directory.filePath("in.xml")});
    }

    QTemporaryDir m_directory;
};

void TestToolLint::SoundProgramsHaveNoWarnings_data()
{
    QTest::addColumn<QByteArray>("text");
    const QDir examples(InTree("examples"));
    for (const QString &name : examples.entryList({"*.xml"}, QDir::Files))
        QTest::newRow(qPrintable(name)) << ReadText(examples.filePath(name));
    QTest::newRow("empty clock") << ProgramOf("<clock/>");
    QTest::newRow("every analog element")
        << Analog("<fixedText display='true' value='x' fontName='' fontSize='9' color='red'/>"
                  "<date display='false' format='8'/><week format='3'/><lunar display='true'/>"
                  "<clockTextsSyle swapArea='1' space='-3'/>"
                  "<timeFormat isEnableAmPm='0' color='#123'/>"
                  "<analog hourHandColor='light blue' hourScaleType='4' minuteScaleType='2'/>"
                  "<time/><font name='DejaVu Sans' size='12' color='#ff000000'/>");
    QTest::newRow("every digital element")
        << Digital("<title text='x'/><date type='0'/><week type='0'/><time type='4'/>"
                   "<lunarCalendar color='#010203' display='true'/>"
                   "<digital displayMode='1' timeMode='1'/>"
                   "<clockTextsSyle swapArea='1' space='2'/>");
    QTest::newRow("older form") << ProgramOf(
        "<clock><clockCom clockType='0' timeZone='+05:30' timeAdjust='-86399' "
        "isDaylightSavingTime='1' Start='3.Last.7.02:00:00' "
        "End='10.Last.7.03:00:00' timeZoneIndex='4'/></clock>");
    QTest::newRow("picture clock")
        << ProgramOf("<clock type='picture'><attribute key='ClockType' value='2'/></clock>");
    QTest::newRow("picture clock by its type") << ProgramOf("<clock type='picture'/>");
    QTest::newRow("adjustment") << ProgramOf("<clock adjust='-00:05:00' timezone='-9:30'/>");
    QTest::newRow("stored adjustment") << Setting("TimeAdjust", "23A59B59");
    QTest::newRow("stored colour") << Setting("DigitalTimeColor", "16777215");
    QTest::newRow("carried file") << Carried("in.png", "5d41402abc4b2a76b9719d911017c592", 5);
    QTest::newRow("opaque colour") << Digital("<date color='#ff112233'/>");
    QTest::newRow("hidden label of a picture clock")
        << ProgramOf("<clock type='picture'><title display='false'/><date/></clock>");
    QTest::newRow("area that is half seen")
        << QByteArray("<program width='64' height='32'><area x='60' y='-4' width='8' height='8'>"
                      "<clock timezone='+00:00'/></area></program>");
}

void TestToolLint::SoundProgramsHaveNoWarnings()
{
    QFETCH(QByteArray, text);
    const ProcessRun run = Lint(text);
    QCOMPARE(Warnings(run.errors), QStringList());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString());
}

void TestToolLint::FaultsAreFound_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("words");
    for (const auto &findings : {kNames, kValues, kTimes, kFonts, kKinds, kFiles, kAreas}) {
        for (const Finding &finding : findings)
            QTest::newRow(finding.name) << finding.text << finding.line << finding.words;
    }
}

void TestToolLint::FaultsAreFound()
{
    QFETCH(QByteArray, text);
    QFETCH(int, line);
    QFETCH(QStringList, words);
    const ProcessRun run = Lint(text);
    QCOMPARE(run.exitCode, 1);
    const QString place = QStringLiteral("in.xml:%1: warning: ").arg(line);
    const QStringList warnings = Warnings(run.errors);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings[0].contains(place), qPrintable(run.errors));
    for (const QString &word : words)
        QVERIFY2(warnings[0].contains(word), qPrintable(run.errors));
}

void TestToolLint::EveryFindingIsReported()
{
    const ProcessRun run = Lint(Digital("<date format='99' color='x y z' fontname='DejaVu Sans'/>\n"
                                        "<week display='yes'/>\n<tim/>"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Warnings(run.errors).size(), 5);
}

void TestToolLint::NotesDoNotCount()
{
    const ProcessRun run = Lint(Digital("<date format='8'/>"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains("in.xml:1: note: the minus"), qPrintable(run.errors));
}

// The exported form writes codes that are not read; whoever imports it has done nothing wrong.
void TestToolLint::ExportedCodesAreNoted_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("date") << Digital("<date value='3'/>");
    QTest::newRow("week") << Digital("<week value='1'/>");
    QTest::newRow("time") << Digital("<time value='4'/>");
    QTest::newRow("analog date") << Analog("<date value='3'/>");
    QTest::newRow("analog week") << Analog("<week value='3'/>");
}

void TestToolLint::ExportedCodesAreNoted()
{
    QFETCH(QByteArray, text);
    const ProcessRun run = Lint(text);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains("in.xml:2: note: the attribute \"value\" of <"),
             qPrintable(run.errors));
    QVERIFY2(run.errors.contains("the clock reads \"format\""), qPrintable(run.errors));
    QCOMPARE(run.errors.count('\n'), 1);
}

void TestToolLint::EndsOfClocks_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("day");
    QTest::addColumn<QString>("finding"); // empty: none of a clock's end
    const QByteArray lunar = "<lunar display='true'/>";
    QTest::newRow("91 days before") << lunar << "2033-05-26"
                                    << "";
    QTest::newRow("90 days before")
        << lunar << "2033-05-27"
        << "in.xml:1: warning: the lunar date is wrong from 2033-08-25T00:00:00Z on\n";
    QTest::newRow("after the table")
        << lunar << "2060-01-01"
        << "in.xml:1: warning: the lunar date is missing from 2051-02-11T00:00:00Z on\n";
    QTest::newRow("Persian, a day ahead")
        << QByteArray("<date display='true' format='7'/>") << "2058-06-01"
        << "in.xml:1: warning: the Persian date is wrong from 2058-03-20T00:00:00Z on\n";
    const QByteArray israel = "<attribute key='TimeZone' value='+02:00'/>"
                              "<attribute key='UseDaylightSavingTime' value='1'/>"
                              "<attribute key='DaylightSavingTimeStart' value='3.4.5.02:00:00'/>"
                              "<attribute key='DaylightSavingTimeEnd' value='10.Last.7.01:00:00'/>";
    const QString rules = "the daylight-saving rules are those of Asia/Jerusalem only until "
                          "2030-03-22T00:00:00Z";
    QTest::newRow("rules, long before") << israel << "2026-09-01"
                                        << "in.xml:1: note: " + rules + "\n";
    const QByteArray mexico = "<attribute key='TimeZone' value='-06:00'/>"
                              "<attribute key='UseDaylightSavingTime' value='1'/>"
                              "<attribute key='DaylightSavingTimeStart' value='4.1.7.02:00:00'/>"
                              "<attribute key='DaylightSavingTimeEnd' value='10.Last.7.01:00:00'/>";
    QTest::newRow("rules, long ago")
        << mexico << "2026-09-01"
        << "in.xml:1: warning: the daylight-saving rules are those of America/Mexico_City only "
           "until 2023-04-02T08:00:00Z; \"clock_tool zone --refresh\" updates them\n";
    QTest::newRow("rules, soon") << israel << "2030-01-01"
                                 << "in.xml:1: warning: " + rules
            + "; \"clock_tool zone --refresh\" updates them from then on\n";
}

void TestToolLint::EndsOfClocks()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, day);
    QFETCH(QString, finding);
    const ProcessRun run = Lint(Digital(content), day);
    QCOMPARE(run.exitCode, finding.contains("warning") ? 1 : 0);
    QVERIFY2(finding.isEmpty() || run.errors.endsWith(finding), qPrintable(run.errors));
    QCOMPARE(run.errors.contains(" only until ") || run.errors.contains(" on\n"),
             !finding.isEmpty());
}

void TestToolLint::MissingZoneIsNoted_data()
{
    QTest::addColumn<QByteArray>("clock");
    QTest::addColumn<bool>("isNoted");
    QTest::newRow("none") << QByteArray("<clock/>") << true;
    QTest::newRow("attribute") << QByteArray("<clock timezone='+00:00'/>") << false;
    QTest::newRow("setting") << QByteArray(
        "<clock><attribute key='TimeZone' value='+00:00'/></clock>")
                             << false;
    QTest::newRow("older form") << QByteArray(
        "<clock><clockCom clockType='0' timeZone='+00:00'/></clock>")
                                << false;
    QTest::newRow("older form, misspelt")
        << QByteArray("<clock><clockCom clockType='0' TimeZone='+00:00'/></clock>") << true;
    QTest::newRow("older form without")
        << QByteArray("<clock><clockCom clockType='0'/></clock>") << true;
}

void TestToolLint::MissingZoneIsNoted()
{
    QFETCH(QByteArray, clock);
    QFETCH(bool, isNoted);
    const ProcessRun run = Lint(ProgramOf(clock));
    QCOMPARE(run.exitCode, run.errors.contains(": warning: ") ? 1 : 0);
    QCOMPARE(run.errors.contains("in.xml:1: note: the clock has no time zone"), isNoted);
}

void TestToolLint::SeveralPrograms_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("lines");
    QTest::newRow("sound ones") << QStringList {"sound.xml", "sound.xml"} << 0 << 0;
    QTest::newRow("the first has a fault") << QStringList {"faulty.xml", "sound.xml"} << 1 << 1;
    QTest::newRow("the last has a fault") << QStringList {"sound.xml", "faulty.xml"} << 1 << 1;
    QTest::newRow("one is missing")
        << QStringList {"none.xml", "faulty.xml", "sound.xml"} << 3 << 2;
    QTest::newRow("one is no XML")
        << QStringList {"faulty.xml", "text.xml", "faulty.xml"} << 3 << 3;
}

// Each is checked, whatever is wrong with another, and each line names its file.
void TestToolLint::SeveralPrograms()
{
    QFETCH(QStringList, names);
    QFETCH(int, code);
    QFETCH(int, lines);
    QVERIFY(WriteText(m_directory.filePath("sound.xml"), ProgramOf("<clock timezone='+01:00'/>")));
    QVERIFY(WriteText(m_directory.filePath("faulty.xml"), Digital("<weak/>")));
    QVERIFY(WriteText(m_directory.filePath("text.xml"), "text"));
    QStringList arguments {"lint", "--no-fit"};
    for (const QString &name : names)
        arguments.append(m_directory.filePath(name));
    const ProcessRun run = RunTool(arguments);
    QCOMPARE(run.exitCode, code);
    const int notes = run.errors.count(": note: ");
    QCOMPARE(run.errors.count('\n') - notes, lines);
    for (const QString &name : names)
        QCOMPARE(run.errors.contains("/" + name + ":"), name != "sound.xml");
}

// System zone data are compared until 2037.
void TestToolLint::RulesAreJudgedAsOfTheDay()
{
    const QByteArray program =
        ProgramOf("<clock type='digital' timezone='+03:00'>"
                  "<attribute key='UseDaylightSavingTime' value='1'/>"
                  "<attribute key='DaylightSavingTimeStart' value='3.2.7.02:00:00'/>"
                  "<attribute key='DaylightSavingTimeEnd' value='11.1.7.01:00:00'/></clock>");
    const QString note("no known zone uses these rules");
    QVERIFY(Lint(program, "2026-01-01").errors.contains(note));
    QVERIFY(!Lint(program, "2039-01-01").errors.contains(note));
}

// That is one fault of a clock, whatever its fonts, sizes and characters.
void TestToolLint::SystemWithoutFonts()
{
    const QString program = m_directory.filePath("fonts.xml");
    QVERIFY(WriteText(program,
                      ProgramOf("<clock type='digital' timezone='+00:00'>"
                                "<time fontName='DejaVu Sans' fontSize='20'/></clock>")));
    const QStringList warnings = Warnings(RunToolWithoutFonts({"lint", program}).errors);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().endsWith("no font is installed, so no text can be drawn"),
             qPrintable(warnings.first()));
}

// The tool looks where the player does: beside itself.
void TestToolLint::StylePictures()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("bin/clock_tool");
    const QString program = folder.filePath("picture.xml");
    QVERIFY(QDir().mkpath(folder.filePath("bin")) && QFile::copy(QStringLiteral(TOOL), copy));
    QVERIFY(WriteText(program,
                      ProgramOf("<clock type='picture' timezone='+00:00'>\n"
                                "<attribute key='PictrueClockType' value='2'/></clock>")));
    QCOMPARE(Warnings(RunTool({"lint", "--no-fit", program}).errors), QStringList());
    QStringList told = Warnings(RunProcess(copy, {"lint", "--no-fit", program}).errors);
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains(
                 "picture.xml:2: warning: cannot read picbutton2.png, hour.png, minute.png, "
                 "second.png, center.png in "),
             qPrintable(told.first()));

    QVERIFY(QDir().mkpath(folder.filePath("image/ClockType")));
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (const char *const name : {"picbutton2", "hour", "minute", "center"})
        QVERIFY(picture.save(folder.filePath("image/ClockType/%1.png").arg(name)));
    told = Warnings(RunProcess(copy, {"lint", "--no-fit", program}).errors);
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains("cannot read second.png in "), qPrintable(told.first()));
}

// Only the place differs: the message has the path in the program.
void TestToolLint::FilesElsewhere()
{
    const QTemporaryDir folder;
    const QString program = folder.filePath("copy.xml");
    QVERIFY(WriteText(program, Carried("in.png", "5d41402abc4b2a76b9719d911017c592", 5)));
    QVERIFY(WriteText(m_directory.filePath("in.png"), "hello"));
    const QString told = RunTool({"lint", "--no-fit", program}).errors;
    QVERIFY2(told.contains("the file \"in.png\" is missing"), qPrintable(told));
    const QString beside =
        RunTool({"lint", "--no-fit", "--base", m_directory.path(), program}).errors;
    QVERIFY2(!beside.contains("in.png"), qPrintable(beside));
    QVERIFY(WriteText(m_directory.filePath("in.png"), "HELLO"));
    const QString other =
        RunTool({"lint", "--no-fit", "--base", m_directory.path(), program}).errors;
    QVERIFY2(other.contains("copy.xml:2: warning: the file \"in.png\" has the digest "),
             qPrintable(other));
    QCOMPARE(RunTool({"lint", "--no-fit", "--base", program, program}).exitCode, 3);
}

void TestToolLint::UnreadableCatalogue()
{
    const QString program = m_directory.filePath("sound.xml");
    QVERIFY(WriteText(program, Digital("")));
    const ProcessRun run = RunTool({"lint", "--no-fit", "--catalogue", program, program});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.errors, QString("clock_tool: %1: cannot be read as a catalogue\n").arg(program));

    // Of a name that goes on, Qt would take the file of the shorter one.
    const QString shorter = m_directory.filePath("studio.qm");
    QVERIFY(QFile::copy(QStringLiteral(CATALOGUE), shorter));
    const QStringList arguments {"lint", "--no-fit", "--catalogue"};
    QCOMPARE(RunTool(arguments + QStringList {shorter, program}).exitCode, 0);
    const QString missing = m_directory.filePath("studio_de.qm");
    QCOMPARE(RunTool(arguments + QStringList {missing, program}).exitCode, 3);
}

// However much is wrong with one program, the next one is heard of.
void TestToolLint::ManyFindings()
{
    QVERIFY(WriteText(m_directory.filePath("many.xml"),
                      Digital(QByteArray("<weak/>\n").repeated(1010))));
    QVERIFY(WriteText(m_directory.filePath("faulty.xml"), Digital("<weak/>")));
    const ProcessRun run = RunTool(
        {"lint", "--no-fit", m_directory.filePath("many.xml"), m_directory.filePath("faulty.xml")});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Warnings(run.errors).size(), 1001);
    QVERIFY2(run.errors.contains("/many.xml: and 10 more\n"), qPrintable(run.errors.right(300)));
    QVERIFY(run.errors.contains("/faulty.xml:2: warning: "));
}

QTEST_GUILESS_MAIN(TestToolLint)
#include "test_tool_lint.moc"
