#include "compose/clock_glyphs.h"

#include <QFile>

#include <iterator>

#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

// Indexed by the week code.
constexpr Glyph kWeekFamilies[] = {Glyph::ChWeek, Glyph::EnWeek, Glyph::EnWeekSim,
                                   Glyph::PersiaWeek};

GlyphStrip BlankMonth(const GlyphStrip &digits)
{
    return GlyphStrip::Blank({digits.Width() / kDigitCells * 2, digits.Height()});
}

} // namespace

GlyphSource RecordedFiles(HClockNode &node)
{
    return [&node](Glyph glyph, int number) {
        return GlyphStrip::OfFile(node.GetFirstFile(GlyphKey(glyph, number)));
    };
}

void ClockGlyphs::Load(const GlyphSource &source, int clockType, int weekType)
{
    topText = source(Glyph::TopText, 0);
    lunar = source(Glyph::Lunar, 0);
    if (weekType >= 0 && weekType < static_cast<int>(std::size(kWeekFamilies))) {
        weeks.clear();
        for (int day = 1; day <= 7; ++day)
            weeks.append(source(kWeekFamilies[weekType], day));
    }
    if (clockType == DigitalClock) {
        timeNumber = source(Glyph::TimeNumber, 0);
        timeCh = source(Glyph::TimeCh, 0);
        timeChar = source(Glyph::TimeChar, 0);
    }
    dateNumber = source(Glyph::DateNumber, 0);
    dateCh = source(Glyph::DateCh, 0);
    dateChar = source(Glyph::DateChar, 0);
    minus = source(Glyph::Minus, 0);
    space = source(Glyph::Space, 0);
    months.clear();
    months.append(BlankMonth(dateNumber));
    for (int month = 1; month <= 12; ++month)
        months.append(source(Glyph::EnMonth, month));
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
