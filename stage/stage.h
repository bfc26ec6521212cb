// stage/: a program during playback: all its areas.
#pragma once

#include "area.h"
#include "failure.h"
#include "node_maker.h"
#include "program_file.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

namespace ClockStage {

class Stage : public QObject
{
    Q_OBJECT

public:
    /// Creates the nodes with the plugins that the finder returns, which must outlive the stage.
    /// After a failure the stage must not be started.
    ClockProgram::MaybeFailure Build(const ClockProgram::Program &program,
                                     const ClockProgram::PluginFinder &findPlugin,
                                     GlyphFiles glyphFiles);
    QStringList Warnings() const { return m_warnings; }
    QSize Size() const { return m_size; }

    void Start();    ///< every area shows its first picture
    void PlayNext(); ///< every area shows its next picture now

    QVector<Lw::HNode *> Nodes() const; ///< those not deleted by their plugin
    QVector<Layer> Layers() const;
    QImage Screen() const; ///< the composed screen

Q_SIGNALS:
    /// This region of the screen must be recomposed. Empty if an area shows the same picture for
    /// another second.
    void Changed(QRegion region);
    /// A node asked for new glyph images while it played. They have been generated, unless carried,
    /// and loaded.
    void Restarted(Lw::HNode *node);

private:
    void AddArea(Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node, GlyphFiles glyphFiles);

    QSize m_size;
    std::vector<std::unique_ptr<Area>> m_areas; ///< in the order of the program
    QStringList m_warnings;
};

} // namespace ClockStage
