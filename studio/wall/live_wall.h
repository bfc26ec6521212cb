// studio/wall: the playing clocks of the program. Only clocks whose text or size changed are
// recreated.
#pragma once

#include "image_encoder.h"
#include "image_slices.h"
#include "text/parsed_program.h"

#include "area.h"
#include "node_maker.h"
#include "screen_composer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>
#include <vector>

namespace ClockStudio {

class LiveWall : public QObject
{
    Q_OBJECT

public:
    explicit LiveWall(QObject *parent = nullptr);
    ~LiveWall() override;

    /// Shows a program. Clocks are created in short batches between events; until then their areas
    /// show the previous picture.
    void Show(const ParsedProgram &parsed);
    bool IsComplete() const { return m_pendingCount == 0; }

    QSize Size() const { return m_screen.size(); }
    const QImage &Screen() const { return m_screen; }
    int AreaCount() const { return static_cast<int>(m_slots.size()); }
    QRect Geometry(int area) const { return m_slots[static_cast<std::size_t>(area)].geometry; }
    QImage Picture(int area) const;
    /// The node of an area; null until it is created, and if none can be created from the
    /// text.
    Lw::HNodeClock::HClockNode *Clock(int area) const;
    /// Why no clock could be created from an area's text; empty if there is one or it is pending.
    QString Refusal(int area) const { return m_slots[static_cast<std::size_t>(area)].refusal; }

    /// Redraws every clock after a change of the shown time.
    void PlayNext();
    /// Recreates every clock after a change of the language.
    void RecreateClocks();

Q_SIGNALS:
    void Painted(const QRect &region); ///< pixels of the screen that changed
    void ClocksMade();                 ///< nodes have been recreated; always after the last

private:
    struct Slot
    {
        QString text;       ///< size and XML that the clock is to be built from
        QString made;       ///< the `text` that the current clock was built from
        QRect geometry;     ///< pixels of the screen
        int area = 0;       ///< in the program
        int identity = 0;   ///< the clock's Id, part of its glyph files' names
        QImage lastPicture; ///< shown until the clock is rebuilt
        QString refusal;
        std::unique_ptr<ClockStage::Area> clock;

        bool IsPending() const { return text != made; }
    };

    /// The clock that is being made, in several turns of the event loop if its images are large.
    struct Pending
    {
        Pending(const Slot &slot, ClockProgram::MadeNode node);

        QString text;
        int identity;
        ClockProgram::MadeNode made;
        ImageSlices images;
    };

    std::vector<Slot> TakeOver(const ParsedProgram &parsed);
    void MakePendingClocks();
    bool Make(Slot &slot, const QElapsedTimer &spent);
    void Begin(Slot &slot);
    void Play(Slot &slot, ClockProgram::MadeNode made);
    int FreeIdentity();
    void Release(Slot &slot);
    void Compose(const QRect &region);

    QTemporaryDir m_files;
    ClockProgram::Program m_program;
    std::vector<Slot> m_slots;
    QVector<int> m_freeIdentities;
    int m_identities = 0;
    unsigned int m_lastPlay = 0;
    int m_pendingCount = 0;
    QTimer m_makeTimer;
    QElapsedTimer m_told; ///< since ClocksMade
    std::unique_ptr<Pending> m_pending;
    ImageEncoder m_encoder {this};
    QImage m_screen;
};

/// Starts an area and plays a second frame at once, because a dial draws its texts only in its
/// second frame.
void StartWithTexts(ClockStage::Area &area);

} // namespace ClockStudio
