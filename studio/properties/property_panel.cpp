#include "property_panel.h"

#include "section.h"
#include "zone_section.h"

#include "clock_node.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

constexpr int kPanelWidth = 340; // pixels
constexpr int kMargin = 14;

/// One value for all clocks, or nothing.
std::optional<QString> CommonValue(const QVector<HClockNode *> &clocks, Attribute attribute)
{
    const QString value = clocks.first()->GetAttribute(Key(attribute));
    for (HClockNode *const clock : clocks) {
        if (clock->GetAttribute(Key(attribute)) != value)
            return std::nullopt;
    }
    return value;
}

} // namespace

PropertyPanel::PropertyPanel(WallEditor &editor, QWidget *parent)
    : QScrollArea(parent), m_editor(editor)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(kPanelWidth);
    auto *const inner = new QWidget;
    m_layout = new QVBoxLayout(inner);
    m_layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_layout->setSpacing(4);
    MakeHead();
    m_clock = new QWidget;
    auto *const clockLayout = new QVBoxLayout(m_clock);
    clockLayout->setContentsMargins(0, 0, 0, 0);
    clockLayout->setSpacing(8);
    m_layout->addWidget(m_clock);
    m_layout->addStretch(1);
    MakeKindAndZone();
    MakePlace();
    MakeGroups();
    setWidget(inner);
    inner->installEventFilter(this);
    for (QWidget *const control : inner->findChildren<QWidget *>()) {
        control->installEventFilter(this);
        if (control->focusPolicy() == Qt::WheelFocus)
            control->setFocusPolicy(Qt::StrongFocus);
    }
    connect(&editor, &WallEditor::SelectionChanged, this, &PropertyPanel::Refresh);
    connect(&editor.Wall(), &LiveWall::ClocksMade, this, &PropertyPanel::Refresh);
    connect(&editor.Document(), &StudioDocument::Read, this, &PropertyPanel::Refresh);
    Refresh();
}

/// The wheel always scrolls the panel and never changes the control under the pointer; Return ends
/// the editing of a value.
bool PropertyPanel::eventFilter(QObject *object, QEvent *event)
{
    const bool wouldChange = event->type() == QEvent::Wheel
        && (qobject_cast<QComboBox *>(object) || qobject_cast<QAbstractSpinBox *>(object));
    if (wouldChange)
        event->ignore(); // so that it reaches the scroll area
    const bool isReturn = event->type() == QEvent::KeyPress && object->isWidgetType()
        && (qobject_cast<QLineEdit *>(object) || qobject_cast<QAbstractSpinBox *>(object))
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::InsertParagraphSeparator);
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        UpdateMinimumWidth();
    if (isReturn) // after the value has been taken
        QMetaObject::invokeMethod(this, &PropertyPanel::Finished, Qt::QueuedConnection);
    return wouldChange || QScrollArea::eventFilter(object, event);
}

/// There is no horizontal scroll bar, and how wide the controls are depends on style and font.
void PropertyPanel::UpdateMinimumWidth()
{
    setMinimumWidth(
        qMax(kPanelWidth,
             widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width()));
}

QVector<HClockNode *> PropertyPanel::SelectedClocks() const
{
    QVector<HClockNode *> clocks;
    for (const int area : m_editor.Selected()) {
        if (HClockNode *const clock = m_editor.Wall().Clock(area))
            clocks.append(clock);
    }
    return clocks;
}

void PropertyPanel::Refresh()
{
    m_isShowing = true;
    const QVector<HClockNode *> clocks = SelectedClocks();
    const bool isEditable = m_editor.Document().Parsed();
    widget()->setEnabled(isEditable);
    m_wall->setVisible(m_editor.Selected().isEmpty());
    m_clock->setVisible(!clocks.isEmpty());
    m_title->setText(m_editor.Selected().isEmpty() ? tr("Wall")
                         : m_editor.Selected().size() == 1
                         ? tr("Clock %1").arg(m_editor.Selected().first() + 1)
                         : tr("%n clock(s)", nullptr, m_editor.Selected().size()));
    ShowWall();
    if (!clocks.isEmpty()) {
        ShowClocks(clocks);
        ShowPlace();
    }
    m_isShowing = false;
}

void PropertyPanel::ShowWall()
{
    m_screenSize[0]->setValue(m_editor.Wall().Size().width());
    m_screenSize[1]->setValue(m_editor.Wall().Size().height());
}

void PropertyPanel::ShowPlace()
{
    const QVector<QRect> rects = m_editor.SelectedRects();
    const QRect rect = rects.size() == 1 ? rects.first() : Around(rects);
    const int values[] = {rect.x(), rect.y(), rect.width(), rect.height()};
    for (int i = 0; i < 4; ++i) {
        m_place[i]->setValue(values[i]);
        m_place[i]->setEnabled(i < 2 || rects.size() == 1);
    }
}

void PropertyPanel::ShowClocks(const QVector<HClockNode *> &clocks)
{
    const auto kind = CommonValue(clocks, Attribute::ClockType);
    m_kinds->setExclusive(false);
    for (QAbstractButton *const button : m_kinds->buttons())
        button->setChecked(kind && m_kinds->id(button) == kind->toInt());
    m_kinds->setExclusive(kind.has_value());
    m_zone->Show(clocks);
    for (const Group &group : qAsConst(m_groups)) {
        QVector<HClockNode *> users;
        for (HClockNode *const clock : clocks) {
            if (IsUsedBy(group.group->clocks, clock->ClockType()))
                users.append(clock);
        }
        group.section->setVisible(!users.isEmpty());
        if (users.isEmpty())
            continue;
        if (group.group->shown != Attribute::Id) {
            const auto shown = CommonValue(users, group.group->shown);
            group.section->SetSwitch(!shown                    ? Qt::PartiallyChecked
                                         : shown->toInt() != 0 ? Qt::Checked
                                                               : Qt::Unchecked);
        }
        for (ValueEditor *const editor : group.editors) {
            const auto value = CommonValue(users, editor->Attribute());
            editor->ShowFor(*users.first());
            editor->Show(value.value_or(QString()), !value.has_value());
        }
    }
}

void PropertyPanel::Reveal(const QString &key)
{
    for (const Group &group : qAsConst(m_groups)) {
        for (ValueEditor *const editor : group.editors) {
            if (editor->objectName() == key && group.section->isVisible()) {
                ensureWidgetVisible(editor);
                editor->setFocus();
            }
        }
    }
}

} // namespace ClockStudio
