// studio/properties: what can be set of the chosen clocks.
// A colour, chosen from a palette that suits LEDs or by a picker.
#pragma once

#include <QToolButton>

namespace ClockStudio {

/// Colours are texts as the host stores them: red + 256 * green + 65536 * blue, in decimal.
class ColourButton : public QToolButton
{
    Q_OBJECT

public:
    ColourButton();

    void Show(const QString &stored, bool isMixed);

Q_SIGNALS:
    void Chosen(const QString &stored);

private:
    void OpenPalette();
    void OpenPicker();

    QColor m_colour;
};

} // namespace ClockStudio
