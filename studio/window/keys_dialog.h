// studio/window: the window that brings everything together.
// All keys, listed.
#pragma once

#include <QDialog>
#include <QPair>
#include <QVector>

namespace ClockStudio {

class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    /// The keys of commands; those of the wall are added.
    KeysDialog(const QVector<QPair<QString, QString>> &commands, QWidget *parent);
};

} // namespace ClockStudio
