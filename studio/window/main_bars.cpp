// studio/window: the main window's tool bar and status bar.
#include "main_window.h"

#include "properties/clock_pictures.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// A tool that draws a new clock on the wall.
struct DrawingTool
{
    ClockKind kind;
    const char *text;
    const char *key;
    int type; ///< the value of the ClockType attribute
};

constexpr DrawingTool kDrawingTools[] = {
    {ClockKind::Digital, QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "Digital clock"),
     QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "D"), DigitalClock},
    {ClockKind::Analog, QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "Analog clock"),
     QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "A"), AnalogClock},
    {ClockKind::Picture, QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "Picture clock"),
     QT_TRANSLATE_NOOP("ClockStudio::MainWindow", "P"), PictureClock},
};

} // namespace

void MainWindow::MakeToolBar()
{
    QToolBar *const bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setIconSize({32, 22});
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    AddDrawingTools(*bar);
    auto *const space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    for (QAction *const action : qAsConst(m_actions)) {
        if (action->text() == tr("Show as LE&Ds") || action->text() == tr("Sen&d to a wall…"))
            bar->addAction(action);
    }
}

void MainWindow::AddDrawingTools(QToolBar &bar)
{
    m_drawing = new QActionGroup(this);
    m_drawing->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const DrawingTool &tool : kDrawingTools) {
        const QString text = tr(tool.text);
        const QString key = tr(tool.key);
        QAction *const action = bar.addAction(QIcon(KindPicture(tool.type)), text);
        action->setCheckable(true);
        action->setShortcut(QKeySequence(key));
        action->setToolTip(tr("%1: drag a rectangle on the wall (%2)").arg(text, key));
        action->setProperty("needsWall", true);
        action->setData(static_cast<int>(tool.kind));
        m_drawing->addAction(action);
        m_actions.append(action);
        connect(action, &QAction::toggled, this, [this, kind = tool.kind](bool on) {
            if (on)
                m_view->Mouse().SetDrawing(kind);
            else if (m_view->Mouse().Drawing() == kind)
                m_view->Mouse().SetDrawing({});
        });
    }
    connect(&m_view->Mouse(), &WallMouse::DrawingChanged, this, [this] {
        for (QAction *const action : m_drawing->actions()) {
            if (!m_view->Mouse().Drawing())
                action->setChecked(false);
        }
    });
}

void MainWindow::MakeStatus()
{
    m_place = new QLabel;
    m_zoom = new QLabel;
    auto *const findings = new QToolButton;
    findings->setAutoRaise(true);
    findings->setDefaultAction(m_findingsDock->toggleViewAction());
    statusBar()->addPermanentWidget(m_place);
    statusBar()->addPermanentWidget(m_zoom);
    statusBar()->addPermanentWidget(findings);
    connect(m_view, &WallView::PointedAt, this, [this](const QPoint &pixel) {
        m_place->setText(QStringLiteral("%1, %2").arg(pixel.x()).arg(pixel.y()));
    });
    connect(m_view, &WallView::ZoomChanged, this,
            [this](int zoom) { m_zoom->setText(QStringLiteral("%1×").arg(zoom)); });
    connect(m_view, &WallView::MenuWanted, this, [this](const QPoint &place) {
        QMenu menu;
        for (QAction *const action : qAsConst(m_actions)) {
            if (action->property("needsSelection").toBool())
                menu.addAction(action);
        }
        menu.exec(place);
    });
}

} // namespace ClockStudio
