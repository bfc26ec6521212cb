// Elements as lists of pieces.
#include "compose/element.h"

#include <QTest>

using namespace Lw::HNodeClock;

namespace {

// "from+width@x" for each piece.
QString Pieces(const Element &element)
{
    QStringList pieces;
    for (int i = 0; i < element.Count(); ++i) {
        const Piece &piece = element.At(i);
        pieces << QStringLiteral("%1+%2@%3").arg(piece.sourceX).arg(piece.width).arg(piece.x);
    }
    return pieces.join(' ');
}

GlyphStrip Strip(int width)
{
    QImage strip(width, 4, QImage::Format_ARGB32);
    strip.fill(Qt::red);
    return GlyphStrip(strip);
}

} // namespace

class TestElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SizesAreBounded_data();
    void SizesAreBounded();
    void PiecesFollowEachOther();
    void ColumnsOutsideTheStripAreBlank();
    void CellOfNoWidthIsNothing();
    void NothingBeginsPastTheCanvas();
    void ContinueAtCutsOff();
    void ComparesImagesNotAddresses();
};

void TestElement::SizesAreBounded_data()
{
    QTest::addColumn<long long>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("size");
    QTest::newRow("ordinary") << 30LL << 8 << QSize(30, 8);
    QTest::newRow("no width") << 0LL << 8 << QSize(0, 0);
    QTest::newRow("no height") << 30LL << 0 << QSize(0, 0);
    QTest::newRow("negative") << -1LL << 8 << QSize(0, 0);
    QTest::newRow("widest") << 32767LL << 512 << QSize(32767, 512);
    QTest::newRow("too wide") << 32768LL << 1 << QSize(0, 0);
    QTest::newRow("too many bytes") << 32767LL << 513 << QSize(0, 0);
    QTest::newRow("beyond int") << (1LL << 32) + 30 << 8 << QSize(0, 0);
}

void TestElement::SizesAreBounded()
{
    QFETCH(long long, width);
    QFETCH(int, height);
    QTEST(Element(width, height).Size(), "size");
}

void TestElement::PiecesFollowEachOther()
{
    const GlyphStrip strip = Strip(30);
    Element element(40, 4);
    element.AddCell(strip, 3, 9);
    element.Skip(5);
    element.Add(strip, 4, 10);
    QCOMPARE(Pieces(element), QStringLiteral("27+3@0 4+10@8"));
}

void TestElement::ColumnsOutsideTheStripAreBlank()
{
    const GlyphStrip strip = Strip(30);
    Element element(40, 4);
    element.AddCell(strip, 3, 10);
    element.AddCell(strip, 3, -1);
    element.Add(strip, 28, 6);
    element.AddCell(GlyphStrip(), 3, 0);
    element.AddCell(strip, 3, 0);
    QCOMPARE(Pieces(element), QStringLiteral("28+2@6 0+3@15"));
}

void TestElement::CellOfNoWidthIsNothing()
{
    const GlyphStrip narrow = Strip(9);
    Element element(40, 4);
    for (int cell = 0; cell < 10; ++cell)
        element.AddCell(narrow, narrow.Width() / 10, cell);
    QCOMPARE(element.Count(), 0);
}

void TestElement::NothingBeginsPastTheCanvas()
{
    const GlyphStrip strip = Strip(30);
    Element element(10, 4);
    element.Add(strip, 0, 8);
    element.Add(strip, 8, 8);
    element.Add(strip, 16, 8);
    QCOMPARE(Pieces(element), QStringLiteral("0+8@0 8+8@8"));
    Element empty;
    empty.Add(strip, 0, 8);
    QCOMPARE(empty.Count(), 0);
}

void TestElement::ContinueAtCutsOff()
{
    const GlyphStrip strip = Strip(30);
    Element element(30, 4);
    element.Add(strip, 0, 8);
    element.Add(strip, 8, 8);
    element.Add(strip, 16, 8);
    element.ContinueAt(10);
    element.Add(strip, 0, 4);
    QCOMPARE(Pieces(element), QStringLiteral("0+8@0 8+2@8 0+4@10"));
}

void TestElement::ComparesImagesNotAddresses()
{
    const GlyphStrip strip = Strip(30);
    const GlyphStrip same = strip;
    const GlyphStrip other = Strip(30);
    Element element(30, 4);
    Element ofCopy(30, 4);
    Element ofOther(30, 4);
    element.Add(strip, 0, 8);
    ofCopy.Add(same, 0, 8);
    ofOther.Add(other, 0, 8);
    QVERIFY(element == ofCopy);
    QVERIFY(element != ofOther);
    ofCopy.Skip(1);
    QVERIFY(element == ofCopy);
    ofCopy.Add(same, 0, 8);
    QVERIFY(element != ofCopy);
}

QTEST_GUILESS_MAIN(TestElement)

#include "test_element.moc"
