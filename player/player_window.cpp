#include "player_window.h"

#include "screen_composer.h"
#include "stage.h"
#include "time_travel.h"

#include <QFont>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

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

PlayerWindow::PlayerWindow(const QString &title, const Placing &placing) : m_view(placing)
{
    setTitle(title);
}

void PlayerWindow::SetStage(const Stage &stage)
{
    if (m_stage)
        disconnect(m_stage, nullptr, this, nullptr);
    m_stage = &stage;
    m_notice.reset();
    m_screen = BlackScreen(stage.Size());
    m_view.SetScreenSize(stage.Size());
    const QRect picture = m_view.Whole();
    SetContentSize({picture.right() + 1, picture.bottom() + 1});
    connect(&stage, &Stage::Changed, this, &PlayerWindow::Change);
    update();
}

void PlayerWindow::SetContentSize(QSize size)
{
    if (m_isAlone)
        return;
    const QSize visible = size.expandedTo({1, 1});
    setMinimumSize(visible);
    resize(visible);
}

void PlayerWindow::ShowNotice(Notice notice)
{
    if (m_stage)
        disconnect(m_stage, nullptr, this, nullptr);
    m_stage = nullptr;
    m_notice = notice;
    update();
}

void PlayerWindow::ShowAlone()
{
    m_isAlone = true;
    setCursor(Qt::BlankCursor);
    setGeometry(screen()->geometry()); // where no window manager does it
    showFullScreen();
}

// A second in which nothing changes is presented too, so that it can be counted.
void PlayerWindow::Change(const QRegion &region)
{
    if (region.isEmpty())
        requestUpdate();
    for (const QRect &rect : region)
        update(m_view.Placed(rect));
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
    if (isPaint)
        emit AboutToPaint();
    const bool accepted = QRasterWindow::event(event);
    if (isPaint)
        emit Painted(begun);
    return accepted;
}

void PlayerWindow::keyPressEvent(QKeyEvent *event)
{
    if (m_isAlone)
        return;
    const std::optional<Command> command = CommandOf(event->key(), event->modifiers());
    // A key that is held down steps on and on, and does nothing else twice.
    if (command && (!event->isAutoRepeat() || command->control == Control::Step))
        emit Commanded(*command);
}

void PlayerWindow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    PaintScreen(painter, event->region());
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setClipRegion(event->region());
    PaintOverlay(painter, size(), m_overlay);
}

void PlayerWindow::PaintScreen(QPainter &painter, const QRegion &region)
{
    if (m_notice) {
        painter.drawImage(QPoint(), NoticePicture(*m_notice, size()));
        return;
    }
    const QRect picture = m_view.Whole();
    // Some platforms make the window larger than the screen that plays.
    for (const QRect &outside : region - picture)
        painter.fillRect(outside, Qt::black);
    const QVector<Layer> layers = m_stage ? m_stage->Layers() : QVector<Layer>();
    for (const QRect &rect : region &picture) {
        const QRect pixels = m_view.Origin(rect);
        ComposeScreen(m_screen, layers, pixels);
        if (m_view.IsPlain())
            painter.drawImage(m_view.Placed(pixels).topLeft(), m_screen, pixels);
        else
            painter.drawImage(m_view.Placed(pixels).topLeft(), m_view.Picture(m_screen, pixels));
    }
}

} // namespace ClockPlayer
