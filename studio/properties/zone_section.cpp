#include "zone_section.h"

#include "zone_dialog.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"
#include "clock_node.h"
#include "clock_status.h"
#include "time_travel.h"

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimeEdit>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// The clock's zone settings, without its adjustment.
ZoneSettings SettingsIn(HClockNode &clock)
{
    ZoneSettings settings = ClockStage::SettingsOf(&clock).value_or(ZoneSettings());
    settings.offset = ParseZoneOffset(clock.GetAttribute(Key(Attribute::TimeZone)));
    return settings;
}

bool IsSame(const ZoneSettings &one, const ZoneSettings &other)
{
    return one.offset == other.offset && one.start == other.start && one.end == other.end;
}

QString DateText(qint64 instant, int offset)
{
    const QDateTime reading =
        QDateTime::fromMSecsSinceEpoch(instant + qint64(offset) * 1000, Qt::UTC);
    return QLocale().toString(reading.date(), QLocale::LongFormat);
}

/// Date and time with seconds, as some zones' settings are wrong for a single second.
QString InstantText(qint64 instant, int offset)
{
    const QDateTime reading =
        QDateTime::fromMSecsSinceEpoch(instant + qint64(offset) * 1000, Qt::UTC);
    return QLocale().toString(reading.date(), QLocale::ShortFormat) + QLatin1Char(' ')
        + QLocale().toString(reading.time(), QStringLiteral("HH:mm:ss"));
}

QString StoredAdjustment(const QTime &time)
{
    return FormatAscii(time, "hh'A'mm'B'ss");
}

} // namespace

ZoneSection::ZoneSection()
    : Section(tr("Time zone")), m_city(new QPushButton), m_note(new QLabel),
      m_adjustment(new QTimeEdit), m_direction(new QComboBox)
{
    m_city->setObjectName(QStringLiteral("ZoneButton"));
    m_city->setAccessibleName(tr("City whose time is shown"));
    m_city->setToolTip(tr("Choose the city whose time the clock shows"));
    m_note->setWordWrap(true);
    m_adjustment->setLayoutDirection(Qt::LeftToRight); // or hours and seconds are swapped
    m_adjustment->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    m_adjustment->setKeyboardTracking(false);
    m_adjustment->setObjectName(QStringLiteral("AdjustmentEdit"));
    m_adjustment->setAccessibleName(tr("Adjustment"));
    m_direction->addItem(tr("ahead"));
    m_direction->addItem(tr("behind"));
    m_direction->setObjectName(QStringLiteral("AdjustmentDirection"));
    m_direction->setAccessibleName(tr("Direction of the adjustment"));
    AddLine(tr("City"), {m_city});
    AddWide(m_note);
    AddLine(tr("Adjust by"), {m_adjustment, m_direction});
    connect(m_city, &QPushButton::clicked, this, &ZoneSection::OpenDialog);
    connect(m_adjustment, &QTimeEdit::timeChanged, this, &ZoneSection::ApplyAdjustment);
    connect(m_direction, QOverload<int>::of(&QComboBox::activated), this,
            &ZoneSection::ApplyAdjustment);
}

void ZoneSection::Show(const QVector<HClockNode *> &clocks)
{
    m_isShowing = true;
    HClockNode &clock = *clocks.first();
    const ZoneSettings first = SettingsIn(clock);
    bool isMixed = false;
    for (HClockNode *const other : clocks) {
        const ZoneSettings settings = SettingsIn(*other);
        isMixed = isMixed || !IsSame(settings, first);
    }
    const bool isUtc = first.offset == 0 && !first.HasDaylightSaving();
    const QString city = isMixed ? QString()
        : isUtc                  ? QStringLiteral("UTC")
                                 : ZoneOf(first, QDate::currentDate()).city;
    m_city->setText(isMixed              ? tr("Several zones")
                        : city.isEmpty() ? QStringLiteral("UTC%1").arg(first.ZoneText())
                                         : QStringLiteral("%1 (%2)").arg(city, first.ZoneText()));
    m_note->setText(isMixed ? QString() : NoteOn(clock));
    m_note->setVisible(!m_note->text().isEmpty());
    const int seconds = ParseAdjustment(clock.GetAttribute(Key(Attribute::TimeAdjust)));
    m_adjustment->setTime(QTime(0, 0).addSecs(seconds));
    m_direction->setCurrentIndex(clock.GetAttributeToInt(Key(Attribute::AdjustType)) == 1 ? 1 : 0);
    m_isShowing = false;
}

/// The next change, and how long the rules are right; or why they cannot be.
QString ZoneSection::NoteOn(HClockNode &clock) const
{
    const ZoneSettings zone = SettingsIn(clock);
    if (!m_inexact.isEmpty() && IsSame(zone, m_inexactZone))
        return m_inexact;
    const auto settings = ClockStage::SettingsOf(&clock);
    if (!settings || !settings->HasDaylightSaving())
        return tr("No daylight saving.");
    const auto next = NextChange(*settings, ClockStage::StageTime::Shown());
    if (!next)
        return tr("Daylight saving is on, but its rules are invalid.");
    const QString date = DateText(next->instant, next->before);
    const QString change = next->after > next->before
        ? tr("Daylight saving begins on %1.").arg(date)
        : tr("Daylight saving ends on %1.").arg(date);
    return change + QLatin1Char(' ') + ValidityText(zone);
}

QString ZoneSection::ValidityText(const ZoneSettings &zone)
{
    const KnownZone known = ZoneOf(zone, QDate::currentDate());
    if (known.city.isEmpty())
        return tr("No known zone has these rules.");
    return tr("The rules hold for %1 until %2 at least.")
        .arg(known.city, DateText(known.rightUntil - 1, zone.offset));
}

/// Why no settings give the zone's time, and when the clock will be wrong.
QString ZoneSection::InexactText(const ZoneAnswer &answer)
{
    const QString reason = answer.otherShift != 0
        ? tr("Daylight saving moves this zone's time by %n minute(s); a clock can only move by an "
             "hour.",
             nullptr, answer.otherShift / kSecondsPerMinute)
        : tr("This zone's changes are not on the same weekday of a month every year, such as the "
             "last Sunday.");
    const ClockZones::WrongTime &first = answer.wrong.first();
    const int offset = answer.settings.offset;
    const QString times =
        tr("The clock will be wrong %n time(s) in the next ten years, first from "
           "%1 to %2.",
           nullptr, answer.wrong.size())
            .arg(InstantText(first.begin, offset), InstantText(first.end, offset));
    return reason + QLatin1Char(' ') + times;
}

void ZoneSection::OpenDialog()
{
    ZoneDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted && !dialog.Zone().isEmpty())
        Choose(dialog.Zone());
}

void ZoneSection::Choose(const QByteArray &zone)
{
    const auto answer = SettingsFor(zone, QDate::currentDate());
    if (!answer)
        return;
    m_inexactZone = answer->settings;
    m_inexact = answer->wrong.isEmpty() ? QString() : InexactText(*answer);
    const ZoneSettings &settings = answer->settings;
    const int saves = settings.HasDaylightSaving() ? 1 : 0;
    // Rules that are no longer used are emptied: lint would warn of them.
    emit Edited({{Attribute::TimeZone, settings.ZoneText()},
                 {Attribute::UseDaylightSavingTime, QString::number(saves)},
                 {Attribute::DaylightSavingTimeStart, settings.start},
                 {Attribute::DaylightSavingTimeEnd, settings.end}},
                tr("Time zone"));
}

void ZoneSection::ApplyAdjustment()
{
    if (m_isShowing)
        return;
    emit Edited({{Attribute::AdjustType, QString::number(m_direction->currentIndex())},
                 {Attribute::TimeAdjust, StoredAdjustment(m_adjustment->time())}},
                tr("Adjustment"));
}

} // namespace ClockStudio
