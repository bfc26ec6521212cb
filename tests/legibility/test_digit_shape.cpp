// Shapes of pictures that are written out.
#include "legibility/digit_shape.h"

#include <QTest>

using namespace ClockTool;

namespace {

/// "#" is ink.
QImage Picture(const QStringList &rows)
{
    QImage picture(rows[0].size(), rows.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    for (int y = 0; y < rows.size(); ++y) {
        for (int x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] == '#')
                picture.setPixelColor(x, y, Qt::white);
        }
    }
    return picture;
}

} // namespace

class TestDigitShape : public QObject
{
    Q_OBJECT

private slots:
    void Shapes_data();
    void Shapes();
    void SpecksOfTallDigits();
    void InkOnly();
};

void TestDigitShape::Shapes_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("strokes");
    QTest::addColumn<int>("holes");
    const auto row = [](const char *name, const QStringList &rows, int strokes, int holes) {
        QTest::newRow(name) << rows << strokes << holes;
    };
    row("nothing", {"...", "..."}, 0, 0);
    row("one", {".#", "##", ".#", ".#"}, 1, 0);
    row("zero", {"###", "#.#", "#.#", "###"}, 1, 1);
    row("eight", {"###", "#.#", "###", "#.#", "###"}, 1, 2);
    row("eight with a gap, as three", {"###", "..#", "###", "..#", "###"}, 1, 0);
    row("zero with a dot", {"#####", "#...#", "#.#.#", "#...#", "#####"}, 2, 1);
    row("corners connect ink", {".#.", "#.#", ".#."}, 1, 1);
    row("a hole at a gap in a corner", {"##.", "#.#", "###"}, 1, 1);
    row("open to the side", {"###", "#..", "###"}, 1, 0);
    row("colon", {"#", ".", "#"}, 2, 0);
    row("ink up to the edge", {"##", "##"}, 1, 0);
}

void TestDigitShape::Shapes()
{
    QFETCH(QStringList, rows);
    const DigitShape shape = ShapeOf(Picture(rows));
    QTEST(shape.strokes, "strokes");
    QTEST(shape.holes, "holes");
}

// A hole of one pixel counts in a digit of 19 rows, not in one of 20.
void TestDigitShape::SpecksOfTallDigits()
{
    for (const int height : {19, 20}) {
        QStringList rows;
        while (rows.size() < height)
            rows.append("####");
        rows[height / 2] = "#.##";
        QCOMPARE(ShapeOf(Picture(rows)).holes, height == 19 ? 1 : 0);
        rows[height / 2 + 1] = "#.##";
        QCOMPARE(ShapeOf(Picture(rows)).holes, 1);
    }
}

void TestDigitShape::InkOnly()
{
    QCOMPARE(InkOf(Picture({"....", "..#.", ".#..", "...."})).size(), QSize(2, 2));
    QVERIFY(InkOf(Picture({"..", ".."})).isNull());
    QCOMPARE(InkOf(Picture({"....", "..#.", ".#.."})), InkOf(Picture({".#", "#."})));
    QVERIFY(InkOf(Picture({".#", "#."})) != InkOf(Picture({"#.", ".#"})));
}

QTEST_GUILESS_MAIN(TestDigitShape)
#include "test_digit_shape.moc"
