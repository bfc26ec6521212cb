// studio/window: the dialog that lists all keyboard shortcuts.
#pragma once

#include <QDialog>
#include <QPair>
#include <QVector>

namespace ClockStudio {

class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists the commands' shortcuts and the wall's own keys.
    KeysDialog(const QVector<QPair<QString, QString>> &commands, QWidget *parent);
};

} // namespace ClockStudio
