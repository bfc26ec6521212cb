// The document: random edits undone to the first byte and redone to the last.
#include "sample_programs.h"

#include "text/program_edits.h"
#include "text/studio_document.h"

#include <QRandomGenerator>
#include <QSignalSpy>

using namespace ClockStudio;

namespace {

constexpr int kEdits = 1000;

/// Programs in every encoding and with every line end.
struct Form
{
    const char *name;
    TextForm form;
    const char *lineEnd;
};

const Form kForms[] = {
    {"UTF-8", {"UTF-8", {}}, "\n"},
    {"UTF-8 with a mark, CR LF", {"UTF-8", "\xef\xbb\xbf"}, "\r\n"},
    {"UTF-16LE", {"UTF-16LE", "\xff\xfe"}, "\r\n"},
    {"UTF-16BE", {"UTF-16BE", "\xfe\xff"}, "\n"},
    {"GB18030, CR", {"GB18030", {}}, "\r"},
};

QByteArray SampleIn(const Form &form, const QString &path)
{
    QString text = QString::fromUtf8(ContentsOf(path));
    // The declaration says what the bytes are, or a parser refuses them.
    text.replace("UTF-8",
                 QString::fromLatin1(form.form.codec).remove(QRegularExpression("[LB]E$")));
    return EncodeText(text.replace("\n", form.lineEnd), form.form).value();
}

QString RandomText(QRandomGenerator &random)
{
    static const QString letters = QString::fromUtf8("ab<>\"'&/ =\n\xe6\x97\xb6\xd8\xb4");
    QString text;
    for (int i = random.bounded(6); i > 0; --i)
        text += letters[random.bounded(letters.size())];
    return text;
}

TextEdit TypedEdit(const QString &text, QRandomGenerator &random)
{
    const int begin = random.bounded(text.size() + 1);
    const int end = qMin(text.size(), begin + random.bounded(8));
    return Replacement(text, {begin, end}, RandomText(random));
}

/// What the wall and the panel do: geometry, attributes, new and removed elements.
TextEdits StructuredEdits(const ParsedProgram &parsed, QRandomGenerator &random)
{
    const int element = random.bounded(parsed.elements.size());
    switch (parsed.AreaCount() > 0 ? random.bounded(4) : 1) {
    case 0:
        return InSequence(GeometryEdits(parsed, random.bounded(parsed.AreaCount()),
                                        QRect(random.bounded(99), random.bounded(99), 8, 9)));
    case 1:
        return {SetAttributeEdit(parsed, element, "color", RandomText(random))};
    case 2:
        return {RemoveElementEdit(parsed, parsed.AreaElement(0))};
    default:
        return {AppendChildEdit(parsed, parsed.ClockElement(0), "<date format=\"1\"/>")};
    }
}

} // namespace

class TestStudioDocument : public QObject
{
    Q_OBJECT

private slots:
    void RandomEdits_data();
    void RandomEdits();
    void OpenAndSave();
    void MergesOneDrag();
    void LastProgramStays();
    void RefusesBytesThatAreNoText();
    void NothingChanged();
};

void TestStudioDocument::RandomEdits_data()
{
    QTest::addColumn<int>("form");
    for (int i = 0; i < int(std::size(kForms)); ++i)
        QTest::newRow(kForms[i].name) << i;
}

void TestStudioDocument::RandomEdits()
{
    QFETCH(int, form);
    const quint32 seed = qEnvironmentVariableIsSet("CLOCK_TEST_SEED")
        ? qEnvironmentVariableIntValue("CLOCK_TEST_SEED")
        : QRandomGenerator::global()->generate();
    qInfo("CLOCK_TEST_SEED=%u", seed);
    QRandomGenerator random(seed);
    const QByteArray first = SampleIn(kForms[form], SamplePaths().at(random.bounded(10)));
    StudioDocument document;
    QVERIFY(document.Load(first));
    QStringList texts {document.Text()};
    while (texts.size() <= kEdits) {
        const bool isTyped = !document.Parsed() || random.bounded(10) == 0;
        if (!document.Parsed() && random.bounded(2) == 0 && document.History().canUndo()) {
            document.History().undo(); // people take back what breaks the text
            texts.removeLast();
            continue;
        }
        const TextEdits edits = isTyped ? TextEdits {TypedEdit(document.Text(), random)}
                                        : StructuredEdits(*document.Parsed(), random);
        const int steps = document.History().index();
        document.Change(edits, "edit");
        if (document.History().index() > steps)
            texts.append(document.Text());
    }
    const QString last = document.Text();
    for (int i = kEdits - 1; i >= 0; --i) {
        document.History().undo();
        QVERIFY(document.Text() == texts[i]);
    }
    QCOMPARE(document.Bytes().value(), first);
    for (int i = 1; i <= kEdits; ++i) {
        document.History().redo();
        QVERIFY(document.Text() == texts[i]);
    }
    QVERIFY(document.Text() == last);
}

void TestStudioDocument::OpenAndSave()
{
    for (const QString &path : SamplePaths()) {
        for (const Form &form : kForms) {
            const QByteArray bytes = SampleIn(form, path);
            StudioDocument document;
            QVERIFY(document.Load(bytes));
            QVERIFY2(document.Parsed(), qPrintable(path + ": " + form.name));
            QVERIFY(document.Bytes() == bytes);
        }
    }
}

void TestStudioDocument::MergesOneDrag()
{
    StudioDocument document;
    QVERIFY(document.Load("<program width=\"8\" height=\"8\"/>"));
    for (const int width : {9, 10, 11})
        document.Change(ScreenSizeEdits(*document.Parsed(), {width, 8}), "width", "width");
    QCOMPARE(document.History().count(), 1);
    document.EndMerging();
    document.Change(ScreenSizeEdits(*document.Parsed(), {12, 8}), "width", "width");
    QCOMPARE(document.History().count(), 2);
    document.History().undo();
    QCOMPARE(document.Text(), QString("<program width=\"11\" height=\"8\"/>"));
    document.History().undo();
    QCOMPARE(document.Text(), QString("<program width=\"8\" height=\"8\"/>"));
}

void TestStudioDocument::LastProgramStays()
{
    StudioDocument document;
    QVERIFY(document.Load("<program width=\"8\" height=\"8\"/>"));
    document.Change({Replacement(document.Text(), {0, 1}, "")}, "typing");
    QVERIFY(!document.Parsed());
    QVERIFY(document.Fault());
    QCOMPARE(document.LastParsed().program.size, QSize(8, 8));
    document.History().undo();
    QVERIFY(document.Parsed());
    QVERIFY(!document.Fault());
}

void TestStudioDocument::RefusesBytesThatAreNoText()
{
    StudioDocument document;
    QVERIFY(document.Load("<program width=\"8\" height=\"8\"/>"));
    QVERIFY(!document.Load("\xff\xff\xff"));
    QCOMPARE(document.Text(), QString("<program width=\"8\" height=\"8\"/>"));
}

void TestStudioDocument::NothingChanged()
{
    StudioDocument document;
    QVERIFY(document.Load("<program width=\"8\" height=\"8\"/>"));
    QSignalSpy edited(&document, &StudioDocument::Read);
    document.Change(ScreenSizeEdits(*document.Parsed(), {8, 8}), "width");
    document.Change({{3, "", ""}}, "nothing");
    QCOMPARE(edited.count(), 0);
    QVERIFY(!document.History().canUndo());
}

QTEST_GUILESS_MAIN(TestStudioDocument)
#include "test_studio_document.moc"
