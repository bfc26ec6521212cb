// studio/window: the main window: wall, panels, menus and file handling.
#pragma once

#include "commands.h"

#include "editing/wall_editor.h"
#include "files/program_files.h"
#include "wall/wall_view.h"

#include <QMainWindow>

QT_BEGIN_NAMESPACE
class QActionGroup;
class QDockWidget;
class QLabel;
class QStackedWidget;
class QTemporaryDir;
QT_END_NAMESPACE

namespace ClockStudio {

class FindingsPanel;
class Gallery;
class MessageBar;
class PropertyPanel;
class SourceView;
class TimeBar;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Unsaved work is stored in `recoveryDirectory`.
    explicit MainWindow(const QString &recoveryDirectory, QWidget *parent = nullptr);
    ~MainWindow() override;

    /// False if the file cannot be opened; the window shows the error.
    bool Open(const QString &path);
    /// Shows a text above everything else, until the user dismisses it.
    void Warn(const QString &text);
    /// Shows the start page: templates and recent files.
    void ShowGallery();

    StudioDocument &Document() { return m_document; }
    WallEditor &Editor() { return m_editor; }
    ProgramFiles &Files() { return m_files; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void MakeWall();
    void MakeDocks();
    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeClockMenu();
    void MakeViewMenu();
    void MakeLanguageMenu(QMenu &view);
    void MakeHelpMenu();
    void MakeToolBar();
    void AddDrawingTools(QToolBar &bar);
    void MakeStatus();
    QMenu *AddMenu(const QString &title, const QVector<Command> &commands);
    void FillRecent(QMenu &menu);

    void NewProgram();
    void OpenDialog();
    bool Save();
    bool SaveAs();
    /// Asks about unsaved work. True if it was saved or discarded.
    bool ConfirmLeave();
    void BeginWith(const QByteArray &bytes);
    void ShowWallPage();
    /// Offers, one at a time, to recover the unsaved work of studios that crashed.
    void OfferRecovery();
    void Recover(const UnsavedWork &work);
    void AskAboutChange();
    void SayProblem(const QString &text);
    void SayWritten(const QString &path, const std::optional<QString> &problem);

    void UpdateTitle();
    void UpdateCommands();
    void UpdateState();
    void ShowKeys();
    void ShowAbout();
    void SavePicture();
    void SaveSheet();
    void SavePreview();
    void ExportProgram();
    void ImportSdk();
    void Send();
    /// Writes the current program to a file in the directory; returns its path, empty on failure.
    QString ProgramFileIn(const QTemporaryDir &directory);
    void ReadSettings();
    void WriteSettings();

    StudioDocument m_document;
    LiveWall m_wall;
    WallEditor m_editor;
    ProgramFiles m_files;
    WallView *m_view = nullptr;
    MessageBar *m_messages = nullptr;
    MessageBar *m_fault = nullptr; ///< shown while the text is not a valid program
    TimeBar *m_time = nullptr;
    SourceView *m_source = nullptr;
    FindingsPanel *m_findings = nullptr;
    PropertyPanel *m_properties = nullptr;
    Gallery *m_gallery = nullptr;
    QStackedWidget *m_pages = nullptr;
    QDockWidget *m_sourceDock = nullptr;
    QDockWidget *m_findingsDock = nullptr;
    QDockWidget *m_propertyDock = nullptr;
    QLabel *m_place = nullptr;
    QLabel *m_zoom = nullptr;
    QList<QAction *> m_actions;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QActionGroup *m_drawing = nullptr;
};

} // namespace ClockStudio
