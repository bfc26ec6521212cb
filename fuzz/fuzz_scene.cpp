#include "fuzz_scene.h"

#include "fuzz_target.h"

#include "calendar/device_clock.h"
#include "clock_attributes.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"

#include "happconfig.h"

#include "chosen_time.h"

#include <QTemporaryDir>

#include <algorithm>
#include <limits>

using namespace Lw::HNodeClock;

namespace Fuzz {

namespace {

void SetFamilies(HClockNode &node)
{
    for (const AttributeRow &row : kAttributeTable) {
        if (row.role == ValueRole::Family)
            node.SetAttribute(Key(row.attribute), QStringLiteral("DejaVu Sans"), false);
    }
}

void ShowEverything(HClockNode &node)
{
    for (const AttributeRow &row : kAttributeTable) {
        if (row.kind == ValueKind::Flag)
            node.SetAttribute(Key(row.attribute), 1, false);
    }
}

// In a subdirectory, so that EmptyDirectory() does not remove them.
QList<Lw::FileRecord> MakeGlyphs(int clockType)
{
    static QTemporaryDir kept(Directory() + QStringLiteral("kept"));
    const QString before = Lw::HAppConfig::ClockOutputPath();
    Lw::HAppConfig::SetClockOutputPath(kept.path());
    HClockNode node;
    node.InitData();
    node.SetAttribute(Key(Attribute::ClockType), clockType, false);
    SetFamilies(node);
    DrwSourceIMage().DrawClockSourceImage(&node);
    Lw::HAppConfig::SetClockOutputPath(before);
    return node.FileRecords();
}

/// The images of a clock of that type with its default settings, made at the first call and kept
/// until the process ends; none for a picture clock.
const QList<Lw::FileRecord> &PreparedGlyphs(int clockType)
{
    static const QList<Lw::FileRecord> analog = MakeGlyphs(AnalogClock);
    static const QList<Lw::FileRecord> digital = MakeGlyphs(DigitalClock);
    static const QList<Lw::FileRecord> none;
    return clockType == AnalogClock ? analog : clockType == DigitalClock ? digital : none;
}

} // namespace

void MakeScene(HClockNode &node, int clockType)
{
    node.InitData();
    node.SetAttribute(Key(Attribute::ClockType), clockType, false);
    SetFamilies(node);
    ShowEverything(node);
    node.SetSize(QSize(64, 32));
    for (const Lw::FileRecord &record : PreparedGlyphs(clockType))
        node.SetFilePath(record.key, record.path, record.name, record.size, record.kind);
}

void SetTime(long long utcMilliseconds)
{
    ChosenTime::Milliseconds() = utcMilliseconds;
    clock_set_time_source([] { return ChosenTime::Milliseconds(); });
}

void AdvanceTime(int milliseconds)
{
    long long &now = ChosenTime::Milliseconds();
    now = std::min(now, std::numeric_limits<long long>::max() - milliseconds) + milliseconds;
}

} // namespace Fuzz
