// studio/properties: PropertyPanel: what its controls change in the text.
#include "property_panel.h"

#include "fitting_sizes.h"
#include "property_groups.h"
#include "value_editor.h"

#include "clock_node.h"

#include <QSpinBox>

#include <algorithm>
#include <functional>

namespace ClockStudio {

using namespace Lw::HNodeClock;

/// Changes all selected clocks in one undo step, last to first, so that an edit does not shift the
/// positions of the next.
void PropertyPanel::ChangeEach(const QString &label, const QString &mergeKey,
                               const std::function<TextEdits(const ParsedProgram &, int)> &edits)
{
    const ParsedProgram *const parsed = m_editor.Document().Parsed();
    if (!parsed)
        return;
    QVector<int> areas = m_editor.Selected();
    std::sort(areas.begin(), areas.end(), std::greater<int>());
    TextEdits all;
    for (const int area : qAsConst(areas))
        all += edits(*parsed, area);
    m_editor.Document().Change(all, label, mergeKey);
}

void PropertyPanel::SetValues(const QVector<StoredValue> &values, const QString &label,
                              const QString &mergeKey)
{
    ChangeEach(label, mergeKey, [this, &values](const ParsedProgram &parsed, int area) {
        HClockNode *const clock = m_editor.Wall().Clock(area);
        QVector<StoredValue> used;
        for (const StoredValue &value : values) {
            if (clock && IsUsedBy(RowOf(value.attribute).clocks, clock->ClockType()))
                used.append(value);
        }
        return ValueEdits(parsed, area, used);
    });
}

/// A text that is shown and would be cut gets a size that fits.
void PropertyPanel::SetShown(Attribute shown, bool on)
{
    const StoredValue flag {shown, QString::number(on ? 1 : 0)};
    ChangeEach(TranslatedWords(RowOf(shown).label), {},
               [this, &flag, on](const ParsedProgram &parsed, int area) {
                   const auto clock = ClockOf(parsed, area);
                   if (!clock || !IsUsedBy(RowOf(flag.attribute).clocks, clock->ClockType()))
                       return TextEdits();
                   QVector<StoredValue> values {flag};
                   clock->SetAttribute(Key(flag.attribute), flag.text, false);
                   if (const QRect visible = VisiblePart(parsed, area); on && !visible.isEmpty())
                       values += UncutSizes(*clock, visible);
                   return ValueEdits(parsed, area, values);
               });
}

/// In pixels from the top left of the area; empty if it is off the wall.
QRect PropertyPanel::VisiblePart(const ParsedProgram &parsed, int area) const
{
    const QRect geometry = parsed.Geometry(area);
    return (geometry & QRect(QPoint(), m_editor.Wall().Size())).translated(-geometry.topLeft());
}

void PropertyPanel::SetKind(int kind)
{
    ChangeEach(tr("Kind of clock"), {}, [kind](const ParsedProgram &parsed, int area) {
        return KindEdits(parsed, area, kind);
    });
}

void PropertyPanel::Reset(Attribute attribute)
{
    ChangeEach(tr("Reset"), {}, [attribute](const ParsedProgram &parsed, int area) {
        return ResetEdits(parsed, area, attribute);
    });
}

void PropertyPanel::FitSizes()
{
    ChangeEach(tr("Fit sizes"), {}, [this](const ParsedProgram &parsed, int area) {
        HClockNode *const clock = m_editor.Wall().Clock(area);
        const QRect visible = VisiblePart(parsed, area);
        if (!clock || visible.isEmpty())
            return TextEdits();
        return ValueEdits(parsed, area, FittingSizes(*clock, visible));
    });
}

void PropertyPanel::ApplyPlace()
{
    if (m_isShowing || m_editor.Selected().isEmpty())
        return;
    QVector<QRect> rects = m_editor.SelectedRects();
    if (rects.size() == 1) {
        rects.first() = QRect(m_place[0]->value(), m_place[1]->value(), m_place[2]->value(),
                              m_place[3]->value());
    } else {
        const QPoint wanted(m_place[0]->value(), m_place[1]->value());
        const QPoint way = wanted - Around(rects).topLeft();
        for (QRect &rect : rects)
            rect.translate(way);
    }
    m_editor.Place(rects, tr("Move and resize"), QStringLiteral("place"));
}

} // namespace ClockStudio
