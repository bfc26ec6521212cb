// studio/wall: the colours of the editor around the wall, for light and dark desktops.
#pragma once

#include <QColor>

namespace ClockStudio {

inline const QColor kCanvas(0x2b, 0x2e, 0x34);
inline const QColor kWallEdge(0x55, 0x5b, 0x66);
inline const QColor kModuleLine(0x90, 0xa0, 0xb8, 0x48);
inline const QColor kOutline(0x8a, 0x94, 0xa6);
inline const QColor kSelected(0x4d, 0xa3, 0xff);
inline const QColor kGuide(0xff, 0x5c, 0xa8);
inline const QColor kRuler(0x22, 0x25, 0x2a);
inline const QColor kRulerInk(0x9a, 0xa2, 0xb0);
inline const QColor kHintInk(0xb8, 0xc0, 0xcc);

} // namespace ClockStudio
