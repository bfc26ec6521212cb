#include "time_bar.h"

#include "time_changes.h"

#include "clock_node.h"
#include "clock_status.h"
#include "pictureplayer.h"
#include "time_travel.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QToolButton>

namespace ClockStudio {

namespace {

namespace StageTime = ClockStage::StageTime;

constexpr int kRefresh = 200;          // refresh interval in milliseconds
constexpr qint64 kBeforeChange = 3000; // milliseconds before the change
constexpr int kMinutesPerDay = 24 * 60;
constexpr double kSpeeds[] = {1, 10, 60, 600, 3600};

struct ChangeName
{
    ChangeKind kind;
    const char *name;
};

constexpr ChangeName kChanges[] = {
    {ChangeKind::DaylightSaving, QT_TRANSLATE_NOOP("ClockStudio::TimeBar", "Daylight saving")},
    {ChangeKind::Midnight, QT_TRANSLATE_NOOP("ClockStudio::TimeBar", "Midnight")},
    {ChangeKind::Month, QT_TRANSLATE_NOOP("ClockStudio::TimeBar", "New month")},
    {ChangeKind::Year, QT_TRANSLATE_NOOP("ClockStudio::TimeBar", "New year")},
    {ChangeKind::LunarMonth, QT_TRANSLATE_NOOP("ClockStudio::TimeBar", "New lunar month")},
};

QToolButton *Button(const QString &text, const QString &tip)
{
    auto *const button = new QToolButton;
    button->setText(text);
    button->setToolTip(tip);
    return button;
}

QDateTime Local(qint64 instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant);
}

} // namespace

TimeBar::TimeBar(LiveWall &wall, QWidget *parent)
    : QWidget(parent), m_wall(wall), m_run(Button({}, {})), m_day(new QSlider(Qt::Horizontal)),
      m_date(new QDateTimeEdit), m_speed(new QComboBox)
{
    auto *const now = Button(tr("Now"), tr("Show the current time"));
    connect(now, &QToolButton::clicked, this, &TimeBar::ReturnToPresent);
    SetUpDate();
    SetUpDay();
    SetUpSpeed();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->setSpacing(8);
    layout->addWidget(m_run);
    layout->addWidget(now);
    layout->addWidget(m_date);
    layout->addWidget(m_day, 1);
    layout->addWidget(m_speed);
    layout->addWidget(NextChangeButton());
    FollowControls();
    connect(&m_refresh, &QTimer::timeout, this, &TimeBar::ShowTime);
    m_refresh.start(kRefresh);
    ShowTime();
}

void TimeBar::SetUpDate()
{
    m_date->setCalendarPopup(true);
    m_date->setLayoutDirection(Qt::LeftToRight); // or hours and seconds are swapped
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_date->setAccessibleName(tr("Date and time that the wall shows"));
    m_date->setToolTip(m_date->accessibleName());
}

void TimeBar::SetUpDay()
{
    m_day->setRange(0, kMinutesPerDay - 1);
    m_day->setPageStep(60);
    m_day->setAccessibleName(tr("Time of day"));
    m_day->setToolTip(tr("Drag through the hours of the day"));
}

void TimeBar::SetUpSpeed()
{
    m_speed->setToolTip(tr("Playback speed"));
    m_speed->setAccessibleName(m_speed->toolTip());
    for (const double speed : kSpeeds)
        m_speed->addItem(QStringLiteral("%1×").arg(speed), speed);
}

QToolButton *TimeBar::NextChangeButton()
{
    auto *const next = Button(tr("Next change"), tr("Jump to just before the next change"));
    auto *const changes = new QMenu(next);
    for (const ChangeName &change : kChanges)
        changes->addAction(tr(change.name), this, [this, change] { GoToNext(change.kind); });
    next->setMenu(changes);
    next->setPopupMode(QToolButton::InstantPopup);
    return next;
}

void TimeBar::FollowControls()
{
    connect(m_run, &QToolButton::clicked, this,
            [this] { SetRunning(StageTime::Travel().IsPaused()); });
    connect(m_date, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime &time) {
        if (!m_isShowing)
            GoTo(time.toMSecsSinceEpoch());
    });
    connect(m_day, &QSlider::valueChanged, this, [this](int minute) {
        if (!m_isShowing)
            GoTo(QDateTime(Local(StageTime::Shown()).date(), QTime(minute / 60, minute % 60))
                     .toMSecsSinceEpoch());
    });
    connect(m_speed, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        StageTime::Travel().SetSpeed(kSpeeds[index], StageTime::Real());
        TimeChanged();
    });
}

void TimeBar::GoTo(qint64 instant)
{
    StageTime::Travel().GoTo(instant, StageTime::Real());
    StageTime::Travel().SetPaused(true, StageTime::Real());
    TimeChanged();
}

void TimeBar::ReturnToPresent()
{
    StageTime::Travel().ReturnToPresent();
    m_speed->setCurrentIndex(0);
    TimeChanged();
}

void TimeBar::SetRunning(bool runs)
{
    StageTime::Travel().SetPaused(!runs, StageTime::Real());
    TimeChanged();
}

void TimeBar::GoToNext(ChangeKind kind)
{
    QVector<Lw::HNodeClock::ZoneSettings> clocks;
    for (int area = 0; area < m_wall.AreaCount(); ++area) {
        if (const auto settings = ClockStage::SettingsOf(m_wall.Clock(area)))
            clocks.append(*settings);
    }
    const qint64 past = StageTime::Shown() + kBeforeChange;
    if (const auto next = NextChangeOf(kind, clocks, past)) {
        StageTime::Travel().GoTo(*next - kBeforeChange, StageTime::Real());
        StageTime::Travel().SetPaused(false, StageTime::Real());
        TimeChanged();
    }
}

/// Restarts the clocks' timers for the current speed, or stops them when paused.
void TimeBar::TimeChanged()
{
    const ClockStage::TimeTravel &travel = StageTime::Travel();
    Lw::pictureplayer::SetTimeScale(travel.IsPaused() ? 0 : travel.Speed());
    m_wall.PlayNext();
    ShowTime();
}

void TimeBar::ShowTime()
{
    m_isShowing = true;
    const bool runs = !StageTime::Travel().IsPaused();
    const QDateTime time = Local(StageTime::Shown());
    m_run->setText(runs ? tr("Pause") : tr("Play"));
    m_run->setToolTip(runs ? tr("Pause the time") : tr("Resume"));
    if (!m_date->hasFocus() || runs)
        m_date->setDateTime(time);
    if (!m_day->isSliderDown())
        m_day->setValue(time.time().hour() * 60 + time.time().minute());
    m_isShowing = false;
}

} // namespace ClockStudio
