#include "wall_editor.h"

#include "text/area_texts.h"
#include "text/program_edits.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace ClockStudio {

namespace {

// Offset of a pasted clock from its original, in pixels.
constexpr QPoint kPasteDistance(8, 8);

} // namespace

WallEditor::WallEditor(StudioDocument &document, LiveWall &wall, QObject *parent)
    : QObject(parent), m_document(document), m_wall(wall)
{
    connect(&document, &StudioDocument::Edited, this, &WallEditor::FollowEdits);
    connect(&document, &StudioDocument::Loaded, this, [this] { Select({}); });
    connect(&document, &StudioDocument::Read, this, &WallEditor::ShowText);
}

void WallEditor::FollowEdits(const TextEdits &edits)
{
    for (int &place : m_places)
        place = MovedPosition(place, edits);
}

void WallEditor::ShowText()
{
    m_wall.Show(m_document.LastParsed());
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed)
        return;
    QVector<int> still;
    for (int area = 0; area < parsed->AreaCount(); ++area) {
        if (m_places.contains(parsed->elements[parsed->AreaElement(area)].whole.begin))
            still.append(area);
    }
    if (still.size() != m_selected.size()
        || !std::is_permutation(still.cbegin(), still.cend(), m_selected.cbegin()))
        Select(still);
}

void WallEditor::Select(const QVector<int> &areas)
{
    const ParsedProgram &parsed = m_document.LastParsed();
    m_selected.clear();
    m_places.clear();
    for (const int area : areas) {
        if (area < 0 || area >= parsed.AreaCount() || m_selected.contains(area))
            continue;
        m_selected.append(area);
        m_places.append(parsed.elements[parsed.AreaElement(area)].whole.begin);
    }
    m_document.EndMerging();
    emit SelectionChanged();
}

void WallEditor::Toggle(int area)
{
    QVector<int> areas = m_selected;
    if (!areas.removeOne(area))
        areas.append(area);
    Select(areas);
}

void WallEditor::SelectAll()
{
    QVector<int> all;
    for (int area = 0; area < m_wall.AreaCount(); ++area)
        all.append(area);
    Select(all);
}

QVector<QRect> WallEditor::SelectedRects() const
{
    QVector<QRect> rects;
    for (const int area : m_selected)
        rects.append(m_document.LastParsed().Geometry(area));
    return rects;
}

void WallEditor::Place(const QVector<QRect> &rects, const QString &label, const QString &mergeKey)
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed)
        return;
    TextEdits edits;
    for (int i = 0; i < qMin(rects.size(), m_selected.size()); ++i)
        edits += GeometryEdits(*parsed, m_selected[i], rects[i]);
    m_document.Change(InSequence(edits), label, mergeKey);
}

void WallEditor::MoveBy(QPoint distance)
{
    QVector<QRect> rects = SelectedRects();
    for (QRect &rect : rects)
        rect.translate(distance);
    Place(rects, tr("Move"), QStringLiteral("move"));
}

void WallEditor::ResizeBy(QPoint distance)
{
    QVector<QRect> rects = SelectedRects();
    for (QRect &rect : rects)
        rect = Resized(rect, RightSide | BottomSide, distance);
    Place(rects, tr("Resize"), QStringLiteral("resize"));
}

void WallEditor::Align(Alignment alignment)
{
    Place(Aligned(SelectedRects(), alignment, m_wall.Size()), tr("Align"));
}

void WallEditor::Distribute(Direction direction)
{
    Place(Distributed(SelectedRects(), direction), tr("Distribute"));
}

void WallEditor::Stack(Direction direction)
{
    Place(Stacked(SelectedRects(), direction), tr("Stack"));
}

void WallEditor::BringToFront()
{
    Reorder(true, tr("Bring to front"));
}

void WallEditor::SendToBack()
{
    Reorder(false, tr("Send to back"));
}

/// Later areas are drawn above earlier ones. The texts of the areas are swapped; what is between
/// them is unchanged.
void WallEditor::Reorder(bool toFront, const QString &label)
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed || m_selected.isEmpty())
        return;
    QVector<int> order(parsed->AreaCount());
    std::iota(order.begin(), order.end(), 0);
    std::stable_partition(order.begin(), order.end(),
                          [&](int area) { return m_selected.contains(area) != toFront; });
    TextEdits edits;
    for (int area = 0; area < order.size(); ++area) {
        if (order[area] != area)
            edits.append(Replacement(parsed->text,
                                     parsed->elements[parsed->AreaElement(area)].whole,
                                     parsed->AreaText(order[area])));
    }
    QVector<int> places;
    for (const int area : qAsConst(m_selected))
        places.append(order.indexOf(area));
    m_document.Change(InSequence(edits), label);
    Select(places);
}

void WallEditor::Append(const QStringList &areas, const QString &label)
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed || areas.isEmpty())
        return;
    const int first = parsed->AreaCount();
    m_document.Change({AppendChildEdit(*parsed, 0, areas.join(QLatin1Char('\n')))}, label);
    QVector<int> added;
    for (int area = first; area < m_wall.AreaCount(); ++area)
        added.append(area);
    Select(added);
}

void WallEditor::Add(ClockKind kind, const QRect &geometry)
{
    Append({NewAreaText(kind, geometry)}, tr("Add a clock"));
}

void WallEditor::Delete()
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed)
        return;
    TextEdits edits;
    for (const int area : qAsConst(m_selected))
        edits.append(RemoveElementEdit(*parsed, parsed->AreaElement(area)));
    Select({}); // otherwise an area that moves to the position of a deleted one would be selected
    m_document.Change(InSequence(edits), tr("Delete"));
}

void WallEditor::Duplicate()
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed)
        return;
    QVector<QRect> all;
    for (int area = 0; area < parsed->AreaCount(); ++area)
        all.append(parsed->Geometry(area));
    const QPoint distance = CopyDistance(SelectedRects(), all, m_wall.Size());
    QSet<int> ids = GivenIds(*parsed);
    QStringList copies;
    for (const int area : qAsConst(m_selected))
        copies.append(AreaForProgram(PortableAreaText(*parsed, area), distance, ids));
    Append(copies, tr("Duplicate"));
}

void WallEditor::Copy() const
{
    const ParsedProgram *const parsed = m_document.Parsed();
    if (!parsed || m_selected.isEmpty())
        return;
    QVector<int> ordered = m_selected;
    std::sort(ordered.begin(), ordered.end());
    QStringList texts;
    for (const int area : qAsConst(ordered))
        texts.append(PortableAreaText(*parsed, area));
    QGuiApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}

void WallEditor::Cut()
{
    Copy();
    Delete();
}

bool WallEditor::Paste()
{
    return PasteText(QGuiApplication::clipboard()->text());
}

bool WallEditor::PasteText(const QString &text)
{
    const ParsedProgram *const parsed = m_document.Parsed();
    const QStringList areas = AreasInText(text);
    if (!parsed || areas.isEmpty())
        return false;
    QSet<int> ids = GivenIds(*parsed);
    QStringList pasted;
    for (const QString &area : areas)
        pasted.append(AreaForProgram(area, kPasteDistance, ids));
    Append(pasted, tr("Paste"));
    return true;
}

QRect WallEditor::FreePlace(QSize size) const
{
    const QRect screen(QPoint(), m_wall.Size());
    const QSize fitting = size.boundedTo(screen.size());
    const auto isFree = [this](const QRect &rect) {
        for (int area = 0; area < m_wall.AreaCount(); ++area) {
            if (m_wall.Geometry(area).intersects(rect))
                return false;
        }
        return true;
    };
    constexpr int kStep = 8;
    for (int y = 0; y + fitting.height() <= screen.height(); y += kStep) {
        for (int x = 0; x + fitting.width() <= screen.width(); x += kStep) {
            if (isFree({QPoint(x, y), fitting}))
                return {QPoint(x, y), fitting};
        }
    }
    return {
        QPoint((screen.width() - fitting.width()) / 2, (screen.height() - fitting.height()) / 2),
        fitting};
}

void WallEditor::SetScreenSize(QSize size)
{
    if (const ParsedProgram *const parsed = m_document.Parsed())
        m_document.Change(InSequence(ScreenSizeEdits(*parsed, size)), tr("Resize the wall"),
                          QStringLiteral("screen size"));
}

} // namespace ClockStudio
