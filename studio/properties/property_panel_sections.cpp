// studio/properties: PropertyPanel: makes its sections and controls, from the tables.
#include "property_panel.h"

#include "clock_pictures.h"
#include "section.h"
#include "zone_section.h"

#include "clock_node.h"

#include <QAction>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

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

} // namespace

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

} // namespace ClockStudio
