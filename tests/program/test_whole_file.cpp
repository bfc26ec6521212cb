// Writing of files where the system takes nothing and names no error.
#include "whole_file.h"

#include <QtTest>

#include <cerrno>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

int g_emptyWrites = 0; // calls of write() that take nothing
int g_descriptor = -1; // of the last of them

} // namespace

/// Stands in for the C library's.
extern "C" ssize_t write(int file, const void *bytes, size_t count)
{
    if (g_emptyWrites == 0)
        return syscall(SYS_write, file, bytes, count);
    --g_emptyWrites;
    g_descriptor = file;
    return 0;
}

class TestWholeFile : public QObject
{
    Q_OBJECT

private slots:
    void WriteThatTakesNothingFails();
};

void TestWholeFile::WriteThatTakesNothingFails()
{
    g_emptyWrites = 1000;
    const ClockProgram::MaybeFailure failure =
        ClockProgram::WriteFile("/dev/null", "text", ClockProgram::Targets::Any);
    const int left = g_emptyWrites;
    g_emptyWrites = 0;
    QVERIFY(g_descriptor > STDERR_FILENO);
    QCOMPARE(left, 999);
    QVERIFY(failure);
    QVERIFY2(failure->text.contains(qt_error_string(ENOSPC)), qPrintable(failure->text));
}

QTEST_GUILESS_MAIN(TestWholeFile)
#include "test_whole_file.moc"
