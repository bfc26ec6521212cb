// Areas in which a dial hardly fits or not at all, and what is drawn in them.
#pragma once

#include "chosen_time.h"
#include "display/draw_display_image.h"

#include <QTest>

inline void AddOddAreas()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("nothing") << QSize(0, 0) << false;
    QTest::newRow("no layout yet") << QSize(-1, -1) << false;
    QTest::newRow("no width") << QSize(0, 50) << false;
    QTest::newRow("no height") << QSize(100, 0) << false;
    QTest::newRow("negative") << QSize(-100, -50) << false;
    QTest::newRow("one pixel") << QSize(1, 1) << true;
    QTest::newRow("two pixels") << QSize(2, 2) << true;
    QTest::newRow("a line") << QSize(10000, 3) << true;
    QTest::newRow("a column") << QSize(1, 9000) << true;
    QTest::newRow("wider than can be painted") << QSize(40000, 10) << false;
    QTest::newRow("higher than can be painted") << QSize(10, 40000) << false;
    QTest::newRow("beyond memory") << QSize(2000000000, 2000000000) << false;
}

/// Three seconds, whose frames are null where nothing is drawn.
inline void CheckThreeFrames(Lw::HNodeClock::DrawDisplayImage &drawer, const QSize &size,
                             bool drawn)
{
    for (int i = 0; i < 3; ++i, ChosenTime::Advance(1000)) {
        const QImage frame = drawer.DrawClockDisplayImage();
        QCOMPARE(frame.isNull(), !drawn);
        if (drawn)
            QCOMPARE(frame.size(), size);
    }
}
