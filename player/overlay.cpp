#include "overlay.h"

#include <QFont>
#include <QPainter>

namespace ClockPlayer {

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

} // namespace

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

} // namespace ClockPlayer
