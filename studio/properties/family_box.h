// studio/properties: what can be set of the chosen clocks.
// A font family. Those that lack characters of what the clock writes are marked.
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
    void showPopup() override;

Q_SIGNALS:
    void Chosen(const QString &family); ///< empty for the default font

public:
    /// What is written with the font, for the marks.
    void SetText(const QString &text) { m_text = text; }

private:
    void MarkLacking();

    QString m_text;
};

/// The characters of a text that a family lacks, each once.
QString LackedCharacters(const QString &family, const QString &text);

/// What a clock writes with a font, in the language of the clocks.
QString WrittenWith(Lw::HNodeClock::HClockNode &clock, Lw::HNodeClock::Attribute familyAttribute);

} // namespace ClockStudio
