// glyph/: a cache of recently drawn glyph images, so that an image needed again, for the same clock
// or another, is neither drawn nor encoded again.
//
// The key is everything the pixels depend on. For each image the facts are cached, for most also
// the encoded file; both caches are bounded (LRU). Adding or removing fonts clears them.
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
    QByteArray face; ///< the FontIdentity() of its font
    int colour = 0;  ///< 0x00BBGGRR
};

bool operator==(const GlyphContent &one, const GlyphContent &other);

using HashValue = decltype(::qHash(QString())); ///< uint in Qt 5, size_t in Qt 6
HashValue qHash(const GlyphContent &content, HashValue seed);

/// Serialises a font and everything else its glyphs depend on: resolution, substitutes, text
/// direction.
QByteArray FontIdentity(const QFont &font);

/// What is known about an image that was drawn.
struct GlyphFacts
{
    qint64 size = 0;   ///< of its file, in bytes
    QByteArray digest; ///< of its file, SHA-1
    bool hasInk = false;
    QString charactersWithoutGlyph; ///< characters that no installed font has
};

enum class GlyphState {
    Drawn,
    Nothing,  ///< the text has no width
    TooLarge, ///< too large for an image or for the available memory
};

struct DrawnGlyph
{
    GlyphState state = GlyphState::TooLarge;
    GlyphFacts facts;
    QByteArray file; ///< the PNG; null if not drawn or no longer cached
};

/// Not thread-safe.
class GlyphCache
{
public:
    /// The process-wide cache; cleared when there is a new application object.
    static GlyphCache &Shared();

    /// State is not Drawn if the image is not cached; Drawn without a file if only the facts are
    /// cached.
    DrawnGlyph Find(const GlyphContent &content);
    /// Caches a glyph; ignores one that was not drawn.
    void Keep(const GlyphContent &content, const DrawnGlyph &glyph);
    void Forget();

    /// Whether any font with digits is installed.
    bool HasFonts();

    /// How many images the process has drawn and encoded.
    int DrawnImages() const { return m_drawnImages; }

private:
    GlyphCache();
    void FollowApplication();

    QPointer<QGuiApplication> m_application;
    QObject m_listener; // disconnects when the library is unloaded
    QCache<GlyphContent, GlyphFacts> m_facts;
    QCache<GlyphContent, QByteArray> m_files;
    std::optional<bool> m_hasFonts; ///< nullopt until HasFonts() is called
    int m_drawnImages = 0;
};

} // namespace Lw::HNodeClock
