#include "findings_panel.h"

#include "finding_words.h"

#include "calendar/system_time.h"
#include "clock_node.h"
#include "clock_status.h"

#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ClockStudio {

namespace {

// Delay after the last change before checking, in milliseconds.
constexpr int kDelay = 400;

} // namespace

FindingsPanel::FindingsPanel(WallEditor &editor, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_list(new QListWidget), m_fix(new QPushButton(tr("Fix"))),
      m_none(new QLabel), m_unchecked(new QLabel)
{
    auto *const all = new QVBoxLayout(this);
    all->setContentsMargins(8, 6, 8, 6);
    auto *const layout = new QHBoxLayout;
    all->addLayout(layout, 1);
    all->addWidget(m_unchecked);
    m_none->setObjectName(QStringLiteral("note"));
    m_unchecked->setWordWrap(true);
    m_unchecked->hide();
    m_list->setWordWrap(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAccessibleName(tr("Findings"));
    m_fix->setToolTip(tr("Apply the suggested fix"));
    layout->addWidget(m_none, 1);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_fix, 0, Qt::AlignTop);
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelay);
    connect(&editor.Document(), &StudioDocument::Read, &m_delay, QOverload<>::of(&QTimer::start));
    connect(&editor.Document(), &StudioDocument::Read, &m_fit, &FitCheck::Drop);
    connect(&m_fit, &FitCheck::Found, this, &FindingsPanel::List);
    connect(&m_fit, &FitCheck::Failed, this, &FindingsPanel::SayUnchecked);
    connect(&m_delay, &QTimer::timeout, this, &FindingsPanel::Check);
    connect(m_list, &QListWidget::currentRowChanged, this, &FindingsPanel::Select);
    connect(m_fix, &QPushButton::clicked, this, &FindingsPanel::Fix);
    Check();
}

void FindingsPanel::SetProgramPath(const QString &path)
{
    if (std::exchange(m_path, path) != path)
        m_delay.start();
}

void FindingsPanel::Check()
{
    m_delay.stop();
    m_fit.Drop();
    const ParsedProgram *const parsed = m_editor.Document().Parsed();
    const auto bytes = m_editor.Document().Bytes();
    const bool hasClocks = parsed && parsed->AreaCount() > 0;
    List(hasClocks ? FindingsIn(*parsed, Lw::HNodeClock::SystemMilliseconds(), m_path)
                   : QVector<ClockTool::Finding>());
    m_unchecked->hide();
    if (hasClocks && bytes)
        m_fit.Start(*bytes, m_path);
}

void FindingsPanel::SayUnchecked(const QString &reason)
{
    m_unchecked->setText(tr("The days of a year are not checked: %1").arg(reason));
    m_unchecked->show();
}

void FindingsPanel::CheckAll()
{
    Check();
    QEventLoop loop;
    connect(&m_fit, &FitCheck::Ended, &loop, &QEventLoop::quit);
    if (m_fit.IsRunning())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

/// The selected finding stays selected if it is found again.
void FindingsPanel::List(const QVector<ClockTool::Finding> &findings)
{
    const QString selected = m_findings.value(m_list->currentRow()).text;
    m_findings = findings;
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const ClockTool::Finding &finding : qAsConst(m_findings))
        Add(finding);
    m_list->setVisible(!m_findings.isEmpty());
    m_none->setText(m_editor.Document().Parsed() ? tr("No findings.")
                                                 : tr("The text is not a valid program."));
    m_none->setVisible(m_findings.isEmpty());
    m_fix->setVisible(!m_findings.isEmpty());
    m_fix->setEnabled(false);
    for (int row = 0; row < m_findings.size(); ++row) {
        if (!selected.isEmpty() && m_findings[row].text == selected) {
            m_list->setCurrentRow(row);
            UpdateFix();
        }
    }
    const auto isWarning = [](const ClockTool::Finding &finding) {
        return finding.severity == ClockTool::Severity::Warning;
    };
    emit CountChanged(
        static_cast<int>(std::count_if(m_findings.cbegin(), m_findings.cend(), isWarning)));
}

QString FindingsPanel::TextOf(const ClockTool::Finding &finding) const
{
    if (finding.place.clock < 1)
        return finding.text;
    const auto zone = ClockStage::SettingsOf(m_editor.Wall().Clock(finding.place.clock - 1));
    return tr("Clock %1: ").arg(finding.place.clock)
        + (zone ? WithLocalTimes(finding.text, *zone) : finding.text);
}

void FindingsPanel::Add(const ClockTool::Finding &finding)
{
    const bool isWarning = finding.severity == ClockTool::Severity::Warning;
    auto *const item =
        new QListWidgetItem(style()->standardIcon(isWarning ? QStyle::SP_MessageBoxWarning
                                                            : QStyle::SP_MessageBoxInformation),
                            TextOf(finding), m_list);
    item->setToolTip(tr("Line %1").arg(finding.place.line));
}

std::optional<TextEdit> FindingsPanel::FixFor(int row) const
{
    const ParsedProgram *const parsed = m_editor.Document().Parsed();
    if (!parsed || row < 0 || row >= m_findings.size())
        return std::nullopt;
    return FixOf(*parsed, m_findings[row], Lw::HNodeClock::SystemMilliseconds(), m_path);
}

void FindingsPanel::UpdateFix()
{
    m_fix->setEnabled(FixFor(m_list->currentRow()).has_value());
}

void FindingsPanel::Select(int row)
{
    const ParsedProgram *const parsed = m_editor.Document().Parsed();
    if (row < 0 || row >= m_findings.size() || !parsed)
        return;
    const ClockTool::Finding finding = m_findings[row];
    UpdateFix();
    emit LineWanted(finding.place.line);
    if (finding.place.clock < 1)
        return;
    const int area = finding.place.clock - 1;
    m_editor.Select({area});
    if (auto *const clock = m_editor.Wall().Clock(area))
        emit PropertyWanted(KeyOf(finding, clock->ClockType()));
    m_list->setFocus();
}

void FindingsPanel::Fix()
{
    if (const auto edit = FixFor(m_list->currentRow()))
        m_editor.Document().Change({*edit}, tr("Fix"));
    Check();
}

} // namespace ClockStudio
