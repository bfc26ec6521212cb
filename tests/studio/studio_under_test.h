// A document with its wall, at a chosen time, for the tests of the studio.
#pragma once

#include "sample_programs.h"

#include "editing/wall_editor.h"
#include "text/studio_document.h"
#include "wall/live_wall.h"

struct StudioUnderTest
{
    ClockStudio::StudioDocument document;
    ClockStudio::LiveWall wall;
    ClockStudio::WallEditor editor {document, wall};

    explicit StudioUnderTest(const QByteArray &bytes)
    {
        if (!document.Load(bytes))
            qFatal("no text");
    }

    void WaitForClocks() { QTRY_VERIFY(wall.IsComplete()); }
    const QImage &Screen() const { return wall.Screen(); }
    /// Whether a pixel of exactly this colour is in a part of the screen.
    bool HasColour(const QRect &part, QRgb colour) const
    {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if ((Screen().pixel(x, y) | 0xff000000U) == (colour | 0xff000000U))
                    return true;
            }
        }
        return false;
    }
};
