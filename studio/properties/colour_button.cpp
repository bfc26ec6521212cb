#include "colour_button.h"

#include "happconfig.h"
#include "number_text.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QWidgetAction>

namespace ClockStudio {

namespace {

// Colours that remain distinguishable on a wall, where the darkest ones vanish.
constexpr QRgb kPalette[] = {
    0xffffff, 0xc0c0c0, 0x808080, 0xff3030, 0xff0000, 0xff8000, 0xffb000, 0xffff00,
    0xc0ff00, 0x60ff60, 0x00ff00, 0x00ffa0, 0x00ffff, 0x60c0ff, 0x0080ff, 0x0000ff,
    0x8040ff, 0xc060ff, 0xff00ff, 0xff60c0, 0xffd0a0, 0xa06030, 0x009060, 0x004080,
};
constexpr int kColumns = 8;
constexpr QSize kSwatch(26, 26);

QIcon SwatchOf(const QColor &colour, QSize size)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0, 0, 0, 90));
    painter.setBrush(colour.isValid() ? QBrush(colour) : QBrush(Qt::gray, Qt::BDiagPattern));
    painter.drawRoundedRect(picture.rect().adjusted(1, 1, -2, -2), 4, 4);
    return QIcon(picture);
}

QString Stored(const QColor &colour)
{
    return QString::number(Lw::HAppConfig::ColorToInt(colour));
}

} // namespace

ColourButton::ColourButton()
{
    setIconSize({36, 18});
    connect(this, &QToolButton::clicked, this, &ColourButton::OpenPalette);
}

void ColourButton::Show(const QString &stored, bool isMixed)
{
    m_colour = isMixed ? QColor() : Lw::HAppConfig::IntToColor(Lw::NumberIn(stored));
    setIcon(SwatchOf(m_colour, iconSize()));
}

void ColourButton::OpenPalette()
{
    QMenu menu;
    auto *const swatches = new QWidget;
    auto *const grid = new QGridLayout(swatches);
    grid->setSpacing(2);
    for (int i = 0; i < static_cast<int>(std::size(kPalette)); ++i) {
        const QColor colour = QColor::fromRgb(kPalette[i]);
        auto *const swatch = new QToolButton;
        swatch->setAutoRaise(true);
        swatch->setIconSize(kSwatch);
        swatch->setIcon(SwatchOf(colour, kSwatch));
        swatch->setToolTip(colour.name());
        swatch->setAccessibleName(colour.name());
        connect(swatch, &QToolButton::clicked, this, [this, colour, &menu] {
            menu.close();
            emit Selected(Stored(colour));
        });
        grid->addWidget(swatch, i / kColumns, i % kColumns);
    }
    auto *const action = new QWidgetAction(&menu);
    action->setDefaultWidget(swatches);
    menu.addAction(action);
    menu.addAction(tr("Other colour…"), this, &ColourButton::OpenPicker);
    menu.exec(mapToGlobal(QPoint(0, height())));
}

void ColourButton::OpenPicker()
{
    const QColor colour = QColorDialog::getColor(m_colour, this, tr("Colour"));
    if (colour.isValid())
        emit Selected(Stored(colour));
}

} // namespace ClockStudio
