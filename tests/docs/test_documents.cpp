// What the documents say is so: programs and the example work, tables and texts are up to date.
#include "system_zones.h"
#include "tool_process.h"

#include "calendar/clock_time.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <future>

using namespace ClockZones;

namespace {

QString Document(const QString &path)
{
    return QString::fromUtf8(ReadText(InTree(path)));
}

// The contents of the fenced blocks of a language.
QStringList Blocks(const QString &document, const QString &language)
{
    const QRegularExpression form(QStringLiteral("```%1\n(.*?)```").arg(language),
                                  QRegularExpression::DotMatchesEverythingOption);
    QStringList blocks;
    for (auto match = form.globalMatch(document); match.hasNext();)
        blocks.append(match.next().captured(1));
    return blocks;
}

// The words that documents show as code: in fenced blocks and between backquotes.
QSet<QString> CodeWords(const QStringList &documents)
{
    const QRegularExpression code("```.*?```|`[^`]+`",
                                  QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpression word("[A-Za-z]+");
    QSet<QString> words;
    for (const QString &document : documents) {
        for (auto part = code.globalMatch(document); part.hasNext();) {
            for (auto match = word.globalMatch(part.next().captured()); match.hasNext();)
                words.insert(match.next().captured());
        }
    }
    return words;
}

// The rows of tables, by their cells, that have a zone of the system in the second.
QVector<QStringList> ZoneRows()
{
    QVector<QStringList> rows;
    for (const QString &line : Document("docs/calendars.md").split('\n')) {
        QStringList cells;
        for (const QString &cell : line.split('|').mid(1))
            cells.append(cell.trimmed() == "none" ? QString() : cell.trimmed());
        if (cells.size() > 4 && cells[1].contains('/') && !cells[1].contains(' '))
            rows.append(cells);
    }
    return rows;
}

// The headings of a page, as links name them.
QStringList AnchorsOf(const QString &path)
{
    const QRegularExpression heading("^#+ (.*)$", QRegularExpression::MultilineOption);
    QStringList anchors;
    const QString page = QString::fromUtf8(ReadText(path));
    for (auto match = heading.globalMatch(page); match.hasNext();) {
        const QString words = match.next().captured(1).toLower();
        anchors.append(QString(words).remove(QRegularExpression("[^\\w\\s-]")).replace(' ', '-'));
    }
    return anchors;
}

// The text of a manual page without its escapes.
QString PlainManual(const QString &program)
{
    QString page = QString::fromUtf8(ReadText(QStringLiteral(MANUAL_DIR "/%1.1").arg(program)));
    return page.replace("\\-", "-").replace("\\&", "").replace("\\e", "\\");
}

// The text under a title, up to the next one.
QString SectionOf(const QString &page, const QString &title)
{
    const QString rest = page.section(title, 1);
    return rest.left(
        rest.indexOf(QRegularExpression("^\\.S[HS] ", QRegularExpression::MultilineOption)));
}

// Of a heading of the help; a command's are subsections.
QString TitleOf(const QString &heading, bool isSubsection)
{
    if (isSubsection)
        return QStringLiteral(".SS %1\n").arg(heading);
    return heading == "Exit codes" ? QStringLiteral(".SH \"EXIT STATUS\"\n")
                                   : QStringLiteral(".SH %1\n").arg(heading.toUpper());
}

QStringList Lines(const QString &text)
{
    QStringList lines = text.split('\n');
    lines.removeAll(QString());
    return lines;
}

QStringList Without(QStringList lines, const QString &part)
{
    const auto has = [&](const QString &line) { return line.contains(part); };
    lines.erase(std::remove_if(lines.begin(), lines.end(), has), lines.end());
    return lines;
}

} // namespace

class TestDocuments : public QObject
{
    Q_OBJECT

private slots:
    void ExampleRuns();
    void ExampleDrawsTheSameEverywhere();
    void ExampleSaysWhatIsWrong_data();
    void ExampleSaysWhatIsWrong();
    void ProgramsAreSound_data();
    void ProgramsAreSound();
    void ImportedNamesAreDescribed_data();
    void ImportedNamesAreDescribed();
    void ZoneTables_data();
    void ZoneTables();
    void LinksLeadSomewhere_data();
    void LinksLeadSomewhere();
    void NamedFilesExist_data();
    void NamedFilesExist();
    void QuotedLinesExist();
#ifdef HAVE_MANUALS
    void ManualsHoldTheHelp_data();
    void ManualsHoldTheHelp();
    void ManualsAreInOrder_data();
    void ManualsAreInOrder();
    void FailedManualLeavesThePage();
#endif
};

void TestDocuments::ExampleRuns()
{
    const QTemporaryDir glyphs;
    const QTemporaryDir frames;
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const ProcessRun run =
        RunProcess(EXAMPLE, {CLOCK_PLUGIN_FILE, glyphs.path(), frames.path()}, environment);
    QVERIFY2(run.exitCode == 0 && !run.crashed, qPrintable(run.errors));
    QVERIFY(QDir(glyphs.path()).entryList({"digital_*.png"}).size() > 30);
    for (const char *kind : {"analog", "digital", "picture"}) {
        QVector<QImage> shown;
        for (int number = 1; number <= 3; ++number)
            shown.append(
                QImage(frames.filePath(QStringLiteral("%1_%2.png").arg(kind).arg(number))));
        QCOMPARE(shown[0].size(), QSize(192, 96));
        QVERIFY2(shown[0] != shown[1] && shown[1] != shown[2], kind);
    }
}

// Neither what the platform takes for a point nor the environment's language changes its texts.
void TestDocuments::ExampleDrawsTheSameEverywhere()
{
    const auto images = [](const QString &dotsPerInch, const QString &locale) {
        const QTemporaryDir glyphs;
        const QTemporaryDir frames;
        QProcessEnvironment environment = DisplaylessEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("QT_FONT_DPI", dotsPerInch);
        environment.insert("LC_ALL", locale);
        environment.insert("FC_LANG", "en"); // or another language might have another font
        RunProcess(EXAMPLE, {CLOCK_PLUGIN_FILE, glyphs.path(), frames.path()}, environment);
        QVector<QByteArray> contents;
        for (const QFileInfo &file : QDir(glyphs.path()).entryInfoList({"digital_*.png"}))
            contents.append(ReadText(file.filePath()));
        std::sort(contents.begin(), contents.end()); // clocks name their files differently
        return contents;
    };
    // Each plays for seconds: side by side.
    auto others = std::async(std::launch::async, images, QString("120"), QString("fa_IR.UTF-8"));
    const QVector<QByteArray> expected = images("96", "C.UTF-8");
    QVERIFY(others.get() == expected);
    QVERIFY(expected.size() > 30);
}

void TestDocuments::ExampleSaysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no arguments") << QStringList() << "usage: small_host PLUGIN.so";
    QTest::newRow("Qt's own arguments")
        << QStringList {CLOCK_PLUGIN_FILE, "-platform", "offscreen"} << "usage: small_host";
    QTest::newRow("no plugin") << QStringList {"/dev/null/none.so", ".", "."} << "no such file";
    QTest::newRow("no such directory")
        << QStringList {CLOCK_PLUGIN_FILE, ".", "/dev/null/none"} << "a frame could not be written";
}

void TestDocuments::ExampleSaysWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    arguments.replaceInStrings(QRegularExpression("^\\.$"), folder.path());
    const ProcessRun run = RunProcess(EXAMPLE, arguments, environment);
    QVERIFY(!run.crashed);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(reason), qPrintable(run.errors));
}

void TestDocuments::ProgramsAreSound_data()
{
    QTest::addColumn<QString>("program");
    for (const char *document : {"docs/programs.md", "docs/sdk.md"}) {
        int number = 0;
        for (const QString &block : Blocks(Document(document), "xml"))
            QTest::addRow("%s, block %d", document, ++number) << block;
    }
}

// A clock is put into a program, settings into a clock.
void TestDocuments::ProgramsAreSound()
{
    QFETCH(QString, program);
    QByteArray text = program.toUtf8();
    if (text.startsWith("<attribute"))
        text = "<clock>" + text + "</clock>";
    QStringList arguments {"lint"};
    if (text.startsWith("<clock")) {
        text = ProgramOf(text);
        arguments << "--no-fit"; // the area is any
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    QVERIFY(WriteText(path, text));
    QCOMPARE(Lines(RunTool(arguments << path).errors).filter(": warning: "), QStringList());
}

void TestDocuments::ImportedNamesAreDescribed_data()
{
    QTest::addColumn<QString>("name");
    const QString tables =
        Document("clock_plugin/clock_sdk_tables.h")
            .remove(QRegularExpression("//.*$", QRegularExpression::MultilineOption));
    QStringList names;
    const QRegularExpression literal("\"([A-Za-z]+)\"");
    for (auto match = literal.globalMatch(tables); match.hasNext();)
        names.append(match.next().captured(1));
    names.removeDuplicates();
    QVERIFY(names.size() > 40);
    QVERIFY(names.contains("clockCom") && names.contains("timeMode"));
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

// Every element and attribute that a clock reads or writes.
void TestDocuments::ImportedNamesAreDescribed()
{
    QFETCH(QString, name);
    QVERIFY(CodeWords({Document("docs/programs.md"), Document("docs/sdk.md")}).contains(name));
}

void TestDocuments::ZoneTables_data()
{
    QTest::addColumn<QStringList>("cells");
    for (const QStringList &cells : ZoneRows())
        QTest::addRow("%s", qPrintable(cells[1])) << cells;
}

// A row with a sixth column says when the settings are wrong; the others are exact.
void TestDocuments::ZoneTables()
{
    QFETCH(QStringList, cells);
    const Span span = TenYearsFrom(QDate(2026, 1, 1));
    const auto civil = CivilTimeOf(cells[1].toLatin1(), span);
    const auto after = CivilTimeOf(cells[1].toLatin1(), ListedAfter(span));
    QVERIFY(civil && after);
    const ZoneSettings settings {Lw::HNodeClock::ParseZoneOffset(cells[2]), cells[3], cells[4]};
    QCOMPARE(settings.ZoneText(), cells[2]);
    const bool isExact = cells.size() == 6; // with the empty one behind the last bar
    QCOMPARE(WrongTimes(settings, *civil).isEmpty(), isExact);
    const ZoneSettings best = BestSettings(*civil, *after);
    QCOMPARE(QStringList({best.ZoneText(), best.start, best.end}), cells.mid(2, 3));
}

void TestDocuments::LinksLeadSomewhere_data()
{
    QTest::addColumn<QString>("path");
    for (const char *page : {"README.md", "SECURITY.md", "image/README.md"})
        QTest::newRow(page) << page;
    for (const QString &name : QDir(InTree("docs")).entryList({"*.md"}))
        QTest::newRow(qPrintable(name)) << "docs/" + name;
}

void TestDocuments::LinksLeadSomewhere()
{
    QFETCH(QString, path);
    const QDir folder = QFileInfo(InTree(path)).dir();
    const QRegularExpression form("\\]\\(([^)#:\\s]*)(?:#([^)\\s]+))?\\)");
    for (auto match = form.globalMatch(Document(path)); match.hasNext();) {
        const QRegularExpressionMatch link = match.next();
        const QString target =
            link.captured(1).isEmpty() ? InTree(path) : folder.filePath(link.captured(1));
        QVERIFY2(QFileInfo::exists(target), qPrintable(target));
        if (!link.captured(2).isEmpty())
            QVERIFY2(AnchorsOf(target).contains(link.captured(2)), qPrintable(link.captured(0)));
    }
}

void TestDocuments::NamedFilesExist_data()
{
    LinksLeadSomewhere_data();
}

// What is written as code and begins with a folder of the tree; XX means any language.
void TestDocuments::NamedFilesExist()
{
    QFETCH(QString, path);
    const QRegularExpression code("```.*?```|`[^`]+`",
                                  QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpression file("(?<![\\w./-])(\\w[\\w-]*)/[\\w./-]*\\w(?![\\w./*-])");
    QStringList folders = QDir(InTree(".")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders = folders.filter(QRegularExpression("^(?!build)"));
    for (auto part = code.globalMatch(Document(path)); part.hasNext();) {
        for (auto match = file.globalMatch(part.next().captured()); match.hasNext();) {
            const QRegularExpressionMatch name = match.next();
            if (folders.contains(name.captured(1)) && !name.captured().contains("XX"))
                QVERIFY2(QFileInfo::exists(InTree(name.captured())), qPrintable(name.captured()));
        }
    }
}

// The messages that troubleshooting quotes are said by some source.
void TestDocuments::QuotedLinesExist()
{
    QString sources;
    for (const char *folder : {"player", "program", "host", "clock_plugin", "tools"}) {
        QDirIterator files(InTree(folder), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            sources += QString::fromUtf8(ReadText(files.next()));
    }
    sources.remove(QRegularExpression("\"\\s*\n\\s*\"")); // texts that go on in the next line
    for (const char *line :
         {"the plugin cannot read this <%1>; is its type known?", "no plugins in this directory",
          "not a Qt plugin", "a plugin for another host", "no display can be reached",
          "no plugin claims the element", "\"File [%s] key[%s]not exists",
          "soucepath[%s], dest[%s]", "not in temp file[%s]",
          "daylight saving ends an hour late for %2"}) {
        QVERIFY2(sources.contains(line), line);
        const QString quoted = QString(line).replace("<%1>", "<clock>").section('%', 0, 0);
        QVERIFY2(Document("docs/troubleshooting.md").contains(quoted.section('[', 0, 0)), line);
    }
}

#ifdef HAVE_MANUALS
void TestDocuments::ManualsHoldTheHelp_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("player") << PLAYER << QStringList();
    QTest::newRow("tool") << TOOL << QStringList();
    const QString help = RunTool({"--help"}).output;
    const QRegularExpression form("^  ([a-z][a-z-]*) ", QRegularExpression::MultilineOption);
    for (auto match = form.globalMatch(help.section("Commands:", 1).section("\n\n", 0, 0));
         match.hasNext();) {
        const QString command = match.next().captured(1);
        QTest::addRow("tool, %s", qPrintable(command)) << TOOL << QStringList {command};
    }
}

// Every line of the help is in the page, in the section of its heading; the columns of a table may
// be in lines of their own.
void TestDocuments::ManualsHoldTheHelp()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const ProcessRun run = RunProcess(program, arguments + QStringList {"--help"}, environment);
    QCOMPARE(run.exitCode, 0);
    QString page = PlainManual(QFileInfo(program).fileName());
    if (!arguments.isEmpty()) {
        const QString title =
            QStringLiteral(".SH \"COMMAND %1\"\n").arg(arguments.first().toUpper());
        page = page.section(title, 1).section(".SH ", 0, 0);
    }
    const QStringList lines = Lines(run.output);
    QVERIFY(lines.size() > 5);
    QVERIFY2(page.contains(lines.first().section(' ', 2)), qPrintable(lines.first()));
    QString section = arguments.isEmpty() ? SectionOf(page, ".SH DESCRIPTION\n") : page;
    int place = 0;
    for (const QString &line : lines.mid(1)) {
        if (line.endsWith(':') && !line.startsWith(' ') && line.count(' ') < 2) {
            section = SectionOf(page, TitleOf(line.chopped(1), !arguments.isEmpty()));
            QVERIFY2(!section.isEmpty(), qPrintable(line));
            place = 0;
            continue;
        }
        for (const QString &column : line.split(QRegularExpression(" {2,}|(?<=\\.\\.\\.) "))) {
            place = section.indexOf(column, place);
            QVERIFY2(place >= 0, qPrintable(line));
        }
    }
}

// The sections that manual pages have, in their order, each once and with something in it.
void TestDocuments::ManualsAreInOrder_data()
{
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("clock_player") << QStringList {
        "NAME", "SYNOPSIS",    "DESCRIPTION", "ARGUMENTS", "OPTIONS",
        "KEYS", "EXIT STATUS", "ENVIRONMENT", "EXAMPLES",  "SEE ALSO"};
    QTest::newRow("clock_tool") << QStringList {
        "NAME", "SYNOPSIS", "DESCRIPTION", "COMMANDS", "EXIT STATUS", "ENVIRONMENT", "SEE ALSO"};
}

void TestDocuments::ManualsAreInOrder()
{
    QFETCH(QStringList, titles);
    const QString page = PlainManual(QTest::currentDataTag());
    QStringList found;
    const QRegularExpression heading("^\\.SH \"?([^\"\n]+)", QRegularExpression::MultilineOption);
    for (auto match = heading.globalMatch(page); match.hasNext();)
        found.append(match.next().captured(1));
    QCOMPARE(Without(found, "COMMAND "), titles);
    const QString summary = page.section(" - ", 1).section('\n', 0, 0);
    QVERIFY(!summary.isEmpty());
    QVERIFY(!SectionOf(page, ".SH DESCRIPTION\n").startsWith(summary, Qt::CaseInsensitive));
}

void TestDocuments::FailedManualLeavesThePage()
{
    const QTemporaryDir folder;
    const QString page = folder.filePath("x.1");
    QVERIFY(WriteText(page, "old"));
    QVERIFY(RunProcess(InTree("scripts/make-man"), {"/bin/false", "x", "y", page}).exitCode != 0);
    QCOMPARE(ReadText(page), QByteArray("old"));
}
#endif

QTEST_GUILESS_MAIN(TestDocuments)
#include "test_documents.moc"
