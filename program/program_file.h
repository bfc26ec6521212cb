// A content program as it stands in its file: a screen, and areas with one element each.
//
//     <program width="256" height="64">
//       <area x="0" y="0" width="256" height="64">
//         <clock type="digital"> ... <attribute key="DigitalSpace" value="2"/> </clock>
//       </area>
//     </program>
//
// What the element means is its plugin's business. Its "attribute" children are the player's: they
// set attributes of the node as text, after the plugin has read the element.
#pragma once

#include "failure.h"

#include <QDomDocument>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

namespace ClockPlayer {

// Limits of a program. They keep a mistyped number from taking the device's memory.
constexpr int kMaximumSide = 32767;             ///< pixels, also of positions, either side of zero
constexpr qint64 kMaximumPixels = 32LL << 20;   ///< of the screen, and of all areas together
constexpr qint64 kMaximumFileSize = 16LL << 20; ///< bytes
constexpr int kMaximumDepth = 64;               ///< of elements in elements
constexpr int kMaximumAreas = 1024;

struct AttributeSetting
{
    QString key;
    QString value;
};

struct ProgramArea
{
    QRect geometry;      ///< pixels from the screen's top left; may reach beyond the screen
    QDomElement element; ///< the one element inside
    QVector<AttributeSetting> attributes;
};

struct Program
{
    QString path;
    QSize size;
    QVector<ProgramArea> areas;
    QDomDocument document; ///< keeps the elements alive
};

/// Reads and checks a program; a failure names the file and the line.
Result<Program> ReadProgram(const QString &path);

/// The same from a file's contents; the path is only named in failures.
Result<Program> ParseProgram(const QByteArray &contents, const QString &path);

/// "path:line: text", for failures and warnings about an element of a program.
QString AtElement(const QString &path, const QDomElement &element, const QString &text);

} // namespace ClockPlayer
