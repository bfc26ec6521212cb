// studio/properties: the time zone of the selected clocks: its city, its next change, and an
// adjustment.
#pragma once

#include "section.h"

#include "editing/value_edits.h"
#include "zone_choice.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QPushButton;
class QTimeEdit;
QT_END_NAMESPACE

namespace ClockStudio {

class ZoneSection : public Section
{
    Q_OBJECT

public:
    ZoneSection();

    void Show(const QVector<Lw::HNodeClock::HClockNode *> &clocks);
    /// Sets the clocks to a zone; shows a warning if they cannot follow it exactly.
    void Choose(const QByteArray &zone);

Q_SIGNALS:
    void Edited(const QVector<ClockStudio::StoredValue> &values, const QString &label);

private:
    void OpenDialog();
    QString NoteOn(Lw::HNodeClock::HClockNode &clock) const;
    static QString InexactText(const ZoneAnswer &answer);
    static QString ValidityText(const ClockZones::ZoneSettings &zone);
    void ApplyAdjustment();

    QPushButton *m_city;
    QLabel *m_note;
    QTimeEdit *m_adjustment;
    QComboBox *m_direction;
    ClockZones::ZoneSettings m_inexactZone; ///< the best settings for the zone chosen last,
    QString m_inexact;                      ///< and why they are inexact; empty if exact
    bool m_isShowing = false;
};

} // namespace ClockStudio
