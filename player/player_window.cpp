#include "player_window.h"

#include "screen_composer.h"
#include "stage.h"
#include "time_travel.h"

#include <QFont>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>

namespace ClockPlayer {

using namespace ClockStage;

namespace {

constexpr int kFontPixels = 13;
constexpr int kMargin = 4;
constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
const QColor kPaper(0, 0, 0, 200);
const QColor kInk(255, 255, 255);

QFont OverlayFont()
{
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::TypeWriter);
    font.setPixelSize(kFontPixels);
    return font;
}

// At the bottom of the window, wrapped to its width; what does not fit is cut at the end.
void PaintOverlay(QPainter &painter, QSize window, const QString &text)
{
    if (text.isEmpty())
        return;
    painter.setFont(OverlayFont());
    const QRect room = QRect(QPoint(0, 0), window).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRect lines = painter.boundingRect(room, kFlags, text);
    lines.moveTop(qMax(room.top(), room.bottom() + 1 - lines.height()));
    const QRect paper(0, lines.top() - kMargin, window.width(), window.height());
    painter.fillRect(paper, kPaper);
    painter.setPen(kInk);
    painter.drawText(lines, kFlags, text);
}

} // namespace

PlayerWindow::PlayerWindow(const QString &title, const std::optional<LedScreen> &leds)
    : m_leds(leds)
{
    setTitle(title);
}

void PlayerWindow::SetStage(const Stage &stage)
{
    if (m_stage)
        disconnect(m_stage, nullptr, this, nullptr);
    m_stage = &stage;
    m_screen = BlackScreen(stage.Size());
    const QSize size = m_leds ? stage.Size() * m_leds->Pitch() : stage.Size();
    setMinimumSize(size);
    resize(size);
    connect(&stage, &Stage::Changed, this,
            [this](const QRect &region) { update(m_leds ? m_leds->Magnified(region) : region); });
    update();
}

void PlayerWindow::SetOverlay(const QString &text)
{
    if (text == m_overlay)
        return;
    m_overlay = text;
    update();
}

// The base class paints and brings the picture to the display within this event.
bool PlayerWindow::event(QEvent *event)
{
    const double begun = StageTime::Steady();
    const bool isPaint = event->type() == QEvent::UpdateRequest;
    const bool accepted = QRasterWindow::event(event);
    if (isPaint)
        emit Painted(begun);
    return accepted;
}

void PlayerWindow::keyPressEvent(QKeyEvent *event)
{
    const std::optional<Command> command = CommandOf(event->key(), event->modifiers());
    // A key that is held down steps on and on, and does nothing else twice.
    if (command && (!event->isAutoRepeat() || command->control == Control::Step))
        emit Commanded(*command);
}

void PlayerWindow::paintEvent(QPaintEvent *event)
{
    const QRect region = event->region().boundingRect();
    QPainter painter(this);
    painter.setClipRect(region);
    // Some platforms make the window larger than the screen that plays.
    painter.fillRect(region, Qt::black);
    PaintScreen(painter, region);
    PaintOverlay(painter, size(), m_overlay);
}

void PlayerWindow::PaintScreen(QPainter &painter, const QRect &region)
{
    const QRect pixels = (m_leds ? m_leds->Reduced(region) : region) & m_screen.rect();
    if (m_stage)
        ComposeScreen(m_screen, m_stage->Layers(), pixels);
    if (m_leds)
        painter.drawImage(m_leds->Magnified(pixels).topLeft(), m_leds->Diodes(m_screen, pixels));
    else
        painter.drawImage(pixels, m_screen, pixels);
}

} // namespace ClockPlayer
