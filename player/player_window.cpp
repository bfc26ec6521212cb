#include "player_window.h"

#include "screen_composer.h"
#include "stage.h"
#include "time_travel.h"

#include <QFont>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include <utility>

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
    painter.setFont(OverlayFont());
    const QRect room = QRect(QPoint(0, 0), window).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRect lines = painter.boundingRect(room, kFlags, text);
    lines.moveTop(qMax(room.top(), room.bottom() + 1 - lines.height()));
    const QRect paper(0, lines.top() - kMargin, window.width(), window.height());
    painter.fillRect(paper, kPaper);
    painter.setPen(kInk);
    painter.drawText(lines, kFlags, text);
}

// The device as an image that can be composed into directly; null if it is scaled or has another
// pixel format.
QImage *PlainPicture(QPaintDevice &device)
{
    if (device.devType() != QInternal::Image)
        return nullptr;
    auto *const image = static_cast<QImage *>(&device);
    const bool isPlain = image->devicePixelRatio() == 1
        && (image->format() == QImage::Format_RGB32
            || image->format() == QImage::Format_ARGB32_Premultiplied);
    return isPlain ? image : nullptr;
}

} // namespace

PlayerWindow::PlayerWindow(const QString &title, const Placing &placing) : m_mapping(placing)
{
    setTitle(title);
}

void PlayerWindow::SetStage(const Stage &stage)
{
    if (m_stage)
        disconnect(m_stage, nullptr, this, nullptr);
    m_stage = &stage;
    m_notice.reset();
    m_screen = QImage();
    m_mapping.SetScreenSize(stage.Size());
    const QRect picture = m_mapping.Whole();
    SetContentSize({picture.right() + 1, picture.bottom() + 1});
    connect(&stage, &Stage::Changed, this, &PlayerWindow::Change);
    ScheduleRepaint();
}

void PlayerWindow::SetContentSize(QSize size)
{
    if (m_isKiosk)
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
    ScheduleRepaint();
}

void PlayerWindow::ShowKiosk()
{
    m_isKiosk = true;
    setCursor(Qt::BlankCursor);
    setGeometry(screen()->geometry()); // where no window manager does it
    showFullScreen();
}

// Unchanged seconds are presented too, so that the meter counts them.
void PlayerWindow::Change(const QRegion &region)
{
    if (region.isEmpty())
        requestUpdate();
    else if (m_mapping.IsPlain())
        ScheduleRepaint(region.translated(m_mapping.Whole().topLeft()));
    else
        for (const QRect &rect : region)
            ScheduleRepaint(m_mapping.WindowRectOf(rect));
}

// A window that cannot be seen is painted whole when it appears.
void PlayerWindow::ScheduleRepaint(const QRegion &region)
{
    if (!isExposed())
        return;
    m_changed += region;
    requestUpdate();
}

void PlayerWindow::SetOverlay(const QString &text)
{
    if (text == m_overlay)
        return;
    m_overlay = text;
    ScheduleRepaint();
}

bool PlayerWindow::event(QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QWindow::event(event);
    const double begun = StageTime::Steady();
    emit AboutToPaint();
    Present();
    emit Painted(begun);
    return true;
}

void PlayerWindow::exposeEvent(QExposeEvent *)
{
    if (!isExposed())
        return;
    m_changed = QRect(QPoint(), size());
    Present();
}

void PlayerWindow::keyPressEvent(QKeyEvent *event)
{
    if (m_isKiosk)
        return;
    const std::optional<Command> command = CommandOf(event->key(), event->modifiers());
    // Auto-repeat applies only to stepping.
    if (command && (!event->isAutoRepeat() || command->control == Control::Step))
        emit Commanded(*command);
}

void PlayerWindow::Present()
{
    if (m_store.size() != size()) {
        m_store.resize(size());
        m_changed = QRect(QPoint(), size());
    }
    const QRegion region = std::exchange(m_changed, QRegion());
    if (region.isEmpty() || !isExposed())
        return;
    m_store.beginPaint(region);
    Paint(*m_store.paintDevice(), region);
    m_store.endPaint();
    m_store.flush(region);
}

void PlayerWindow::Paint(QPaintDevice &device, const QRegion &region)
{
    if (m_notice)
        QPainter(&device).drawImage(QPoint(), NoticePicture(*m_notice, size()));
    else
        PaintScreen(device, region);
    if (m_overlay.isEmpty())
        return;
    QPainter painter(&device);
    painter.setClipRegion(region);
    PaintOverlay(painter, size(), m_overlay);
}

void PlayerWindow::PaintScreen(QPaintDevice &device, const QRegion &region)
{
    const QRect picture = m_mapping.Whole();
    // Some platforms make the window larger than the program's screen.
    if (!picture.contains(region.boundingRect())) {
        QPainter painter(&device);
        for (const QRect &outside : region - picture)
            painter.fillRect(outside, Qt::black);
    }
    QImage *const plain = m_mapping.IsPlain() ? PlainPicture(device) : nullptr;
    if (!plain || !m_stage) {
        PaintThroughScreen(device, region & picture);
        return;
    }
    const QVector<Layer> layers = m_stage->Layers();
    for (const QRect &rect : region)
        ComposeScreen(*plain, layers, m_mapping.ScreenRectOf(rect), picture.topLeft());
}

void PlayerWindow::PaintThroughScreen(QPaintDevice &device, const QRegion &region)
{
    if (!m_stage)
        return;
    if (m_screen.isNull())
        m_screen = BlackScreen(m_stage->Size());
    QPainter painter(&device);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QVector<Layer> layers = m_stage->Layers();
    for (const QRect &rect : region) {
        const QRect pixels = m_mapping.ScreenRectOf(rect);
        ComposeScreen(m_screen, layers, pixels);
        if (m_mapping.IsPlain())
            painter.drawImage(m_mapping.WindowRectOf(pixels).topLeft(), m_screen, pixels);
        else
            painter.drawImage(m_mapping.WindowRectOf(pixels).topLeft(),
                              m_mapping.Picture(m_screen, pixels));
    }
}

} // namespace ClockPlayer
