#include "program_watch.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockPlayer;

using Step = ProgramWatch::Step;

class TestProgramWatch : public QObject
{
    Q_OBJECT

private slots:
    void ChangedFileIsReadOnce();
    void BrokenFileIsReportedOnceItStaysTheSame();
    void FileFixedInTimeIsNotReported();
    void Signatures();
};

namespace {

FileSignature Version(int number)
{
    FileSignature signature;
    signature.number = static_cast<quint64>(number);
    return signature;
}

void Write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(text);
}

} // namespace

void TestProgramWatch::ChangedFileIsReadOnce()
{
    ProgramWatch watch(Version(1));
    QVERIFY(watch.Check(Version(1)) == Step::Wait);
    QVERIFY(watch.Check(Version(2)) == Step::Read);
    QVERIFY(watch.Check(Version(2)) == Step::Wait);
}

void TestProgramWatch::BrokenFileIsReportedOnceItStaysTheSame()
{
    ProgramWatch watch(Version(1));
    QVERIFY(watch.Check(Version(2)) == Step::Read);
    watch.Failed();
    QVERIFY(watch.Check(Version(2)) == Step::ReadAndReport);
    QVERIFY(watch.Check(Version(2)) == Step::Wait);
}

void TestProgramWatch::FileFixedInTimeIsNotReported()
{
    ProgramWatch watch(Version(1));
    QVERIFY(watch.Check(Version(2)) == Step::Read);
    watch.Failed();
    QVERIFY(watch.Check(Version(3)) == Step::Read);
    QVERIFY(watch.Check(Version(3)) == Step::Wait);
}

void TestProgramWatch::Signatures()
{
    QTemporaryDir directory;
    const QString path = directory.filePath("a");
    QVERIFY(SignatureOf(path) == FileSignature());
    Write(path, "one");
    const FileSignature one = SignatureOf(path);
    QVERIFY(one != FileSignature());
    QVERIFY(SignatureOf(path) == one);
    Write(path, "longer");
    QVERIFY(SignatureOf(path) != one);
    Write(directory.filePath("b"), "one"); // replaced through a link
    QVERIFY(QFile::link(path, directory.filePath("link")));
    const FileSignature linked = SignatureOf(directory.filePath("link"));
    QVERIFY(QFile::remove(directory.filePath("link")));
    QVERIFY(QFile::link(directory.filePath("b"), directory.filePath("link")));
    QVERIFY(SignatureOf(directory.filePath("link")) != linked);
}

QTEST_GUILESS_MAIN(TestProgramWatch)
#include "test_program_watch.moc"
