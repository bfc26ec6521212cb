// studio/properties: the editor widget for one attribute, one class per role.
#pragma once

#include "clock_attributes.h"

#include <QWidget>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockStudio {

class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ValueEditor(Lw::HNodeClock::Attribute attribute);

    Lw::HNodeClock::Attribute Attribute() const { return m_attribute; }
    const Lw::HNodeClock::AttributeRow &Row() const { return RowOf(m_attribute); }

    /// Shows a stored value; if the selected clocks differ (isMixed), none.
    virtual void Show(const QString &stored, bool isMixed) = 0;
    /// Called before Show() with one of the selected clocks.
    virtual void ShowFor(Lw::HNodeClock::HClockNode &) { }

Q_SIGNALS:
    void Edited(const QString &stored);

protected:
    /// Embeds the control and sets its accessible name and description.
    void Use(QWidget *control);

private:
    const Lw::HNodeClock::Attribute m_attribute;
};

/// The control for the attribute's role.
ValueEditor *MakeValueEditor(Lw::HNodeClock::Attribute attribute);

/// The translation of a label or meaning in the attribute table.
QString TranslatedWords(const char *words);

} // namespace ClockStudio
