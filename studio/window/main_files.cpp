// The main window's pictures and other files made of a wall.
#include "main_window.h"

#include "led_screen.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStatusBar>

namespace ClockStudio {

namespace {

constexpr int kPicturePitch = 8; // pixels of a picture for one diode

} // namespace

void MainWindow::SavePicture()
{
    const QString plain = tr("Picture, plain pixels (*.png)");
    const QString diodes = tr("Picture, as diodes (*.png)");
    QString chosen;
    QString path = QFileDialog::getSaveFileName(this, tr("Picture of the wall"),
                                                QFileInfo(m_files.Name()).completeBaseName()
                                                    + QStringLiteral(".png"),
                                                plain + QStringLiteral(";;") + diodes, &chosen);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".png");
    const QImage picture = chosen == diodes
        ? ClockStage::LedScreen(kPicturePitch).Diodes(m_wall.Screen())
        : m_wall.Screen();
    if (picture.isNull() || !picture.save(path, "PNG"))
        SayProblem(tr("%1 could not be written.").arg(path));
    else
        statusBar()->showMessage(tr("Saved %1").arg(path), 4000);
}

} // namespace ClockStudio
