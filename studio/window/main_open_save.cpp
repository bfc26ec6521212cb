// studio/window: MainWindow: opens, saves and recovers programs, and asks about unsaved work.
#include "main_window.h"

#include "message_bar.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStatusBar>

namespace ClockStudio {

namespace {

const QString kFilter = QStringLiteral("*.xml");

} // namespace

bool MainWindow::Open(const QString &path)
{
    if (!ConfirmLeave())
        return false;
    if (const auto problem = m_files.Open(path)) {
        SayProblem(*problem);
        return false;
    }
    m_messages->hide();
    ShowWallPage();
    OfferRecovery();
    return true;
}

void MainWindow::BeginWith(const QByteArray &bytes)
{
    if (!ConfirmLeave())
        return;
    m_files.Begin(bytes);
    ShowWallPage();
}

void MainWindow::NewProgram()
{
    ShowGallery();
}

void MainWindow::OpenDialog()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a program"), m_files.Path(),
                                     tr("Programs (%1);;All files (*)").arg(kFilter));
    if (!path.isEmpty())
        Open(path);
}

bool MainWindow::Save()
{
    if (m_files.Path().isEmpty())
        return SaveAs();
    if (const auto problem = m_files.Save(m_files.Path())) {
        SayProblem(*problem);
        return false;
    }
    statusBar()->showMessage(tr("Saved"), 3000);
    return true;
}

bool MainWindow::SaveAs()
{
    QString path = QFileDialog::getSaveFileName(
        this, tr("Save the program"), m_files.Path().isEmpty() ? tr("wall.xml") : m_files.Path(),
        tr("Programs (%1)").arg(kFilter));
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".xml");
    if (const auto problem = m_files.Save(path)) {
        SayProblem(*problem);
        return false;
    }
    return true;
}

bool MainWindow::ConfirmLeave()
{
    if (m_files.IsSaved())
        return true;
    QMessageBox question(QMessageBox::Question, tr("Unsaved work"),
                         tr("Save the changes to %1?").arg(m_files.Name()),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    switch (question.exec()) {
    case QMessageBox::Save:
        return Save();
    case QMessageBox::Discard:
        m_files.GiveUp();
        return true;
    default:
        return false;
    }
}

void MainWindow::OfferRecovery()
{
    const QVector<UnsavedWork> left = m_files.Recoverable();
    if (left.isEmpty())
        return;
    const UnsavedWork work = left.first();
    const QString name = work.path.isEmpty() ? tr("a new wall") : work.path;
    m_messages->Ask(
        tr("The studio closed unexpectedly. Unsaved changes to %1 can be recovered.").arg(name),
        {{tr("Recover"), [this, work] { Recover(work); }}, {tr("Discard"), [this, work] {
                                                                RecoveryStore::Remove(work);
                                                                OfferRecovery();
                                                            }}});
}

void MainWindow::Recover(const UnsavedWork &work)
{
    if (ConfirmLeave()) {
        m_files.Recover(work);
        ShowWallPage();
    }
    OfferRecovery();
}

void MainWindow::AskAboutChange()
{
    const QString text = tr("%1 was changed by another program.").arg(m_files.Name());
    m_messages->Ask(text,
                    {{tr("Reload"),
                      [this] {
                          if (const auto problem = m_files.Open(m_files.Path()))
                              SayProblem(*problem);
                      }},
                     {tr("Keep mine"), {}}});
}

} // namespace ClockStudio
