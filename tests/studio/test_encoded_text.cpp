// Files in several encodings become texts and the same bytes again.
#include "sample_programs.h"

#include "text/encoded_text.h"

using namespace ClockStudio;

class TestEncodedText : public QObject
{
    Q_OBJECT

private slots:
    void Forms_data();
    void Forms();
    void Refused_data();
    void Refused();
    void Samples();
    void LackingCharacter();
    void EditedDeclaration();
};

void TestEncodedText::Forms_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("codec");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &text,
                        const char *codec) {
        QTest::newRow(name) << bytes << text << QByteArray(codec);
    };
    row("empty", "", "", "UTF-8");
    row("plain", "<a/>\r\n", "<a/>\r\n", "UTF-8");
    row("UTF-8", "<a b=\"\xe6\x97\xb6\"/>", QString("<a b=\"%1\"/>").arg(QChar(0x65f6)), "UTF-8");
    row("UTF-8 with a mark", "\xef\xbb\xbf<a/>", "<a/>", "UTF-8");
    row("UTF-16LE with a mark", QByteArray("\xff\xfe<\0a\0/\0>\0", 10), "<a/>", "UTF-16LE");
    row("UTF-16BE with a mark", QByteArray("\xfe\xff\0<\0a\0/\0>", 10), "<a/>", "UTF-16BE");
    row("UTF-16LE", QByteArray("<\0a\0/\0>\0", 8), "<a/>", "UTF-16LE");
    // U+65F6 is ca b1 in this encoding.
    row("GB18030", "<?xml version=\"1.0\" encoding=\"GB18030\"?><a b=\"\xca\xb1\"/>",
        QString("<?xml version=\"1.0\" encoding=\"GB18030\"?><a b=\"%1\"/>").arg(QChar(0x65f6)),
        "GB18030");
    row("Latin 1", "<?xml version='1.0' encoding='ISO-8859-1'?><a b=\"\xe9\"/>",
        QString("<?xml version='1.0' encoding='ISO-8859-1'?><a b=\"%1\"/>").arg(QChar(0xe9)),
        "ISO-8859-1");
}

void TestEncodedText::Forms()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QByteArray, codec);
    const auto read = DecodeText(bytes);
    QVERIFY(read);
    QCOMPARE(read->text, text);
    QCOMPARE(read->form.codec, codec);
    const auto written = EncodeText(read->text, read->form);
    QVERIFY(written);
    QCOMPARE(*written, bytes);
}

void TestEncodedText::Refused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("bytes that are no UTF-8") << QByteArray("<a b=\"\xff\xfe\"/>");
    QTest::newRow("cut character") << QByteArray("<a b=\"\xe6\x97");
    QTest::newRow("odd number of bytes") << QByteArray("\xff\xfe<\0a", 5);
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"KLINGON-8\"?><a/>");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
}

void TestEncodedText::Refused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!DecodeText(bytes));
}

void TestEncodedText::Samples()
{
    QVERIFY(SamplePaths().size() >= 10);
    for (const QString &path : SamplePaths()) {
        const QByteArray bytes = ContentsOf(path);
        const auto read = DecodeText(bytes);
        QVERIFY2(read, qPrintable(path));
        QVERIFY(EncodeText(read->text, read->form) == bytes);
    }
}

void TestEncodedText::LackingCharacter()
{
    QVERIFY(!EncodeText(QString(QChar(0x65f6)), {"ISO-8859-1", {}}));
    QVERIFY(EncodeText(QString(QChar(0x65f6)), {"GB18030", {}}));
}

void TestEncodedText::EditedDeclaration()
{
    const auto formed = [](const char *declaration, const TextForm &form) {
        return FormAfterEdits(QString(declaration) + "<a/>", form).codec;
    };
    QCOMPARE(formed("<?xml version=\"1.0\" encoding=\"GB18030\"?>", {}), QByteArray("GB18030"));
    QCOMPARE(formed("", {"GB18030", {}}), QByteArray("UTF-8"));
    QCOMPARE(formed("<?xml version=\"1.0\" encoding=\"GB180\"?>", {}), QByteArray("UTF-8"));
    QCOMPARE(formed("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", {"UTF-16LE", "\xff\xfe"}),
             QByteArray("UTF-16LE"));
}

QTEST_GUILESS_MAIN(TestEncodedText)
#include "test_encoded_text.moc"
