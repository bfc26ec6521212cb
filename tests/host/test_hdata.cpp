// The attribute store and the file records of a node.
#include "hnode.h"

#include <QtTest>

#include <limits>

using Lw::FileRecord;
using Lw::HNode;

class TestHData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AbsentKeyIsEmptyAndZero();
    void TextStaysAsItIs_data();
    void TextStaysAsItIs();
    void TextReadAsNumber_data();
    void TextReadAsNumber();
    void NumberReadAsText_data();
    void NumberReadAsText();
    void LastWriteCountsInEitherKind();
    void KeysStandInOrderOfFirstWriting();
    void AbsentFileHasNoPath();
    void FileRecordKeepsEveryField();
    void FileRecordIsReplacedInPlace();
    void FilesAndAttributesAreTwoNameSpaces();
    void GuidIsNoAttribute();
    void ManyKeysStayFast();
};

void TestHData::AbsentKeyIsEmptyAndZero()
{
    HNode node;
    QCOMPARE(node.GetAttribute("ClockType"), QString());
    QCOMPARE(node.GetAttributeToInt("ClockType"), 0);
    QVERIFY(!node.HaveAttribute("ClockType"));
    QVERIFY(node.AttributeKeys().isEmpty());
}

void TestHData::TextStaysAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString("");
    QTest::newRow("embedded zero") << QString::fromLatin1("before\0after", 12);
    QTest::newRow("only zeros") << QString(3, QChar(0));
    QTest::newRow("70 000 characters") << QString(70000, QChar('x'));
    QTest::newRow("right-to-left marks")
        << QString::fromUtf8("\u200fساعة\u200e LED \u202eabc\u202c");
    QTest::newRow("surrogate pair") << QString::fromUtf8("\U0001f570");
    QTest::newRow("lone surrogate") << QString(QChar(0xd800));
    QTest::newRow("white space") << QString(" \t\r\n ");
    QTest::newRow("format directives") << QString("%n%s%1");
}

void TestHData::TextStaysAsItIs()
{
    QFETCH(QString, text);
    HNode node;
    node.SetAttribute("AnalogTopText", text, false);
    QCOMPARE(node.GetAttribute("AnalogTopText"), text);
    QVERIFY(node.HaveAttribute("AnalogTopText"));
    node.SetAttribute(text, QString("value"), false);
    QCOMPARE(node.GetAttribute(text), QString("value"));
}

void TestHData::TextReadAsNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("plain") << "12" << 12;
    QTest::newRow("minus") << "-7" << -7;
    QTest::newRow("plus") << "+7" << 7;
    QTest::newRow("leading zeros") << "0008" << 8;
    QTest::newRow("blanks around") << " 12\t" << 12;
    QTest::newRow("no-break space") << QString(QChar(0xa0)) + "12" << 12;
    QTest::newRow("ideographic space") << QString(QChar(0x3000)) + "12" << 12;
    QTest::newRow("largest") << "2147483647" << 2147483647;
    QTest::newRow("smallest") << "-2147483648" << std::numeric_limits<int>::min();
    QTest::newRow("one above the largest") << "2147483648" << 0;
    QTest::newRow("does not wrap") << "4294967297" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("word") << "true" << 0;
    QTest::newRow("number and unit") << "12abc" << 0;
    QTest::newRow("hexadecimal") << "0x1F" << 0;
    QTest::newRow("exponent") << "1e3" << 0;
    QTest::newRow("fraction") << "12.5" << 0;
    QTest::newRow("thousands") << "1,000" << 0;
    QTest::newRow("two signs") << "--1" << 0;
    QTest::newRow("both signs") << "+-5" << 0;
    QTest::newRow("typographic minus") << QString(QChar(0x2212)) + "5" << -5;
    QTest::newRow("no-break space behind") << "12" + QString(QChar(0xa0)) << 12;
    QTest::newRow("zero character behind") << QString::fromLatin1("12\0", 3) << 0;
    QTest::newRow("full-width digits") << QString::fromUtf8("１２") << 0;
    QTest::newRow("zero character inside") << QString::fromLatin1("1\0002", 3) << 0;
}

void TestHData::TextReadAsNumber()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    HNode node;
    node.SetAttribute("ClockType", text, false);
    QCOMPARE(node.GetAttributeToInt("ClockType"), number);
    QCOMPARE(node.GetAttribute("ClockType"), text);
}

void TestHData::NumberReadAsText_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("negative") << -18000 << "-18000";
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "2147483647";
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << "-2147483648";
}

void TestHData::NumberReadAsText()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    HNode node;
    node.SetAttribute("Id", number, false);
    QCOMPARE(node.GetAttribute("Id"), text);
    QCOMPARE(node.GetAttributeToInt("Id"), number);
}

void TestHData::LastWriteCountsInEitherKind()
{
    HNode node;
    node.SetAttribute("Id", 5, false);
    node.SetAttribute("Id", QString("seven"), true);
    QCOMPARE(node.GetAttribute("Id"), QString("seven"));
    QCOMPARE(node.GetAttributeToInt("Id"), 0);
    node.SetAttribute("Id", 9, true);
    QCOMPARE(node.GetAttribute("Id"), QString("9"));
}

void TestHData::KeysStandInOrderOfFirstWriting()
{
    HNode node;
    node.SetAttribute("b", 1, false);
    node.SetAttribute("a", 1, false);
    node.SetAttribute("B", QString(), false);
    node.SetAttribute("b", 2, false);
    QCOMPARE(node.AttributeKeys(), QStringList({"b", "a", "B"}));
}

void TestHData::AbsentFileHasNoPath()
{
    HNode node;
    QCOMPARE(node.GetFirstFile("_lunar"), QString());
    QVERIFY(!node.HaveSourcFile());
    QVERIFY(node.FileRecords().isEmpty());
}

void TestHData::FileRecordKeepsEveryField()
{
    HNode node;
    node.SetFilePath("_lunar", "/a/../b.png", "digest", 5000000000LL, 3);
    const FileRecord record = node.FileRecords().value(0);
    QCOMPARE(record.key, QString("_lunar"));
    QCOMPARE(record.path, QString("/a/../b.png"));
    QCOMPARE(record.name, QString("digest"));
    QCOMPARE(record.size, 5000000000LL);
    QCOMPARE(record.kind, 3);
    QVERIFY(node.HaveSourcFile());
}

void TestHData::FileRecordIsReplacedInPlace()
{
    HNode node;
    node.SetFilePath("_lunar", "/old.png", "", -1, 3);
    node.SetFilePath("_space", "/space.png", "", -1, 3);
    node.SetFilePath("_lunar", "/new.png", "", -1, 3);
    QCOMPARE(node.GetFirstFile("_lunar"), QString("/new.png"));
    QCOMPARE(node.FileRecords().size(), 2);
    QCOMPARE(node.FileRecords().at(0).path, QString("/new.png"));
    QCOMPARE(node.FileRecords().at(1).path, QString("/space.png"));
}

void TestHData::FilesAndAttributesAreTwoNameSpaces()
{
    HNode node;
    node.SetAttribute("Id", 1234, false);
    node.SetFilePath("Id", "/id.png", "", -1, 3);
    QCOMPARE(node.GetAttributeToInt("Id"), 1234);
    QCOMPARE(node.GetFirstFile("Id"), QString("/id.png"));
    node.SetFilePath("Name", "/name.png", "", -1, 3);
    QVERIFY(!node.HaveAttribute("Name"));
}

void TestHData::GuidIsNoAttribute()
{
    HNode node;
    QCOMPARE(node.GetGuid(), QString());
    node.SetGuid("{1}");
    QCOMPARE(node.GetGuid(), QString("{1}"));
    QVERIFY(node.AttributeKeys().isEmpty());
}

void TestHData::ManyKeysStayFast()
{
    HNode node;
    for (int i = 0; i < 20000; ++i) {
        node.SetAttribute(QString::number(i), i, false);
        node.SetFilePath(QString::number(i), "/f", "", i, 3);
    }
    QCOMPARE(node.AttributeKeys().size(), 20000);
    QCOMPARE(node.FileRecords().size(), 20000);
    QCOMPARE(node.GetAttributeToInt("19999"), 19999);
}

QTEST_GUILESS_MAIN(TestHData)
#include "test_hdata.moc"
