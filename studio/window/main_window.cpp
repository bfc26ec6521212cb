#include "main_window.h"

#include "gallery.h"
#include "message_bar.h"

#include "findings/findings_panel.h"
#include "panels/source_view.h"
#include "panels/time_bar.h"
#include "properties/property_panel.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMimeData>
#include <QSettings>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

const QString kGeometryKey = QStringLiteral("window/geometry");
const QString kStateKey = QStringLiteral("window/state");

} // namespace

MainWindow::MainWindow(const QString &recoveryDirectory, QWidget *parent)
    : QMainWindow(parent), m_editor(m_document, m_wall), m_files(m_document, recoveryDirectory)
{
    setAcceptDrops(true);
    MakeWall();
    MakeDocks();
    MakeMenus();
    MakeToolBar();
    MakeStatus();
    connect(&m_files, &ProgramFiles::NameChanged, this, &MainWindow::UpdateTitle);
    connect(&m_files, &ProgramFiles::NameChanged, this,
            [this] { m_findings->SetProgramPath(m_files.Path()); });
    connect(&m_files, &ProgramFiles::ChangedOnDisk, this, &MainWindow::AskAboutChange);
    connect(&m_files, &ProgramFiles::LostOnDisk, this, [this] {
        m_messages->Ask(
            tr("%1 was deleted from disk. Your work is still open here.").arg(m_files.Name()),
            {{tr("Save"), [this] { Save(); }}, {tr("Dismiss"), {}}});
    });
    connect(&m_document, &StudioDocument::Read, this, &MainWindow::UpdateState);
    connect(&m_editor, &WallEditor::SelectionChanged, this, &MainWindow::UpdateCommands);
    resize(1240, 800);
    ReadSettings();
    UpdateCommands();
    ShowGallery();
    OfferRecovery();
}

MainWindow::~MainWindow() = default;

void MainWindow::MakeWall()
{
    m_view = new WallView(m_editor);
    m_messages = new MessageBar;
    m_fault = new MessageBar;
    m_time = new TimeBar(m_wall);
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_fault);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_time);
    m_gallery = new Gallery;
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_gallery);
    m_pages->addWidget(page);
    auto *const centre = new QWidget;
    auto *const all = new QVBoxLayout(centre);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_messages);
    all->addWidget(m_pages, 1);
    setCentralWidget(centre);
    connect(m_gallery, &Gallery::TemplateChosen, this, &MainWindow::BeginWith);
    connect(m_gallery, &Gallery::FileChosen, this, &MainWindow::Open);
    connect(m_gallery, &Gallery::OpenWanted, this, &MainWindow::OpenDialog);
    connect(m_gallery, &Gallery::ReturnWanted, this, &MainWindow::ShowWallPage);
    connect(m_view, &WallView::FileDropped, this, &MainWindow::Open);
    connect(m_view, &WallView::TextDropped, this,
            [this](const QString &text) { m_editor.PasteText(text); });
}

void MainWindow::MakeDocks()
{
    const auto dock = [this](const QString &title, const char *name, QWidget *widget,
                             Qt::DockWidgetArea area) {
        auto *const made = new QDockWidget(title, this);
        made->setObjectName(QLatin1String(name));
        made->setWidget(widget);
        addDockWidget(area, made);
        return made;
    };
    m_properties = new PropertyPanel(m_editor);
    m_source = new SourceView(m_editor);
    m_findings = new FindingsPanel(m_editor);
    m_propertyDock = dock(tr("Properties"), "properties", m_properties, Qt::RightDockWidgetArea);
    m_propertyDock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    m_propertyDock->setTitleBarWidget(new QWidget);
    m_findingsDock = dock(tr("Findings"), "findings", m_findings, Qt::BottomDockWidgetArea);
    m_sourceDock = dock(tr("Source"), "source", m_source, Qt::BottomDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    tabifyDockWidget(m_findingsDock, m_sourceDock);
    m_sourceDock->hide();
    m_findingsDock->hide();
    for (QDockWidget *const shown : {m_sourceDock, m_findingsDock})
        connect(shown->toggleViewAction(), &QAction::triggered, shown, &QWidget::raise);
    connect(m_findings, &FindingsPanel::CountChanged, this, [this](int count) {
        m_findingsDock->setWindowTitle(count == 0 ? tr("Findings")
                                                  : tr("Findings (%1)").arg(count));
    });
    // The keys of the wall work at once after a number is typed.
    connect(m_properties, &PropertyPanel::Finished, m_view, [this] { m_view->setFocus(); });
    connect(m_findings, &FindingsPanel::PropertyWanted, m_properties, &PropertyPanel::Reveal);
    connect(m_findings, &FindingsPanel::LineWanted, m_source, &SourceView::GoToLine);
}

void MainWindow::ShowGallery()
{
    m_gallery->Refresh(ProgramFiles::Recent(), !m_document.Text().isEmpty());
    m_pages->setCurrentIndex(0);
    m_propertyDock->hide();
    UpdateTitle();
    UpdateCommands();
}

void MainWindow::ShowWallPage()
{
    m_pages->setCurrentIndex(1);
    m_propertyDock->show();
    m_view->ZoomToFit();
    m_view->setFocus();
    UpdateTitle();
    UpdateCommands();
}

void MainWindow::SayProblem(const QString &text)
{
    m_messages->Ask(text, {{tr("Dismiss"), {}}});
}

void MainWindow::Warn(const QString &text)
{
    auto *const bar = new MessageBar;
    qobject_cast<QVBoxLayout *>(centralWidget()->layout())->insertWidget(0, bar);
    bar->Ask(text, {{tr("Dismiss"), {}}});
}

void MainWindow::UpdateTitle()
{
    const QString name = m_pages->currentIndex() == 0 ? QString() : m_files.Name();
    setWindowModified(!name.isEmpty() && !m_files.IsSaved());
    setWindowTitle(name.isEmpty() ? tr("Clock Studio") : tr("%1[*] – Clock Studio").arg(name));
}

void MainWindow::UpdateCommands()
{
    const bool hasWall = m_pages->currentIndex() == 1;
    for (QAction *const action : qAsConst(m_actions)) {
        const bool needsSelection = action->property("needsSelection").toBool();
        const bool needsWall = action->property("needsWall").toBool();
        action->setEnabled((hasWall || !(needsWall || needsSelection))
                           && (!needsSelection || !m_editor.Selected().isEmpty()));
    }
    m_undo->setEnabled(hasWall && m_document.History().canUndo());
    m_redo->setEnabled(hasWall && m_document.History().canRedo());
}

void MainWindow::UpdateState()
{
    if (const auto &fault = m_document.Fault()) {
        const int line = fault->line;
        const QString shown = m_wall.AreaCount() == 0
            ? QString()
            : QLatin1Char(' ') + tr("The wall shows the last valid version.");
        const QString end =
            fault->reason.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral(".");
        m_fault->Ask(tr("Line %1: %2").arg(QString::number(line), fault->reason + end) + shown,
                     {{tr("Go to line"), [this, line] {
                           m_sourceDock->show();
                           m_source->GoToLine(line);
                           m_source->setFocus();
                           m_fault->show();
                       }}});
    } else {
        m_fault->hide();
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!ConfirmLeave()) {
        event->ignore();
        return;
    }
    WriteSettings();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile())
        Open(urls.first().toLocalFile());
}

void MainWindow::ReadSettings()
{
    const QSettings settings;
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
    restoreState(settings.value(kStateKey).toByteArray());
}

void MainWindow::WriteSettings()
{
    QSettings settings;
    settings.setValue(kGeometryKey, saveGeometry());
    settings.setValue(kStateKey, saveState());
}

} // namespace ClockStudio
