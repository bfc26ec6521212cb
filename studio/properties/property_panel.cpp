#include "property_panel.h"

#include "clock_pictures.h"
#include "section.h"
#include "zone_section.h"

#include "clock_node.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

constexpr int kPanelWidth = 340; // pixels
constexpr int kMargin = 14;

struct KindName
{
    int kind;
    const char *name;
};

// Most used first.
constexpr KindName kKinds[] = {
    {DigitalClock, QT_TRANSLATE_NOOP("ClockStudio::PropertyPanel", "Digital")},
    {AnalogClock, QT_TRANSLATE_NOOP("ClockStudio::PropertyPanel", "Analog")},
    {PictureClock, QT_TRANSLATE_NOOP("ClockStudio::PropertyPanel", "Picture")},
};

QString GroupWords(const char *words)
{
    return QCoreApplication::translate("ClockStudio::PropertyGroups", words);
}

QSpinBox *PlaceBox(int least, const QString &name)
{
    auto *const box = new QSpinBox;
    box->setRange(least, ClockProgram::kMaximumSide);
    box->setKeyboardTracking(false);
    box->setAccelerated(true);
    box->setAccessibleName(name);
    box->setToolTip(name);
    return box;
}

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

void PropertyPanel::MakeHead()
{
    m_title = new QLabel;
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    m_title->setFont(font);
    m_layout->addWidget(m_title);
    auto *const section = new Section(tr("Size of the wall"));
    for (int i = 0; i < 2; ++i) {
        m_screenSize[i] = PlaceBox(1, i == 0 ? tr("Width in pixels") : tr("Height in pixels"));
        connect(m_screenSize[i], QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
            if (!m_isShowing)
                m_editor.SetScreenSize({m_screenSize[0]->value(), m_screenSize[1]->value()});
        });
        section->AddLine(i == 0 ? tr("Width") : tr("Height"), {m_screenSize[i]});
    }
    auto *const hint = new QLabel(
        tr("Select a clock on the wall to change it, or add one with the buttons above the wall."));
    hint->setWordWrap(true);
    section->AddWide(hint);
    m_wall = section;
    m_layout->addWidget(m_wall);
}

void PropertyPanel::MakeKindAndZone()
{
    auto *const kinds = new QWidget;
    auto *const line = new QHBoxLayout(kinds);
    line->setContentsMargins(0, 6, 0, 6);
    m_kinds = new QButtonGroup(this);
    for (const KindName &kind : kKinds) {
        auto *const button = new QToolButton;
        button->setText(tr(kind.name));
        button->setIcon(QIcon(KindPicture(kind.kind)));
        button->setIconSize(KindPicture(kind.kind).size());
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        m_kinds->addButton(button, kind.kind);
        connect(button, &QToolButton::clicked, this, [this, kind] { SetKind(kind.kind); });
        line->addWidget(button);
    }
    m_clock->layout()->addWidget(kinds);
    m_zone = new ZoneSection;
    connect(m_zone, &ZoneSection::Edited, this,
            [this](const QVector<StoredValue> &values, const QString &label) {
                SetValues(values, label);
            });
    m_clock->layout()->addWidget(m_zone);
}

void PropertyPanel::MakePlace()
{
    auto *const place = new Section(tr("Position and size"));
    const QString names[] = {tr("Left edge in pixels"), tr("Top edge in pixels"),
                             tr("Width in pixels"), tr("Height in pixels")};
    for (int i = 0; i < 4; ++i) {
        m_place[i] = PlaceBox(i < 2 ? -ClockProgram::kMaximumSide : 1, names[i]);
        connect(m_place[i], QOverload<int>::of(&QSpinBox::valueChanged), this,
                &PropertyPanel::ApplyPlace);
    }
    place->AddLine(tr("Position"), {m_place[0], m_place[1]});
    place->AddLine(tr("Size"), {m_place[2], m_place[3]});
    auto *const fit = new QPushButton(tr("Fit sizes to the area"));
    fit->setObjectName(QStringLiteral("FitButton"));
    fit->setToolTip(tr("Make the texts as large as the area allows on any day of the year"));
    connect(fit, &QPushButton::clicked, this, &PropertyPanel::FitSizes);
    place->AddWide(fit);
    m_clock->layout()->addWidget(place);
}

void PropertyPanel::MakeGroups()
{
    for (int i = 0; i < kPropertyGroupCount; ++i) {
        m_groups.append({&kPropertyGroups[i], nullptr, {}});
        m_currentEditors = &m_groups.last().editors;
        m_groups.last().section = MakeGroup(kPropertyGroups[i]);
        m_clock->layout()->addWidget(m_groups.last().section);
    }
}

Section *PropertyPanel::MakeGroup(const PropertyGroup &group)
{
    auto *const section = new Section(GroupWords(group.title));
    if (group.shown != Attribute::Id) {
        section->AddSwitch(TranslatedWords(RowOf(group.shown).label));
        section->setObjectName(QLatin1String(RowOf(group.shown).key));
        connect(section, &Section::Switched, this,
                [this, shown = group.shown](bool on) { SetShown(shown, on); });
    }
    for (const PropertyLine &line : group.lines) {
        QVector<QWidget *> editors;
        for (int i = 0; i < line.count; ++i)
            editors.append(MakeEditor(line.attributes[i]));
        if (!editors.isEmpty())
            section->AddLine(*line.label ? GroupWords(line.label) : QString(), editors);
    }
    return section;
}

ValueEditor *PropertyPanel::MakeEditor(Attribute attribute)
{
    ValueEditor *const editor = MakeValueEditor(attribute);
    m_currentEditors->append(editor);
    connect(editor, &ValueEditor::Edited, this, [this, attribute](const QString &stored) {
        SetValues({{attribute, stored}}, TranslatedWords(RowOf(attribute).label),
                  QLatin1String(RowOf(attribute).key));
    });
    editor->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *const reset = new QAction(tr("Reset to the default"), editor);
    connect(reset, &QAction::triggered, this, [this, attribute] { Reset(attribute); });
    editor->addAction(reset);
    return editor;
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
