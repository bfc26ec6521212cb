#include "compose/clock_glyphs.h"

#include "compose/glyph_reading.h"
#include "glyph/glyph_set.h"

#include <QDateTime>
#include <QFileInfo>

#include <iterator>

namespace Lw::HNodeClock {

namespace {

// Indexed by the week code.
constexpr Glyph kWeekFamilies[] = {Glyph::ChWeek, Glyph::EnWeek, Glyph::EnWeekSim,
                                   Glyph::PersiaWeek};

QPixmap LoadGlyph(HClockNode &node, Glyph glyph, int number = 0)
{
    return ReadGlyphFile(node.GetFirstFile(GlyphKey(glyph, number)));
}

QPixmap BlankMonth(const QPixmap &digits)
{
    QPixmap blank(digits.width() / kDigitCells * 2, digits.height());
    blank.fill(Qt::transparent);
    return blank;
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

const QPixmap &LiveGlyph::Load(const QString &path)
{
    const QFileInfo file(path);
    const bool exists = !path.isEmpty() && file.exists();
    const qint64 bytes = exists ? file.size() : -1;
    const qint64 changed = exists ? file.lastModified().toMSecsSinceEpoch() : 0;
    if (path != m_path || bytes != m_bytes || changed != m_changed) {
        m_path = path;
        m_bytes = bytes;
        m_changed = changed;
        m_image = ReadGlyphFile(path);
    }
    return m_image;
}

} // namespace Lw::HNodeClock
