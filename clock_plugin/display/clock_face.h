// display/: what the faces of one DrawDisplayImage share: the node and its settings, the elements,
// the displayed time and the two frames.
#pragma once

#include "calendar/clock_time.h"
#include "clock_node.h"
#include "compose/draw_clock_classify_image.h"
#include "display/frames/frame_pair.h"
#include "display/row_layout.h"
#include "glyph/glyph_drawing.h"
#include "glyph/glyph_set.h"

#include <QColor>
#include <QPainter>
#include <QPointer>
#include <QSize>

namespace Lw::HNodeClock {

/// The host may delete the node during any of these calls: for a deleted node every number is 0,
/// and size and file are empty.
struct SharedByFaces
{
    QSize Size() { return node ? node->Size() : QSize(); }
    int Number(Attribute attribute) { return node ? node->GetAttributeToInt(Key(attribute)) : 0; }
    int Number(int (HClockNode::*setting)()) { return node ? (node->*setting)() : 0; }
    QColor Colour(Attribute attribute) { return ColourOf(Number(attribute)); }
    QString File(Glyph glyph) { return node ? node->GetFirstFile(GlyphKey(glyph)) : QString(); }
    ElementComposer &Elements() { return composer.Elements(); }

    QPointer<HClockNode> node;
    DrawClockClassifyImage composer;
    QPainter painter; // destroyed before the composer

    /// The displayed time: always Gregorian and in 24-hour form.
    DisplayedFields now {0, 0, 0, 0, 0, -1, 0};
    int frameWidth = 0; ///< pixels; the node's width when the frame was begun
    Rows tops;          ///< top edges of the text rows
    FramePair frames;
};

} // namespace Lw::HNodeClock
