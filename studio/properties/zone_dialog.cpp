#include "zone_dialog.h"

#include "zone_choice.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace ClockStudio {

ZoneDialog::ZoneDialog(QWidget *parent)
    : QDialog(parent), m_search(new QLineEdit), m_list(new QListWidget)
{
    setWindowTitle(tr("Choose a city"));
    auto *const layout = new QVBoxLayout(this);
    m_search->setPlaceholderText(tr("City, country or offset, such as Berlin or +05:30"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(tr("Search"));
    m_search->installEventFilter(this);
    m_list->setAccessibleName(tr("Cities"));
    m_list->setUniformItemSizes(true);
    m_list->setLayoutDirection(Qt::LeftToRight); // the names are English
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Use this time zone"));
    for (QAbstractButton *const button : buttons->buttons())
        button->setIcon(QIcon()); // beside which texts from right to left are cut
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    connect(m_search, &QLineEdit::textChanged, this, &ZoneDialog::ShowMatches);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_search->setFocus();
    resize(420, 420);
    ShowMatches({});
}

QByteArray ZoneDialog::Zone() const
{
    const QListWidgetItem *const item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toByteArray() : QByteArray();
}

void ZoneDialog::ShowMatches(const QString &search)
{
    m_list->clear();
    for (const ZoneName &zone : MatchingZones(search)) {
        auto *const item = new QListWidgetItem(
            QStringLiteral("%1    UTC%2    %3").arg(zone.city, zone.offset, zone.region), m_list);
        item->setData(Qt::UserRole, zone.zone);
    }
    m_list->setCurrentRow(0);
}

/// Up and Down move in the list while the search field has the focus.
bool ZoneDialog::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
            || key == Qt::Key_PageDown) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

} // namespace ClockStudio
