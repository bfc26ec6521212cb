#include "player_window.h"

#include "screen_composer.h"
#include "stage.h"

#include <QPaintEvent>
#include <QPainter>

namespace ClockPlayer {

PlayerWindow::PlayerWindow(const Stage &stage, const QString &title)
    : m_stage(stage), m_screen(BlackScreen(stage.Size()))
{
    setTitle(title);
    resize(stage.Size());
    setMinimumSize(stage.Size());
    connect(&stage, &Stage::Changed, this, [this](const QRect &region) { update(region); });
}

void PlayerWindow::paintEvent(QPaintEvent *event)
{
    const QRect region = event->region().boundingRect();
    ComposeScreen(m_screen, m_stage.Layers(), region);
    QPainter painter(this);
    // Some platforms make the window larger than the screen that plays.
    painter.fillRect(region, Qt::black);
    painter.drawImage(region, m_screen, region);
}

} // namespace ClockPlayer
