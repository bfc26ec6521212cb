// studio/editing: the selection of clocks, and the operations on it.
#pragma once

#include "new_clock.h"
#include "text/studio_document.h"
#include "wall/live_wall.h"
#include "wall/placing.h"

#include <QObject>

namespace ClockStudio {

/// Areas are identified by their index in the program, from 0. The operations do nothing while the
/// text is not a valid program.
class WallEditor : public QObject
{
    Q_OBJECT

public:
    WallEditor(StudioDocument &document, LiveWall &wall, QObject *parent = nullptr);

    StudioDocument &Document() { return m_document; }
    LiveWall &Wall() { return m_wall; }

    /// In the order of selection.
    const QVector<int> &Selected() const { return m_selected; }
    void Select(const QVector<int> &areas);
    void Toggle(int area);
    void SelectAll();
    QVector<QRect> SelectedRects() const;

    /// Gives the selected areas these rectangles, in the order of Selected(); edits with one
    /// non-empty mergeKey are undone together.
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
    /// Pastes the areas in the clipboard; false if there are none.
    bool Paste();
    bool PasteText(const QString &text);
    /// A free rectangle for a new clock, at most this large; the centre of the wall if none is
    /// free.
    QRect FreePlace(QSize size) const;

    void SetScreenSize(QSize size);

Q_SIGNALS:
    void SelectionChanged();

private:
    void FollowEdits(const TextEdits &edits);
    void ShowText();
    void Append(const QStringList &areas, const QString &label);
    void Reorder(bool toFront, const QString &label);

    StudioDocument &m_document;
    LiveWall &m_wall;
    QVector<int> m_selected;
    QVector<int> m_places; ///< where the selected areas begin in the text
};

} // namespace ClockStudio
