// studio/window: the window that brings everything together.
// Sending the program to a wall, and letting an earlier release play again.
#pragma once

#include "files/wall_target.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
QT_END_NAMESPACE

namespace ClockStudio {

class SendDialog : public QDialog
{
    Q_OBJECT

public:
    /// The program is a file that is exported.
    SendDialog(const QString &program, QWidget *parent);

private:
    WallTarget Target() const;
    void ShowTarget(int index);
    void KeepTarget();
    void Send();
    void ListReleases();
    void PlayRelease();
    bool Run(const ToolCommand &command, const QString &what);
    bool IsComplete();

    const QString m_program;
    QVector<WallTarget> m_targets;
    QComboBox *m_name;
    QLineEdit *m_host;
    QLineEdit *m_folder;
    QLineEdit *m_key;
    QListWidget *m_releases;
    QLabel *m_said;
};

} // namespace ClockStudio
