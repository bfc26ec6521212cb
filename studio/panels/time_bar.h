// studio/panels: the bar that sets the time shown by the wall: now, a date, a time of day, or
// shortly before a change.
#pragma once

#include "wall/live_wall.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QDateTimeEdit;
class QSlider;
class QToolButton;
QT_END_NAMESPACE

namespace ClockStudio {

enum class ChangeKind;

class TimeBar : public QWidget
{
    Q_OBJECT

public:
    explicit TimeBar(LiveWall &wall, QWidget *parent = nullptr);

    void GoTo(qint64 instant); ///< UTC milliseconds; pauses there
    void ReturnToPresent();
    void SetRunning(bool runs);

private:
    void SetUpDate();
    void SetUpDay();
    void SetUpSpeed();
    QToolButton *NextChangeButton();
    void FollowControls();
    void GoToNext(ChangeKind kind);
    void ShowTime();
    void TimeChanged();

    LiveWall &m_wall;
    QToolButton *m_run;
    QSlider *m_day;
    QDateTimeEdit *m_date;
    QComboBox *m_speed;
    QTimer m_refresh;
    bool m_isShowing = false; ///< controls are being set from the time
};

} // namespace ClockStudio
