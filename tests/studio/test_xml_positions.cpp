// Positions of elements and attributes, compared with an XML parser; and texts that are not XML.
#include "sample_programs.h"

#include "text/xml_positions.h"

#include <QRandomGenerator>
#include <QXmlStreamReader>

using namespace ClockStudio;

namespace {

QString Cut(const QString &text, TextRange range)
{
    return text.mid(range.begin, range.Size());
}

/// Every element with its attributes, as Qt's parser reads them.
QStringList ParsedElements(const QString &text)
{
    QStringList elements;
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        QString element = reader.name().toString();
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            element += "|" + attribute.name().toString() + "=" + attribute.value().toString();
        elements.append(element);
    }
    return elements;
}

QStringList FoundElements(const QString &text)
{
    QStringList found;
    for (const XmlElement &element : FindElements(text).value_or(XmlElements())) {
        QString line = element.name;
        for (const XmlAttribute &attribute : element.attributes)
            line += "|" + attribute.name + "=" + attribute.text;
        found.append(line);
    }
    return found;
}

} // namespace

class TestXmlPositions : public QObject
{
    Q_OBJECT

private slots:
    void Ranges();
    void Values_data();
    void Values();
    void SamplesAsParsed();
    void NoXml_data();
    void NoXml();
    void DamagedSamples();
    void Lines();
    void Escaping();
};

void TestXmlPositions::Ranges()
{
    const QString text = "<?xml?>\n<!-- <a/> --><p  w = '1'\th=\"2\"><q/>x</p >\n";
    const auto elements = FindElements(text);
    QVERIFY(elements);
    QCOMPARE(elements->size(), 2);
    const XmlElement &p = elements->at(0);
    QCOMPARE(Cut(text, p.tag), QString("<p  w = '1'\th=\"2\">"));
    QCOMPARE(Cut(text, p.whole), QString("<p  w = '1'\th=\"2\"><q/>x</p >"));
    QCOMPARE(Cut(text, p.Find("w")->whole), QString("w = '1'"));
    QCOMPARE(Cut(text, p.Find("h")->value), QString("2"));
    QCOMPARE(p.children, QVector<int> {1});
    QCOMPARE(Cut(text, elements->at(1).whole), QString("<q/>"));
    QVERIFY(elements->at(1).isSelfClosing);
}

void TestXmlPositions::Values_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << "a b"
                           << "a b";
    QTest::newRow("references") << "&lt;&gt;&amp;&quot;&apos;"
                                << "<>&\"'";
    QTest::newRow("numbers") << "&#65;&#x42;&#128512;" << QString::fromUtf8("AB\xf0\x9f\x98\x80");
    QTest::newRow("line ends are spaces") << "a\nb\r\nc\td"
                                          << "a b c d";
    QTest::newRow("written line end stays") << "a&#10;b"
                                            << "a\nb";
}

void TestXmlPositions::Values()
{
    QFETCH(QString, written);
    QFETCH(QString, value);
    const auto elements = FindElements("<a b=\"" + written + "\"/>");
    QVERIFY(elements);
    QCOMPARE(elements->at(0).Value("b"), value);
}

void TestXmlPositions::SamplesAsParsed()
{
    for (const QString &path : SamplePaths()) {
        const QString text = QString::fromUtf8(ContentsOf(path));
        QVERIFY(!text.isEmpty());
        QCOMPARE(FoundElements(text), ParsedElements(text));
    }
}

void TestXmlPositions::NoXml_data()
{
    QTest::addColumn<QString>("text");
    const QStringList texts = {"",
                               "x",
                               "<",
                               "<a",
                               "<a>",
                               "<a b",
                               "<a b=",
                               "<a b=\"",
                               "<a b=c/>",
                               "</a>",
                               "<a></b>",
                               "<a/><b/>",
                               "<a><b></a></b>",
                               "<!-- <a/>",
                               "<!DOCTYPE a><a/>",
                               "<![CDATA[",
                               "<a/",
                               "<?xml",
                               "<>",
                               "< a/>",
                               QString("<a>").repeated(100000)};
    for (const QString &text : texts)
        QTest::newRow(qPrintable(text.left(20))) << text;
}

void TestXmlPositions::NoXml()
{
    QFETCH(QString, text);
    QVERIFY(!FindElements(text));
}

// What is found in a damaged text must be in it; nothing is read beyond its end.
void TestXmlPositions::DamagedSamples()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QString whole = QString::fromUtf8(ContentsOf(SamplePaths().first()));
    for (int i = 0; i < 2000; ++i) {
        QString text = whole.left(random.bounded(whole.size()) + 1);
        text[random.bounded(text.size())] = QLatin1Char("<>\"'=/&! "[random.bounded(9)]);
        const XmlElements elements = FindElements(text).value_or(XmlElements());
        for (const XmlElement &element : elements)
            QVERIFY(element.whole.begin >= 0 && element.whole.end <= text.size());
    }
}

void TestXmlPositions::Lines()
{
    const QString text = "a\nb\r\nc\rd";
    QCOMPARE(LineOf(text, 0), 1);
    QCOMPARE(LineOf(text, 2), 2);
    QCOMPARE(LineOf(text, 5), 3);
    QCOMPARE(LineOf(text, 7), 4);
    QCOMPARE(StartOfLine(text, 1), 0);
    QCOMPARE(StartOfLine(text, 2), 2);
    QCOMPARE(StartOfLine(text, 3), 5);
    QCOMPARE(StartOfLine(text, 4), 7);
    QCOMPARE(StartOfLine(text, 99), 8);
}

void TestXmlPositions::Escaping()
{
    const QString value = "<a & \"b\" 'c'>\n\x01";
    QCOMPARE(EscapedValue(value, '"'), QString("&lt;a &amp; &quot;b&quot; 'c'>&#10;"));
    QCOMPARE(EscapedValue(value, '\''), QString("&lt;a &amp; \"b\" &apos;c&apos;>&#10;"));
}

QTEST_GUILESS_MAIN(TestXmlPositions)
#include "test_xml_positions.moc"
