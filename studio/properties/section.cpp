#include "section.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

namespace ClockStudio {

namespace {

constexpr int kLabelWidth = 76; // pixels

} // namespace

Section::Section(const QString &title)
    : m_body(new QWidget), m_grid(new QGridLayout(m_body)), m_heading(new QWidget)
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 8);
    layout->setSpacing(6);
    auto *const line = new QHBoxLayout(m_heading);
    line->setContentsMargins(0, 0, 0, 0);
    auto *const label = new QLabel(title);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    line->addWidget(label, 1);
    layout->addWidget(m_heading);
    layout->addWidget(m_body);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnMinimumWidth(0, kLabelWidth);
    m_grid->setColumnStretch(1, 1);
}

void Section::AddSwitch(const QString &explanation)
{
    m_switch = new QCheckBox(tr("Show"));
    m_switch->setToolTip(explanation);
    m_switch->setAccessibleName(explanation);
    m_heading->layout()->addWidget(m_switch);
    connect(m_switch, &QCheckBox::clicked, this, [this](bool on) {
        m_switch->setTristate(false);
        emit Switched(on);
    });
}

void Section::SetSwitch(Qt::CheckState state)
{
    m_switch->setCheckState(state);
    m_body->setVisible(state != Qt::Unchecked);
}

void Section::AddLine(const QString &label, const QVector<QWidget *> &controls)
{
    const int row = m_grid->rowCount();
    auto *const caption = new QLabel(label);
    caption->setBuddy(controls.first());
    m_grid->addWidget(caption, row, 0);
    auto *const line = new QHBoxLayout;
    line->setSpacing(6);
    const QMetaObject *const kind = controls.first()->metaObject();
    for (QWidget *const control : controls)
        line->addWidget(control, control->metaObject() == kind ? 1 : 0);
    m_grid->addLayout(line, row, 1);
}

void Section::AddWide(QWidget *control)
{
    m_grid->addWidget(control, m_grid->rowCount(), 0, 1, 2);
}

} // namespace ClockStudio
