// The y of every row. Heights: top text 10, date 12, week 14, time 20, lunar 16.
#include "display/row_layout.h"

#include <QTest>

#include <climits>

using namespace Lw::HNodeClock;

namespace {

const Rows kHeights {10, 12, 14, 20, 16};
const int kUntouched = -777;
const Rows kNothing {kUntouched, kUntouched, kUntouched, kUntouched, kUntouched};

Rows Flags(const QString &shown)
{
    const auto flag = [&shown](char letter) { return shown.contains(QLatin1Char(letter)) ? 1 : 0; };
    return {flag('t'), flag('d'), flag('w'), flag('h'), flag('l')};
}

QString Text(const Rows &rows)
{
    const auto part = [](const char *name, int y) {
        return y == kUntouched ? QString()
                               : QStringLiteral("%1%2 ").arg(QLatin1String(name)).arg(y);
    };
    return (part("t", rows.topText) + part("d", rows.date) + part("w", rows.week)
            + part("h", rows.time) + part("l", rows.lunar))
        .trimmed();
}

using LayOut = void (*)(const DigitalArea &, Rows &);
constexpr LayOut kByCount[] = {nullptr,         LayOutOneRow,   LayOutTwoRows,
                               LayOutThreeRows, LayOutFourRows, LayOutFiveRows};

// Rows as letters: top text, date, week, time (hour), lunar date.
struct LayoutCase
{
    const char *shown;
    int height;
    int space;
    int swap;
    const char *tops;
};

constexpr LayoutCase kLayouts[] = {
    // One row positions all five.
    {"h", 100, 5, 0, "t45 d44 w43 h40 l42"},
    {"h", 101, 5, 1, "t45 d44 w43 h40 l42"},
    // Two rows: the centre is 50, half of 5 is 2; week and time take the odd pixel above.
    {"dw", 100, 5, 0, "d36 w52"},
    {"dw", 100, 5, 1, "d52 w34"},
    {"dw", 100, 5, 2, "d36 w52"},
    {"td", 100, 5, 0, "t38 d52"},
    {"tw", 100, 5, 1, "t38 w52"},
    {"th", 100, 5, 0, "t38 h52"},
    {"tl", 100, 5, 0, "t38 l52"},
    {"dh", 100, 5, 0, "d36 h52"},
    {"dl", 100, 5, 0, "d36 l52"},
    {"wh", 100, 5, 0, "w33 h52"},
    {"wh", 100, 5, 1, "w33 h52"},
    {"wl", 100, 5, 0, "w33 l52"},
    {"hl", 100, 5, 0, "h27 l52"},
    {"hl", 100, 4, 0, "h28 l52"},
    // Half of -3 is -1, and it is odd.
    {"hl", 100, -3, 0, "h30 l49"},
    {"hl", 100, -4, 0, "h32 l48"},
    // Three rows: the middle one is centred.
    {"tdw", 100, 5, 0, "t28 d62 w43"},
    {"tdw", 100, 5, 1, "t29 d44 w61"},
    {"tdw", 100, 5, 2, "t28 d62 w43"},
    {"tdh", 100, 5, 0, "t29 d44 h61"},
    {"tdl", 100, 5, 0, "t29 d44 l61"},
    {"twh", 100, 5, 1, "t28 w43 h62"},
    {"twl", 100, 5, 1, "t28 w43 l62"},
    {"thl", 100, 5, 0, "t25 h40 l65"},
    {"dwh", 100, 5, 0, "d44 w25 h61"},
    {"dwh", 100, 5, 1, "d26 w43 h62"},
    {"dwl", 100, 5, 0, "d44 w25 l61"},
    {"dwl", 100, 5, 1, "d26 w43 l62"},
    {"dhl", 100, 5, 0, "d23 h40 l65"},
    {"whl", 100, 5, 0, "w21 h40 l65"},
    // Four rows: the gap between the middle two is centred, without an odd pixel.
    {"tdwh", 100, 5, 0, "t19 d52 w34 h69"},
    {"tdwh", 100, 5, 1, "t21 d36 w52 h71"},
    {"tdwl", 100, 5, 0, "t19 d52 w34 l69"},
    {"tdwl", 100, 5, 1, "t21 d36 w52 l71"},
    {"tdhl", 100, 5, 0, "t21 d36 h52 l77"},
    {"twhl", 100, 5, 1, "t19 w34 h52 l77"},
    {"dwhl", 100, 5, 0, "d36 w17 h52 l77"},
    {"dwhl", 100, 5, 1, "d17 w34 h52 l77"},
    {"dwhl", 100, -3, 1, "d28 w37 h49 l66"},
    // Five rows.
    {"tdwhl", 200, 5, 0, "t60 d94 w75 h111 l136"},
    {"tdwhl", 200, 5, 1, "t61 d76 w93 h112 l137"},
    {"tdwhl", 200, 5, 2, "t60 d94 w75 h111 l136"},
    {"tdwhl", 200, 0, 0, "t70 d94 w80 h106 l126"},
};

} // namespace

class TestRowLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Digital_data();
    void Digital();
    void OtherNumbersChangeNothing();
    void Analog_data();
    void Analog();
    void ExtremesStayInRange();
    void Line_data();
    void Line();
};

void TestRowLayout::Digital_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("space");
    QTest::addColumn<int>("swap");
    QTest::addColumn<QString>("tops");
    for (const LayoutCase &layout : kLayouts)
        QTest::addRow("%s in %d, space %d, swap %d", layout.shown, layout.height, layout.space,
                      layout.swap)
            << QString(layout.shown) << layout.height << layout.space << layout.swap
            << QString(layout.tops);
}

void TestRowLayout::Digital()
{
    QFETCH(QString, shown);
    QFETCH(int, height);
    QFETCH(int, space);
    QFETCH(int, swap);
    QFETCH(QString, tops);
    const Rows flags = Flags(shown);
    QCOMPARE(CountRows(flags), shown.size());
    Rows positions = kNothing;
    kByCount[shown.size()]({height, space, swap, flags, kHeights}, positions);
    QCOMPARE(Text(positions), tops);
}

void TestRowLayout::OtherNumbersChangeNothing()
{
    for (const LayOut layOut : {LayOutTwoRows, LayOutThreeRows, LayOutFourRows}) {
        for (const char *const shown : {"", "h", "tdwhl"}) {
            Rows positions = kNothing;
            layOut({100, 5, 0, Flags(shown), kHeights}, positions);
            QCOMPARE(Text(positions), QString());
        }
    }
}

void TestRowLayout::Analog_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QSize>("area");
    QTest::addColumn<int>("space");
    QTest::addColumn<int>("swap");
    QTest::addColumn<QString>("tops");
    const auto row = [](const char *shown, QSize area, int space, int swap, const char *tops) {
        QTest::addRow("%s in %d by %d, space %d, swap %d", shown, area.width(), area.height(),
                      space, swap)
            << QString(shown) << area << space << swap << QString(tops);
    };
    const QSize square(200, 200); // anchors 50 and 150
    row("", square, 0, 0, "t45");
    row("t", square, 0, 0, "t45");
    row("d", square, 5, 0, "t45 d144 w143 l142");
    row("wl", square, 5, 0, "t45 w152 l131");
    row("wl", square, 4, 0, "t45 w152 l132");
    row("dl", square, 5, 1, "t45 d152 l131");
    row("dw", square, 5, 0, "t45 d135 w152");
    row("dw", square, 5, 2, "t45 d135 w152");
    row("dw", square, 5, 1, "t45 d152 w133");
    row("dw", square, -3, 0, "t45 d138 w149");
    row("dwl", square, 0, 0, "t45 d144 w156 l128");
    row("dwl", square, 5, 0, "t45 d144 w161 l123");
    row("dwl", square, 5, 2, "t45 d162 w143 l122");
    row("dwl", square, 5, 1, "t45 d162 w143 l122");
    // Upright: half the height, a quarter of the width up and down. Wide: quarters of the height.
    row("d", QSize(102, 203), 0, 0, "t71 d120 w119 l118");
    row("d", QSize(300, 103), 0, 0, "t20 d69 w68 l67");
    // A square is wide: quarters of 6 are 1, half less a quarter would be 2.
    row("d", QSize(6, 6), 0, 0, "t-4 d-3 w-4 l-5");
}

void TestRowLayout::Analog()
{
    QFETCH(QString, shown);
    QFETCH(QSize, area);
    QFETCH(int, space);
    QFETCH(int, swap);
    QFETCH(QString, tops);
    Rows positions = kNothing;
    LayOutAnalogRows({area.width(), area.height(), space, swap, Flags(shown), kHeights}, positions);
    QCOMPARE(Text(positions), tops);
}

void TestRowLayout::ExtremesStayInRange()
{
    for (const int space : {INT_MAX, INT_MIN, INT_MAX - 1}) {
        for (int count = 2; count <= 5; ++count) {
            Rows positions;
            kByCount[count]({32767, space, 0, Flags(QString("tdwhl").left(count)), kHeights},
                            positions);
            for (const int y : {positions.topText, positions.date, positions.week, positions.time,
                                positions.lunar})
                QVERIFY(qAbs(static_cast<long long>(y)) <= 1 << 24);
        }
        Rows positions;
        LayOutAnalogRows({32767, 32767, space, 1, Flags("dwl"), kHeights}, positions);
        QVERIFY(qAbs(static_cast<long long>(positions.lunar)) <= 1 << 24);
    }
}

void TestRowLayout::Line_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("space");
    QTest::addColumn<qlonglong>("widths");
    QTest::addColumn<int>("count");
    QTest::addColumn<qlonglong>("start");
    QTest::newRow("three with gaps") << 200 << 5 << 100LL << 3 << 45LL;
    QTest::newRow("odd total") << 200 << 5 << 101LL << 3 << 45LL;
    QTest::newRow("one") << 201 << 5 << 30LL << 1 << 85LL;
    QTest::newRow("none") << 200 << 5 << 0LL << 0 << 102LL;
    QTest::newRow("wider than the area") << 100 << 0 << 151LL << 1 << -25LL;
    QTest::newRow("negative total") << 100 << -60 << 31LL << 2 << 64LL;
    QTest::newRow("huge") << 100 << INT_MAX << 0LL << 5 << -4294967244LL;
}

void TestRowLayout::Line()
{
    QFETCH(int, area);
    QFETCH(int, space);
    QFETCH(qlonglong, widths);
    QFETCH(int, count);
    QFETCH(qlonglong, start);
    QCOMPARE(LineStart(area, space, widths, count), start);
}

QTEST_GUILESS_MAIN(TestRowLayout)

#include "test_row_layout.moc"
