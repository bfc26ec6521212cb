// compose/: the host's class for a clock's elements (date, time, weekday, lunar date, top text)
// as pixmaps, composed from the node's glyph images for the current time in its zone.
#pragma once

#include "calendar/persian_calendar.h"
#include "clock_export.h"
#include "clock_node.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QPixmap>
#include <QScopedPointer>
#include <QString>

namespace Lw::HNodeClock {

class ElementComposer;

/// InitParameters() reads zone, adjustment, weekday code, date code and images; everything else
/// is read from the node at each call. All pixmaps are null before InitParameters(), and where an
/// image is missing.
class CLOCK_EXPORT DrawClockClassifyImage : public QObject
{
    Q_OBJECT

public:
    DrawClockClassifyImage();
    ~DrawClockClassifyImage() override;

    void InitParameters(HClockNode *node); ///< reloads everything; null does nothing

    /// Updates the reading, copies it to the argument (tagged UTC) and returns the weekday, 1
    /// Monday to 7 Sunday.
    int CalculateTimeZone(QDateTime &reading);
    /// When a daylight-saving rule takes effect in the year of `date`, as a standard-time reading
    /// tagged UTC; invalid for a rule that is empty, malformed or names no day.
    QDateTime AnalyzeDaylightSavingTime(QDate date, QString rule);
    /// "AM" if the stored hour is below 12, else "PM". In 12-hour mode GetTimePixmap() subtracts 12
    /// from it, so from then until the next time update the answer is "AM".
    QString GetTimeAP();
    int CountLeapYear(int year); ///< 1 for a Persian leap year, else 0
    PersianDate CountPersianDate(QDate date);

    QPixmap GetDatePixmap();
    QPixmap GetTimePixmap();
    QPixmap GetWeeKPixmap();
    QPixmap GetLunarPixmap();
    QPixmap GetTopTextPixmap();
    void GetLunarDate(); ///< stores the lunar month and day, without daylight saving

    /// The same elements as pieces of glyph strips, for drawing frames. Owned by this object.
    ElementComposer &Elements();

private:
    QScopedPointer<ElementComposer> m_elements;
};

} // namespace Lw::HNodeClock
