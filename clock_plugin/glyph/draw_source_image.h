// glyph/: generates the glyph images of a node: transparent PNG strips of every text that its clock
// can show.
#pragma once

#include "clock_export.h"
#include "clock_node.h"
#include "glyph/glyph_set.h"

#include <QColor>
#include <QFontMetrics>
#include <QObject>
#include <QScopedPointer>
#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

class GuardedNode;
struct GlyphFace;
struct GlyphOutcome;
struct GlyphRequest;
struct UnencodedGlyph;

/// Use one object per generation.
///
/// The host may delete the node within any call to it: then the remaining images are skipped.
///
/// Failures are recorded on the node (host/glyph_faults.h). An image that cannot be made or written
/// leaves an existing file unchanged, but its path is still recorded on the node. It cannot be made
/// if it has width 0, exceeds 32767 pixels per side or 64 MiB, or has a font above 32767 points.
/// The one exception is a top text of width 0: the file of its plain name is removed, so that a
/// cleared text no longer shows.
///
/// Only changed images are drawn: recently drawn images are cached per process, and a file that
/// already has the right bytes is not written.
class CLOCK_EXPORT DrwSourceIMage : public QObject
{
    Q_OBJECT

public:
    DrwSourceIMage();
    ~DrwSourceIMage() override;

    /// Reads type, top text and fonts from the node. For a clock that is neither analog nor digital
    /// only the type is read.
    void InitParameters(HClockNode *node);
    /// Writes one text in an image as wide as its advance and as high as its font, and records the
    /// file on the node under the key. An empty family is the application's default font; a size
    /// of 0 or less is 12 points; the colour is as for IntToQColor.
    void DrawImage(HClockNode *node, QString key, QString text, QString id, QString family,
                   int size, int colour, QString fileSuffix);
    /// The same for the digits 0 to 9, in ten cells of the widest digit's advance.
    void DrawNumberImage(HClockNode *node, QString key, QString id, QString family, int size,
                         int colour, QString fileSuffix);
    int GetNumberMaxWidth(QFontMetrics metrics); ///< the widest advance among "0" to "9", in pixels
    QColor IntToQColor(int colour);              ///< 0x00BBGGRR, always opaque

    // For programs that make the set image by image; InitParameters() is called first, and
    // the Id is the node's. Not exported.

    /// Draws an image of the node's set; nullopt if it cannot be drawn, or need not be because the
    /// cache or its file has it. The image is neither encoded, cached nor written.
    Q_DECL_HIDDEN std::optional<UnencodedGlyph> DrawUnencoded(const GlyphImage &image,
                                                              const QString &id);
    /// Writes an image of the node's set and records its file on the node. Draws and encodes it
    /// unless it is cached.
    Q_DECL_HIDDEN GlyphOutcome DrawGlyph(HClockNode *node, const GlyphImage &image,
                                         const QString &id);

public Q_SLOTS:
    /// Writes the node's whole set and records every file on it. With calcMD5 each file gets its
    /// digest name; with isTempUpdate the text images go to the temporary image directory, the
    /// digit strips still go to the clock output directory. A picture clock has no images.
    void DrawClockSourceImage(HClockNode *node, bool calcMD5 = false, bool isTempUpdate = false);

private:
    struct FontSettings
    {
        QString family;
        int size = 0; // points
        int colour = 0;
    };

    // The class is exported; its private functions are not.
    Q_DECL_HIDDEN void ReadFont(const GuardedNode &node, GlyphFont font);
    Q_DECL_HIDDEN GlyphRequest RequestFor(const GlyphImage &image, const QString &id) const;
    Q_DECL_HIDDEN QString PathOf(GlyphShape shape, const QString &id, const QString &suffix) const;
    Q_DECL_HIDDEN GlyphOutcome Make(HClockNode *node, const QString &key,
                                    const GlyphRequest &request);
    Q_DECL_HIDDEN GlyphOutcome DrawAndWrite(const GlyphRequest &request);
    Q_DECL_HIDDEN const GlyphFace &FaceFor(const QString &family, int size);
    Q_DECL_HIDDEN void Record(HClockNode *node, const QString &key, const QString &path);

    QScopedPointer<QPainter> m_painter;
    QScopedPointer<GlyphFace> m_face; ///< the one used last
    FontSettings m_fonts[kGlyphFontCount];
    QString m_topText;
    QString m_typePrefix;
    int m_clockType = 0;
    bool m_calcMd5 = false;
    bool m_isTempUpdate = false;
};

} // namespace Lw::HNodeClock
