// studio/wall: the wall as it is seen and handled.
// The clocks of the program as they play. Only those are made again whose text or size changed.
#pragma once

#include "text/program_reading.h"

#include "area.h"
#include "screen_composer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>
#include <vector>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockStudio {

class LiveWall : public QObject
{
    Q_OBJECT

public:
    explicit LiveWall(QObject *parent = nullptr);
    ~LiveWall() override;

    /// Shows a program. Clocks that take long are made while events are handled between them; until
    /// then their places show what was there.
    void Show(const ProgramReading &reading);
    bool IsComplete() const { return m_waiting == 0; }

    QSize Size() const { return m_screen.size(); }
    const QImage &Screen() const { return m_screen; }
    int AreaCount() const { return static_cast<int>(m_slots.size()); }
    QRect Geometry(int area) const { return m_slots[static_cast<std::size_t>(area)].geometry; }
    QImage Picture(int area) const;
    /// The node as the text says it; null while it waits to be made, and where no clock is made of
    /// the text.
    Lw::HNodeClock::HClockNode *Clock(int area) const;
    /// Why no clock is made of an area's text; empty where one is, or waits.
    QString Refusal(int area) const { return m_slots[static_cast<std::size_t>(area)].refusal; }

    /// Every clock draws what it shows now: the shown time has changed.
    void PlayNext();
    /// Makes every clock again: what they are made with, such as a language, has changed.
    void MakeAgain();

Q_SIGNALS:
    void Painted(const QRect &region); ///< pixels of the screen that changed
    void ClocksMade();                 ///< nodes are other ones than before

private:
    struct Slot
    {
        QString text;       ///< of the area, which the clock is made from
        QString made;       ///< that it was made from
        QRect geometry;     ///< pixels of the screen
        int area = 0;       ///< in the program
        int identity = 0;   ///< in the names of its glyph files
        QImage lastPicture; ///< while it waits
        QString refusal;
        std::unique_ptr<ClockStage::Area> clock;

        bool Waits() const { return text != made; }
    };

    std::vector<Slot> TakeOver(const ProgramReading &reading);
    void MakeWaiting();
    void Make(Slot &slot);
    int FreeIdentity();
    void Release(Slot &slot);
    void Compose(const QRect &region);

    QTemporaryDir m_files;
    ClockProgram::Program m_program;
    std::vector<Slot> m_slots;
    QVector<int> m_freeIdentities;
    int m_identities = 0;
    unsigned int m_plays = 0;
    int m_waiting = 0;
    QTimer m_making;
    QImage m_screen;
};

/// Starts an area that shows all of its clock at once: texts of dials come with the second frame.
void StartWhole(ClockStage::Area &area);

/// The plugin's own finder, for whatever makes nodes.
Lw::INodePlugin *FindClockPlugin(QDomElement &element);

} // namespace ClockStudio
