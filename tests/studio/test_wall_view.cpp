// The mouse on the wall, and the time bar below it.
#include "studio_under_test.h"

#include "panels/time_bar.h"
#include "wall/wall_painting.h"
#include "wall/wall_view.h"

#include "time_travel.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QPainter>

using namespace ClockStudio;

namespace {

const QByteArray kClock = "<program width=\"64\" height=\"64\">\n"
                          "<area x=\"16\" y=\"16\" width=\"32\" height=\"32\">"
                          "<clock type=\"analog\" timezone=\"+00:00\"/></area>\n</program>\n";

class TestWallView : public QObject
{
    Q_OBJECT

private slots:
    void RightButtonSelects();
    void RightButtonDrawsNothing();
    void GoingToATimeKeepsTheSpeed();
    void NumbersAreNotMirrored();
};

QPoint PointOf(const WallView &view, QPoint pixel)
{
    return view.Scale().ToView({pixel, QSize(1, 1)}).center();
}

/// Moves the pointer to a pixel of the wall.
void Hover(WallView &view, QPoint pixel)
{
    const QPoint place = PointOf(view, pixel);
    QMouseEvent move(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place), Qt::NoButton,
                     {}, {});
    QCoreApplication::sendEvent(view.viewport(), &move);
}

void Click(WallView &view, Qt::MouseButton button, QPoint pixel)
{
    QTest::mouseClick(view.viewport(), button, {}, PointOf(view, pixel));
}

/// The pointer is over the only clock of a wall.
struct HoveredClock : StudioUnderTest
{
    WallView view {editor};

    HoveredClock() : StudioUnderTest(kClock)
    {
        view.resize(200, 200);
        view.show();
        WaitForClocks();
        Hover(view, {32, 32});
    }
};

void TestWallView::RightButtonSelects()
{
    HoveredClock studio;
    Click(studio.view, Qt::RightButton, {32, 32});
    QCOMPARE(studio.editor.Selected(), QVector<int> {0});
}

void TestWallView::RightButtonDrawsNothing()
{
    HoveredClock studio;
    studio.view.Mouse().SetDrawing(ClockKind::Digital);
    Click(studio.view, Qt::RightButton, {32, 32});
    QCOMPARE(studio.document.Text(), QString::fromUtf8(kClock));
}

// Times are stopped at: the speed that the bar shows must be the one they run on with.
void TestWallView::GoingToATimeKeepsTheSpeed()
{
    StudioUnderTest studio(kClock);
    TimeBar bar(studio.wall);
    auto *const speed = bar.findChild<QComboBox *>();
    speed->setCurrentIndex(speed->count() - 1);
    emit speed->activated(speed->count() - 1);
    const double chosen = ClockStage::StageTime::Travel().Speed();
    QVERIFY(chosen > 1);
    bar.GoTo(0);
    QCOMPARE(ClockStage::StageTime::Travel().Speed(), chosen);
    QVERIFY(ClockStage::StageTime::Travel().IsPaused());
    bar.ReturnToPresent();
}

} // namespace

/// Rulers with negative numbers, the place of a dragged rectangle, and the shown time.
void TestWallView::NumbersAreNotMirrored()
{
    const auto painted = [](Qt::LayoutDirection direction) {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setLayoutDirection(direction);
        PaintRulers(painter, {1, {200, 150}}, image.size(), {});
        painter.setLayoutDirection(direction);
        PaintTag(painter, {1, {200, 150}}, {-10, 20, 30, 40}, "-10, 20   30 × 40");
        return image;
    };
    QCOMPARE(painted(Qt::RightToLeft), painted(Qt::LeftToRight));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    StudioUnderTest studio(kClock);
    const TimeBar bar(studio.wall);
    QCOMPARE(bar.findChild<QDateTimeEdit *>()->layoutDirection(), Qt::LeftToRight);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(TestWallView)

#include "test_wall_view.moc"
