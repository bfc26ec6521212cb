#include "gallery.h"

#include "editing/new_clock.h"
#include "files/templates.h"
#include "wall/program_picture.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

constexpr QSize kPicture(224, 126);
constexpr QSize kNewWall(256, 128);

QLabel *Heading(const QString &text)
{
    auto *const label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    label->setFont(font);
    return label;
}

/// A thumbnail of a wall, centred on a card of fixed size.
QPixmap Card(const QImage &wall)
{
    QPixmap card(kPicture);
    card.fill(QColor(0x1c, 0x1e, 0x22));
    if (wall.isNull())
        return card;
    const QSize size = wall.size().scaled(kPicture - QSize(16, 16), Qt::KeepAspectRatio);
    QPainter painter(&card);
    const QRect place(
        QPoint((kPicture.width() - size.width()) / 2, (kPicture.height() - size.height()) / 2),
        size);
    painter.drawImage(place, wall.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return card;
}

/// Whether a click activates items, as some desktops do.
bool ActivatesOnClick(const QListWidget &list)
{
    return list.style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, &list)
        != 0;
}

/// Calls the handler with an item's data when the item is clicked or activated.
template<typename Handler>
void WhenChosen(QListWidget &list, const Handler &handler)
{
    const auto chosen = [handler](QListWidgetItem *item) {
        handler(item->data(Qt::UserRole).toString());
    };
    QObject::connect(&list, &QListWidget::itemActivated, &list, chosen);
    QObject::connect(&list, &QListWidget::itemClicked, &list, [&list, chosen](auto *item) {
        if (!ActivatesOnClick(list))
            chosen(item);
    });
}

} // namespace

Gallery::Gallery(QWidget *parent)
    : QWidget(parent), m_return(new QPushButton(tr("Back to the wall"))),
      m_templates(new QListWidget), m_recent(new QListWidget), m_recentPart(new QWidget)
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(36, 28, 36, 28);
    layout->setSpacing(36);
    layout->addLayout(StartPart(), 1);
    layout->addLayout(TemplatesPart(), 4);
    AddTemplates();
}

Gallery::~Gallery() = default;

/// Buttons and recent files.
QLayout *Gallery::StartPart()
{
    auto *const part = new QVBoxLayout;
    auto *const empty = new QPushButton(tr("Empty wall"));
    auto *const open = new QPushButton(tr("Open a file…"));
    connect(empty, &QPushButton::clicked, this, &Gallery::BeginEmpty);
    connect(open, &QPushButton::clicked, this, &Gallery::OpenWanted);
    connect(m_return, &QPushButton::clicked, this, &Gallery::ReturnWanted);
    m_return->setObjectName(QStringLiteral("return"));
    m_return->setShortcut(Qt::Key_Escape);
    part->addWidget(Heading(tr("Start")));
    part->addWidget(empty);
    part->addWidget(open);
    part->addWidget(m_return);
    SetUpRecentPart();
    part->addWidget(m_recentPart, 1);
    part->addStretch(0);
    return part;
}

void Gallery::SetUpRecentPart()
{
    auto *const layout = new QVBoxLayout(m_recentPart);
    layout->setContentsMargins(0, 20, 0, 0);
    layout->addWidget(Heading(tr("Recent")));
    layout->addWidget(m_recent);
    m_recent->setFrameShape(QFrame::NoFrame);
    m_recent->viewport()->setAutoFillBackground(false);
    m_recent->setAccessibleName(tr("Recent files"));
    WhenChosen(*m_recent, [this](const QString &path) { emit FileChosen(path); });
}

QLayout *Gallery::TemplatesPart()
{
    auto *const part = new QVBoxLayout;
    part->addWidget(Heading(tr("Templates")));
    part->addWidget(m_templates, 1);
    m_templates->setViewMode(QListView::IconMode);
    m_templates->setIconSize(kPicture);
    m_templates->setGridSize(kPicture + QSize(20, 44));
    m_templates->setResizeMode(QListView::Adjust);
    m_templates->setMovement(QListView::Static);
    m_templates->setFrameShape(QFrame::NoFrame);
    m_templates->setSpacing(8);
    m_templates->viewport()->setAutoFillBackground(false);
    m_templates->setAccessibleName(tr("Templates"));
    WhenChosen(*m_templates,
               [this](const QString &name) { emit TemplateChosen(TemplateBytes(name)); });
    return part;
}

void Gallery::AddTemplates()
{
    for (const Template &one : Templates()) {
        auto *const item = new QListWidgetItem(QIcon(Card({})), one.title, m_templates);
        item->setData(Qt::UserRole, one.name);
        item->setToolTip(one.description);
    }
    // Draws the pictures after the window has been shown.
    QTimer::singleShot(0, this, &Gallery::DrawNextPicture);
}

void Gallery::DrawNextPicture()
{
    if (m_drawn >= m_templates->count())
        return;
    if (isVisible())
        DrawNextClock();
    QTimer::singleShot(isVisible() ? 0 : 200, this, &Gallery::DrawNextPicture);
}

void Gallery::DrawNextClock()
{
    QListWidgetItem *const item = m_templates->item(m_drawn);
    if (!m_picture)
        m_picture =
            std::make_unique<ProgramPicture>(TemplateBytes(item->data(Qt::UserRole).toString()));
    if (!m_picture->IsDone())
        return m_picture->DrawNextClock();
    item->setIcon(QIcon(Card(m_picture->Image())));
    m_picture.reset();
    ++m_drawn;
}

void Gallery::Refresh(const QStringList &recent, bool isOpen)
{
    m_return->setVisible(isOpen);
    m_recent->clear();
    for (const QString &path : recent) {
        auto *const item = new QListWidgetItem(QFileInfo(path).fileName(), m_recent);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
    }
    m_recentPart->setVisible(!recent.isEmpty());
}

void Gallery::BeginEmpty()
{
    emit TemplateChosen(NewProgramText(kNewWall).toUtf8());
}

} // namespace ClockStudio
