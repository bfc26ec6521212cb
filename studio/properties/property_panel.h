// studio/properties: the property panel: kind, zone, position and every other attribute of the
// selected clocks.
#pragma once

#include "property_groups.h"
#include "value_editor.h"

#include "editing/value_edits.h"
#include "editing/wall_editor.h"

#include <QScrollArea>

#include <functional>

QT_BEGIN_NAMESPACE
class QButtonGroup;
class QLabel;
class QSpinBox;
class QVBoxLayout;
QT_END_NAMESPACE

namespace ClockStudio {

class Section;
class ZoneSection;

class PropertyPanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit PropertyPanel(WallEditor &editor, QWidget *parent = nullptr);

    /// Scrolls to the control of an attribute and gives it keyboard focus.
    void Reveal(const QString &key);
    ZoneSection &Zone() { return *m_zone; }

    /// Sets these values in every selected clock that uses them.
    void SetValues(const QVector<StoredValue> &values, const QString &label,
                   const QString &mergeKey = {});
    /// Sets the font sizes of the selected clocks so that the texts fill their areas.
    void FitSizes();

Q_SIGNALS:
    void Finished(); ///< Return was pressed in a number or a text

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void Refresh();
    void UpdateMinimumWidth();
    void ShowClocks(const QVector<Lw::HNodeClock::HClockNode *> &clocks);
    void ShowPlace();
    void ShowWall();
    void MakeHead();
    void MakeKindAndZone();
    void MakePlace();
    void MakeGroups();
    Section *MakeGroup(const PropertyGroup &group);
    ValueEditor *MakeEditor(Lw::HNodeClock::Attribute attribute);
    void ChangeEach(const QString &label, const QString &mergeKey,
                    const std::function<TextEdits(const ParsedProgram &, int)> &edits);
    void SetShown(Lw::HNodeClock::Attribute shown, bool on);
    QRect VisiblePart(const ParsedProgram &parsed, int area) const;
    void SetKind(int kind);
    void ApplyPlace();
    void Reset(Lw::HNodeClock::Attribute attribute);
    QVector<Lw::HNodeClock::HClockNode *> SelectedClocks() const;

    struct Group
    {
        const PropertyGroup *group;
        Section *section;
        QVector<ValueEditor *> editors;
    };

    WallEditor &m_editor;
    QVBoxLayout *m_layout;
    QLabel *m_title;
    QWidget *m_wall;  ///< shown while no clock is selected
    QWidget *m_clock; ///< shown otherwise
    QButtonGroup *m_kinds;
    QSpinBox *m_place[4];      ///< x, y, width, height
    QSpinBox *m_screenSize[2]; ///< width, height
    ZoneSection *m_zone;
    QVector<Group> m_groups;
    QVector<ValueEditor *> *m_currentEditors = nullptr; ///< the editors of the group being built
    bool m_isShowing = false;
};

} // namespace ClockStudio
