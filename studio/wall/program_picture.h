// studio/wall: draws a whole program as one picture, for the gallery.
#pragma once

#include "hnode.h"
#include "node_maker.h"
#include "screen_composer.h"

#include <QByteArray>
#include <QImage>
#include <QVector>

namespace ClockStudio {

/// A picture of a program at the time currently shown. Its clocks are drawn one by one, so that the
/// window responds between them.
class ProgramPicture
{
public:
    explicit ProgramPicture(const QByteArray &bytes);

    bool IsDone() const { return m_next >= m_made.nodes.size(); }
    void DrawNextClock();
    /// The clocks drawn so far; null if it is not a valid program.
    QImage Image() const;

private:
    QSize m_size;
    ClockProgram::MadeNodes m_made;
    std::size_t m_next = 0;
    QVector<ClockStage::Layer> m_layers;
};

} // namespace ClockStudio
