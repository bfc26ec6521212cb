// The glyph images that the process has drawn lately, so that an image that is asked for again, for
// this clock or for another, is neither drawn nor encoded again.
//
// An image is known by all that its pixels depend on. Of each the facts are remembered, of most the
// encoded file too; both are bounded, and the least lately used go first. Fonts that are added or
// removed make everything forgotten.
#pragma once

#include "glyph/glyph_set.h"

#include <QByteArray>
#include <QCache>
#include <QGuiApplication>
#include <QPointer>
#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QFont;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// What an image is drawn from. Equal contents give equal files.
struct GlyphContent
{
    GlyphShape shape = GlyphShape::Text;
    QString text;    ///< the ten digits for a strip
    QByteArray face; ///< as FaceOf() describes the font
    int colour = 0;  ///< 0x00BBGGRR
};

bool operator==(const GlyphContent &one, const GlyphContent &other);
uint qHash(const GlyphContent &content, uint seed);

/// A font and what else its glyphs depend on: resolution, substitutes, direction of text.
QByteArray FaceOf(const QFont &font);

/// What is known of an image that was drawn.
struct GlyphFacts
{
    qint64 size = 0;   ///< of its file, in bytes
    QByteArray digest; ///< of its file, SHA-1
    bool hasInk = false;
    QString lackingLetters; ///< that no font has
};

enum class GlyphState {
    Drawn,
    Nothing,  ///< the text has no width
    TooLarge, ///< for an image, or for the memory that is left
};

struct DrawnGlyph
{
    GlyphState state = GlyphState::TooLarge;
    GlyphFacts facts;
    QByteArray file; ///< the PNG; null unless drawn, and where it is forgotten
};

/// Not for use by several threads.
class GlyphMemory
{
public:
    /// The one of the process; empty again where the application is another than before.
    static GlyphMemory &Shared();

    /// Not drawn where it is forgotten; drawn without a file where only that is.
    DrawnGlyph Find(const GlyphContent &content);
    /// Does nothing with a glyph that was not drawn.
    void Keep(const GlyphContent &content, const DrawnGlyph &glyph);
    void Forget();

    /// Whether any font is installed; one without digits is as good as none.
    bool HasFonts();

    /// How many images the process has drawn and encoded.
    int DrawnImages() const { return m_drawnImages; }

private:
    GlyphMemory();
    void FollowApplication();

    QPointer<QGuiApplication> m_application;
    QObject m_listener; // its connections end with the library
    QCache<GlyphContent, GlyphFacts> m_facts;
    QCache<GlyphContent, QByteArray> m_files;
    std::optional<bool> m_hasFonts; ///< once asked
    int m_drawnImages = 0;
};

} // namespace Lw::HNodeClock
