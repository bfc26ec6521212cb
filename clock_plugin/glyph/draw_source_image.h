// Makes the glyph images of a node: transparent PNG strips of every text that its clock can show.
#pragma once

#include "clock_export.h"
#include "clock_node.h"

#include <QColor>
#include <QFontMetrics>
#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// Lives for one generation: made, called once, deleted.
class CLOCK_EXPORT DrwSourceIMage : public QObject
{
    Q_OBJECT

public:
    DrwSourceIMage();
    ~DrwSourceIMage() override;

    void InitParameters(HClockNode *node);
    void DrawImage(HClockNode *node, QString key, QString text, QString id, QString family,
                   int size, int colour, QString fileSuffix);
    void DrawNumberImage(HClockNode *node, QString key, QString id, QString family, int size,
                         int colour, QString fileSuffix);
    int GetNumberMaxWidth(QFontMetrics metrics); ///< the widest advance among "0" to "9", in pixels
    QColor IntToQColor(int colour);              ///< 0x00BBGGRR, always opaque

public Q_SLOTS:
    /// Writes the node's whole set and records every file on it. With calcMD5 each file gets its
    /// digest name; with isTempUpdate the text images go to the temporary image directory, the
    /// digit strips to the clock output directory all the same.
    void DrawClockSourceImage(HClockNode *node, bool calcMD5 = false, bool isTempUpdate = false);

private:
    QPainter *m_painter;
};

} // namespace Lw::HNodeClock
