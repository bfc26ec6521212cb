// studio/properties: a combo box of font families. Families that lack a character the clock shows
// are greyed out.
#pragma once

#include "clock_attributes.h"

#include <QComboBox>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockStudio {

class FamilyBox : public QComboBox
{
    Q_OBJECT

public:
    FamilyBox();

    void Show(const QString &family, bool isMixed);
    /// The text shown in this font, used to mark families.
    void SetText(const QString &text) { m_text = text; }
    void showPopup() override;

Q_SIGNALS:
    void Selected(const QString &family); ///< empty for the default font

private:
    void MarkIncompleteFamilies();

    QString m_text;
    int m_installedEnd = 0; ///< entries from here on are families that are not installed
};

/// The distinct characters of a text that a family has no glyph for.
QString MissingCharacters(const QString &family, const QString &text);

/// The text a clock writes in one of its fonts, in the clocks' language.
QString WrittenWith(Lw::HNodeClock::HClockNode &clock, Lw::HNodeClock::Attribute familyAttribute);

} // namespace ClockStudio
