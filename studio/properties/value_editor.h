// studio/properties: what can be set of the chosen clocks.
// A control for one attribute.
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

    /// Shows a value as it is stored; where the chosen clocks have several, none of them.
    virtual void Show(const QString &stored, bool isMixed) = 0;
    /// Told before, of one of the chosen clocks.
    virtual void ShowFor(Lw::HNodeClock::HClockNode &) { }

Q_SIGNALS:
    void Edited(const QString &stored);

protected:
    /// Puts the control in and gives it its names for those who do not see it.
    void Use(QWidget *control);

private:
    const Lw::HNodeClock::Attribute m_attribute;
};

/// The control for the attribute's role.
ValueEditor *MakeValueEditor(Lw::HNodeClock::Attribute attribute);

/// Translations of what the attribute table says.
QString TranslatedWords(const char *words);

} // namespace ClockStudio
