#include "send_dialog.h"

#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ClockStudio {

SendDialog::SendDialog(const QString &program, QWidget *parent)
    : QDialog(parent), m_program(program), m_targets(KnownTargets()), m_name(new QComboBox),
      m_host(new QLineEdit), m_folder(new QLineEdit), m_key(new QLineEdit),
      m_releases(new QListWidget), m_said(new QLabel)
{
    setWindowTitle(tr("Send to a wall"));
    auto *const layout = new QVBoxLayout(this);
    auto *const form = new QFormLayout;
    m_name->setEditable(true);
    m_host->setPlaceholderText(tr("empty for this computer, or operator@wall.example"));
    m_folder->setPlaceholderText(tr("/srv/wall"));
    m_key->setPlaceholderText(tr("the usual one"));
    form->addRow(tr("Wall"), m_name);
    form->addRow(tr("Host"), m_host);
    form->addRow(tr("Folder"), m_folder);
    form->addRow(tr("Key file"), m_key);
    layout->addLayout(form);
    m_said->setWordWrap(true);
    layout->addWidget(m_said);
    auto *const earlier = new QPushButton(tr("Earlier releases"));
    auto *const again = new QPushButton(tr("Play the chosen release again"));
    layout->addWidget(earlier);
    layout->addWidget(m_releases);
    layout->addWidget(again);
    m_releases->hide();
    again->hide();
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *const send = buttons->addButton(tr("Send"), QDialogButtonBox::AcceptRole);
    send->setDefault(true);
    layout->addWidget(buttons);
    connect(send, &QPushButton::clicked, this, &SendDialog::Send);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(earlier, &QPushButton::clicked, this, [this, again] {
        ListReleases();
        m_releases->show();
        again->show();
    });
    connect(again, &QPushButton::clicked, this, &SendDialog::PlayRelease);
    connect(m_name, QOverload<int>::of(&QComboBox::activated), this, &SendDialog::ShowTarget);
    for (const WallTarget &target : qAsConst(m_targets))
        m_name->addItem(target.name);
    ShowTarget(0);
    setMinimumWidth(460);
}

WallTarget SendDialog::Target() const
{
    return {m_name->currentText().trimmed(), m_host->text().trimmed(), m_folder->text().trimmed(),
            m_key->text().trimmed()};
}

void SendDialog::ShowTarget(int index)
{
    if (index < 0 || index >= m_targets.size())
        return;
    m_host->setText(m_targets[index].host);
    m_folder->setText(m_targets[index].folder);
    m_key->setText(m_targets[index].key);
}

void SendDialog::KeepTarget()
{
    const WallTarget target = Target();
    for (WallTarget &known : m_targets) {
        if (known.name == target.name) {
            known = target;
            return KeepTargets(m_targets);
        }
    }
    m_targets.append(target);
    KeepTargets(m_targets);
}

bool SendDialog::IsComplete()
{
    m_said->setText(TargetFault(Target()));
    return m_said->text().isEmpty();
}

bool SendDialog::Run(const ToolCommand &command, const QString &what)
{
    const ToolResult result = RunBehindDialog(command, what, this);
    if (!result.isGood)
        m_said->setText(result.isCancelled ? tr("Cancelled. The wall shows what it showed before.")
                                           : result.errors);
    return result.isGood;
}

void SendDialog::Send()
{
    if (!IsComplete())
        return;
    KeepTarget();
    const QTemporaryDir work;
    const QString folder = work.filePath(QStringLiteral("export"));
    if (!Run({ClockToolPath(), {QStringLiteral("export"), m_program, folder}},
             tr("Making the glyph files…")))
        return;
    const QString release =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (const ToolCommand &command : SendCommands(Target(), folder, release)) {
        if (!Run(command, tr("Sending to %1…").arg(Target().name)))
            return;
    }
    m_said->setText(tr("%1 has release %2. The one before is kept.").arg(Target().name, release));
}

void SendDialog::ListReleases()
{
    if (!IsComplete())
        return;
    const ToolCommand command = ListCommand(Target());
    QProcess process;
    process.start(command.program, command.arguments);
    process.waitForFinished();
    m_releases->clear();
    QStringList releases = QString::fromUtf8(process.readAllStandardOutput())
                               .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    std::reverse(releases.begin(), releases.end());
    m_releases->addItems(releases);
    if (releases.isEmpty())
        m_said->setText(tr("There are no releases yet."));
}

void SendDialog::PlayRelease()
{
    const QListWidgetItem *const item = m_releases->currentItem();
    if (item && IsComplete()
        && Run(PlayCommand(Target(), item->text()), tr("Changing the release…")))
        m_said->setText(tr("%1 has release %2.").arg(Target().name, item->text()));
}

} // namespace ClockStudio
