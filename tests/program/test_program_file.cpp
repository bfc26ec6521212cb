#include "program_file.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace ClockProgram;

namespace {

const QByteArray kArea("<area x='0' y='0' width='8' height='8'><panel/></area>");

QByteArray Screen(const QByteArray &content)
{
    return "<program width='64' height='32'>" + content + "</program>";
}

QByteArray AreaWith(const QByteArray &content)
{
    return Screen("<area x='0' y='0' width='8' height='8'>" + content + "</area>");
}

QByteArray Nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray Utf16(const QByteArray &text)
{
    QByteArray bytes("\xff\xfe");
    for (const char c : text)
        bytes.append(c).append('\0');
    return bytes;
}

QByteArray ManyAttributes(int count)
{
    QByteArray attributes;
    for (int i = 0; i < count; ++i)
        attributes += " a" + QByteArray::number(i) + "='1'";
    return attributes;
}

// A text that is refused, and how the message begins.
struct BadProgram
{
    const char *name;
    QByteArray contents;
    const char *message;
};

// Texts that are not well-formed XML.
const QVector<BadProgram> kBrokenTexts {
    {"empty", "", "p.xml:1:"},
    {"not XML", "hello", "p.xml:1:"},
    {"binary", QByteArray(100, '\0'), "p.xml:1:"},
    {"cut off", "<program width='1' height='1'>\n<area", "p.xml:2:"},
    {"wrong end tag", "<program>\n\n</prog>",
     "p.xml:3: </prog> does not match the <program> in line 1"},
    {"no end tag", "<program>\n<area>\n", "p.xml:3: the <area> in line 2 is never closed"},
    {"end tag without a start", "<program/>\n</area>", "p.xml:2: </area> has no start tag"},
    {"tag without its end", "<program width='1'\n<area/>",
     "p.xml:2: the tag <program> has no \">\""},
    {"end tag without its end", "<program></program", "p.xml:1: \"</program\" has no"},
    {"value without quotation marks", "<program\n width=1/>",
     "p.xml:2: the attribute width of <program> needs a value in quotation marks"},
    {"attribute without a value", "<program width/>",
     "p.xml:1: the attribute width of <program> needs a value"},
    {"quotation mark missing in the middle", "<program width='1 height='1'/>",
     "p.xml:1: a space or a quotation mark is missing in <program>"},
    {"quotation mark missing at the end", "<program width='1>\n<area/></program>",
     "p.xml:1: the value of width of <program> has no closing quotation mark"},
    {"lone ampersand", AreaWith("<panel>\n<title value='a & b'/></panel>"),
     "p.xml:2: \"&\" in text must be written as &amp;"},
    {"name of another language", "<program>&nbsp;</program>",
     "p.xml:1: &nbsp; is not defined in XML; write the character itself"},
    {"ampersand before a semicolon", "<program>a & b;</program>", "p.xml:1: \"&\" in text"},
    {"lone less-than sign", "<program>1 < 2</program>", "p.xml:1: \"<\" in text"},
    {"two roots", Screen(kArea) + "\n<clock/>",
     "p.xml:2: <clock> follows the end of the outermost element"},
    {"text at the end", Screen(kArea) + "\nend", "p.xml:2: there is text after"},
    {"comment without an end", "<program>\n<!-- ", "p.xml:2: a comment is never closed"},
    {"unknown encoding", "<?xml version='1.0' encoding='klingon'?><program/>",
     "p.xml:1: unknown encoding \"klingon\""},
    {"bytes of another encoding", "<program>\n\xff\xfe</program>", "p.xml:2: invalid UTF-8 text"},
    {"one attribute twice", "<program width='1' width='1'/>",
     "p.xml:1: <program> has two attributes width"},
    {"second root", Screen(kArea) + "\n<program/>", "p.xml:2:"},
};

// More than is read: definitions, depth, counts and sizes.
const QVector<BadProgram> kTooMuch {
    {"document type definition", "<?xml version='1.0'?>\n<!DOCTYPE program>\n<program/>",
     "p.xml:2: document type definitions (<!DOCTYPE>) are not accepted"},
    {"entities that multiply",
     "<!DOCTYPE p [<!ENTITY a "
     "'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'>"
     "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
     "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
     "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
     "]>\n<program>&d;</program>",
     "p.xml:1: document type definitions"},
    {"attributes of one tag", Screen("\n<area" + ManyAttributes(257) + "/>"),
     "p.xml:2: <area> has more than 256 attributes"},
    {"attributes in all", Screen(("<a" + ManyAttributes(256) + "/>").repeated(513)),
     "p.xml:1: more than 131072 attributes"},
    {"elements", Screen(QByteArray("<a/>").repeated(1 << 16)), "p.xml:1: more than 65536 elements"},
    {"text of another kind of file, larger", QByteArray((4 << 20) + 1, ' '),
     "p.xml: larger than 4194304 bytes"},
    {"nested too deep", Screen(Nested(100000)), "p.xml:1:"},
    {"nested too deep and cut off", QByteArray("<a>").repeated(1000000), "p.xml:1:"},
    {"too many pixels", "<program width='32767' height='32767'/>",
     "p.xml:1: the screen has more than"},
    {"one area too many", Screen(kArea.repeated(kMaximumAreas) + "\n" + kArea),
     "p.xml:2: too many areas"},
    {"areas of too many pixels together",
     Screen(
         QByteArray("<area x='0' y='0' width='32767' height='1000'><panel/></area>\n").repeated(2)),
     "p.xml:2: too many areas"},
};

const QVector<BadProgram> kBadScreens {
    {"other root", "<!-- -->\n<clock/>", "p.xml:2: the root element is <clock>"},
    {"no size", "<program>" + kArea + "</program>",
     "p.xml:1: <program> needs whole numbers: width"},
    {"width zero", "<program width='0' height='1'/>",
     "p.xml:1: <program> needs whole numbers: width"},
    {"height negative", "<program width='1' height='-1'/>",
     "p.xml:1: <program> needs whole numbers: height"},
    {"height a fraction", "<program width='1' height='1.5'/>",
     "p.xml:1: <program> needs whole numbers: height"},
    {"side too long", "<program width='32768' height='1'/>",
     "p.xml:1: <program> needs whole numbers: width"},
    {"side beyond 32 bits", "<program width='4294967297' height='1'/>",
     "p.xml:1: <program> needs whole numbers: width"},
    {"no area", Screen(""), "p.xml:1: the program has no <area>"},
    {"other element", Screen("\n<clock/>"), "p.xml:2: unexpected element <clock>"},
};

const QVector<BadProgram> kBadAreas {
    {"area without x", Screen("\n<area y='0' width='8' height='8'><panel/></area>"),
     "p.xml:2: <area> needs whole numbers: x"},
    {"area with y too small",
     Screen("\n<area x='0' y='-32768' width='8' height='8'><panel/></area>"),
     "p.xml:2: <area> needs whole numbers: y"},
    {"area of no width", Screen("\n<area x='0' y='0' width='0' height='8'><panel/></area>"),
     "p.xml:2: <area> needs whole numbers: width"},
    {"area with nothing in it", AreaWith("\n"),
     "p.xml:1: an <area> must contain exactly one element"},
    {"area with two elements", AreaWith("<panel/><panel/>"),
     "p.xml:1: an <area> must contain exactly one element"},
    {"attribute without key", AreaWith("<panel>\n<attribute value='1'/></panel>"),
     "p.xml:2: an <attribute> needs"},
    {"attribute with empty key", AreaWith("<panel>\n<attribute key='' value='1'/></panel>"),
     "p.xml:2: an <attribute> needs"},
    {"attribute without value", AreaWith("<panel>\n<attribute key='Id'/></panel>"),
     "p.xml:2: an <attribute> needs"},
};

} // namespace

class TestProgramFile : public QObject
{
    Q_OBJECT

private slots:
    void AreasAndAttributesAreRead();
    void OddTextsAreAccepted_data();
    void OddTextsAreAccepted();
    void FaultsAreToldWithTheirLine_data();
    void FaultsAreToldWithTheirLine();
    void EncodingsGiveOneText();
    void FrameBytesOfPrograms_data();
    void FrameBytesOfPrograms();
    void PathsAreNamedAsTheyAre();
    void UnreadableFilesAreTold_data();
    void UnreadableFilesAreTold();
};

void TestProgramFile::AreasAndAttributesAreRead()
{
    const QByteArray contents(R"(<?xml version="1.0"?>
<program width="256" height="64">
  <!-- comments are no elements -->
  <area x="-3" y="5" width="100" height="20">
    <panel type="digital">
      <attribute key="Id" value="1500"/>
      <other><attribute key="deeper" value="not the player's"/></other>
      <attribute key="Text" value=" kept as it is "/>
      <attribute key="Empty" value=""/>
    </panel>
  </area>
  <area x="0" y="0" width="1" height="2"><panel/></area>
</program>)");
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    QVERIFY(result);
    const Program &program = *result;
    QCOMPARE(program.path, QStringLiteral("p.xml"));
    QCOMPARE(program.size, QSize(256, 64));
    QCOMPARE(program.areas.size(), 2);
    const ProgramArea &area = program.areas.first();
    QCOMPARE(area.geometry, QRect(-3, 5, 100, 20));
    QCOMPARE(area.element.tagName(), QStringLiteral("panel"));
    QCOMPARE(area.element.attribute(QStringLiteral("type")), QStringLiteral("digital"));
    QCOMPARE(area.element.lineNumber(), 5);
    QCOMPARE(area.attributes.size(), 3);
    QCOMPARE(area.attributes[0].key, QStringLiteral("Id"));
    QCOMPARE(area.attributes[0].value, QStringLiteral("1500"));
    QCOMPARE(area.attributes[1].value, QStringLiteral(" kept as it is "));
    QCOMPARE(area.attributes[2].key, QStringLiteral("Empty"));
    QVERIFY(area.attributes[2].value.isEmpty());
    QVERIFY(program.areas[1].attributes.isEmpty());
}

void TestProgramFile::OddTextsAreAccepted_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("smallest") << QByteArray("<program width='1' height='1'>") + kArea
            + "</program>";
    QTest::newRow("longest side") << QByteArray("<program width='32767' height='1'>") + kArea
            + "</program>";
    QTest::newRow("8K screen") << QByteArray("<program width='7680' height='4320'>") + kArea
            + "</program>";
    QTest::newRow("area outside the screen")
        << Screen("<area x='32767' y='-32767' width='8' height='8'><panel/></area>");
    QTest::newRow("unknown element, a plugin's business") << AreaWith("<unknown/>");
    QTest::newRow("deep enough") << AreaWith(Nested(kMaximumDepth - 2));
    QTest::newRow("text between elements") << AreaWith("text <panel/> text");
    QTest::newRow("what looks like a document type definition")
        << AreaWith("<panel><!-- <!DOCTYPE a> --><![CDATA[<!DOCTYPE a>]]></panel>");
    QTest::newRow("every reference")
        << AreaWith("<panel a='&amp;&lt;&gt;&quot;&apos;&#65;&#x41;'>&amp;</panel>");
    QTest::newRow("long character numbers")
        << AreaWith("<panel a='&#x" + QByteArray(40, '0') + "41;'>&#0000000000065;</panel>");
    QTest::newRow("spaces in tags") << Screen("<area x = '0'\ny='0'\twidth='8'\r\nheight='8' >"
                                              "<panel\n/></area\n>");
    QTest::newRow("greater-than sign in a value") << AreaWith("<panel a='>' b=\"'\"/>");
    QTest::newRow("most attributes of one tag")
        << AreaWith("<panel" + ManyAttributes(kMaximumTagAttributes) + "/>");
    QTest::newRow("UTF-16") << Utf16(Screen(kArea));
    QTest::newRow("Chinese encoding") << QByteArray("<?xml version='1.0' encoding='GB18030'?>")
            + AreaWith("<panel a='\xb1\xb1\xbe\xa9'/>");
    QTest::newRow("most areas") << Screen(kArea.repeated(kMaximumAreas));
}

void TestProgramFile::OddTextsAreAccepted()
{
    QFETCH(QByteArray, contents);
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    QVERIFY2(result, result ? "" : qPrintable(result.Error().text));
}

void TestProgramFile::FaultsAreToldWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("message"); // what it begins with
    for (const auto &programs : {kBrokenTexts, kTooMuch, kBadScreens, kBadAreas}) {
        for (const BadProgram &program : programs)
            QTest::newRow(program.name) << program.contents << QString::fromLatin1(program.message);
    }
}

void TestProgramFile::FaultsAreToldWithTheirLine()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, message);
    const Result<Program> result = ParseProgram(contents, QStringLiteral("p.xml"));
    QVERIFY(!result);
    const Failure &failure = result.Error();
    QCOMPARE(int(failure.code), 3);
    QVERIFY2(failure.text.startsWith(message), qPrintable(failure.text));
}

// Beijing in Chinese, as each encoding writes it.
void TestProgramFile::EncodingsGiveOneText()
{
    const QByteArray area("<program width='1' height='1'><area x='0' y='0' width='8' height='8'>");
    const QByteArray end("'/></area></program>");
    for (const QByteArray &contents :
         {area + "<panel a='\xe5\x8c\x97\xe4\xba\xac" + end,
          "<?xml version='1.0' encoding='GB18030'?>" + area + "<panel a='\xb1\xb1\xbe\xa9" + end,
          "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + area + "<panel a='&#x5317;&#20140;"
              + end}) {
        const bool isWide = contents.contains("UTF-16");
        const auto program = ParseProgram(isWide ? Utf16(contents) : contents, "p.xml");
        QVERIFY2(program, program ? "" : qPrintable(program.Error().text));
        QCOMPARE(program->areas[0].element.attribute("a"), QString::fromUtf8("北京"));
    }
}

// Four bytes a pixel: twice the screen, and each area three times.
void TestProgramFile::FrameBytesOfPrograms_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("figure"); // of the failure; empty for none
    const auto screen = [](const QByteArray &width, const QByteArray &height) {
        return "<program width='" + width + "' height='" + height + "'><area x='0' y='0' width='"
            + width + "' height='" + height + "'><panel/></area></program>";
    };
    QTest::newRow("small") << screen("64", "32") << qint64(64 * 32 * 20) << QString();
    QTest::newRow("4K") << screen("3840", "2160") << qint64(3840 * 2160 * 20) << QString();
    QTest::newRow("largest that is usual")
        << screen("32767", "409") << qint64(32767) * 409 * 20 << QString();
    QTest::newRow("a line more") << screen("32767", "410") << qint64(32767) * 410 * 20 << "257 MiB";
    QTest::newRow("largest area") << screen("32767", "1024") << qint64(32767) * 1024 * 20
                                  << "640 MiB";
}

void TestProgramFile::FrameBytesOfPrograms()
{
    QFETCH(QByteArray, contents);
    QFETCH(qint64, bytes);
    QFETCH(QString, figure);
    const auto program = ParseProgram(contents, "p.xml");
    QVERIFY(program);
    QCOMPARE(FrameBytes(*program), bytes);
    const MaybeFailure failure = CheckFrameBytes(*program);
    QCOMPARE(bool(failure), !figure.isEmpty());
    if (failure)
        QVERIFY2(failure->text.startsWith("p.xml:1: ") && failure->text.contains(figure),
                 qPrintable(failure->text));
}

void TestProgramFile::PathsAreNamedAsTheyAre()
{
    const QString path = QStringLiteral("%3 at 100%2.xml");
    for (const QByteArray &contents : {QByteArray("<clock/>"), QByteArray("<clock>")}) {
        const Result<Program> result = ParseProgram(contents, path);
        QVERIFY(!result);
        const QString text = result.Error().text;
        QVERIFY2(text.startsWith(path + QStringLiteral(":1:")), qPrintable(text));
    }
}

void TestProgramFile::UnreadableFilesAreTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing.xml"
                             << "missing.xml: No such file or directory";
    QTest::newRow("directory") << "/"
                               << "/: is a directory, not a file";
    QTest::newRow("empty name") << ""
                                << ": ";
    QTest::newRow("endless") << "/dev/zero"
                             << "/dev/zero: larger than 4194304 bytes";
}

void TestProgramFile::UnreadableFilesAreTold()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const QTemporaryDir emptyDirectory;
    QVERIFY(QDir::setCurrent(emptyDirectory.path()));
    const Result<Program> result = ReadProgram(path);
    QVERIFY(!result);
    const QString text = result.Error().text;
    QVERIFY2(text.startsWith(reason), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestProgramFile)
#include "test_program_file.moc"
