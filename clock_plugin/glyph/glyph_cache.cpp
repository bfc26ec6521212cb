#include "glyph/glyph_cache.h"

#include <QDataStream>
#include <QFont>
#include <QFontMetrics>
#include <QIODevice>
#include <QScreen>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// Cache limits in bytes. A set at 48 points takes about 75 KB of files and 20 KB of facts.
constexpr int kMaxFileBytes = 1 << 20;
constexpr int kMaxFactBytes = 1 << 20;

int CostOf(const GlyphContent &content, const GlyphFacts &facts)
{
    constexpr int kOverhead = 150; // bytes per entry
    return kOverhead + content.face.size()
        + static_cast<int>(sizeof(QChar))
        * (content.text.size() + facts.charactersWithoutGlyph.size());
}

bool HasLetter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.isLetterOrNumber(); });
}

} // namespace

bool operator==(const GlyphContent &one, const GlyphContent &other)
{
    return one.shape == other.shape && one.colour == other.colour && one.text == other.text
        && one.face == other.face;
}

HashValue qHash(const GlyphContent &content, HashValue seed)
{
    return qHash(content.text, seed) ^ qHash(content.face, seed) ^ ::qHash(content.colour, seed)
        ^ ::qHash(static_cast<int>(content.shape), ~seed);
}

// Text without strong directional letters follows the application's layout direction, and points
// become pixels by the first screen's resolution.
QByteArray FontIdentity(const QFont &font)
{
    QByteArray face;
    QDataStream stream(&face, QIODevice::WriteOnly);
    stream << font << QFont::substitutes(font.family())
           << static_cast<int>(QGuiApplication::layoutDirection());
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        stream << screen->logicalDotsPerInchX() << screen->logicalDotsPerInchY();
    return face;
}

GlyphCache::GlyphCache() : m_facts(kMaxFactBytes), m_files(kMaxFileBytes) { }

GlyphCache &GlyphCache::Shared()
{
    static GlyphCache cache;
    cache.FollowApplication();
    return cache;
}

void GlyphCache::FollowApplication()
{
    if (m_application && m_application == qGuiApp)
        return;
    Forget();
    m_application = qGuiApp;
    if (m_application)
        QObject::connect(
            m_application, &QGuiApplication::fontDatabaseChanged, &m_listener, [this] { Forget(); },
            Qt::DirectConnection);
}

DrawnGlyph GlyphCache::Find(const GlyphContent &content)
{
    DrawnGlyph glyph;
    if (const GlyphFacts *const facts = m_facts.object(content)) {
        glyph.state = GlyphState::Drawn;
        glyph.facts = *facts;
        const QByteArray *const file = m_files.object(content);
        glyph.file = file ? *file : QByteArray();
    }
    return glyph;
}

void GlyphCache::Keep(const GlyphContent &content, const DrawnGlyph &glyph)
{
    if (glyph.state != GlyphState::Drawn)
        return;
    ++m_drawnImages;
    // Without any font no letter has a glyph. This spares loading the default font.
    if (glyph.facts.charactersWithoutGlyph.isEmpty() && HasLetter(content.text))
        m_hasFonts = true;
    const int cost = CostOf(content, glyph.facts);
    m_facts.insert(content, new GlyphFacts(glyph.facts), cost);
    m_files.insert(content, new QByteArray(glyph.file), cost + glyph.file.size());
}

void GlyphCache::Forget()
{
    m_facts.clear();
    m_files.clear();
    m_hasFonts.reset();
}

// QFontDatabase is no help: Qt lists its own families even if no font is installed.
bool GlyphCache::HasFonts()
{
    if (!m_hasFonts)
        m_hasFonts = QFontMetrics(QGuiApplication::font()).inFont(QLatin1Char('0'));
    return *m_hasFonts;
}

} // namespace Lw::HNodeClock
