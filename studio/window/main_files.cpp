// studio/window: MainWindow: saves pictures, the approval sheet and the preview; exports, imports
// and sends.
#include "main_window.h"

#include "send_dialog.h"

#include "files/preview.h"
#include "files/saved_file.h"
#include "files/sheet.h"
#include "files/tool_run.h"
#include "findings/findings_panel.h"

#include "led_screen.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QStatusBar>
#include <QTemporaryDir>

namespace ClockStudio {

namespace {

constexpr int kPicturePitch = 8; // pixels per LED in a saved picture

QString WithSuffix(const QString &path, const QString &suffix)
{
    return path.isEmpty() || !QFileInfo(path).suffix().isEmpty() ? path : path + suffix;
}

} // namespace

void MainWindow::SavePicture()
{
    const QString plain = tr("Picture, plain pixels (*.png)");
    const QString diodes = tr("Picture, as LEDs (*.png)");
    QString chosen;
    const QString path =
        WithSuffix(QFileDialog::getSaveFileName(this, tr("Picture of the wall"), tr("wall.png"),
                                                plain + QStringLiteral(";;") + diodes, &chosen),
                   QStringLiteral(".png"));
    if (path.isEmpty())
        return;
    const QImage picture = chosen == diodes
        ? ClockStage::LedScreen(kPicturePitch).Diodes(m_wall.Screen())
        : m_wall.Screen();
    QBuffer png;
    if (png.open(QBuffer::WriteOnly) && picture.save(&png, "PNG"))
        SayWritten(path, SaveFile(path, png.data()));
    else
        SayProblem(tr("The picture could not be made."));
}

void MainWindow::SaveSheet()
{
    const QString path = WithSuffix(
        QFileDialog::getSaveFileName(this, tr("Approval sheet"), tr("wall.pdf"), tr("PDF (*.pdf)")),
        QStringLiteral(".pdf"));
    if (path.isEmpty())
        return;
    m_findings->CheckAll();
    QStringList findings;
    for (const ClockTool::Finding &finding : m_findings->Findings())
        findings.append(m_findings->TextOf(finding));
    SayWritten(path, SaveFile(path, SheetPdf(m_files.Name(), m_wall, findings)));
}

void MainWindow::SavePreview()
{
    const QString path =
        WithSuffix(QFileDialog::getSaveFileName(this, tr("Animated preview"), tr("wall.gif"),
                                                tr("Animated picture (*.gif)")),
                   QStringLiteral(".gif"));
    if (path.isEmpty())
        return;
    const QTemporaryDir work;
    const QString made = work.filePath(QStringLiteral("preview.gif"));
    if (const QString problem = WritePreviewFrames(m_wall, work.path()); !problem.isEmpty()) {
        SayProblem(problem);
        return;
    }
    const ToolResult result =
        RunBehindDialog({PreviewCommand(work.path(), made)}, tr("Making the preview…"), this);
    QFile file(made);
    if (result.isGood && file.open(QFile::ReadOnly))
        SayWritten(path, SaveFile(path, file.readAll()));
    else if (!result.isCancelled)
        SayProblem(tr("The preview could not be made: %1").arg(result.errors));
}

void MainWindow::SayWritten(const QString &path, const std::optional<QString> &problem)
{
    if (problem)
        SayProblem(*problem);
    else
        statusBar()->showMessage(tr("Saved %1").arg(path), 4000);
}

QString MainWindow::ProgramFileIn(const QTemporaryDir &directory)
{
    const QString path = directory.filePath(QStringLiteral("program.xml"));
    const std::optional<QByteArray> bytes = m_document.Bytes();
    const std::optional<QString> problem = bytes
        ? SaveFile(path, *bytes)
        : ProgramFiles::tr("The text has a character that the file's encoding cannot represent.");
    if (problem)
        SayProblem(*problem);
    return problem ? QString() : path;
}

void MainWindow::ExportProgram()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Choose an empty folder, or one with an earlier export"));
    if (folder.isEmpty())
        return;
    const QTemporaryDir work;
    const QString program = ProgramFileIn(work);
    if (program.isEmpty())
        return;
    const ToolResult result =
        RunBehindDialog({ExportCommand(program, folder)}, tr("Generating the glyph files…"), this);
    if (result.isGood)
        statusBar()->showMessage(tr("Exported to %1").arg(folder), 4000);
    else if (!result.isCancelled)
        SayProblem(result.errors);
}

void MainWindow::ImportSdk()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Import SDK XML"), {},
                                                      tr("SDK XML (*.xml);;All files (*)"));
    if (path.isEmpty() || !ConfirmLeave())
        return;
    const QTemporaryDir work;
    const QString program = work.filePath(QStringLiteral("program.xml"));
    const ToolResult result = RunBehindDialog(
        {{ClockToolPath(), {QStringLiteral("import"), path, QStringLiteral("-o"), program}}},
        tr("Importing…"), this);
    QFile file(program);
    if (result.isGood && file.open(QFile::ReadOnly)) {
        m_files.Begin(file.readAll());
        ShowWallPage();
    }
    if (!result.errors.isEmpty() && !result.isCancelled)
        SayProblem(result.errors);
}

void MainWindow::Send()
{
    const QTemporaryDir work;
    const QString program = ProgramFileIn(work);
    if (!program.isEmpty())
        SendDialog(program, this).exec();
}

} // namespace ClockStudio
