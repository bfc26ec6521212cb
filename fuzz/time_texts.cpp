// fuzz/: target: parses zone, adjustment and daylight-saving rules, and reads the time with them.
//
// Lines of an input: zone, adjustment, start rule, end rule, adjust type, instant.
#include "calendar/clock_time.h"
#include "calendar/device_clock.h"
#include "clock_node.h"
#include "compose/draw_clock_classify_image.h"
#include "fuzz_target.h"

#include "chosen_time.h"

#include <QByteArray>
#include <QStringList>

#include <cstdlib>

using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kDay = 86400000;
// Three fields of two characters, which need not be a valid time: at most "99A99B99"; with signs
// less.
constexpr int kMaximumAdjustment = 99 * 3600 + 99 * 60 + 99;

void CheckTexts(const QString &zone, const QString &adjustment, int adjustType)
{
    const int offset = ParseZoneOffset(zone);
    Fuzz::Expect(std::abs(offset) < 86400, "a zone is less than a day away");
    const int correction = ParseAdjustment(adjustment);
    Fuzz::Expect(std::abs(correction) <= kMaximumAdjustment, "an adjustment has two digits each");
    Fuzz::Expect(ClockOffset(zone, adjustment, adjustType)
                     == offset + (adjustType == 1 ? -correction : correction),
                 "zone and adjustment add up");
}

void CheckRule(const QString &text, int year)
{
    const std::optional<DaylightRule> rule = ParseDaylightRule(text);
    if (!rule)
        return;
    const QDateTime boundary = BoundaryInYear(*rule, year);
    if (!boundary.isValid())
        return;
    const QDate date = boundary.date();
    Fuzz::Expect(date.year() == year && date.month() == rule->month, "a boundary keeps its month");
    Fuzz::Expect(date.dayOfWeek() == rule->weekday, "a boundary keeps its weekday");
    if (rule->occurrence == DaylightRule::kLast)
        Fuzz::Expect(date.addDays(7).month() != date.month(), "the last is the last");
    else
        Fuzz::Expect((date.day() - 1) / 7 + 1 == rule->occurrence, "the nth is the nth");
}

// An object with cached boundaries must answer like a fresh one.
void CheckShift(const QString &start, const QString &end, qint64 reading)
{
    static DaylightSaving kept;
    for (const qint64 at : {reading, reading + 200 * kDay, reading - 200 * kDay}) {
        DaylightSaving fresh;
        const int shift = kept.ShiftSeconds(start, end, at);
        Fuzz::Expect(shift == fresh.ShiftSeconds(start, end, at), "a cached rule equals a new one");
        Fuzz::Expect(shift == 0 || shift == DaylightSaving::kShiftSeconds, "an hour or none");
    }
}

void ReadThroughClock(const QStringList &texts, int adjustType, qint64 instant)
{
    HClockNode node;
    node.InitData();
    const auto set = [&node](Attribute attribute, const QString &text) {
        node.SetAttribute(Key(attribute), text, false);
    };
    set(Attribute::TimeZone, texts.value(0));
    set(Attribute::TimeAdjust, texts.value(1));
    set(Attribute::DaylightSavingTimeStart, texts.value(2));
    set(Attribute::DaylightSavingTimeEnd, texts.value(3));
    node.SetAttribute(Key(Attribute::AdjustType), adjustType, false);
    node.SetAttribute(Key(Attribute::UseDaylightSavingTime), 1, false);
    node.SetAttribute(Key(Attribute::ClockType), 2, false); // no glyphs to load
    ChosenTime::Milliseconds() = instant;
    clock_set_time_source([] { return ChosenTime::Milliseconds(); });
    DrawClockClassifyImage composer;
    composer.InitParameters(&node);
    QDateTime reading;
    const int weekday = composer.CalculateTimeZone(reading);
    Fuzz::Expect(weekday >= 0 && weekday <= 7, "a weekday");
    composer.AnalyzeDaylightSavingTime(reading.date(), texts.value(2));
    composer.CountPersianDate(reading.date());
    composer.GetLunarDate();
    node.SetTimeAdjust(static_cast<int>(instant));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList texts =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size))
            .split(QLatin1Char('\n'));
    const int adjustType = texts.value(4).toInt();
    const qint64 instant = texts.value(5).toLongLong();
    CheckTexts(texts.value(0), texts.value(1), adjustType);
    CheckRule(texts.value(2), SplitReading(instant).year);
    CheckShift(texts.value(2), texts.value(3), instant / 2);
    ReadThroughClock(texts, adjustType, instant);
    return 0;
}
