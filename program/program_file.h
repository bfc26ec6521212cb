// program/: a content program and its file format: a screen, and areas with one element each.
//
//     <program width="256" height="64">
//       <area x="0" y="0" width="256" height="64">
//         <clock type="digital"> ... <attribute key="DigitalSpace" value="2"/> </clock>
//       </area>
//     </program>
//
// The element is read by its plugin. Its "attribute" children are read by the player: they set
// attributes of the node as text, after the plugin has read the element.
#pragma once

#include "failure.h"
#include "xml_document.h"

#include <QDomDocument>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

namespace ClockProgram {

// Limits of a program, so that a mistyped number cannot exhaust the device's memory.
constexpr int kMaximumSide = 32767; ///< pixels; positions are from -kMaximumSide to kMaximumSide
constexpr qint64 kMaximumPixels = 32LL << 20; ///< of the screen, and of all areas together
constexpr int kMaximumAreas = 1024;

// The names of the file's own elements.
const QLatin1String kProgramTag("program");
const QLatin1String kAreaTag("area");
const QLatin1String kAttributeTag("attribute");

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
    QByteArray digest;     ///< SHA-256 of the text that was parsed; empty for a document alone
};

/// Memory of the frames needed to play a program, in bytes: two screens and three frames per area.
qint64 FrameBytes(const Program &program);

/// Above this, a program probably needs more memory than its author intended.
constexpr qint64 kUsualFrameBytes = 256LL << 20;

/// A failure with the amount if the frames take more than kUsualFrameBytes.
MaybeFailure CheckFrameBytes(const Program &program);

/// Reads and checks a program; a failure names the file and, for a fault in the text, the line.
Result<Program> ReadProgram(const QString &path);

/// The same from a file's contents; the path is only named in failures.
Result<Program> ParseProgram(const QByteArray &contents, const QString &path);

/// The same from a parsed document.
Result<Program> InterpretProgram(const QDomDocument &document, const QString &path);

} // namespace ClockProgram
