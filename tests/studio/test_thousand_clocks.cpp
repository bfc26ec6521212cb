// A wall of a thousand clocks in the window: it opens, draws, is edited and undone, and takes
// bounded memory.
#include "sample_programs.h"

#include "window/main_window.h"

#include "clock_node.h"

#include <QElapsedTimer>
#include <QStandardPaths>

using namespace ClockStudio;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int kClocks = 100; // instrumented, each takes many times as long
#else
constexpr int kClocks = 1000;
#endif
// Milliseconds, tens of times what an idle machine needs.
constexpr int kMaxForAll = 120000;
constexpr int kMaxForAnEdit = 30000;
constexpr qint64 kMaxMemory = qint64(600) << 20; // bytes
constexpr qint64 kMaxGrowth = qint64(64) << 20;
// Most of the clocks are pictures: a clock with texts writes a hundred files.
constexpr const char *kTypes[] = {"digital", "dial", "picture"};

QByteArray Wall()
{
    QByteArray text = "<program width=\"1280\" height=\"800\">\n";
    for (int i = 0; i < kClocks; ++i) {
        text += QStringLiteral("<area x=\"%1\" y=\"%2\" width=\"32\" height=\"32\">"
                               "<clock type=\"%3\" timezone=\"+01:00\"><title value=\"%4\" "
                               "fontSize=\"8\"/><time fontSize=\"8\"/></clock></area>\n")
                    .arg(i % 40 * 32)
                    .arg(i / 40 * 32)
                    .arg(QLatin1String(kTypes[i % 40 < 2 ? i % 40 : 2]))
                    .arg(i)
                    .toUtf8();
    }
    return text + "</program>\n";
}

/// The memory that the process has, in bytes.
qint64 MemoryInUse()
{
    const QByteArray pages = ContentsOf("/proc/self/statm").split(' ').value(1);
    return pages.toLongLong() * 4096;
}

} // namespace

class TestThousandClocks : public QObject
{
    Q_OBJECT

private slots:
    void OpensDrawsAndIsEdited();
};

void TestThousandClocks::OpensDrawsAndIsEdited()
{
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir work;
    QFile file(work.filePath("wall.xml"));
    QVERIFY(file.open(QFile::WriteOnly) && file.write(Wall()) > 0);
    file.close();
    MainWindow window(work.filePath("recovery"));
    window.show();
    QVERIFY(window.Open(file.fileName()));
    const LiveWall &wall = window.Editor().Wall();
    QCOMPARE(wall.AreaCount(), kClocks);
    QTRY_VERIFY_WITH_TIMEOUT(wall.IsComplete(), kMaxForAll);
    QVERIFY(wall.Clock(kClocks - 1));

    const QString opened = window.Document().Text();
    const QImage before = wall.Screen();
    const qint64 memory = MemoryInUse();
    QElapsedTimer spent;
    for (int i = 0; i < 10; ++i) {
        window.Editor().Select({i * kClocks / 10});
        spent.start();
        window.Editor().MoveBy({3, 3});
        QTRY_VERIFY_WITH_TIMEOUT(wall.IsComplete(), kMaxForAnEdit);
        QVERIFY(spent.elapsed() < kMaxForAnEdit);
    }
    QVERIFY(wall.Screen() != before);
    while (window.Document().History().canUndo())
        window.Document().History().undo();
    QTRY_VERIFY_WITH_TIMEOUT(wall.IsComplete(), kMaxForAnEdit);
    QCOMPARE(window.Document().Text(), opened);
#ifndef __SANITIZE_ADDRESS__
    QVERIFY2(MemoryInUse() < kMaxMemory, qPrintable(QString::number(MemoryInUse())));
    QVERIFY2(MemoryInUse() - memory < kMaxGrowth,
             qPrintable(QString::number(MemoryInUse() - memory)));
#else
    Q_UNUSED(memory)
#endif
}

QTEST_MAIN(TestThousandClocks)
#include "test_thousand_clocks.moc"
