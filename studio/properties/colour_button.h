// studio/properties: a button that picks a colour from a palette for LEDs or in a dialog.
#pragma once

#include <QToolButton>

namespace ClockStudio {

/// Colours are strings in the host's form: red + 256 * green + 65536 * blue, in decimal.
class ColourButton : public QToolButton
{
    Q_OBJECT

public:
    ColourButton();

    void Show(const QString &stored, bool isMixed);

Q_SIGNALS:
    void Selected(const QString &stored);

private:
    void OpenPalette();
    void OpenPicker();

    QColor m_colour;
};

} // namespace ClockStudio
