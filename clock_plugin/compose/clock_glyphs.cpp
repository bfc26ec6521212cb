#include "compose/clock_glyphs.h"

#include "glyph/glyph_set.h"

#include <QFile>

#include <iterator>

#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

// Indexed by the week code.
constexpr Glyph kWeekFamilies[] = {Glyph::ChWeek, Glyph::EnWeek, Glyph::EnWeekSim,
                                   Glyph::PersiaWeek};

GlyphStrip LoadGlyph(HClockNode &node, Glyph glyph, int number = 0)
{
    return GlyphStrip::OfFile(node.GetFirstFile(GlyphKey(glyph, number)));
}

GlyphStrip BlankMonth(const GlyphStrip &digits)
{
    return GlyphStrip::Blank({digits.Width() / kDigitCells * 2, digits.Height()});
}

} // namespace

void ClockGlyphs::Load(HClockNode &node, int clockType, int weekType)
{
    topText = LoadGlyph(node, Glyph::TopText);
    lunar = LoadGlyph(node, Glyph::Lunar);
    if (weekType >= 0 && weekType < static_cast<int>(std::size(kWeekFamilies))) {
        weeks.clear();
        for (int day = 1; day <= 7; ++day)
            weeks.append(LoadGlyph(node, kWeekFamilies[weekType], day));
    }
    if (clockType == DigitalClock) {
        timeNumber = LoadGlyph(node, Glyph::TimeNumber);
        timeCh = LoadGlyph(node, Glyph::TimeCh);
        timeChar = LoadGlyph(node, Glyph::TimeChar);
    }
    dateNumber = LoadGlyph(node, Glyph::DateNumber);
    dateCh = LoadGlyph(node, Glyph::DateCh);
    dateChar = LoadGlyph(node, Glyph::DateChar);
    minus = LoadGlyph(node, Glyph::Minus);
    space = LoadGlyph(node, Glyph::Space);
    months.clear();
    months.append(BlankMonth(dateNumber));
    for (int month = 1; month <= 12; ++month)
        months.append(LoadGlyph(node, Glyph::EnMonth, month));
}

const GlyphStrip &LiveGlyph::Load(const QString &path)
{
    struct stat file
    { };
    const bool exists = !path.isEmpty() && stat(QFile::encodeName(path).constData(), &file) == 0;
    const qint64 bytes = exists ? qint64(file.st_size) : -1;
    const qint64 changed =
        exists ? file.st_mtim.tv_sec * Q_INT64_C(1000000000) + file.st_mtim.tv_nsec : 0;
    if (path != m_path || bytes != m_bytes || changed != m_changed) {
        m_path = path;
        m_bytes = bytes;
        m_changed = changed;
        m_image = GlyphStrip::OfFile(path);
    }
    return m_image;
}

} // namespace Lw::HNodeClock
