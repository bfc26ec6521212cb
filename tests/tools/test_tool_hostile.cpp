// Files that nobody wrote in good faith: every command ends in time, with a code of its own.
#include "tool_process.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kMostMilliseconds = 60000; // a hundred times what an idle machine needs

QByteArray ManyChildren(const QByteArray &child, int count)
{
    return ProgramOf("<clock type='digital'>\n" + (child + '\n').repeated(count) + "</clock>");
}

QByteArray EntityBomb()
{
    QByteArray entities("<!ENTITY e0 'lol'>");
    for (int i = 1; i < 12; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    return "<!DOCTYPE program [" + entities + "]>"
        + ProgramOf("<clock><title value='&e11;'/></clock>");
}

QByteArray Deep(int depth)
{
    return QByteArray("<clock>").repeated(depth) + QByteArray("</clock>").repeated(depth);
}

} // namespace

class TestToolHostile : public QObject
{
    Q_OBJECT

private slots:
    void Ends_data();
    void Ends();
    void OddTextsSurviveExport();
};

void TestToolHostile::Ends_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("a hundred thousand unknown children") << ManyChildren("<foo/>", 100000);
    QTest::newRow("a hundred thousand settings")
        << ManyChildren("<attribute key='Idd' value='1'/>", 100000);
    QTest::newRow("twenty thousand clocks") << "<program width='9' height='9'>"
            + QByteArray("<area x='0' y='0' width='1' height='1'><clock/></area>").repeated(20000)
            + "</program>";
    QTest::newRow("entity bomb") << EntityBomb();
    QTest::newRow("external entity")
        << "<!DOCTYPE program [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>"
            + ProgramOf("<clock><title>&x;</title></clock>");
    QTest::newRow("megabytes in an attribute")
        << ProgramOf("<clock><title value='" + QByteArray(7 << 20, 'x') + "'/></clock>");
    QTest::newRow("a megabyte of key") << ProgramOf(
        "<clock><attribute key='" + QByteArray(1 << 20, 'x') + "' value='1'/></clock>");
    QTest::newRow("deep") << ProgramOf(Deep(60));
    QTest::newRow("too deep") << ProgramOf(Deep(100000));
    QTest::newRow("larger than a program") << QByteArray(17 << 20, ' ');
    QTest::newRow("bytes of no character") << ProgramOf("<clock><title value='\xff\xfe'/></clock>");
    QTest::newRow("a zero byte") << ProgramOf(QByteArray("<clo\0ck/>", 9));
    QTest::newRow("enormous font")
        << ProgramOf("<clock type='digital'><time fontSize='2000000000'/></clock>");
}

void TestToolHostile::Ends()
{
    QFETCH(QByteArray, text);
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path, text));
    for (const char *command : {"lint", "sdk", "import", "glyphs", "export"}) {
        QStringList arguments {command, path};
        if (command == QByteArray("export"))
            arguments.append(directory.filePath("out"));
        QElapsedTimer timer;
        timer.start();
        const ProcessRun run = RunTool(arguments);
        QVERIFY2(!run.crashed, command);
        QVERIFY2(run.exitCode == 0 || run.exitCode == 1 || run.exitCode == 3, command);
        QVERIFY2(timer.elapsed() < kMostMilliseconds, command);
        QVERIFY2(run.errors.size() < (1 << 20), command);
        // Nothing of another file came in.
        QVERIFY2(!run.output.contains("file:///"), command);
        if (run.exitCode == 3)
            QVERIFY2(run.errors.contains("in.xml"), qPrintable(run.errors));
    }
}

// White space, quotation marks, right-to-left marks and characters beyond the first plane.
void TestToolHostile::OddTextsSurviveExport()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("in.xml");
    QVERIFY(WriteText(path,
                      ProgramOf("<clock type='digital'><attribute key='DigitalTopText' "
                                "value='&#9;a&#10;b&#13;&quot;&lt;&amp;&#x202e;\xf0\x9f\x95\x92'/>"
                                "<attribute key='odd key &lt;' value=' '/></clock>")));
    const QString out = directory.filePath("out");
    QCOMPARE(RunTool({"export", path, out}).exitCode, 0);
    const QString again = directory.filePath("again");
    QCOMPARE(RunTool({"export", out + "/program.xml", again}).exitCode, 0);
    const QByteArray program = ReadText(out + "/program.xml");
    QVERIFY(program.contains("&#9;a&#10;b&#13;&quot;&lt;&amp;\xe2\x80\xae\xf0\x9f\x95\x92"));
    QVERIFY(program.contains("key=\"odd key &lt;\" value=\" \""));
    QCOMPARE(ReadText(again + "/program.xml"), program);
}

QTEST_GUILESS_MAIN(TestToolHostile)
#include "test_tool_hostile.moc"
