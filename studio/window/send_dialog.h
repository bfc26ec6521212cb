// studio/window: the dialog that sends the program to a wall, or switches back to an earlier
// release.
#pragma once

#include "files/tool_run.h"
#include "files/wall_target.h"
#include "files/wall_watch.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QComboBox;
class QFormLayout;
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
    /// `program` is the path of the program file to export.
    SendDialog(const QString &program, QWidget *parent);

private:
    void AddFields(QFormLayout &form);
    QWidget *KeyField();
    void AddReleases();
    void AddButtons();
    WallTarget Target() const;
    void ShowTarget(int index);
    void SaveTarget();
    void Send();
    bool Upload(const QString &folder, const QString &release);
    void Follow(const QString &message);
    void ListReleases();
    void PlayRelease();
    /// Shows what is wrong with the target, if anything, and stops watching. False if it is wrong.
    bool CheckTarget();
    /// Shows why a command failed. True if it succeeded.
    bool ShowFailure(const ToolResult &result);

    const QString m_program;
    QVector<WallTarget> m_targets;
    QComboBox *m_name;
    QLineEdit *m_host;
    QLineEdit *m_folder;
    QLineEdit *m_key;
    QLineEdit *m_status;
    QLabel *m_message;
    QLabel *m_wallStatus;
    QListWidget *m_releases;
    QPushButton *m_playRelease;
    WallWatch m_watch;
};

} // namespace ClockStudio
