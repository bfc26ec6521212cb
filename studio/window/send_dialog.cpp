#include "send_dialog.h"

#include "calendar/clock_time.h"

#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

constexpr int kWidth = 500; // pixels

/// A button that the Return key does not press.
QPushButton *Button(const QString &text)
{
    auto *const button = new QPushButton(text);
    button->setAutoDefault(false);
    return button;
}

QLabel *Line()
{
    auto *const label = new QLabel;
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

SendDialog::SendDialog(const QString &program, QWidget *parent)
    : QDialog(parent), m_program(program), m_targets(KnownTargets()), m_name(new QComboBox),
      m_host(new QLineEdit), m_folder(new QLineEdit), m_key(new QLineEdit), m_status(new QLineEdit),
      m_message(Line()), m_wallStatus(Line()), m_releases(new QListWidget),
      m_playRelease(Button(tr("Play the selected release")))
{
    setWindowTitle(tr("Send to a wall"));
    auto *const layout = new QVBoxLayout(this);
    auto *const form = new QFormLayout;
    AddFields(*form);
    layout->addLayout(form);
    layout->addWidget(m_message);
    layout->addWidget(m_wallStatus);
    AddReleases();
    AddButtons();
    connect(&m_watch, &WallWatch::StatusReceived, this,
            [this](const WallStatus &status) { m_wallStatus->setText(StatusText(status)); });
    for (const WallTarget &target : qAsConst(m_targets))
        m_name->addItem(target.name);
    ShowTarget(0);
    setMinimumWidth(kWidth);
}

void SendDialog::AddFields(QFormLayout &form)
{
    m_name->setEditable(true);
    m_name->setObjectName(QStringLiteral("wall"));
    m_host->setObjectName(QStringLiteral("host"));
    m_host->setPlaceholderText(tr("empty for this computer, or operator@wall.example:22"));
    m_folder->setObjectName(QStringLiteral("folder"));
    m_folder->setPlaceholderText(tr("/srv/wall"));
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setPlaceholderText(tr("none, or /run/clock-player/status.json"));
    m_status->setToolTip(tr("The player's status file on the wall. It shows whether the wall is "
                            "playing what was sent."));
    form.addRow(tr("Wall"), m_name);
    form.addRow(tr("Host"), m_host);
    form.addRow(tr("Folder"), m_folder);
    form.addRow(tr("Key file"), KeyField());
    form.addRow(tr("Status file"), m_status);
    connect(m_name, QOverload<int>::of(&QComboBox::activated), this, &SendDialog::ShowTarget);
}

QWidget *SendDialog::KeyField()
{
    auto *const field = new QWidget;
    auto *const layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    m_key->setObjectName(QStringLiteral("key"));
    m_key->setPlaceholderText(tr("empty for ssh's default key"));
    auto *const browse = new QToolButton;
    browse->setText(QStringLiteral("…"));
    browse->setAccessibleName(tr("Choose the key file"));
    layout->addWidget(m_key);
    layout->addWidget(browse);
    connect(browse, &QToolButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, tr("Key file"), m_key->text());
        if (!path.isEmpty())
            m_key->setText(path);
    });
    return field;
}

void SendDialog::AddReleases()
{
    QPushButton *const earlier = Button(tr("Earlier releases"));
    earlier->setObjectName(QStringLiteral("earlier"));
    m_releases->setObjectName(QStringLiteral("releases"));
    m_releases->setAccessibleName(earlier->text());
    m_playRelease->setObjectName(QStringLiteral("again"));
    m_playRelease->setEnabled(false);
    for (QWidget *const widget :
         std::initializer_list<QWidget *> {earlier, m_releases, m_playRelease})
        layout()->addWidget(widget);
    m_releases->hide();
    m_playRelease->hide();
    connect(earlier, &QPushButton::clicked, this, &SendDialog::ListReleases);
    connect(m_playRelease, &QPushButton::clicked, this, &SendDialog::PlayRelease);
    connect(m_releases, &QListWidget::currentRowChanged, this,
            [this](int row) { m_playRelease->setEnabled(row >= 0); });
}

void SendDialog::AddButtons()
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *const send = buttons->addButton(tr("Send"), QDialogButtonBox::AcceptRole);
    send->setObjectName(QStringLiteral("send"));
    layout()->addWidget(buttons);
    send->setDefault(true); // has no effect before the button is in the dialog
    connect(send, &QPushButton::clicked, this, &SendDialog::Send);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

WallTarget SendDialog::Target() const
{
    return {m_name->currentText().trimmed(), m_host->text().trimmed(), m_folder->text().trimmed(),
            m_key->text().trimmed(), m_status->text().trimmed()};
}

void SendDialog::ShowTarget(int index)
{
    if (index < 0 || index >= m_targets.size())
        return;
    const WallTarget &target = m_targets[index];
    m_host->setText(target.host);
    m_folder->setText(target.folder);
    m_key->setText(target.key);
    m_status->setText(target.statusFile);
    m_message->clear();
    m_wallStatus->clear();
    m_watch.Stop();
    m_releases->clear();
}

void SendDialog::SaveTarget()
{
    const WallTarget target = Target();
    for (WallTarget &known : m_targets) {
        if (known.name == target.name) {
            known = target;
            return SaveTargets(m_targets);
        }
    }
    m_targets.append(target);
    SaveTargets(m_targets);
}

bool SendDialog::CheckTarget()
{
    m_watch.Stop();
    m_wallStatus->clear();
    m_message->setText(TargetFault(Target()));
    return m_message->text().isEmpty();
}

bool SendDialog::ShowFailure(const ToolResult &result)
{
    if (!result.isGood)
        m_message->setText(result.isCancelled ? tr("Cancelled. The wall is unchanged.")
                                              : result.errors);
    return result.isGood;
}

void SendDialog::Send()
{
    if (!CheckTarget())
        return;
    SaveTarget();
    const QTemporaryDir work;
    const QString folder = work.filePath(QStringLiteral("export"));
    if (!ShowFailure(RunBehindDialog({ExportCommand(m_program, folder)},
                                     tr("Generating the glyph files…"), this)))
        return;
    const QString release =
        Lw::HNodeClock::FormatAscii(QDateTime::currentDateTimeUtc(), "yyyyMMdd-HHmmss");
    if (Upload(folder, release))
        Follow(tr("Release %2 was sent to %1. The previous release is kept.")
                   .arg(Target().name, release));
}

/// After a failure, removes the incomplete release if the target can still be reached.
bool SendDialog::Upload(const QString &folder, const QString &release)
{
    const QString what = tr("Sending to %1…").arg(Target().name);
    const bool isUploaded =
        ShowFailure(RunBehindDialog(SendCommands(Target(), folder, release), what, this));
    if (!isUploaded)
        RunBehindDialog({DiscardCommand(Target(), release)}, tr("Removing the incomplete release…"),
                        this);
    return isUploaded;
}

void SendDialog::Follow(const QString &message)
{
    m_message->setText(message);
    if (!Target().statusFile.isEmpty())
        m_wallStatus->setText(tr("Waiting for the wall to play the release…"));
    m_watch.Follow(Target());
    if (m_releases->isVisible())
        ListReleases();
}

void SendDialog::ListReleases()
{
    const QString message = m_message->text();
    if (!TargetFault(Target()).isEmpty()) {
        CheckTarget();
        return;
    }
    const ToolResult result =
        RunBehindDialog({ListCommand(Target())}, tr("Asking %1…").arg(Target().name), this);
    m_releases->clear();
    const ReleaseList list = ReleasesIn(QString::fromUtf8(result.output));
    for (const QString &release : list.releases) {
        const QString text = release == list.current ? tr("%1 (playing)").arg(release) : release;
        auto *const item = new QListWidgetItem(text, m_releases);
        item->setData(Qt::UserRole, release);
    }
    m_releases->setVisible(result.isGood);
    m_playRelease->setVisible(result.isGood);
    m_message->setText(message);
    if (ShowFailure(result) && list.releases.isEmpty())
        m_message->setText(tr("There are no releases yet."));
}

void SendDialog::PlayRelease()
{
    const QListWidgetItem *const item = m_releases->currentItem();
    if (!item || !CheckTarget())
        return;
    const QString release = item->data(Qt::UserRole).toString();
    if (ShowFailure(
            RunBehindDialog({PlayCommand(Target(), release)}, tr("Switching releases…"), this)))
        Follow(tr("%1 now plays release %2.").arg(Target().name, release));
}

} // namespace ClockStudio
