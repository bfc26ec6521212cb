// studio/window: the main window's menus.
#include "main_window.h"

#include "keys_dialog.h"

#include "panels/source_view.h"

#include "catalogues.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

using Keys = QVector<QKeySequence>;

const Command kSeparator {};

/// Common LED panel sizes in pixels; the first means no grid.
constexpr QSize kModules[] = {{0, 0}, {32, 16}, {32, 32}, {64, 32}, {64, 64}, {128, 64}};

} // namespace

QMenu *MainWindow::AddMenu(const QString &title, const QVector<Command> &commands)
{
    QMenu *const menu = menuBar()->addMenu(title);
    for (QAction *const action : AddCommands(*menu, commands))
        m_actions.append(action);
    return menu;
}

void MainWindow::MakeMenus()
{
    MakeFileMenu();
    MakeEditMenu();
    MakeClockMenu();
    MakeViewMenu();
    MakeHelpMenu();
}

void MainWindow::MakeFileMenu()
{
    QMenu *const menu = AddMenu(tr("&File"),
                                {{tr("&New…"), {QKeySequence::New}, [this] { NewProgram(); }},
                                 {tr("&Open…"), {QKeySequence::Open}, [this] { OpenDialog(); }},
                                 {tr("&Import SDK XML…"), {}, [this] { ImportSdk(); }}});
    QMenu *const recent = menu->addMenu(tr("Open &recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { FillRecent(*recent); });
    const QVector<Command> rest {
        kSeparator,
        {tr("&Save"), {QKeySequence::Save}, [this] { Save(); }},
        {tr("Save &as…"), {QKeySequence(tr("Ctrl+Shift+S"))}, [this] { SaveAs(); }},
        kSeparator,
        {tr("&Picture of the wall…"),
         {QKeySequence(tr("Ctrl+Shift+P"))},
         [this] { SavePicture(); }},
        {tr("Animated pre&view…"), {}, [this] { SavePreview(); }},
        {tr("Approval s&heet…"), {QKeySequence::Print}, [this] { SaveSheet(); }},
        kSeparator,
        {tr("&Export with glyph files…"),
         {QKeySequence(tr("Ctrl+E"))},
         [this] { ExportProgram(); }},
        {tr("Sen&d to a wall…"), {QKeySequence(tr("Ctrl+Return"))}, [this] { Send(); }},
        kSeparator,
        {tr("&Quit"), {QKeySequence(tr("Ctrl+Q"))}, [this] { close(); }}};
    for (QAction *const action : AddCommands(*menu, rest)) {
        action->setProperty("needsWall", action->shortcut() != QKeySequence(tr("Ctrl+Q")));
        m_actions.append(action);
    }
}

void MainWindow::FillRecent(QMenu &menu)
{
    menu.clear();
    for (const QString &path : ProgramFiles::Recent())
        menu.addAction(path, this, [this, path] { Open(path); });
    if (menu.isEmpty())
        menu.addAction(tr("None yet"))->setEnabled(false);
}

void MainWindow::MakeEditMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&Edit"));
    m_undo = m_document.History().createUndoAction(this, tr("&Undo"));
    m_redo = m_document.History().createRedoAction(this, tr("&Redo"));
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    menu->addAction(m_undo);
    menu->addAction(m_redo);
    menu->addSeparator();
    const auto inText = [this](auto text, auto wall) {
        return [this, text, wall] { m_source->hasFocus() ? (m_source->*text)() : wall(); };
    };
    const QVector<Command> commands {
        {tr("Cu&t"), {QKeySequence::Cut}, inText(&SourceView::cut, [this] { m_editor.Cut(); })},
        {tr("&Copy"), {QKeySequence::Copy}, inText(&SourceView::copy, [this] { m_editor.Copy(); })},
        {tr("&Paste"),
         {QKeySequence::Paste},
         inText(&SourceView::paste,
                [this] {
                    if (!m_editor.Paste())
                        statusBar()->showMessage(tr("There is no clock on the clipboard"), 4000);
                })},
        {tr("&Duplicate"), {QKeySequence(tr("Ctrl+D"))}, [this] { m_editor.Duplicate(); }, true},
        {tr("De&lete"), {QKeySequence::Delete}, [this] { m_editor.Delete(); }, true},
        kSeparator,
        {tr("Select &all clocks"),
         {QKeySequence::SelectAll},
         inText(&SourceView::selectAll, [this] { m_editor.SelectAll(); })}};
    for (QAction *const action : AddCommands(*menu, commands)) {
        action->setProperty("needsWall", true);
        m_actions.append(action);
    }
    m_actions.append(m_undo);
    m_actions.append(m_redo);
}

void MainWindow::MakeClockMenu()
{
    const auto align = [this](Alignment alignment) {
        return [this, alignment] { m_editor.Align(alignment); };
    };
    AddMenu(
        tr("&Clock"),
        {{tr("Bring to &front"),
          {QKeySequence(tr("Ctrl+]"))},
          [this] { m_editor.BringToFront(); },
          true},
         {tr("Send to &back"),
          {QKeySequence(tr("Ctrl+["))},
          [this] { m_editor.SendToBack(); },
          true},
         kSeparator,
         {tr("Align &left"), {QKeySequence(tr("Ctrl+Shift+L"))}, align(Alignment::Left), true},
         {tr("Align &centre"), {QKeySequence(tr("Ctrl+Shift+C"))}, align(Alignment::Centre), true},
         {tr("Align &right"), {QKeySequence(tr("Ctrl+Shift+R"))}, align(Alignment::Right), true},
         {tr("Align &top"), {QKeySequence(tr("Ctrl+Shift+T"))}, align(Alignment::Top), true},
         {tr("Align &middle"), {QKeySequence(tr("Ctrl+Shift+M"))}, align(Alignment::Middle), true},
         {tr("Align b&ottom"), {QKeySequence(tr("Ctrl+Shift+B"))}, align(Alignment::Bottom), true},
         kSeparator,
         {tr("Distribute &horizontally"),
          {QKeySequence(tr("Ctrl+Shift+H"))},
          [this] { m_editor.Distribute(Direction::Across); },
          true},
         {tr("Distribute &vertically"),
          {QKeySequence(tr("Ctrl+Shift+V"))},
          [this] { m_editor.Distribute(Direction::Down); },
          true},
         {tr("Stack in a ro&w"),
          {QKeySequence(tr("Ctrl+Shift+A"))},
          [this] { m_editor.Stack(Direction::Across); },
          true},
         {tr("Stack in a col&umn"),
          {QKeySequence(tr("Ctrl+Shift+D"))},
          [this] { m_editor.Stack(Direction::Down); },
          true}});
}

void MainWindow::MakeViewMenu()
{
    QMenu *const menu = AddMenu(
        tr("&View"),
        {{tr("Zoom &in"),
          {QKeySequence::ZoomIn, QKeySequence(tr("Ctrl+="))},
          [this] { m_view->SetZoom(m_view->Zoom() + 1); }},
         {tr("Zoom &out"),
          {QKeySequence::ZoomOut},
          [this] { m_view->SetZoom(m_view->Zoom() - 1); }},
         {tr("&Fit to window"), {QKeySequence(tr("Ctrl+0"))}, [this] { m_view->ZoomToFit(); }},
         kSeparator});
    QAction *const diodes = menu->addAction(tr("Show as LE&Ds"));
    diodes->setCheckable(true);
    diodes->setShortcut(QKeySequence(tr("Ctrl+L")));
    connect(diodes, &QAction::toggled, this, [this](bool on) {
        if (on && m_view->Zoom() < ClockStage::kMinimumLedPitch)
            m_view->SetZoom(ClockStage::kMinimumLedPitch);
        m_view->SetShowsLeds(on);
    });
    m_actions.append(diodes);
    QMenu *const grid = menu->addMenu(tr("&Panel grid"));
    auto *const modules = new QActionGroup(this);
    for (const QSize &module : kModules) {
        QAction *const action = grid->addAction(
            module.isEmpty() ? tr("None")
                             : QStringLiteral("%1 × %2").arg(module.width()).arg(module.height()));
        action->setCheckable(true);
        action->setChecked(module == m_view->Module());
        modules->addAction(action);
        connect(action, &QAction::triggered, this, [this, module] { m_view->SetModule(module); });
    }
    MakeLanguageMenu(*menu);
    menu->addSeparator();
    m_sourceDock->toggleViewAction()->setShortcut(QKeySequence(tr("F4")));
    m_findingsDock->toggleViewAction()->setShortcut(QKeySequence(tr("F8")));
    menu->addAction(m_sourceDock->toggleViewAction());
    menu->addAction(m_findingsDock->toggleViewAction());
    m_actions.append(m_sourceDock->toggleViewAction());
    m_actions.append(m_findingsDock->toggleViewAction());
    for (QAction *const action : menu->actions())
        action->setProperty("needsWall", action->menu() == nullptr);
}

/// The language of the clocks is independent of the window's: the wall may be in another country.
void MainWindow::MakeLanguageMenu(QMenu &view)
{
    QMenu *const menu = view.addMenu(tr("&Language of the clocks"));
    auto *const languages = new QActionGroup(this);
    const QString now = ClockCatalogues::Installed();
    for (const QString &language : ClockCatalogues::Languages()) {
        QAction *const action = menu->addAction(QLocale(language).nativeLanguageName());
        action->setCheckable(true);
        action->setChecked(language == now);
        languages->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] {
            ClockCatalogues::Install(language);
            m_wall.RecreateClocks();
        });
    }
}

void MainWindow::MakeHelpMenu()
{
    AddMenu(tr("&Help"),
            {{tr("&Keyboard shortcuts"), {QKeySequence(tr("F1"))}, [this] { ShowKeys(); }},
             {tr("&About Clock Studio"), {}, [this] { ShowAbout(); }}});
}

void MainWindow::ShowKeys()
{
    KeysDialog(KeysOf(m_actions), this).exec();
}

void MainWindow::ShowAbout()
{
    QMessageBox::about(
        this, tr("About Clock Studio"),
        tr("<h3>Clock Studio %1</h3><p>An editor for walls of clocks. All clocks are "
           "drawn by the clock plugin itself.</p>")
            .arg(QStringLiteral(CLOCK_STUDIO_VERSION)));
}

} // namespace ClockStudio
