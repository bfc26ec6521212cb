#include "keys_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ClockStudio {

KeysDialog::KeysDialog(const QVector<QPair<QString, QString>> &commands, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Keyboard shortcuts"));
    QVector<QPair<QString, QString>> keys {
        {tr("Move by one pixel"), tr("Arrow keys")},
        {tr("Move by eight pixels"), tr("Shift + arrow keys")},
        {tr("Resize by one pixel"), tr("Alt + arrow keys")},
        {tr("Select the next clock"), tr("Tab")},
        {tr("Select several clocks"), tr("Shift + click, or drag around them")},
        {tr("Drag without snapping"), tr("Hold Alt")},
        {tr("Cancel a drag, clear the selection"), tr("Esc")},
        {tr("Zoom at the pointer"), tr("Ctrl + wheel")},
    };
    keys += commands;
    auto *const table = new QTableWidget(keys.size(), 2);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setShowGrid(false);
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    table->setAccessibleName(windowTitle());
    for (int row = 0; row < keys.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(keys[row].first));
        table->setItem(row, 1, new QTableWidgetItem(keys[row].second));
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(buttons);
    resize(560, 560);
}

} // namespace ClockStudio
