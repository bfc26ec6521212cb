// Shows the screen of a stage in a window, or on a framebuffer through Qt's platform plugins.
#pragma once

#include <QImage>
#include <QRasterWindow>

namespace ClockPlayer {

class Stage;

/// As large as the program's screen, pixel for pixel. The stage must outlive the window.
class PlayerWindow : public QRasterWindow
{
    Q_OBJECT

public:
    PlayerWindow(const Stage &stage, const QString &title);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Stage &m_stage;
    QImage m_screen;
};

} // namespace ClockPlayer
