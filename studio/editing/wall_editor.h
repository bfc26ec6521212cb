// studio/editing: what people do to a wall, as changes of its text.
// The chosen clocks, and what is done to them.
#pragma once

#include "new_clock.h"
#include "text/studio_document.h"
#include "wall/live_wall.h"
#include "wall/placing.h"

#include <QObject>

namespace ClockStudio {

/// Areas are told by their number in the program, from 0. While the text is no program, nothing is
/// changed by these.
class WallEditor : public QObject
{
    Q_OBJECT

public:
    WallEditor(StudioDocument &document, LiveWall &wall, QObject *parent = nullptr);

    StudioDocument &Document() { return m_document; }
    LiveWall &Wall() { return m_wall; }

    /// In the order in which they were chosen.
    const QVector<int> &Chosen() const { return m_chosen; }
    void Choose(const QVector<int> &areas);
    void Toggle(int area);
    void ChooseAll();
    QVector<QRect> ChosenRects() const;

    /// Places the chosen areas.
    void Place(const QVector<QRect> &rects, const QString &label, const QString &mergeKey = {});
    void MoveBy(QPoint distance);
    void ResizeBy(QPoint distance);
    void Align(Alignment alignment);
    void Distribute(Direction direction);
    void Stack(Direction direction);
    void BringToFront();
    void SendToBack();

    void Add(ClockKind kind, const QRect &geometry);
    void Delete();
    void Duplicate();
    void Copy() const;
    void Cut();
    /// What the clipboard has; false where it has no areas.
    bool Paste();
    bool PasteText(const QString &text);
    /// A free place for a new clock of about this size.
    QRect FreePlace(QSize size) const;

    void SetScreenSize(QSize size);

Q_SIGNALS:
    void ChoiceChanged();

private:
    void FollowEdits(const TextEdits &edits);
    void ShowText();
    void Append(const QStringList &areas, const QString &label);
    void Reorder(bool toFront, const QString &label);

    StudioDocument &m_document;
    LiveWall &m_wall;
    QVector<int> m_chosen;
    QVector<int> m_places; ///< where the chosen areas begin in the text
};

} // namespace ClockStudio
