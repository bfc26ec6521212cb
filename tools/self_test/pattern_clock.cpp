// self_test/: the clock whose glyph images are generated patterns.
#include "frame_checks.h"

#include "glyph/glyph_set.h"

#include <QDateTime>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

constexpr int kCellWidth = 7;
constexpr QSize kDigitalSize(320, 120);
constexpr QSize kAnalogSize(160, 160);

int CellsOf(const GlyphRow &row)
{
    if (row.shape == GlyphShape::DigitStrip)
        return kDigitCells;
    switch (row.glyph) {
    case Glyph::Lunar:
        return kLunarCells;
    case Glyph::DateCh:
    case Glyph::TimeCh:
        return kLabelCells;
    case Glyph::DateChar:
        return kSeparatorCells;
    default:
        return 1;
    }
}

/// A pattern that no other image has, nor any other cell.
QImage Pattern(const GlyphImage &image)
{
    const int index = static_cast<int>(image.row->glyph);
    const int height = 9 + index % 4;
    QImage pattern(CellsOf(*image.row) * kCellWidth, height, QImage::Format_ARGB32);
    for (int y = 0; y < pattern.height(); ++y) {
        for (int x = 0; x < pattern.width(); ++x) {
            const bool clear = (x + 2 * y + image.number) % 4 == 0;
            const QRgb ink = qRgb(20 + 11 * index, 40 + 17 * image.number, 255 - x % 200);
            pattern.setPixel(x, y, clear ? qRgba(0, 0, 0, 0) : ink);
        }
    }
    return pattern;
}

void Set(HClockNode &clock, Attribute attribute, int value)
{
    clock.SetAttribute(Key(attribute), value, false);
}

void ShowEverything(HClockNode &clock)
{
    for (const Attribute shown :
         {Attribute::Analog_TopTexy_d, Attribute::Analog_Date_d, Attribute::Analog_Week_d,
          Attribute::Analog_Lunar_d, Attribute::Analog_AMPM_d, Attribute::Digital_TopTexy_d,
          Attribute::Digital_Date_d, Attribute::Digital_Week_d, Attribute::Digital_Time_d,
          Attribute::Digital_Lunar_d})
        Set(clock, shown, 1);
    Set(clock, Attribute::DigitalDisplayMode, 0);
}

bool WritePatterns(HClockNode &clock, int type, const QString &directory)
{
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, type)) {
        const QString path = QStringLiteral("%1/%2%3%4")
                                 .arg(directory)
                                 .arg(type)
                                 .arg(image.Key(), QLatin1String(kGlyphSuffix));
        if (!Pattern(image).save(path, "PNG"))
            return false;
        clock.SetFilePath(image.Key(), path, QString(), -1, kImageFileKind);
    }
    return true;
}

} // namespace

long long TestInstant()
{
    return QDateTime(QDate(2024, 3, 5), QTime(5, 7, 42), Qt::UTC).toMSecsSinceEpoch();
}

bool SetUpPatternClock(HClockNode &clock, int type, const QString &directory)
{
    clock.InitData();
    Set(clock, Attribute::ClockType, type);
    Set(clock, Attribute::UseDaylightSavingTime, 0);
    clock.SetAttribute(Key(Attribute::TimeZone), QStringLiteral("+08:00"), false);
    ShowEverything(clock);
    clock.SetSize(type == DigitalClock ? kDigitalSize : kAnalogSize);
    return type == PictureClock || WritePatterns(clock, type, directory);
}

} // namespace ClockTool
